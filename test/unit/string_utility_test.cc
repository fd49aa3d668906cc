#include <korvane/string_utility.h>

#include <cctype>

#include "table.h"

using Narrow = qk::text::string_utility_t<char>;
using Wide = qk::text::string_utility_t<wchar_t>;

TEST(string_utility, CompareNocaseIgnoresTheCount) {
  EXPECT_EQ(Narrow::compare_nocase("abC", "ABc"), 0);
  EXPECT_GT(Narrow::compare_nocase("abd", "ABC", 2), 0);
  EXPECT_LT(Narrow::compare_nocase("[", "a"), 0);
  EXPECT_EQ(Wide::compare_nocase(L"abC", L"ABc"), 0);
  EXPECT_GT(Wide::compare_nocase(L"abd", L"ABC", 2), 0);
  EXPECT_LT(Wide::compare_nocase(L"[", L"a"), 0);
}

TEST(string_utility, FindNocaseReturnsTheFirstPlace) {
  constexpr std::size_t kNone = Text::npos;
  const Table row = [](const Text& text, const Text& part, std::size_t want) {
    EXPECT_EQ(Wide::find_nocase(text.c_str(), part.c_str()),
              want == kNone ? nullptr : text.c_str() + want);
  };
  row(L"Hello World", L"WO", 6);
  row(L"aaB", L"AB", 1);
  row(L"abc", L"cd", kNone);
  row(L"abc", L"", kNone);
  row(L"", L"a", kNone);
  row(L"x\x1F600y", L"\x1F600Y", 1);
  // No other case beyond a byte.
  row(L"[\\]\x100\x141\x80000041", L"\x101", kNone);
  row(L"[\\]\x100\x141\x80000041", L"a", kNone);
  for (int unit = 1; unit < 256; ++unit) {
    row({wchar_t(unit)}, {static_cast<wchar_t>(std::tolower(unit))}, 0);
  }
}

TEST(string_utility, FindNocaseOfNullIsNull) {
  EXPECT_EQ(Wide::find_nocase(nullptr, L"a"), nullptr);
  EXPECT_EQ(Wide::find_nocase(L"a", nullptr), nullptr);
}
