#include <korvane/xstringutil.h>

#include <gtest/gtest.h>

#include <string>

#include "exact_copy.h"
#include "table.h"

namespace {

using namespace xstringutil;
using namespace std::string_literals;
using Text = std::string;
using Bytes = ExactCopy<char>;

TEST(xstringutil, IsBeginWithComparesCodeUnits) {
  const Table row = [](const std::wstring& text, const std::wstring& prefix,
                       bool want) {
    const ExactCopy<wchar_t> copy(text);
    EXPECT_EQ(IsBeginWith(copy.data(), unsigned(copy.size()), prefix), want);
  };
  row(L"magnet", L"", true);
  row(L"magnet", L"mag", true);
  row(L"mag", L"mag", true);
  row(L"ma", L"mag", false);
  row(L"Magnet", L"mag", false);
  row(L"a\0b"s, L"a\0c"s, false);
  row(L"\x1002D", L"\x2D", false);
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
}

TEST(xstringutil, IsEndWithComparesBytes) {
  const Table row = [](const Text& text, const Text& suffix, bool want) {
    const Bytes copy(text);
    EXPECT_EQ(IsEndWith(copy.data(), unsigned(copy.size()), suffix), want);
  };
  row("name.td", "", true);
  row("name.td", ".td", true);
  row(".td", ".td", true);
  row("td", ".td", false);
  row("name.TD", ".td", false);
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(xstringutil, GetLineReturnsOneTerminatedLine) {
  const Table row = [](const Text& text, int length, const Text& want) {
    const Bytes copy(text);
    Text line = "untouched";
    EXPECT_EQ(GetLine(copy.data(), length, line),
              want == "untouched" ? 0 : int(want.size()));
    EXPECT_EQ(line, want);
  };
  row("a\n\nb", 4, "a\n");
  row("\n", 1, "\n");
  row("a\0\r\n"s, 4, "a\0\r\n"s);
  row("abc", 3, "untouched");
  row("a\n", 1, "untouched");
  row("a\n", -1, "untouched");
}

TEST(xstringutil, TrimRemovesSpacesAndTabsOnly) {
  const Table row = [](Text left, const Text& want_left, const Text& want) {
    Text right = left;
    EXPECT_EQ(TrimLeft(left), want_left);
    EXPECT_EQ(TrimRight(right), want);
  };
  row("", "", "");
  row(" \t ", "", "");
  row(" \ta b\t ", "a b\t ", " \ta b");
  row("\n a \n", "\n a \n", "\n a \n");
}

TEST(xstringutil, TrimRightCutsASuffixOnce) {
  const Table row = [](Text text, const Text& suffix, const Text& want) {
    EXPECT_EQ(TrimRight(text, suffix), want);
  };
  row("a.txt.txt", ".txt", "a.txt");
  row(".txt", ".txt", "");
  row("txt", ".txt", "txt");
  row("a.TXT", ".txt", "a.TXT");
  row("a", "", "a");
}

TEST(xstringutil, SplitsLeaveTheMissingPartUntouched) {
  using Split = void (*)(const Text&, Text&, Text&);
  const Table row = [](Split split, const Text& text, const Text& want_first,
                       const Text& want_second) {
    Text first = "-";
    Text second = "-";
    split(text, first, second);
    EXPECT_EQ(first, want_first);
    EXPECT_EQ(second, want_second);
    // Outputs may be the input.
    Text same = text;
    split(same, want_first == "-" ? second : same, second);
    EXPECT_EQ(second, want_second);
    same = text;
    split(same, first, want_second == "-" ? first : same);
    EXPECT_EQ(first, want_first);
  };
  row(SplitNetPathFile, "dir/sub/file", "dir/sub/", "file");
  row(SplitNetPathFile, "dir/", "dir/", "-");
  row(SplitNetPathFile, "a\\b", "-", "a\\b");
  row(SplitFileName, "archive.tar.gz", "archive.tar", "gz");
  row(SplitFileName, ".gz", "", "gz");
  row(SplitFileName, "name", "name", "-");
  row(SplitFileName, "name.", "name", "-");
}

TEST(xstringutil, WindowsFileNamesAreShortAndFreeOfNineCharacters) {
  EXPECT_TRUE(IsValidWindowsFileName("\x01.b c;\xFF"));
  EXPECT_TRUE(IsValidWindowsFileName(Text(215, 'a')));
  EXPECT_FALSE(IsValidWindowsFileName(Text(216, 'a')));
  EXPECT_FALSE(IsValidWindowsFileName(""));
  for (const char illegal : "\\/:*?\"<>|"s) {
    EXPECT_FALSE(IsValidWindowsFileName("a"s + illegal)) << illegal;
  }
}

TEST(xstringutil, StringToInt64ReadsDigitsAfterOneMinus) {
  const Table row = [](const Text& text, bool is_number, const Text& want) {
    long long value = 777;
    EXPECT_EQ(StringToInt64(text, value), is_number);
    EXPECT_EQ(Int64ToString(value), want);
  };
  row("-42", true, "-42");
  row("007", true, "7");
  row("9223372036854775807", true, "9223372036854775807");
  row("9223372036854775808", true, "-9223372036854775808");
  row("-18446744073709551617", true, "-1");
  row("-", true, "0");
  row("", false, "777");
  row("+4", false, "777");
  row("--4", false, "777");
  row("4/", false, "777");
  row("4:", false, "777");
  row("1\0"s, false, "777");
}

TEST(xstringutil, Data2BitStringWritesTheHighestBitFirst) {
  const Table row = [](const Text& data, int count, const Text& want) {
    EXPECT_EQ(Data2BitString(Bytes(data).data(), count), want);
  };
  row("\xA5\x3C", 12, "101001010011");
  row("\x01\x80", 16, "0000000110000000");
  row("\xA5", -1, "");
  EXPECT_EQ(Data2BitString(nullptr, 8), "");
}

TEST(xstringutil, DataToHexStringEndsWithTheSeparator) {
  const Table row = [](const Text& data, int size, const Text& want) {
    EXPECT_EQ(DataToHexString(Bytes(data).data(), size, ": "), want);
  };
  row("\x0A\xFF", 2, "0a: ff: ");
  row("\x0A", -1, "");
  EXPECT_EQ(DataToHexString(nullptr, 1, " "), "");
}

TEST(xstringutil, EscapesDifferInTheirSetAndInTheCaseOfDigits) {
  const Table row = [](const Text& data, const Text& text, const Text& path) {
    const Bytes copy(data);
    EXPECT_EQ(EscapeString(copy.data(), int(copy.size())), text);
    EXPECT_EQ(EscapePath(copy.data(), int(copy.size())), path);
    EXPECT_EQ(UnescapeString(text), data);
    EXPECT_EQ(UnescapeString(path), data);
  };
  row("azAZ09", "azAZ09", "azAZ09");
  row("-_.!~*()", "%2D%5F%2E%21%7E%2A%28%29", "-_.!~*()");
  row("@[`{:/'%", "%40%5B%60%7B%3A%2F%27%25", "%40%5b%60%7b%3a/%27%25");
  row("\0\n\x7F\x80\xFF"s, "%00%0A%7F%80%FF", "%00%0a%7f%80%ff");
}

TEST(xstringutil, UnescapeStringIsAllOrNothing) {
  EXPECT_EQ(UnescapeString("a+b%2B%2541"), "a b+%41");
  for (const char* bad : {"ok%41%", "ok%4", "%G1x", "%1Gx", "%%41"}) {
    EXPECT_EQ(UnescapeString(bad), "") << bad;
  }
}

}  // namespace
