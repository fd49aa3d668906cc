// Hexadecimal digits.
#ifndef KORVANE_TEXT_HEX_DIGITS_H_
#define KORVANE_TEXT_HEX_DIGITS_H_

#include "text/digit_tables.h"

namespace qk::text {

constexpr char kUpperHexDigits[] = "0123456789ABCDEF";
constexpr char kLowerHexDigits[] = "0123456789abcdef";

// Case-insensitive.
inline constexpr DigitValues kHexValues = [] {
  DigitValues values = make_digit_values(kUpperHexDigits);
  set_values(values, kLowerHexDigits, 0);
  return values;
}();

// The value of a hexadecimal digit; kNoDigit for any other code unit.
constexpr unsigned hex_value(char unit) { return value_of(kHexValues, unit); }
constexpr unsigned hex_value(wchar_t unit) {
  return value_of(kHexValues, unit);
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_HEX_DIGITS_H_
