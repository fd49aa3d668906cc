#include <korvane/xstringutil.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "exact_copy.h"
#include "rows.h"

namespace {

using namespace xstringutil;
using Bytes = ExactCopy<char>;

constexpr char kUntouched[] = "untouched";

TEST(XStringUtil, IsBeginWithComparesUnitByUnit) {
  check<ExactCopy<wchar_t>, std::wstring>(
      "begin", [](const auto& text, const std::wstring& prefix) {
        return IsBeginWith(text.data(), unsigned(text.size()), prefix);
      });
  EXPECT_FALSE(IsBeginWith(nullptr, 5, L"a"));
  EXPECT_FALSE(IsBeginWith(nullptr, 0, L""));
}

TEST(XStringUtil, IsEndWithComparesByteByByte) {
  check<Bytes, std::string>(
      "end", [](const Bytes& text, const std::string& suffix) {
        return IsEndWith(text.data(), unsigned(text.size()), suffix);
      });
  EXPECT_FALSE(IsEndWith(nullptr, 5, "a"));
  EXPECT_FALSE(IsEndWith(nullptr, 0, ""));
}

TEST(XStringUtil, GetLineTakesOneTerminatedLine) {
  check<Bytes, int>("lines", [](const Bytes& text, int length) {
    std::string line = kUntouched;
    const int size = GetLine(text.data(), length, line);
    return std::tuple(size, line);
  });
  std::string line = kUntouched;
  EXPECT_EQ(GetLine(nullptr, 3, line), 0);
  EXPECT_EQ(line, kUntouched);
}

TEST(XStringUtil, TrimRemovesSpacesAndTabsOnly) {
  check<std::string>("blanks", [](std::string left) {
    std::string right = left;
    EXPECT_EQ(&TrimLeft(left), &left);
    EXPECT_EQ(&TrimRight(right), &right);
    return std::tuple(left, right);
  });
}

TEST(XStringUtil, TrimRightCutsASuffixOnce) {
  check<std::string, std::string>(
      "suffixes", [](std::string text, const std::string& suffix) {
        EXPECT_EQ(&TrimRight(text, suffix), &text);
        return text;
      });
}

TEST(XStringUtil, SplitsLeaveTheMissingPartUntouched) {
  const auto behind = [](auto split) {
    return [split](const std::string& text) {
      std::string first = kUntouched;
      std::string second = kUntouched;
      split(text, first, second);
      return std::tuple(first, second);
    };
  };
  check<std::string>("paths", behind(SplitNetPathFile));
  check<std::string>("names", behind(SplitFileName));
}

TEST(XStringUtil, SplitsMayWriteOverTheirInput) {
  for (const bool first : {true, false}) {
    std::string path = "dir/file";
    std::string name = "base.ext";
    std::string other;
    SplitNetPathFile(path, first ? path : other, first ? other : path);
    EXPECT_EQ(path + other, first ? "dir/file" : "filedir/");
    SplitFileName(name, first ? name : other, first ? other : name);
    EXPECT_EQ(name + other, first ? "baseext" : "extbase");
  }
}

TEST(XStringUtil, WindowsFileNamesAreShortAndFreeOfNineCharacters) {
  check<std::string>("valid names", IsValidWindowsFileName);
}

TEST(XStringUtil, StringToInt64ReadsDigitsBehindOneMinus) {
  check<std::string>("int64", [](const std::string& text) {
    long long value = 777;
    const bool is_number = StringToInt64(text, value);
    return std::tuple(is_number, value);
  });
}

TEST(XStringUtil, Data2BitStringWritesBitsFromTheTop) {
  check<Bytes, int>("bits", [](const Bytes& data, int count) {
    return Data2BitString(data.data(), count);
  });
  EXPECT_EQ(Data2BitString(nullptr, 8), "");
}

TEST(XStringUtil, DataToHexStringEndsWithTheSeparator) {
  check<Bytes, int, std::string>(
      "hex", [](const Bytes& data, int size, const std::string& separator) {
        return DataToHexString(data.data(), size, separator);
      });
  EXPECT_EQ(DataToHexString(nullptr, 1, " "), "");
}

TEST(XStringUtil, EscapesDifferInTheirSetAndInTheCaseOfDigits) {
  check<Bytes, int>("escapes", [](const Bytes& data, int size) {
    return std::tuple(EscapeString(data.data(), size),
                      EscapePath(data.data(), size));
  });
}

TEST(XStringUtil, UnescapeStringIsAllOrNothing) {
  check<std::string>("unescaped", UnescapeString);
}

}  // namespace
