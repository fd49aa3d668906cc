#include "text/xstringutil.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "exact_copy.h"

namespace {

using namespace xstringutil;

constexpr char kUntouched[] = "untouched";

TEST(XStringUtil, IsBeginWithComparesUnitByUnit) {
  const struct {
    std::wstring text, prefix;
    bool want;
  } kCases[] = {
      {L"magnet", L"", true},
      {L"", L"", true},
      {L"mag", L"mag", true},
      {L"ma", L"mag", false},
      {L"magnet", L"mag", true},
      {L"Magnet", L"mag", false},
      {L"max", L"mag", false},
      {L"xag", L"mag", false},
      {L"\x4e2d!", L"\x4e2d", true},
      {L"\x1002d!", L"\x2d", false},
      {{L'a', 0, L'b'}, {L'a', 0}, true},
      {{L'a', 0, L'b'}, {L'a', 0, L'c'}, false},
  };
  for (const auto& test : kCases) {
    const ExactCopy text{std::wstring_view(test.text)};
    EXPECT_EQ(IsBeginWith(text.data(), unsigned(text.size()), test.prefix),
              test.want)
        << testing::PrintToString(test.text);
  }
  EXPECT_FALSE(IsBeginWith(nullptr, 5, L"a"));
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
}

TEST(XStringUtil, IsEndWithComparesByteByByte) {
  const struct {
    std::string text, suffix;
    bool want;
  } kCases[] = {
      {"name.td", "", true},      {"", "", true},
      {".td", ".td", true},       {"td", ".td", false},
      {"name.td", ".td", true},   {"name.TD", ".td", false},
      {"name.tx", ".td", false},  {"name,td", ".td", false},
      {"\xE4\xB8", "\xB8", true},
  };
  for (const auto& test : kCases) {
    const ExactCopy text{std::string_view(test.text)};
    EXPECT_EQ(IsEndWith(text.data(), unsigned(text.size()), test.suffix),
              test.want)
        << test.text << " " << test.suffix;
  }
  EXPECT_FALSE(IsEndWith(nullptr, 5, "a"));
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(XStringUtil, GetLineTakesOneTerminatedLine) {
  const struct {
    std::string buffer;
    int len, want;
    std::string line;
  } kCases[] = {
      {"ab\ncd", 5, 3, "ab\n"},
      {"abc", 3, 0, kUntouched},
      {"\n", 1, 1, "\n"},
      {"ab\n", 3, 3, "ab\n"},
      {"ab\n", 2, 0, kUntouched},
      {"a\n\nb", 4, 2, "a\n"},
      {"a\n", 0, 0, kUntouched},
      {"a\n", -1, 0, kUntouched},
      {{"a\0\n", 3}, 3, 3, {"a\0\n", 3}},
      {"a\r\n", 3, 3, "a\r\n"},
  };
  for (const auto& test : kCases) {
    std::string line = kUntouched;
    const ExactCopy buffer{std::string_view(test.buffer)};
    EXPECT_EQ(GetLine(buffer.data(), test.len, line), test.want) << test.buffer;
    EXPECT_EQ(line, test.line) << test.buffer;
  }
  std::string line = kUntouched;
  EXPECT_EQ(GetLine(nullptr, 3, line), 0);
  EXPECT_EQ(line, kUntouched);
}

TEST(XStringUtil, TrimRemovesSpacesAndTabsOnly) {
  const struct {
    const char *in, *left, *right;
  } kCases[] = {
      {"", "", ""},
      {" \t ", "", ""},
      {" \ta b\t ", "a b\t ", " \ta b"},
      {"\n a \n", "\n a \n", "\n a \n"},
      {"a", "a", "a"},
  };
  for (const auto& test : kCases) {
    std::string left = test.in;
    std::string right = test.in;
    EXPECT_EQ(&TrimLeft(left), &left);
    EXPECT_EQ(&TrimRight(right), &right);
    EXPECT_EQ(left, test.left) << test.in;
    EXPECT_EQ(right, test.right) << test.in;
  }
}

TEST(XStringUtil, TrimRightCutsASuffixOnce) {
  const struct {
    const char *in, *suffix, *want;
  } kCases[] = {
      {"file.txt.txt", ".txt", "file.txt"},
      {"a.txtb", ".txt", "a.txtb"},
      {".txt", ".txt", ""},
      {"txt", ".txt", "txt"},
      {"a.txt", "", "a.txt"},
      {"", ".txt", ""},
      {"aaa", "aa", "a"},
      {"a.TXT", ".txt", "a.TXT"},
  };
  for (const auto& test : kCases) {
    std::string s = test.in;
    EXPECT_EQ(&TrimRight(s, test.suffix), &s);
    EXPECT_EQ(s, test.want) << test.in << " " << test.suffix;
  }
}

TEST(XStringUtil, SplitsLeaveTheMissingPartUntouched) {
  struct Split {
    const char *in, *first, *second;
  };
  const Split kPaths[] = {
      {"dir/sub/file", "dir/sub/", "file"},
      {"dir/sub/", "dir/sub/", kUntouched},
      {"file", kUntouched, "file"},
      {"", kUntouched, ""},
      {"/", "/", kUntouched},
      {"/f", "/", "f"},
      {"a\\b", kUntouched, "a\\b"},
  };
  const Split kNames[] = {
      {"archive.tar.gz", "archive.tar", "gz"},
      {"name.", "name", kUntouched},
      {"name", "name", kUntouched},
      {"", "", kUntouched},
      {".gz", "", "gz"},
      {".", "", kUntouched},
      {"a..b", "a.", "b"},
  };
  for (const Split& test : kPaths) {
    std::string dir = kUntouched;
    std::string file = kUntouched;
    SplitNetPathFile(test.in, dir, file);
    EXPECT_EQ(dir, test.first) << test.in;
    EXPECT_EQ(file, test.second) << test.in;
  }
  for (const Split& test : kNames) {
    std::string base = kUntouched;
    std::string ext = kUntouched;
    SplitFileName(test.in, base, ext);
    EXPECT_EQ(base, test.first) << test.in;
    EXPECT_EQ(ext, test.second) << test.in;
  }
}

TEST(XStringUtil, SplitsMayWriteOverTheirInput) {
  for (const bool first : {true, false}) {
    std::string path = "dir/file";
    std::string name = "base.ext";
    std::string other;
    SplitNetPathFile(path, first ? path : other, first ? other : path);
    EXPECT_EQ(path, first ? "dir/" : "file");
    EXPECT_EQ(other, first ? "file" : "dir/");
    other.clear();
    SplitFileName(name, first ? name : other, first ? other : name);
    EXPECT_EQ(name, first ? "base" : "ext");
    EXPECT_EQ(other, first ? "ext" : "base");
  }
}

TEST(XStringUtil, WindowsFileNamesAreShortAndFreeOfNineCharacters) {
  EXPECT_FALSE(IsValidWindowsFileName(""));
  EXPECT_TRUE(IsValidWindowsFileName("a"));
  EXPECT_TRUE(IsValidWindowsFileName(std::string(215, 'a')));
  EXPECT_FALSE(IsValidWindowsFileName(std::string(216, 'a')));
  const std::string forbidden = "\\/:*?\"<>|";
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    EXPECT_EQ(IsValidWindowsFileName(std::string("a") + byte + "b"),
              forbidden.find(byte) == std::string::npos)
        << code;
  }
}

TEST(XStringUtil, StringToInt64ReadsDigitsBehindOneMinus) {
  constexpr long long kNone = 777;  // false, value untouched
  const struct {
    std::string in;
    long long want;
  } kCases[] = {
      {"-42", -42},
      {"0", 0},
      {"9", 9},
      {"10", 10},
      {"-", 0},
      {"007", 7},
      {"", kNone},
      {"4x", kNone},
      {"+4", kNone},
      {" 4", kNone},
      {"4 ", kNone},
      {"--4", kNone},
      {"/", kNone},
      {":", kNone},
      {"-x", kNone},
      {{"1\0", 2}, kNone},
      {"4\xB2", kNone},
      {"9223372036854775807", LLONG_MAX},
      {"-9223372036854775808", LLONG_MIN},
      {"9223372036854775808", LLONG_MIN},  // wraps around from here
      {"18446744073709551617", 1},
      {"-18446744073709551617", -1},
      {"1" + std::string(64, '0'), 0},
  };
  for (const auto& test : kCases) {
    long long value = kNone;
    EXPECT_EQ(StringToInt64(test.in, value), test.want != kNone) << test.in;
    EXPECT_EQ(value, test.want) << test.in;
  }
}

TEST(XStringUtil, Int64ToStringWritesPlainDecimals) {
  const struct {
    long long value;
    const char* want;
  } kCases[] = {
      {0, "0"},
      {-7, "-7"},
      {10, "10"},
      {-100, "-100"},
      {LLONG_MAX, "9223372036854775807"},
      {LLONG_MIN + 1, "-9223372036854775807"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(Int64ToString(test.value), test.want);
  }
}

TEST(XStringUtil, Data2BitStringWritesBitsFromTheTop) {
  const struct {
    std::string data;
    int count;
    const char* want;
  } kCases[] = {
      {"\xA5", 8, "10100101"},
      {"\xA5", 3, "101"},
      {"\xA5\x3C", 12, "101001010011"},
      {"\x01\x80", 9, "000000011"},
      {{"\0\xFF", 2}, 16, "0000000011111111"},
      {"\xA5", 0, ""},
      {"\xA5", -1, ""},
  };
  for (const auto& test : kCases) {
    const ExactCopy data{std::string_view(test.data)};
    EXPECT_EQ(Data2BitString(data.data(), test.count), test.want);
  }
  EXPECT_EQ(Data2BitString(nullptr, 8), "");
}

TEST(XStringUtil, DataToHexStringEndsWithTheSeparator) {
  EXPECT_EQ(DataToHexString("\x0A\xFF", 2, " "), "0a ff ");
  EXPECT_EQ(DataToHexString("\x0A\xFF", 1, "::"), "0a::");
  EXPECT_EQ(DataToHexString("\x80\x7F", 2, ""), "807f");
  EXPECT_EQ(DataToHexString("\x0A", 0, " "), "");
  EXPECT_EQ(DataToHexString("\x0A", -1, " "), "");
  EXPECT_EQ(DataToHexString(nullptr, 1, " "), "");
}

// A byte that is escaped by neither, one or both; the digits' case differs.
TEST(XStringUtil, EscapesDifferInTheirSetAndInTheCaseOfDigits) {
  const std::string alphanumeric =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  const std::string kept_in_paths = alphanumeric + "/-_.!~*()";
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    const auto escaped = [code](const char* digits) {
      return std::string{'%', digits[code / 16], digits[code % 16]};
    };
    const std::string upper = escaped("0123456789ABCDEF");
    const std::string lower = escaped("0123456789abcdef");
    const std::string same(1, byte);
    const auto kept = [byte](const std::string& set) {
      return set.find(byte) != std::string::npos;
    };
    EXPECT_EQ(EscapeString(&byte, 1), kept(alphanumeric) ? same : upper);
    EXPECT_EQ(EscapePath(&byte, 1), kept(kept_in_paths) ? same : lower);
    EXPECT_EQ(UnescapeString(upper), same);
    EXPECT_EQ(UnescapeString(lower), same);
    const bool plain = byte != '%' && byte != '+';
    EXPECT_EQ(UnescapeString("a" + same), plain         ? "a" + same
                                          : code == '+' ? "a "
                                                        : "");
  }
  EXPECT_EQ(EscapeString("a b~", 4), "a%20b%7E");
  EXPECT_EQ(EscapePath("a b~'/", 6), "a%20b~%27/");
  EXPECT_EQ(EscapeString("ab", 1), "a");
  EXPECT_EQ(EscapePath("ab", 0) + EscapeString("ab", -1), "");
}

TEST(XStringUtil, UnescapeStringIsAllOrNothing) {
  const struct {
    std::string in, want;
  } kCases[] = {
      {"", ""},         {"a+b%41", "a bA"},
      {"100%", ""},     {"%G1x", ""},
      {"%1G", ""},      {"a%4", ""},
      {"%41", "A"},     {"%4a%4A", "JJ"},
      {"%%41", ""},     {"%2541", "%41"},
      {"%2B+", "+ "},   {"%00", std::string(1, '\0')},
      {"ok%41%zz", ""}, {"%C3%A4\xE4", "\xC3\xA4\xE4"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(UnescapeString(test.in), test.want) << test.in;
  }
}

}  // namespace
