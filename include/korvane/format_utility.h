// Numbers as text, text as numbers, and byte counts for display.
#ifndef KORVANE_FORMAT_UTILITY_H_
#define KORVANE_FORMAT_UTILITY_H_

#include <korvane/needs_cpp17.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace qk::text {

// For char and wchar_t. Decimal points and white space are those of the
// process's locale. Texts end at their first zero unit and are not null.
// Nothing reports an error.
template <typename Unit>
class format_utility_t {
 public:
  using String = std::basic_string<Unit>;

  // Decimal digits with "-" in front of a negative number.
  static String to_string(unsigned value);
  static String to_string(int value);
  static String to_string(unsigned long value);
  static String to_string(long value);

  // Six digits behind the point. The text of a double ends after 127 units,
  // however many more the number has.
  static String to_string(float value);
  static String to_string(double value);

  // Each reads the number that the text begins with behind white space; 0 if
  // there is none. A number out of range is cut to the low bits of the 64-bit
  // number nearest to it, as the C library's scan does.
  //
  // Kept, callers rely on the difference: the wide str_to_sint32 reads 0x1F as
  // 31 and 010 as 8, the narrow one reads decimal digits only; the wide
  // str_to_sint64 gives the bits of an unsigned number beyond the signed range,
  // the narrow one the end of the signed range.
  static std::uint32_t str_to_uint32(const Unit* text);
  static std::int32_t str_to_sint32(const Unit* text);
  static std::uint64_t str_to_uint64(const Unit* text);
  static std::int64_t str_to_sint64(const Unit* text);
  static float str_to_float32(const Unit* text);
  static double str_to_float64(const Unit* text);

  // Whether the text is "true", in either case, or "1".
  static bool str_to_bool(const Unit* text);

  // A byte count in the largest binary unit that it exceeds, "1.50KB"; up to
  // 1024 in whole bytes, "1024B". Empty for a negative count or no number.
  static String kilo_format(double bytes);
};

extern template class format_utility_t<char>;
extern template class format_utility_t<wchar_t>;

// The number that `digits` stand for: the largest number if it is beyond 64
// bits, 0 if there are none, nothing if one is no decimal digit. What
// str_to_uint64 gives for digits, and str_to_uint32 in its low half, without a
// terminator.
template <typename Unit>
constexpr std::optional<std::uint64_t> decimal_value(
    std::basic_string_view<Unit> digits) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t value = 0;
  for (const Unit unit : digits) {
    if (unit < Unit('0') || unit > Unit('9')) return std::nullopt;
    const auto digit = static_cast<std::uint64_t>(unit - Unit('0'));
    const bool fits =
        value < kMost / 10 || (value == kMost / 10 && digit <= kMost % 10);
    value = fits ? value * 10 + digit : kMost;
  }
  return value;
}

}  // namespace qk::text

#endif  // KORVANE_FORMAT_UTILITY_H_
