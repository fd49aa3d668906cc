#include "text/string_utility.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>

#include "exact_copy.h"
#include "widen.h"

namespace {

using qk::text::find_nocase;
using Wide = qk::text::string_utility_t<wchar_t>;
constexpr std::size_t kNowhere = std::wstring_view::npos;

int sign(int value) {
  if (value == 0) return 0;
  return value < 0 ? -1 : 1;
}

template <typename Unit>
class CompareNocase : public testing::Test {};
TYPED_TEST_SUITE(CompareNocase, BothCharacterTypes, CharacterTypeName);

TYPED_TEST(CompareNocase, ComparesWholeTextsWhateverTheCount) {
  using Compare = qk::text::string_utility_t<TypeParam>;
  const struct {
    const char* a;
    const char* b;
    int want;
  } rows[] = {{"", "", 0},       {"abc", "ABC", 0}, {"abc", "ABD", -1},
              {"abd", "ABC", 1}, {"ab", "abc", -1}, {"abc", "ab", 1},
              {"[", "a", -1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.a) + " " + row.b);
    const auto a = as<TypeParam>(row.a);
    const auto b = as<TypeParam>(row.b);
    EXPECT_EQ(sign(Compare::compare_nocase(a.c_str(), b.c_str())), row.want);
    for (const unsigned count : {0U, 2U, 100U}) {
      EXPECT_EQ(sign(Compare::compare_nocase(a.c_str(), b.c_str(), count)),
                row.want);
    }
  }
}

TEST(CompareNocaseNarrow, TakesBytesUnsigned) {
  using Compare = qk::text::string_utility_t<char>;
  EXPECT_GT(Compare::compare_nocase("\xE4", "a"), 0);
  EXPECT_LT(Compare::compare_nocase("a", "\xE4", 0), 0);
}

TEST(FindNocase, GivesTheFirstPlaceInTheOriginalText) {
  const struct {
    std::wstring text, pattern;
    std::size_t want;
  } rows[] = {
      {L"Hello World", L"WORLD", 6},
      {L"Hello World", L"h", 0},
      {L"Hello World", L"O", 4},
      {L"aaB", L"AB", 1},
      {L"abc", L"abc", 0},
      {L"abc", L"C", 2},
      {L"abc", L"abcd", kNowhere},
      {L"abc", L"cd", kNowhere},
      {L"abc", L"", kNowhere},
      {L"", L"a", kNowhere},
      {L"", L"", kNowhere},
      {L"[\\]", L"{", kNowhere},
      {L"x\U0001F600y", L"\U0001F600Y", 1},
      {L"\u0100", L"\u0101", kNowhere},
      {L"\u0141", L"A", kNowhere},
      {std::wstring(1, static_cast<wchar_t>(0x80000041)), L"a", kNowhere},
      {std::wstring(1, static_cast<wchar_t>(0xD800)),
       std::wstring(1, static_cast<wchar_t>(0xD800)), 0},
      {std::wstring(300, L'a') + L"B", L"b", 300},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.text + L" / " + row.pattern));
    const ExactCopy text{std::wstring_view(row.text)};
    const ExactCopy pattern{std::wstring_view(row.pattern)};
    EXPECT_EQ(find_nocase({text.data(), text.size()},
                          {pattern.data(), pattern.size()}),
              row.want);
    const wchar_t* found =
        Wide::find_nocase(row.text.c_str(), row.pattern.c_str());
    EXPECT_EQ(found,
              row.want == kNowhere ? nullptr : row.text.c_str() + row.want);
  }
}

TEST(FindNocase, FoldsUnitsBelow256AsTheLocaleDoes) {
  for (int unit = 1; unit < 256; ++unit) {
    const std::wstring text(1, static_cast<wchar_t>(unit));
    const std::wstring lower(1, static_cast<wchar_t>(std::tolower(unit)));
    EXPECT_EQ(find_nocase(text, lower), 0U) << unit;
  }
}

TEST(FindNocase, OfTheClassEndsAtZerosAndTakesNull) {
  EXPECT_EQ(Wide::find_nocase(nullptr, L"a"), nullptr);
  EXPECT_EQ(Wide::find_nocase(L"a", nullptr), nullptr);
  EXPECT_EQ(Wide::find_nocase(L"a\0b", L"b"), nullptr);
  EXPECT_EQ(
      find_nocase(std::wstring_view(L"a\0B", 3), std::wstring_view(L"\0b", 2)),
      1U);
}

}  // namespace
