// Tables for base16, base32 and base64: pairs of digits, to write two at a
// time, and the values of digits.
#ifndef KORVANE_TEXT_DIGIT_TABLES_H_
#define KORVANE_TEXT_DIGIT_TABLES_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/code_of.h"

namespace qk::text {

// All pairs of the first `radix` characters of an alphabet, by value.
template <std::size_t radix>
using DigitPairs = std::array<std::array<char, 2>, radix * radix>;

template <std::size_t radix>
constexpr DigitPairs<radix> make_digit_pairs(std::string_view alphabet) {
  DigitPairs<radix> pairs{};
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    pairs[i] = {alphabet[i / radix], alphabet[i % radix]};
  }
  return pairs;
}

// The values of all bytes as digits; kNoDigit, a bit of its own, if invalid.
using DigitValues = std::array<unsigned char, 256>;
constexpr unsigned char kNoDigit = 0x80;

constexpr void set_values(DigitValues& values, std::string_view digits,
                          unsigned char first_value) {
  for (const char digit : digits) {
    values[static_cast<unsigned char>(digit)] = first_value++;
  }
}

constexpr DigitValues make_digit_values(std::string_view digits) {
  DigitValues values{};
  for (unsigned char& value : values) value = kNoDigit;
  set_values(values, digits, 0);
  return values;
}

constexpr bool is_digit_value(unsigned value) {
  return (value & kNoDigit) == 0;
}

template <typename Unit>
constexpr unsigned value_of(const DigitValues& values, Unit unit) {
  const std::uint32_t code = code_of(unit);
  return code < values.size() ? values[code] : kNoDigit;
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_DIGIT_TABLES_H_
