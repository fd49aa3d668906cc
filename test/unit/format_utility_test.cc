#include <korvane/format_utility.h>

#include <cmath>

#include "table.h"

namespace {

using Narrow = qk::text::format_utility_t<char>;
using Wide = qk::text::format_utility_t<wchar_t>;

Text wide(const Bytes& text) { return {text.begin(), text.end()}; }

template <typename Number>
void expect_printed(Number number) {
  EXPECT_EQ(Narrow::to_string(number), std::to_string(number));
  EXPECT_EQ(Wide::to_string(number), std::to_wstring(number));
}

TEST(format_utility, ReadsIntegersLikeTheScan) {
  // Narrow and wide differ in the signed ones.
  const Table row = [](const Bytes& text, unsigned uint32, int sint32,
                       int wide_sint32, unsigned long uint64, long sint64,
                       long wide_sint64) {
    const Text wide_text = wide(text);
    EXPECT_EQ(Narrow::str_to_uint32(text.c_str()), uint32);
    EXPECT_EQ(Wide::str_to_uint32(wide_text.c_str()), uint32);
    EXPECT_EQ(Narrow::str_to_sint32(text.c_str()), sint32);
    EXPECT_EQ(Wide::str_to_sint32(wide_text.c_str()), wide_sint32);
    EXPECT_EQ(Narrow::str_to_uint64(text.c_str()), uint64);
    EXPECT_EQ(Wide::str_to_uint64(wide_text.c_str()), uint64);
    EXPECT_EQ(Narrow::str_to_sint64(text.c_str()), sint64);
    EXPECT_EQ(Wide::str_to_sint64(wide_text.c_str()), wide_sint64);
    expect_printed(uint32);
    expect_printed(sint32);
    expect_printed(uint64);
    expect_printed(sint64);
  };
  constexpr long kMax = 0x7FFFFFFFFFFFFFFF;
  constexpr long kMin = -kMax - 1;
  row("abc", 0, 0, 0, 0, 0, 0);
  row(" \t\n\v\f\r-12abc", 4294967284, -12, -12, ~11UL, -12, -12);
  row("0x1F", 0, 0, 31, 0, 0, 0);
  row("010", 10, 10, 8, 10, 10, 10);
  row("4294967297", 1, 1, 1, 4294967297, 4294967297, 4294967297);
  row("9223372036854775808", 0, -1, -1, kMax + 1UL, kMax, kMin);
  row("18446744073709551616", ~0U, -1, -1, ~0UL, kMax, -1);
  row("-9223372036854775809", ~0U, 0, 0, kMax, kMin, kMax);
}

TEST(format_utility, ReadsAndPrintsRealNumbers) {
  const Table row = [](const Bytes& text, const Bytes& want) {
    const Text wide_text = wide(text);
    const double real = Narrow::str_to_float64(text.c_str());
    const float less = Narrow::str_to_float32(text.c_str());
    EXPECT_EQ(Narrow::to_string(real), want);
    EXPECT_EQ(Narrow::to_string(less), want);
    EXPECT_EQ(Wide::to_string(Wide::str_to_float64(wide_text.c_str())),
              wide(want));
    EXPECT_EQ(Wide::to_string(Wide::str_to_float32(wide_text.c_str())),
              wide(want));
  };
  row("x1", "0.000000");
  row(" 1.5e3x", "1500.000000");
  row("-.5", "-0.500000");
  row("9e9999", "inf");
  EXPECT_EQ(Narrow::to_string(1e200), std::to_string(1e200).substr(0, 127));
  EXPECT_EQ(Wide::to_string(1e200), std::to_wstring(1e200).substr(0, 127));
}

TEST(format_utility, TrueAndOneAreTrue) {
  const Table row = [](const Bytes& text, bool want) {
    EXPECT_EQ(Narrow::str_to_bool(text.c_str()), want);
    EXPECT_EQ(Wide::str_to_bool(wide(text).c_str()), want);
  };
  row("tRuE", true);
  row("1", true);
  row("", false);
  row("11", false);
  row("true ", false);
}

TEST(format_utility, ByteCountsAreInTheUnitThatTheyExceed) {
  const Table row = [](double count, const Bytes& want) {
    EXPECT_EQ(Narrow::kilo_format(count), want);
    EXPECT_EQ(Wide::kilo_format(count), wide(want));
  };
  row(-1, "");
  row(NAN, "");
  row(0, "0B");
  row(1024, "1024B");
  row(1536, "1.50KB");
  row(0x1p20, "1024.00KB");
  row(0x1p20 + 1, "1.00MB");
  row(0x1p30, "1024.00MB");
  row(0x1p30 + 1, "1.00GB");
  row(0x1p40, "1024.00GB");
  row(0x1p40 + 1, "1.00TB");
}

}  // namespace
