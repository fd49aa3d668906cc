#include <korvane/xstringutil.h>

#include "table.h"

namespace {

using namespace xstringutil;

TEST(xstringutil, PrefixesAndSuffixesAreExact) {
  const Table begins = [](const Text& text, const Text& prefix, bool want) {
    const ExactCopy<wchar_t> copy(text);
    EXPECT_EQ(IsBeginWith(copy.data(), unsigned(copy.size()), prefix), want);
  };
  const Table ends = [](const Bytes& text, const Bytes& suffix, bool want) {
    const ExactCopy<char> copy(text);
    EXPECT_EQ(IsEndWith(copy.data(), unsigned(copy.size()), suffix), want);
    Bytes cut = text;
    EXPECT_EQ(TrimRight(cut, suffix) + (want ? suffix : ""), text);
  };
  begins(L"magnet", L"", true);
  begins(L"mag", L"mag", true);
  begins(L"ma", L"mag", false);
  begins(L"Magnet", L"mag", false);
  begins(L"a\0b"s, L"a\0c"s, false);
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
  ends("name.td", "", true);
  ends(".td.td", ".td", true);
  ends(".td", ".td", true);
  ends("td", ".td", false);
  ends("name.TD", ".td", false);
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(xstringutil, GetLineReturnsOneTerminatedLine) {
  const Table row = [](const Bytes& text, int length, const Bytes& want) {
    const ExactCopy<char> copy(text);
    Bytes line = "old";
    EXPECT_EQ(GetLine(copy.data(), length, line),
              want == "old" ? 0 : int(want.size()));
    EXPECT_EQ(line, want);
  };
  row("a\0\n\nb"s, 5, "a\0\n"s);
  row("\n", 1, "\n");
  row("a\n", 1, "old");
  row("a\n", -1, "old");
}

TEST(xstringutil, TrimRemovesSpacesAndTabsOnly) {
  const Table row = [](Bytes left, const Bytes& want_left, const Bytes& want) {
    Bytes right = left;
    EXPECT_EQ(TrimLeft(left), want_left);
    EXPECT_EQ(TrimRight(right), want);
  };
  row(" \t ", "", "");
  row(" \ta b\t ", "a b\t ", " \ta b");
  row("\n a \n", "\n a \n", "\n a \n");
}

TEST(xstringutil, SplitsLeaveTheMissingPartUntouched) {
  using Split = void (*)(const Bytes&, Bytes&, Bytes&);
  const Table row = [](Split split, const Bytes& text, const Bytes& want_first,
                       const Bytes& want_second) {
    Bytes first = "-";
    Bytes second = text;  // an output may be the input
    split(second, first, second);
    EXPECT_EQ(first, want_first);
    EXPECT_EQ(second, want_second == "-" ? text : want_second);
    first = text;
    second = "-";
    split(first, first, second);
    EXPECT_EQ(first, want_first == "-" ? text : want_first);
    EXPECT_EQ(second, want_second);
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
  EXPECT_TRUE(IsValidWindowsFileName(Bytes(215, 'a')));
  EXPECT_FALSE(IsValidWindowsFileName(Bytes(216, 'a')));
  EXPECT_FALSE(IsValidWindowsFileName(""));
  for (const char illegal : "\\/:*?\"<>|"s) {
    EXPECT_FALSE(IsValidWindowsFileName("a"s + illegal)) << illegal;
  }
}

TEST(xstringutil, StringToInt64ReadsDigitsAfterOneMinus) {
  const Table row = [](const Bytes& text, const Bytes& want) {
    long long value = 777;
    EXPECT_EQ(StringToInt64(text, value), want != "777");
    EXPECT_EQ(Int64ToString(value), want);
  };
  row("-42", "-42");
  row("9223372036854775808", "-9223372036854775808");
  row("-18446744073709551617", "-1");
  row("-", "0");
  for (const Bytes& none : {""s, "+4"s, "--4"s, "4/"s, "4:"s, "1\0"s}) {
    row(none, "777");
  }
}

TEST(xstringutil, DumpsOfBytes) {
  const ExactCopy<char> data("\xA5\x3C");
  EXPECT_EQ(Data2BitString(data.data(), 12), "101001010011");
  EXPECT_EQ(Data2BitString(data.data(), 16), "1010010100111100");
  EXPECT_EQ(Data2BitString(data.data(), -1), "");
  EXPECT_EQ(Data2BitString(nullptr, 8), "");
  EXPECT_EQ(DataToHexString(data.data(), 2, ": "), "a5: 3c: ");
  EXPECT_EQ(DataToHexString(data.data(), -1, " "), "");
  EXPECT_EQ(DataToHexString(nullptr, 1, " "), "");
}

TEST(xstringutil, EscapesDifferInTheirSetAndInTheCaseOfDigits) {
  const Table row = [](const Bytes& data, const Bytes& text,
                       const Bytes& path) {
    const ExactCopy<char> copy(data);
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
