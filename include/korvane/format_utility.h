// Converts numbers to text and text to numbers, and formats byte counts.
#ifndef KORVANE_FORMAT_UTILITY_H_
#define KORVANE_FORMAT_UTILITY_H_

#include <korvane/needs_cpp17.h>

#include <cstdint>
#include <string>

namespace qk::text {

// For char and wchar_t. Text is zero-terminated and not null. Decimal points
// and white space are those of the current locale. No function reports an
// error.
template <typename Unit>
class format_utility_t {
 public:
  using String = std::basic_string<Unit>;

  // Decimal: "-42".
  static String to_string(unsigned value);
  static String to_string(int value);
  static String to_string(unsigned long value);
  static String to_string(long value);

  // Six digits behind the decimal point: "1.500000". A double is cut to 127
  // characters.
  static String to_string(float value);
  static String to_string(double value);

  // Read the number at the start of the text, behind optional white space; 0 if
  // there is none. Integers saturate at 64 bits and are then cut to the size of
  // the result.
  // Quirks of the wide functions: str_to_sint32 also reads "0x1F" as 31 and
  // "010" as 8; str_to_sint64 reads up to the unsigned limit and returns the
  // same bits as a signed number.
  static std::uint32_t str_to_uint32(const Unit* text);
  static std::int32_t str_to_sint32(const Unit* text);
  static std::uint64_t str_to_uint64(const Unit* text);
  static std::int64_t str_to_sint64(const Unit* text);
  static float str_to_float32(const Unit* text);
  static double str_to_float64(const Unit* text);

  // True for "true", case-insensitively, and "1".
  static bool str_to_bool(const Unit* text);

  // Formats a byte count: "1024B", "1.50KB", ... "TB". 1 KB is 1024 bytes, and
  // a unit is used above 1 of it. Empty for a negative number and for NaN.
  static String kilo_format(double bytes);
};

extern template class format_utility_t<char>;
extern template class format_utility_t<wchar_t>;

}  // namespace qk::text

#endif  // KORVANE_FORMAT_UTILITY_H_
