#include "text/xstringutil.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "exact_copy.h"
#include "rows.h"

namespace {

using namespace xstringutil;

constexpr char kUntouched[] = "untouched";

TEST(XStringUtil, IsBeginWithComparesUnitByUnit) {
  for (const Row& row : rows_of("begin")) {
    const ExactCopy text{std::wstring_view(row[0])};
    EXPECT_EQ(IsBeginWith(text.data(), unsigned(text.size()), row[1]),
              row[2] == L"yes")
        << row[0];
  }
  EXPECT_FALSE(IsBeginWith(nullptr, 5, L"a"));
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
}

TEST(XStringUtil, IsEndWithComparesByteByByte) {
  for (const Row& row : rows_of("end")) {
    const std::string whole = bytes(row[0]);
    const ExactCopy text{std::string_view(whole)};
    EXPECT_EQ(IsEndWith(text.data(), unsigned(text.size()), bytes(row[1])),
              row[2] == L"yes")
        << row[0];
  }
  EXPECT_FALSE(IsEndWith(nullptr, 5, "a"));
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(XStringUtil, GetLineTakesOneTerminatedLine) {
  for (const Row& row : rows_of("lines")) {
    std::string line = kUntouched;
    const std::string text = bytes(row[0]);
    const ExactCopy buffer{std::string_view(text)};
    EXPECT_EQ(GetLine(buffer.data(), std::stoi(row[1]), line),
              std::stoi(row[2]))
        << row[0];
    EXPECT_EQ(line, bytes(row[3])) << row[0];
  }
  std::string line = kUntouched;
  EXPECT_EQ(GetLine(nullptr, 3, line), 0);
  EXPECT_EQ(line, kUntouched);
}

TEST(XStringUtil, TrimRemovesSpacesAndTabsOnly) {
  for (const Row& row : rows_of("blanks")) {
    std::string left = bytes(row[0]);
    std::string right = left;
    EXPECT_EQ(&TrimLeft(left), &left);
    EXPECT_EQ(&TrimRight(right), &right);
    EXPECT_EQ(left, bytes(row[1])) << row[0];
    EXPECT_EQ(right, bytes(row[2])) << row[0];
  }
}

TEST(XStringUtil, TrimRightCutsASuffixOnce) {
  for (const Row& row : rows_of("suffixes")) {
    std::string s = bytes(row[0]);
    EXPECT_EQ(&TrimRight(s, bytes(row[1])), &s);
    EXPECT_EQ(s, bytes(row[2])) << row[0];
  }
}

TEST(XStringUtil, SplitsLeaveTheMissingPartUntouched) {
  const auto check = [](const char* table, auto split) {
    for (const Row& row : rows_of(table)) {
      std::string first = kUntouched;
      std::string second = kUntouched;
      split(bytes(row[0]), first, second);
      EXPECT_EQ(first, bytes(row[1])) << row[0];
      EXPECT_EQ(second, bytes(row[2])) << row[0];
    }
  };
  check("paths", SplitNetPathFile);
  check("names", SplitFileName);
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
  for (const Row& row : rows_of("int64")) {
    const bool want = row[1] != L"none";
    long long value = 777;
    EXPECT_EQ(StringToInt64(bytes(row[0]), value), want) << row[0];
    EXPECT_EQ(value, want ? std::stoll(row[1]) : 777) << row[0];
  }
}

TEST(XStringUtil, Int64ToStringWritesPlainDecimals) {
  for (const long long value :
       {0LL, -7LL, 10LL, -100LL, LLONG_MAX, LLONG_MIN + 1}) {
    EXPECT_EQ(Int64ToString(value), std::to_string(value));
  }
}

TEST(XStringUtil, Data2BitStringWritesBitsFromTheTop) {
  for (const Row& row : rows_of("bits")) {
    const std::string text = bytes(row[0]);
    const ExactCopy data{std::string_view(text)};
    EXPECT_EQ(Data2BitString(data.data(), std::stoi(row[1])), bytes(row[2]));
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
  for (const Row& row : rows_of("unescaped")) {
    EXPECT_EQ(UnescapeString(bytes(row[0])), bytes(row[1])) << row[0];
  }
}

}  // namespace
