#include <korvane/xstringutil.h>

#include "table.h"

using namespace xstringutil;

TEST(xstringutil, PrefixesAndSuffixesAreExact) {
  EXPECT_TRUE(IsBeginWith(L"a\0bc", 4, L"a\0b"s));
  EXPECT_TRUE(IsBeginWith(L"mag", 3, L"mag"));
  EXPECT_FALSE(IsBeginWith(L"mag", 2, L"mag"));
  EXPECT_FALSE(IsBeginWith(L"Mag", 3, L"mag"));
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
  const Table ends = [](const Bytes& text, const Bytes& suffix, bool want) {
    EXPECT_EQ(IsEndWith(text.data(), unsigned(text.size()), suffix), want);
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
  Bytes line;
  EXPECT_EQ(GetLine("a\0\n\nb", 5, line), 3);
  EXPECT_EQ(GetLine("a\n", 1, line), 0);
  EXPECT_EQ(GetLine("a\n", -1, line), 0);
  EXPECT_EQ(line, "a\0\n"s);
}

TEST(xstringutil, TrimRemovesSpacesAndTabsOnly) {
  Bytes text = " \t\n a \n\t ";
  EXPECT_EQ(TrimLeft(text), "\n a \n\t ");
  EXPECT_EQ(TrimRight(text), "\n a \n");
  EXPECT_EQ(TrimLeft(text = " \t"), "");
  EXPECT_EQ(TrimRight(text = " \t"), "");
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
