#include <korvane/format_utility.h>

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cwchar>

#include <korvane/string_utility.h>

namespace qk::text {
namespace {

template <typename Unit, typename Number>
std::basic_string<Unit> print_integer(Number value) {
  std::array<char, 32> digits;
  const char* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return {static_cast<const char*>(digits.data()),
          static_cast<const char*>(end)};
}

// A text that does not fit is cut; the wide print then answers an error, but
// has written what fits and its terminator like the narrow one.
template <std::size_t kRoom>
std::string print(const char* format, double value) {
  std::array<char, kRoom> text{};
  static_cast<void>(std::snprintf(text.data(), kRoom, format, value));
  return text.data();
}

template <std::size_t kRoom>
std::wstring print(const wchar_t* format, double value) {
  std::array<wchar_t, kRoom> text{};
  static_cast<void>(std::swprintf(text.data(), kRoom, format, value));
  return text.data();
}

template <typename Number>
Number scan(const char* text, const char* format) {
  Number value = 0;
  return std::sscanf(text, format, &value) == 1 ? value : 0;
}

template <typename Number>
Number scan(const wchar_t* text, const wchar_t* format) {
  Number value = 0;
  return std::swscanf(text, format, &value) == 1 ? value : 0;
}

// What differs between the narrow and the wide members.
template <typename Unit>
struct Formats;

template <>
struct Formats<char> {
  static constexpr char kFloat[] = "%f";
  static constexpr char kDouble[] = "%lf";
  static constexpr char kUint32[] = "%u";
  static constexpr char kUint64[] = "%llu";
  static constexpr char kTrue[] = "true";
  static constexpr char kOne[] = "1";
  static constexpr char kTera[] = "%0.2lfTB";
  static constexpr char kGiga[] = "%0.2lfGB";
  static constexpr char kMega[] = "%0.2lfMB";
  static constexpr char kKilo[] = "%0.2lfKB";
  static constexpr char kBytes[] = "%.0lfB";

  static long sint32(const char* text) {
    return std::strtol(text, nullptr, 10);
  }
  static long long sint64(const char* text) {
    return std::strtoll(text, nullptr, 10);
  }
};

template <>
struct Formats<wchar_t> {
  static constexpr wchar_t kFloat[] = L"%f";
  static constexpr wchar_t kDouble[] = L"%lf";
  static constexpr wchar_t kUint32[] = L"%u";
  static constexpr wchar_t kUint64[] = L"%llu";
  static constexpr wchar_t kTrue[] = L"true";
  static constexpr wchar_t kOne[] = L"1";
  static constexpr wchar_t kTera[] = L"%0.2lfTB";
  static constexpr wchar_t kGiga[] = L"%0.2lfGB";
  static constexpr wchar_t kMega[] = L"%0.2lfMB";
  static constexpr wchar_t kKilo[] = L"%0.2lfKB";
  static constexpr wchar_t kBytes[] = L"%.0lfB";

  static int sint32(const wchar_t* text) { return scan<int>(text, L"%i"); }
  static unsigned long long sint64(const wchar_t* text) {
    return scan<unsigned long long>(text, kUint64);
  }
};

constexpr double kKilo = 1024;
constexpr double kMega = kKilo * kKilo;
constexpr double kGiga = kKilo * kMega;
constexpr double kTera = kKilo * kGiga;

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
  return print<64>(Formats<Unit>::kFloat, static_cast<double>(value));
}

template <typename Unit>
auto format_utility_t<Unit>::to_string(double value) -> String {
  return print<128>(Formats<Unit>::kDouble, value);
}

template <typename Unit>
std::uint32_t format_utility_t<Unit>::str_to_uint32(const Unit* text) {
  return scan<unsigned>(text, Formats<Unit>::kUint32);
}

template <typename Unit>
std::int32_t format_utility_t<Unit>::str_to_sint32(const Unit* text) {
  return static_cast<std::int32_t>(Formats<Unit>::sint32(text));
}

template <typename Unit>
std::uint64_t format_utility_t<Unit>::str_to_uint64(const Unit* text) {
  return scan<unsigned long long>(text, Formats<Unit>::kUint64);
}

template <typename Unit>
std::int64_t format_utility_t<Unit>::str_to_sint64(const Unit* text) {
  return static_cast<std::int64_t>(Formats<Unit>::sint64(text));
}

template <typename Unit>
float format_utility_t<Unit>::str_to_float32(const Unit* text) {
  return scan<float>(text, Formats<Unit>::kFloat);
}

template <typename Unit>
double format_utility_t<Unit>::str_to_float64(const Unit* text) {
  return scan<double>(text, Formats<Unit>::kDouble);
}

template <typename Unit>
bool format_utility_t<Unit>::str_to_bool(const Unit* text) {
  using Compare = string_utility_t<Unit>;
  return Compare::compare_nocase(text, Formats<Unit>::kTrue) == 0 ||
         Compare::compare_nocase(text, Formats<Unit>::kOne) == 0;
}

template <typename Unit>
auto format_utility_t<Unit>::kilo_format(double bytes) -> String {
  using Texts = Formats<Unit>;
  if (bytes > kTera) return print<128>(Texts::kTera, bytes / kTera);
  if (bytes > kGiga) return print<128>(Texts::kGiga, bytes / kGiga);
  if (bytes > kMega) return print<128>(Texts::kMega, bytes / kMega);
  if (bytes > kKilo) return print<128>(Texts::kKilo, bytes / kKilo);
  if (bytes >= 0) return print<128>(Texts::kBytes, bytes);
  return {};
}

template class format_utility_t<char>;
template class format_utility_t<wchar_t>;

}  // namespace qk::text
