#include <korvane/format_utility.h>

#include <cmath>

#include "unit_test.h"

using Narrow = qk::text::format_utility_t<char>;
using Wide = qk::text::format_utility_t<wchar_t>;

// The numbers that text is read as, printed: of 32 bits without and with a
// sign, of 64 bits, and real ones.
template <typename Unit>
static std::basic_string<Unit> numbers(const Unit* text) {
  using Format = qk::text::format_utility_t<Unit>;
  std::basic_string<Unit> printed;
  const auto add = [&printed](auto number) {
    printed += Format::to_string(number) + Unit(' ');
  };
  add(Format::str_to_uint32(text));
  add(Format::str_to_sint32(text));
  add(Format::str_to_uint64(text));
  add(Format::str_to_sint64(text));
  add(Format::str_to_float32(text));
  add(Format::str_to_float64(text));
  return printed;
}

TEST(format_utility, ReadsNumbersLikeTheScan) {
  EXPECT_EQ(numbers("x1"), "0 0 0 0 0.000000 0.000000 ");
  EXPECT_EQ(numbers("010"), "10 10 10 10 10.000000 10.000000 ");
  EXPECT_EQ(numbers(" \t\n\v\f\r-1.5e3x"),
            "4294967295 -1 18446744073709551615 -1 -1500.000000 -1500.000000 ");
  EXPECT_EQ(numbers(L"x1"), L"0 0 0 0 0.000000 0.000000 ");
  EXPECT_EQ(numbers(L"010"), L"10 8 10 10 10.000000 10.000000 ");
  EXPECT_EQ(numbers("18446744073709551616"),
            "4294967295 -1 18446744073709551615 9223372036854775807 "
            "18446744073709551616.000000 18446744073709551616.000000 ");
  EXPECT_EQ(numbers(L"18446744073709551616"),
            L"4294967295 -1 18446744073709551615 -1 "
            L"18446744073709551616.000000 18446744073709551616.000000 ");
  // Bounded by the buffer.
  EXPECT_EQ(Narrow::to_string(1e200), std::to_string(1e200).substr(0, 127));
}

TEST(format_utility, TrueAndOneAreTrue) {
  EXPECT_TRUE(Narrow::str_to_bool("tRuE") && Narrow::str_to_bool("1"));
  EXPECT_TRUE(Wide::str_to_bool(L"tRuE") && Wide::str_to_bool(L"1"));
  EXPECT_FALSE(Narrow::str_to_bool("11") || Narrow::str_to_bool("true "));
}

TEST(format_utility, ByteCountsAreInTheUnitThatTheyExceed) {
  EXPECT_EQ(Narrow::kilo_format(NAN) + Narrow::kilo_format(-1), "");
  EXPECT_EQ(Narrow::kilo_format(0), "0B");
  EXPECT_EQ(Narrow::kilo_format(1024), "1024B");
  EXPECT_EQ(Narrow::kilo_format(0x1p20), "1024.00KB");
  EXPECT_EQ(Narrow::kilo_format(0x1p30), "1024.00MB");
  EXPECT_EQ(Narrow::kilo_format(0x1p40), "1024.00GB");
  EXPECT_EQ(Wide::kilo_format(0x1.8p40), L"1.50TB");
}
