#include <korvane/format_utility.h>

#include <cmath>

#include "table.h"

using Narrow = qk::text::format_utility_t<char>;
using Wide = qk::text::format_utility_t<wchar_t>;

static Text wide(const Bytes& text) { return {text.begin(), text.end()}; }

template <typename Number>
static void expect_printed(Number number) {
  EXPECT_EQ(Narrow::to_string(number), std::to_string(number));
  EXPECT_EQ(Wide::to_string(number), std::to_wstring(number));
}

TEST(format_utility, ReadsIntegersLikeTheScan) {
  // Narrow and wide differ in the signed ones.
  const Table row = [](const Bytes& text, unsigned long uint64, int sint32,
                       int wide_sint32, long sint64, long wide_sint64) {
    const Text units = wide(text);
    EXPECT_EQ(Narrow::str_to_uint32(text.c_str()), unsigned(uint64));
    EXPECT_EQ(Wide::str_to_uint32(units.c_str()), unsigned(uint64));
    EXPECT_EQ(Narrow::str_to_sint32(text.c_str()), sint32);
    EXPECT_EQ(Wide::str_to_sint32(units.c_str()), wide_sint32);
    EXPECT_EQ(Narrow::str_to_uint64(text.c_str()), uint64);
    EXPECT_EQ(Wide::str_to_uint64(units.c_str()), uint64);
    EXPECT_EQ(Narrow::str_to_sint64(text.c_str()), sint64);
    EXPECT_EQ(Wide::str_to_sint64(units.c_str()), wide_sint64);
    expect_printed(unsigned(uint64));
    expect_printed(sint32);
    expect_printed(uint64);
    expect_printed(sint64);
  };
  constexpr long kMax = 0x7FFFFFFFFFFFFFFF;
  row(" \t\n\v\f\r-12abc", ~11UL, -12, -12, -12, -12);
  row("0x1F", 0, 0, 31, 0, 0);
  row("010", 10, 10, 8, 10, 10);
  row("9223372036854775808", kMax + 1UL, -1, -1, kMax, -kMax - 1);
  row("18446744073709551616", ~0UL, -1, -1, kMax, -1);
}

TEST(format_utility, ReadsAndPrintsRealNumbers) {
  const Table row = [](const Bytes& text, const Bytes& want) {
    const Text units = wide(text);
    EXPECT_EQ(Narrow::to_string(Narrow::str_to_float64(text.c_str())), want);
    EXPECT_EQ(Narrow::to_string(Narrow::str_to_float32(text.c_str())), want);
    EXPECT_EQ(Wide::to_string(Wide::str_to_float64(units.c_str())), wide(want));
    EXPECT_EQ(Wide::to_string(Wide::str_to_float32(units.c_str())), wide(want));
  };
  row("x1", "0.000000");
  row(" -1.5e3x", "-1500.000000");
  EXPECT_EQ(Narrow::to_string(1e200), std::to_string(1e200).substr(0, 127));
  EXPECT_EQ(Wide::to_string(1e200), std::to_wstring(1e200).substr(0, 127));
}

TEST(format_utility, TrueAndOneAreTrue) {
  for (const Bytes text : {"tRuE", "1", "", "11", "true "}) {
    const bool want = text == "tRuE" || text == "1";
    EXPECT_EQ(Narrow::str_to_bool(text.c_str()), want) << text;
    EXPECT_EQ(Wide::str_to_bool(wide(text).c_str()), want) << text;
  }
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
  row(0x1p30 + 1, "1.00GB");
  row(0x1p40 + 1, "1.00TB");
}
