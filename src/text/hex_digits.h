// Hexadecimal digits, for every coder and decoder.
#ifndef KORVANE_TEXT_HEX_DIGITS_H_
#define KORVANE_TEXT_HEX_DIGITS_H_

#include <array>
#include <cstdint>

#include "text/code_of.h"

namespace qk::text {

constexpr char kUpperHexDigits[] = "0123456789ABCDEF";
constexpr char kLowerHexDigits[] = "0123456789abcdef";

// What hex_value gives for a unit that is no digit: more than any digit.
constexpr unsigned kNoHexDigit = 0x80;

namespace internal {

constexpr std::array<unsigned char, 256> make_hex_values() {
  std::array<unsigned char, 256> values{};
  for (auto& value : values) value = kNoHexDigit;
  for (unsigned char i = 0; i < 16; ++i) {
    values[static_cast<unsigned char>(kUpperHexDigits[i])] = i;
    values[static_cast<unsigned char>(kLowerHexDigits[i])] = i;
  }
  return values;
}

inline constexpr std::array<unsigned char, 256> kHexValues = make_hex_values();

}  // namespace internal

// The value of a hexadecimal digit of either case; kNoHexDigit for any other
// unit, those of 256 and above included.
template <typename Unit>
constexpr unsigned hex_value(Unit unit) {
  const std::uint32_t code = code_of(unit);
  return code < 256 ? internal::kHexValues[code] : kNoHexDigit;
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_HEX_DIGITS_H_
