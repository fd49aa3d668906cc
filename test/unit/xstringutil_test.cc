#include <korvane/xstringutil.h>

#include "unit_test.h"

using namespace xstringutil;

TEST(xstringutil, PrefixesAndSuffixesAreExact) {
  EXPECT_TRUE(IsBeginWith(L"a\0bc", 4, L"a\0b"s));
  EXPECT_FALSE(IsBeginWith(L"mag", 2, L"mag"));
  EXPECT_FALSE(IsBeginWith(L"Mag", 3, L"mag"));
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
  EXPECT_TRUE(IsEndWith("a.td", 4, ".td") && IsEndWith("td", 2, "td"));
  EXPECT_FALSE(IsEndWith("td", 2, ".td"));
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(xstringutil, GetLineReturnsOneTerminatedLine) {
  Bytes line;
  EXPECT_EQ(GetLine("a\0\n\nb", 5, line), 3);
  EXPECT_EQ(GetLine("a\n", 1, line), 0);
  EXPECT_EQ(line, "a\0\n"s);
}

TEST(xstringutil, TrimRemovesSpacesAndTabsOrOneSuffix) {
  Bytes text = " \t\n a \n\t ";
  EXPECT_EQ(TrimLeft(text), "\n a \n\t ");
  EXPECT_EQ(TrimRight(text), "\n a \n");
  EXPECT_EQ(TrimRight(text = " \t"), "");
  EXPECT_EQ(TrimRight(text = ".td.td", ".td"), ".td");
  EXPECT_EQ(TrimRight(text, ".td"), "");
  EXPECT_EQ(TrimRight(text = "td", ".td"), "td");
}

TEST(xstringutil, SplitsLeaveTheMissingPartUntouched) {
  const auto parts = [](auto split, const Bytes& text) {
    Bytes first = "-";
    Bytes second = "-";
    split(text, first, second);
    return first + " " + second;
  };
  EXPECT_EQ(parts(SplitNetPathFile, "dir/sub/file"), "dir/sub/ file");
  EXPECT_EQ(parts(SplitNetPathFile, "dir/"), "dir/ -");
  EXPECT_EQ(parts(SplitNetPathFile, "a\\b"), "- a\\b");
  EXPECT_EQ(parts(SplitFileName, "archive.tar.gz"), "archive.tar gz");
  EXPECT_EQ(parts(SplitFileName, "name"), "name -");
  EXPECT_EQ(parts(SplitFileName, "name."), "name -");
  // An output may be the input.
  Bytes path = "dir/name.gz";
  Bytes rest;
  SplitNetPathFile(path, rest, path);
  SplitFileName(path, path, rest);
  EXPECT_EQ(path + " " + rest, "name gz");
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
  long long value = 7;
  for (const Bytes none : {"", "+4", "--4", "4/", "4:"}) {
    EXPECT_FALSE(StringToInt64(none, value)) << none;
  }
  EXPECT_TRUE(StringToInt64("-18446744073709551696", value));
  EXPECT_EQ(Int64ToString(value), "-80");
  EXPECT_TRUE(StringToInt64("-", value));
  EXPECT_EQ(Int64ToString(value), "0");
}

TEST(xstringutil, DumpsOfBytes) {
  const ExactCopy data("\x65\xBC"s);
  EXPECT_EQ(Data2BitString(data.data(), 12), "011001011011");
  EXPECT_EQ(Data2BitString(data.data(), 1) + Data2BitString(nullptr, 1), "0");
  EXPECT_EQ(DataToHexString(data.data(), 2, ": "), "65: bc: ");
  EXPECT_EQ(DataToHexString("", -1, "") + Data2BitString("", -1), "");
}

TEST(xstringutil, EscapesDifferInTheirSetAndInTheCaseOfDigits) {
  const ExactCopy bytes("azAZ09@[`{:/-_.!~*()'\0\x7F\x80\xFF"s);
  const Bytes path = EscapePath(bytes.data(), int(bytes.size()));
  EXPECT_EQ(path, "azAZ09%40%5b%60%7b%3a/-_.!~*()%27%00%7f%80%ff");
  EXPECT_EQ(EscapeString(bytes.data(), int(bytes.size())),
            "azAZ09%40%5B%60%7B%3A%2F%2D%5F%2E%21%7E%2A%28%29%27%00%7F%80%FF");
  EXPECT_EQ(UnescapeString(path), Bytes(bytes.data(), bytes.size()));
  EXPECT_EQ(UnescapeString("a+b%2541") + EscapePath(nullptr, 9), "a b%41");
  for (const char* bad : {"ok%41%", "ok%4", "%G1x", "%1Gx"}) {
    EXPECT_EQ(UnescapeString(bad), "") << bad;
  }
}
