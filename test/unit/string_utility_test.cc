#include <korvane/string_utility.h>

#include <cctype>
#include "table.h"

namespace {

using qk::text::find_nocase;
using Narrow = qk::text::string_utility_t<char>;
using Wide = qk::text::string_utility_t<wchar_t>;

int sign(int value) { return value < 0 ? -1 : value > 0 ? 1 : 0; }

TEST(string_utility, CompareNocaseIgnoresTheCount) {
  const Table row = [](const char* a, const char* b, int want) {
    const Text c(a, a + std::char_traits<char>::length(a));
    const Text d(b, b + std::char_traits<char>::length(b));
    EXPECT_EQ(sign(Narrow::compare_nocase(a, b)), want);
    EXPECT_EQ(sign(Narrow::compare_nocase(a, b, 2)), want);
    EXPECT_EQ(sign(Wide::compare_nocase(c.c_str(), d.c_str())), want);
    EXPECT_EQ(sign(Wide::compare_nocase(c.c_str(), d.c_str(), 2)), want);
  };
  row("abc", "ABC", 0);
  row("abd", "ABC", 1);
  row("ab", "abc", -1);
  row("[", "a", -1);
}

TEST(string_utility, FindNocaseReturnsTheFirstPlace) {
  constexpr std::size_t kNowhere = Text::npos;
  const Table row = [](const Text& text, const Text& pattern,
                       std::size_t want) {
    const ExactCopy<wchar_t> copy(text);
    EXPECT_EQ(find_nocase({copy.data(), copy.size()}, pattern), want);
    const wchar_t* const found = Wide::find_nocase(text.c_str(), &pattern[0]);
    EXPECT_EQ(found, want == kNowhere ? nullptr : text.c_str() + want);
  };
  row(L"Hello World", L"WORLD", 6);
  row(L"aaB", L"AB", 1);
  row(L"abc", L"C", 2);
  row(L"abc", L"cd", kNowhere);
  row(L"abc", L"", kNowhere);
  row(L"", L"a", kNowhere);
  row(L"[\\]", L"{", kNowhere);
  row(L"x\x1F600y", L"\x1F600Y", 1);
  // No other case beyond a byte.
  row(L"\x100", L"\x101", kNowhere);
  row(L"\x141", L"A", kNowhere);
  row(L"\x80000041", L"a", kNowhere);
  for (int unit = 1; unit < 256; ++unit) {
    const auto lower = static_cast<wchar_t>(std::tolower(unit));
    row(Text(1, wchar_t(unit)), Text(1, lower), 0);
  }
}

TEST(string_utility, OnlyTheViewsGoOnAfterAZero) {
  const Text zeros(L"a\0B", 3);
  EXPECT_EQ(find_nocase(zeros, {L"\0b", 2}), 1U);
  EXPECT_EQ(Wide::find_nocase(zeros.c_str(), L"b"), nullptr);
  EXPECT_EQ(Wide::find_nocase(nullptr, L"a"), nullptr);
  EXPECT_EQ(Wide::find_nocase(L"a", nullptr), nullptr);
}

}  // namespace
