#include <korvane/format_utility.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include <korvane/string_utility.h>

namespace qk::text {
namespace {

// A short ASCII text for the narrow or the wide functions of the C library.
template <typename Unit>
class Ascii {
 public:
  explicit Ascii(const char* text) {
    std::copy_n(text, std::strlen(text), units_.begin());
  }
  operator const Unit*() const { return units_.data(); }

 private:
  std::array<Unit, 16> units_{};
};

int print_to(char* out, std::size_t size, const char* format, double value) {
  return std::snprintf(out, size, format, value);
}
int print_to(wchar_t* out, std::size_t size, const wchar_t* format,
             double value) {
  return std::swprintf(out, size, format, value);
}

// Text that does not fit is cut; swprintf then returns an error, but has
// written what fits and a terminator.
template <typename Unit>
std::basic_string<Unit> print(const char* format, double value) {
  std::array<Unit, 128> text{};
  static_cast<void>(
      print_to(text.data(), text.size(), Ascii<Unit>(format), value));
  return text.data();
}

template <typename Unit, typename Number>
std::basic_string<Unit> print_integer(Number value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

template <typename Number>
Number scan(const char* text, const char* format) {
  Number value = 0;
  return std::sscanf(text, format, &value) == 1 ? value : 0;
}

template <typename Number>
Number scan(const wchar_t* text, const char* format) {
  Number value = 0;
  const Ascii<wchar_t> wide_format(format);
  return std::swscanf(text, wide_format, &value) == 1 ? value : 0;
}

std::int32_t read_signed32(const char* text) {
  return static_cast<std::int32_t>(std::strtol(text, nullptr, 10));
}
std::int32_t read_signed32(const wchar_t* text) {
  return scan<std::int32_t>(text, "%i");
}
std::int64_t read_signed64(const char* text) {
  return std::strtoll(text, nullptr, 10);
}
std::int64_t read_signed64(const wchar_t* text) {
  return static_cast<std::int64_t>(scan<unsigned long long>(text, "%llu"));
}

constexpr struct {
  double size;
  const char* format;
} kByteUnits[] = {{0x1p40, "%0.2lfTB"},
                  {0x1p30, "%0.2lfGB"},
                  {0x1p20, "%0.2lfMB"},
                  {0x1p10, "%0.2lfKB"}};

}  // namespace

template <typename Unit>
auto format_utility_t<Unit>::to_string(unsigned value) -> String {
  return print_integer<Unit>(value);
}

template <typename Unit>
auto format_utility_t<Unit>::to_string(int value) -> String {
  return print_integer<Unit>(value);
}

template <typename Unit>
auto format_utility_t<Unit>::to_string(unsigned long value) -> String {
  return print_integer<Unit>(value);
}

template <typename Unit>
auto format_utility_t<Unit>::to_string(long value) -> String {
  return print_integer<Unit>(value);
}

template <typename Unit>
auto format_utility_t<Unit>::to_string(float value) -> String {
  return print<Unit>("%f", static_cast<double>(value));
}

template <typename Unit>
auto format_utility_t<Unit>::to_string(double value) -> String {
  return print<Unit>("%lf", value);
}

template <typename Unit>
std::uint32_t format_utility_t<Unit>::str_to_uint32(const Unit* text) {
  return scan<unsigned>(text, "%u");
}

template <typename Unit>
std::int32_t format_utility_t<Unit>::str_to_sint32(const Unit* text) {
  return read_signed32(text);
}

template <typename Unit>
std::uint64_t format_utility_t<Unit>::str_to_uint64(const Unit* text) {
  return scan<unsigned long long>(text, "%llu");
}

template <typename Unit>
std::int64_t format_utility_t<Unit>::str_to_sint64(const Unit* text) {
  return read_signed64(text);
}

template <typename Unit>
float format_utility_t<Unit>::str_to_float32(const Unit* text) {
  return scan<float>(text, "%f");
}

template <typename Unit>
double format_utility_t<Unit>::str_to_float64(const Unit* text) {
  return scan<double>(text, "%lf");
}

template <typename Unit>
bool format_utility_t<Unit>::str_to_bool(const Unit* text) {
  using Compare = string_utility_t<Unit>;
  return Compare::compare_nocase(text, Ascii<Unit>("true")) == 0 ||
         Compare::compare_nocase(text, Ascii<Unit>("1")) == 0;
}

template <typename Unit>
auto format_utility_t<Unit>::kilo_format(double bytes) -> String {
  for (const auto& [size, format] : kByteUnits) {
    if (bytes > size) return print<Unit>(format, bytes / size);
  }
  return bytes >= 0 ? print<Unit>("%.0lfB", bytes) : String();
}

template class format_utility_t<char>;
template class format_utility_t<wchar_t>;

}  // namespace qk::text
