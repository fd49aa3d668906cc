// Reading decimal digits.
#ifndef KORVANE_TEXT_DECIMAL_H_
#define KORVANE_TEXT_DECIMAL_H_

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace qk::text {

// The value of decimal digits: 0 if there are none, the largest number if it
// exceeds 64 bits; nothing if there is any other character. The same as
// format_utility_t's str_to_uint64, and str_to_uint32 in the low half.
template <typename Unit>
constexpr std::optional<std::uint64_t> decimal_value(
    std::basic_string_view<Unit> digits) {
  std::uint64_t value = 0;
  for (const Unit unit : digits) {
    if (unit < Unit('0') || unit > Unit('9')) return std::nullopt;
    const auto digit = static_cast<std::uint64_t>(unit - Unit('0'));
    if (__builtin_mul_overflow(value, 10, &value) ||
        __builtin_add_overflow(value, digit, &value)) {
      value = std::numeric_limits<std::uint64_t>::max();
    }
  }
  return value;
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_DECIMAL_H_
