#include <korvane/string_utility.h>

#include <cctype>

#include "unit_test.h"

using Narrow = qk::text::string_utility_t<char>;
using Wide = qk::text::string_utility_t<wchar_t>;

TEST(string_utility, CompareNocaseIgnoresTheCount) {
  EXPECT_GT(Narrow::compare_nocase("abd", "ABC", 2), 0);
  EXPECT_EQ(Wide::compare_nocase(L"abC", L"ABc"), 0);
  EXPECT_LT(Wide::compare_nocase(L"abc", L"ABD", 2), 0);
}

TEST(string_utility, FindNocaseReturnsTheFirstPlace) {
  const wchar_t* const text = L"aaBab[\\]\x100\x141\x80000063\x1F600";
  EXPECT_EQ(Wide::find_nocase(text, L"AB"), text + 1);
  EXPECT_EQ(Wide::find_nocase(text, L""), nullptr);
  EXPECT_EQ(Wide::find_nocase(nullptr, L"a"), nullptr);
  EXPECT_EQ(Wide::find_nocase(text, nullptr), nullptr);
  // No other case beyond a byte.
  EXPECT_EQ(Wide::find_nocase(text, L"\x101"), nullptr);
  EXPECT_EQ(Wide::find_nocase(text, L"c"), nullptr);
  for (int unit = 1; unit < 256; ++unit) {
    const Text upper = {static_cast<wchar_t>(unit)};
    const Text lower = {static_cast<wchar_t>(std::tolower(unit))};
    EXPECT_NE(Wide::find_nocase(upper.c_str(), lower.c_str()), nullptr) << unit;
  }
}
