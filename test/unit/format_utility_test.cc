#include "text/format_utility.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <type_traits>

#include "widen.h"

namespace {

template <typename Unit>
class FormatUtility : public testing::Test {};
TYPED_TEST_SUITE(FormatUtility, BothCharacterTypes, CharacterTypeName);

TYPED_TEST(FormatUtility, PrintsIntegersOfEverySize) {
  using Format = qk::text::format_utility_t<TypeParam>;
  EXPECT_EQ(Format::to_string(0U), as<TypeParam>("0"));
  EXPECT_EQ(Format::to_string(UINT_MAX), as<TypeParam>("4294967295"));
  EXPECT_EQ(Format::to_string(INT_MIN), as<TypeParam>("-2147483648"));
  EXPECT_EQ(Format::to_string(INT_MAX), as<TypeParam>("2147483647"));
  EXPECT_EQ(Format::to_string(ULONG_MAX),
            as<TypeParam>("18446744073709551615"));
  EXPECT_EQ(Format::to_string(LONG_MIN), as<TypeParam>("-9223372036854775808"));
}

TYPED_TEST(FormatUtility, PrintsSixDigitsBehindThePoint) {
  using Format = qk::text::format_utility_t<TypeParam>;
  EXPECT_EQ(Format::to_string(-1.5F), as<TypeParam>("-1.500000"));
  EXPECT_EQ(Format::to_string(0.1), as<TypeParam>("0.100000"));
  const std::string most = "340282346638528859811704183484516925440.000000";
  EXPECT_EQ(Format::to_string(FLT_MAX), as<TypeParam>(most));
}

TYPED_TEST(FormatUtility, CutsADoubleAfter127Units) {
  using Format = qk::text::format_utility_t<TypeParam>;
  for (const double value : {1e119, -1e118, 1e120, -1e119, DBL_MAX}) {
    char whole[400];
    static_cast<void>(std::snprintf(whole, sizeof(whole), "%f", value));
    EXPECT_EQ(Format::to_string(value),
              as<TypeParam>(std::string(whole).substr(0, 127)));
  }
}

TYPED_TEST(FormatUtility, ReadsIntegersLikeTheScan) {
  using Format = qk::text::format_utility_t<TypeParam>;
  struct Row {
    const char* text;
    std::uint32_t uint32;
    std::int32_t narrow_sint32, wide_sint32;
    std::uint64_t uint64;
    std::int64_t narrow_sint64, wide_sint64;
  };
  const Row rows[] = {
      {"", 0, 0, 0, 0, 0, 0},
      {"abc", 0, 0, 0, 0, 0, 0},
      {"-", 0, 0, 0, 0, 0, 0},
      {" \t\n\v\f\r7", 7, 7, 7, 7, 7, 7},
      {"+5", 5, 5, 5, 5, 5, 5},
      {"-12abc", 4294967284, -12, -12, UINT64_MAX - 11, -12, -12},
      {"0x1F", 0, 0, 31, 0, 0, 0},
      {"010", 10, 10, 8, 10, 10, 10},
      {"2147483648", 2147483648, INT_MIN, INT_MIN, 2147483648, 2147483648,
       2147483648},
      {"4294967295", UINT_MAX, -1, -1, UINT_MAX, UINT_MAX, UINT_MAX},
      {"4294967296", 0, 0, 0, 4294967296, 4294967296, 4294967296},
      {"9223372036854775807", UINT_MAX, -1, -1, INT64_MAX, INT64_MAX,
       INT64_MAX},
      {"9223372036854775808", 0, -1, -1, 9223372036854775808U, INT64_MAX,
       INT64_MIN},
      {"18446744073709551615", UINT_MAX, -1, -1, UINT64_MAX, INT64_MAX, -1},
      {"18446744073709551616", UINT_MAX, -1, -1, UINT64_MAX, INT64_MAX, -1},
      {"-9223372036854775809", UINT_MAX, 0, 0, INT64_MAX, INT64_MIN, INT64_MAX},
  };
  constexpr bool is_wide = std::is_same_v<TypeParam, wchar_t>;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    const auto text = as<TypeParam>(row.text);
    EXPECT_EQ(Format::str_to_uint32(text.c_str()), row.uint32);
    EXPECT_EQ(Format::str_to_sint32(text.c_str()),
              is_wide ? row.wide_sint32 : row.narrow_sint32);
    EXPECT_EQ(Format::str_to_uint64(text.c_str()), row.uint64);
    EXPECT_EQ(Format::str_to_sint64(text.c_str()),
              is_wide ? row.wide_sint64 : row.narrow_sint64);
  }
}

TYPED_TEST(FormatUtility, ReadsFloatingPointNumbers) {
  using Format = qk::text::format_utility_t<TypeParam>;
  const struct {
    const char* text;
    double want;
  } rows[] = {{"", 0},           {"x1", 0},        {"1.5e3x", 1500},
              {" -2.25", -2.25}, {"0x10", 16},     {"1e300", 1e300},
              {".5", .5},        {"inf", INFINITY}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    const auto text = as<TypeParam>(row.text);
    EXPECT_EQ(Format::str_to_float64(text.c_str()), row.want);
    const double nearest = row.want > FLT_MAX ? INFINITY : row.want;
    EXPECT_EQ(Format::str_to_float32(text.c_str()), nearest);
  }
}

TYPED_TEST(FormatUtility, TellsTrueAndOneFromEverythingElse) {
  using Format = qk::text::format_utility_t<TypeParam>;
  for (const char* text : {"true", "TRUE", "tRuE", "1"}) {
    EXPECT_TRUE(Format::str_to_bool(as<TypeParam>(text).c_str())) << text;
  }
  for (const char* text :
       {"", "yes", "2", "0", "11", " true", "true ", "tru"}) {
    EXPECT_FALSE(Format::str_to_bool(as<TypeParam>(text).c_str())) << text;
  }
}

TYPED_TEST(FormatUtility, ShowsByteCountsInTheUnitTheyExceed) {
  using Format = qk::text::format_utility_t<TypeParam>;
  const double kilo = 1024;
  const double mega = kilo * kilo;
  const double giga = kilo * mega;
  const double tera = kilo * giga;
  const struct {
    double bytes;
    const char* want;
  } rows[] = {{0, "0B"},
              {-0.0, "-0B"},
              {0.5, "0B"},
              {1.5, "2B"},
              {1, "1B"},
              {1024, "1024B"},
              {1024.25, "1.00KB"},
              {1025, "1.00KB"},
              {1536, "1.50KB"},
              {mega, "1024.00KB"},
              {mega + 1, "1.00MB"},
              {mega * 1.25, "1.25MB"},
              {giga, "1024.00MB"},
              {giga + 1, "1.00GB"},
              {giga * 2.5, "2.50GB"},
              {tera, "1024.00GB"},
              {tera + 1, "1.00TB"},
              {tera * 1024, "1024.00TB"},
              {-1, ""},
              {-tera, ""},
              {NAN, ""},
              {INFINITY, "infTB"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Format::kilo_format(row.bytes), as<TypeParam>(row.want))
        << row.bytes;
  }
}

TYPED_TEST(FormatUtility, CutsAByteCountAfter127Units) {
  using Format = qk::text::format_utility_t<TypeParam>;
  EXPECT_EQ(Format::kilo_format(1e200).size(), 127U);
}

// The view form must stay what the scan answers, for every length of text.
TEST(DecimalValue, IsWhatTheScanAnswers) {
  using Format = qk::text::format_utility_t<char>;
  const char* const heads[] = {"",   "0",  "1",   "9",   "18446744073709551",
                               "42", "00", "429", "184", "99999999999999999"};
  const char* const tails[] = {"",           "0",          "615",
                               "616",        "617",        "614",
                               "4294967295", "4294967296", "4294967297"};
  for (const char* head : heads) {
    for (const char* tail : tails) {
      const std::string digits = std::string(head) + tail;
      SCOPED_TRACE(digits);
      const std::uint64_t value =
          qk::text::decimal_value(std::string_view(digits));
      EXPECT_EQ(value, Format::str_to_uint64(digits.c_str()));
      EXPECT_EQ(static_cast<std::uint32_t>(value),
                Format::str_to_uint32(digits.c_str()));
      const std::wstring wide = as<wchar_t>(digits);
      EXPECT_EQ(value, qk::text::decimal_value(std::wstring_view(wide)));
    }
  }
}

}  // namespace
