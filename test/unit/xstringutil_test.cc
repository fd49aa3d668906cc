#include <korvane/xstringutil.h>

#include "table.h"

namespace {

using namespace xstringutil;

TEST(xstringutil, PrefixesAndSuffixesAreExact) {
  const Table begins = [](const Text& text, const Text& prefix, bool want) {
    const ExactCopy copy(text);
    EXPECT_EQ(IsBeginWith(copy.data(), copy.size(), prefix), want);
  };
  begins(L"a\0bc"s, L"a\0b"s, true);
  begins(L"mag", L"mag", true);
  begins(L"ma", L"mag", false);
  begins(L"Mag", L"mag", false);
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
  const Table ends = [](const Bytes& text, const Bytes& suffix, bool want) {
    const ExactCopy copy(text);
    EXPECT_EQ(IsEndWith(copy.data(), copy.size(), suffix), want);
    Bytes cut = text;
    EXPECT_EQ(TrimRight(cut, suffix) + (want ? suffix : ""), text);
  };
  ends(".td.td", ".td", true);
  ends(".td", ".td", true);
  ends("td", ".td", false);
  ends("name.TD", ".td", false);
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(xstringutil, GetLineReturnsOneTerminatedLine) {
  const Table row = [](const Bytes& text, int length, const Bytes& want) {
    Bytes line = "-";
    EXPECT_EQ(GetLine(ExactCopy(text).data(), length, line),
              want == "-" ? 0 : int(want.size()));
    EXPECT_EQ(line, want);
  };
  row("a\0\n\nb"s, 5, "a\0\n"s);
  row("a\n", 1, "-");
  row("a\n", -1, "-");
}

TEST(xstringutil, TrimRemovesSpacesAndTabsOnly) {
  Bytes text = " \t\n a \n\t ";
  EXPECT_EQ(TrimLeft(text), "\n a \n\t ");
  EXPECT_EQ(TrimRight(text), "\n a \n");
  Bytes blanks = " \t";
  EXPECT_EQ(TrimLeft(blanks), "");
  blanks = " \t";
  EXPECT_EQ(TrimRight(blanks), "");
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
    split(first, first, second = "-");
    EXPECT_EQ(first, want_first == "-" ? text : want_first);
    EXPECT_EQ(second, want_second);
  };
  row(SplitNetPathFile, "dir/sub/file", "dir/sub/", "file");
  row(SplitNetPathFile, "dir/", "dir/", "-");
  row(SplitNetPathFile, "a\\b", "-", "a\\b");
  row(SplitFileName, "archive.tar.gz", "archive.tar", "gz");
  row(SplitFileName, "name", "name", "-");
  row(SplitFileName, "name.", "name", "-");
}

TEST(xstringutil, WindowsFileNamesAreShortAndFreeOfNineCharacters) {
  EXPECT_TRUE(IsValidWindowsFileName(Bytes(212, 'a') + "\x01; "));
  EXPECT_FALSE(IsValidWindowsFileName(Bytes(216, 'a')));
  EXPECT_FALSE(IsValidWindowsFileName(""));
  for (const char illegal : "\\/:*?\"<>|"s) {
    EXPECT_FALSE(IsValidWindowsFileName("a"s + illegal)) << illegal;
  }
}

TEST(xstringutil, StringToInt64ReadsDigitsAfterOneMinus) {
  const Table row = [](const Bytes& text, const Bytes& want) {
    long long value = 7;
    EXPECT_EQ(StringToInt64(text, value), want != "7");
    EXPECT_EQ(Int64ToString(value), want);
  };
  row("-18446744073709551696", "-80");
  row("9223372036854775809", "-9223372036854775807");
  row("-", "0");
  for (const Bytes& none : {""s, "+4"s, "--4"s, "4/"s, "4:"s, "1\0"s}) {
    row(none, "7");
  }
}

TEST(xstringutil, DumpsOfBytes) {
  const ExactCopy data("\xA5\x3C"s);
  EXPECT_EQ(Data2BitString(data.data(), 12), "101001010011");
  EXPECT_EQ(Data2BitString(data.data(), -1), "");
  EXPECT_EQ(Data2BitString(nullptr, 8), "");
  EXPECT_EQ(DataToHexString(data.data(), 2, ": "), "a5: 3c: ");
  EXPECT_EQ(DataToHexString(data.data(), -1, " "), "");
  EXPECT_EQ(DataToHexString(nullptr, 1, " "), "");
}

TEST(xstringutil, EscapesDifferInTheirSetAndInTheCaseOfDigits) {
  const Table row = [](const Bytes& bytes, const Bytes& text,
                       const Bytes& path) {
    const ExactCopy copy(bytes);
    EXPECT_EQ(EscapeString(copy.data(), int(copy.size())), text);
    EXPECT_EQ(EscapePath(copy.data(), int(copy.size())), path);
    EXPECT_EQ(UnescapeString(text), bytes);
    EXPECT_EQ(UnescapeString(path), bytes);
  };
  row("azAZ09@[`{:", "azAZ09%40%5B%60%7B%3A", "azAZ09%40%5b%60%7b%3a");
  row("/-_.!~*()'", "%2F%2D%5F%2E%21%7E%2A%28%29%27", "/-_.!~*()%27");
  row("\0\x7F\x80\xFF"s, "%00%7F%80%FF", "%00%7f%80%ff");
  EXPECT_EQ(UnescapeString("a+b%2541"), "a b%41");
  for (const char* bad : {"ok%41%", "ok%4", "%G1x", "%1Gx", "%%41"}) {
    EXPECT_EQ(UnescapeString(bad), "") << bad;
  }
}

}  // namespace
