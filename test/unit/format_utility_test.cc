#include "text/format_utility.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <type_traits>

#include "rows.h"
#include "widen.h"

namespace {

template <typename Unit>
class FormatUtility : public testing::Test {};
TYPED_TEST_SUITE(FormatUtility, BothCharacterTypes, CharacterTypeName);

template <typename Unit>
std::basic_string<Unit> field(const std::wstring& text) {
  return {text.begin(), text.end()};
}

// The number as a row writes it.
template <typename Number>
std::wstring text_of(Number number) {
  return std::to_wstring(number);
}

TYPED_TEST(FormatUtility, PrintsNumbersOfEverySize) {
  using Format = qk::text::format_utility_t<TypeParam>;
  EXPECT_EQ(Format::to_string(0U), as<TypeParam>("0"));
  EXPECT_EQ(Format::to_string(UINT_MAX), as<TypeParam>("4294967295"));
  EXPECT_EQ(Format::to_string(INT_MIN), as<TypeParam>("-2147483648"));
  EXPECT_EQ(Format::to_string(ULONG_MAX),
            as<TypeParam>("18446744073709551615"));
  EXPECT_EQ(Format::to_string(LONG_MIN), as<TypeParam>("-9223372036854775808"));
  EXPECT_EQ(Format::to_string(-1.5F), as<TypeParam>("-1.500000"));
  EXPECT_EQ(Format::to_string(-FLT_MAX),
            as<TypeParam>("-340282346638528859811704183484516925440.000000"));
}

TYPED_TEST(FormatUtility, CutsLongNumbersAfter127Units) {
  using Format = qk::text::format_utility_t<TypeParam>;
  for (const double value : {0.1, 1e119, -1e118, 1e120, -1e119, DBL_MAX}) {
    char whole[400];
    static_cast<void>(std::snprintf(whole, sizeof(whole), "%f", value));
    EXPECT_EQ(Format::to_string(value),
              as<TypeParam>(std::string(whole).substr(0, 127)));
  }
  EXPECT_EQ(Format::kilo_format(1e200).size(), 127U);
}

TYPED_TEST(FormatUtility, ReadsNumbersLikeTheScan) {
  using Format = qk::text::format_utility_t<TypeParam>;
  constexpr std::size_t is_wide = std::is_same_v<TypeParam, wchar_t> ? 1 : 0;
  for (const Row& row : rows_of("integers")) {
    const auto text = field<TypeParam>(row[0]);
    const TypeParam* const c_str = text.c_str();
    EXPECT_EQ(text_of(Format::str_to_uint32(c_str)), row[1]) << row[0];
    EXPECT_EQ(text_of(Format::str_to_sint32(c_str)), row[2 + is_wide])
        << row[0];
    EXPECT_EQ(text_of(Format::str_to_uint64(c_str)), row[4]) << row[0];
    EXPECT_EQ(text_of(Format::str_to_sint64(c_str)), row[5 + is_wide])
        << row[0];
  }
  for (const Row& row : rows_of("floating point")) {
    const auto text = field<TypeParam>(row[0]);
    EXPECT_EQ(text_of(Format::str_to_float32(text.c_str())), row[1]) << row[0];
    EXPECT_EQ(text_of(Format::str_to_float64(text.c_str())), row[1]) << row[0];
  }
  EXPECT_EQ(Format::str_to_float64(as<TypeParam>("1e300").c_str()), 1e300);
}

TYPED_TEST(FormatUtility, TellsTrueAndOneFromEverythingElse) {
  for (const Row& row : rows_of("bool")) {
    const auto text = field<TypeParam>(row[0]);
    EXPECT_EQ(qk::text::format_utility_t<TypeParam>::str_to_bool(text.c_str()),
              row[1] == L"1")
        << row[0];
  }
}

TYPED_TEST(FormatUtility, ShowsByteCountsInTheUnitTheyExceed) {
  for (const Row& row : rows_of("kilo")) {
    EXPECT_EQ(
        qk::text::format_utility_t<TypeParam>::kilo_format(std::stod(row[0])),
        field<TypeParam>(row[1]))
        << row[0];
  }
}

// The view form must stay what the scan answers, for every length of text.
TEST(DecimalValue, IsWhatTheScanAnswers) {
  using Format = qk::text::format_utility_t<char>;
  for (const char* head : {"", "0", "1", "9", "42", "429", "18446744073709551",
                           "99999999999999999"}) {
    for (const char* tail : {"", "0", "614", "615", "616", "617", "4294967295",
                             "4294967296", "4294967297"}) {
      const std::string digits = std::string(head) + tail;
      const std::wstring wide = as<wchar_t>(digits);
      const auto value = qk::text::decimal_value(std::string_view(digits));
      EXPECT_EQ(value, Format::str_to_uint64(digits.c_str())) << digits;
      EXPECT_EQ(static_cast<std::uint32_t>(value),
                Format::str_to_uint32(digits.c_str()))
          << digits;
      EXPECT_EQ(value, qk::text::decimal_value(std::wstring_view(wide)));
    }
  }
}

}  // namespace
