#include <korvane/string_utility.h>

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>

#include "exact_copy.h"
#include "rows.h"

namespace {

using qk::text::find_nocase;
using Narrow = qk::text::string_utility_t<char>;
using Wide = qk::text::string_utility_t<wchar_t>;

std::wstring sign(int value) {
  if (value == 0) return L"=";
  return value < 0 ? L"<" : L">";
}

TEST(CompareNocase, ComparesWholeTextsWhateverTheCount) {
  check<std::wstring, std::wstring>(
      "compare", [](const std::wstring& a, const std::wstring& b) {
        const std::string c = bytes(a);
        const std::string d = bytes(b);
        return agreed(sign(Wide::compare_nocase(a.c_str(), b.c_str())),
                      sign(Wide::compare_nocase(a.c_str(), b.c_str(), 2)),
                      sign(Narrow::compare_nocase(c.c_str(), d.c_str())),
                      sign(Narrow::compare_nocase(c.c_str(), d.c_str(), 2)));
      });
}

TEST(FindNocase, GivesTheFirstPlaceInTheOriginalText) {
  check<std::wstring, std::wstring>("find", [](const std::wstring& text,
                                               const std::wstring& pattern) {
    const ExactCopy copy{std::wstring_view(text)};
    const wchar_t* const start = text.c_str();
    const wchar_t* const found = Wide::find_nocase(start, pattern.c_str());
    const std::size_t place =
        found == nullptr ? text.npos : static_cast<std::size_t>(found - start);
    return agreed(place, find_nocase({copy.data(), copy.size()}, pattern));
  });
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
