#include "text/string_utility.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>

#include "exact_copy.h"
#include "rows.h"
#include "widen.h"

namespace {

using qk::text::find_nocase;
using Wide = qk::text::string_utility_t<wchar_t>;
constexpr std::size_t kNowhere = std::wstring_view::npos;

std::wstring sign(int value) {
  if (value == 0) return L"=";
  return value < 0 ? L"<" : L">";
}

template <typename Unit>
class CompareNocase : public testing::Test {};
TYPED_TEST_SUITE(CompareNocase, BothCharacterTypes, CharacterTypeName);

TYPED_TEST(CompareNocase, ComparesWholeTextsWhateverTheCount) {
  using Compare = qk::text::string_utility_t<TypeParam>;
  for (const Row& row : rows_of("compare")) {
    const std::basic_string<TypeParam> a(row[0].begin(), row[0].end());
    const std::basic_string<TypeParam> b(row[1].begin(), row[1].end());
    EXPECT_EQ(sign(Compare::compare_nocase(a.c_str(), b.c_str())), row[2]);
    EXPECT_EQ(sign(Compare::compare_nocase(a.c_str(), b.c_str(), 2)), row[2]);
  }
}

TEST(CompareNocaseNarrow, TakesBytesUnsigned) {
  using Compare = qk::text::string_utility_t<char>;
  EXPECT_GT(Compare::compare_nocase("\xE4", "a"), 0);
  EXPECT_LT(Compare::compare_nocase("a", "\xE4", 0), 0);
}

TEST(FindNocase, GivesTheFirstPlaceInTheOriginalText) {
  for (const Row& row : rows_of("find")) {
    const std::size_t want = row[2] == L"nowhere" ? kNowhere : number(row[2]);
    const ExactCopy text{std::wstring_view(row[0])};
    const ExactCopy pattern{std::wstring_view(row[1])};
    EXPECT_EQ(find_nocase({text.data(), text.size()},
                          {pattern.data(), pattern.size()}),
              want)
        << row[0] << " / " << row[1];
    const wchar_t* const c_str = row[0].c_str();
    EXPECT_EQ(Wide::find_nocase(c_str, row[1].c_str()),
              want == kNowhere ? nullptr : c_str + want)
        << row[0] << " / " << row[1];
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
  const std::wstring zeros = {L'a', L'\0', L'B'};
  EXPECT_EQ(Wide::find_nocase(zeros.c_str(), L"b"), nullptr);
  EXPECT_EQ(find_nocase(zeros, std::wstring_view(L"\0b", 2)), 1U);
}

}  // namespace
