// Numbers as text and back, and comparison without case: the narrow form
// against the wide one and both against the C library's plain routines.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <cwctype>
#include <limits>

#include <korvane/format_utility.h>
#include <korvane/string_utility.h>
#include "fuzz.h"

namespace {

using fuzz::require;
using fuzz::require_equal;
using Narrow = qk::text::format_utility_t<char>;
using Wide = qk::text::format_utility_t<wchar_t>;

std::wstring widen(const std::string& text) {
  return std::wstring(text.begin(), text.end());
}

template <typename Number>
void check_printed(Number value, const std::string& want) {
  require_equal(want, Narrow::to_string(value), "narrow number");
  require_equal(widen(want), Wide::to_string(value), "wide number");
}

void check_integer(long value) {
  const auto bits = static_cast<unsigned long>(value);
  const auto half = static_cast<std::uint32_t>(bits & 0xFFFFFFFF);
  const auto signed_half = static_cast<int>(half);
  check_printed(value, std::to_string(value));
  check_printed(bits, std::to_string(bits));
  check_printed(half, std::to_string(half));
  check_printed(signed_half, std::to_string(signed_half));
  const std::string text = std::to_string(value);
  require(Narrow::str_to_sint64(text.c_str()) == value, "sint64 back");
  require(
      Narrow::str_to_sint32(std::to_string(signed_half).c_str()) == signed_half,
      "sint32 back");
}

std::string print(const char* format, double value) {
  char text[512];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

std::string kilo_slowly(double bytes) {
  constexpr const char* kFormats[] = {"%.2fKB", "%.2fMB", "%.2fGB", "%.2fTB"};
  if (!(bytes >= 0)) return "";
  if (bytes <= 1024) return print("%.0fB", bytes);
  std::size_t unit = 0;
  bytes /= 1024;
  while (bytes > 1024 && unit < 3) {
    bytes /= 1024;
    ++unit;
  }
  return print(kFormats[unit], bytes);
}

void check_real(double value) {
  check_printed(value, print("%f", value).substr(0, 127));
  const auto narrow = static_cast<float>(std::fabs(value) < 3e38 ? value : 0);
  check_printed(narrow, print("%f", static_cast<double>(narrow)).substr(0, 63));
  const std::string kilo = kilo_slowly(value).substr(0, 127);
  require_equal(kilo, Narrow::kilo_format(value), "kilo_format");
  require_equal(widen(kilo), Wide::kilo_format(value), "wide kilo_format");
  if (!std::isfinite(value)) return;
  const std::string text = print("%.17g", value);
  require(Narrow::str_to_float64(text.c_str()) == value, "float64 back");
  require(Wide::str_to_float64(widen(text).c_str()) == value, "wide back");
}

void check_scanned(const std::string& text) {
  const char* const narrow = text.c_str();
  const std::wstring wide_text = widen(text);
  const wchar_t* const wide = wide_text.c_str();
  const std::uint64_t bits = std::strtoull(narrow, nullptr, 10);
  const auto half = static_cast<std::uint32_t>(bits & 0xFFFFFFFF);
  require(Narrow::str_to_uint64(narrow) == bits, "uint64");
  require(Wide::str_to_uint64(wide) == bits, "wide uint64");
  require(Narrow::str_to_uint32(narrow) == half, "uint32");
  require(Wide::str_to_uint32(wide) == half, "wide uint32");
  require(Wide::str_to_sint64(wide) == static_cast<std::int64_t>(bits), "bits");
  const long long decimal = std::strtoll(narrow, nullptr, 10);
  require(Narrow::str_to_sint64(narrow) == decimal, "sint64");
  require(Narrow::str_to_sint32(narrow) ==
              static_cast<std::int32_t>(
                  static_cast<std::uint32_t>(decimal & 0xFFFFFFFF)),
          "sint32");
  const long long any_base = std::strtoll(narrow, nullptr, 0);
  require(Wide::str_to_sint32(wide) ==
              static_cast<std::int32_t>(
                  static_cast<std::uint32_t>(any_base & 0xFFFFFFFF)),
          "any base");
  const double real = Narrow::str_to_float64(narrow);
  const double wide_real = Wide::str_to_float64(wide);
  require(std::memcmp(&real, &wide_real, sizeof real) == 0, "float64 twins");
  const std::size_t digits =
      std::min(text.find_first_not_of("0123456789"), text.size());
  const std::uint64_t value =
      std::strtoull(text.substr(0, digits).c_str(), nullptr, 10);
  require(qk::text::decimal_value(std::string_view(narrow, digits)) == value,
          "digits");
  require(qk::text::decimal_value(std::wstring_view(wide, digits)) == value,
          "wide digits");
}

std::wstring lowered(std::wstring text) {
  for (wchar_t& unit : text) {
    if (unit >= L'A' && unit <= L'Z') unit += 32;
  }
  return text;
}

int sign(int value) { return value < 0 ? -1 : value > 0 ? 1 : 0; }

void check_case(const std::wstring& text, const std::wstring& pattern) {
  using qk::text::string_utility_t;
  const std::wstring a = text.c_str();
  const std::wstring b = pattern.c_str();
  const bool is_empty = a.empty() || b.empty();
  const std::size_t want =
      is_empty ? std::wstring::npos : lowered(a).find(lowered(b));
  require(qk::text::find_nocase(std::wstring_view(a), b) == want, "where");
  const wchar_t* const found =
      string_utility_t<wchar_t>::find_nocase(a.c_str(), b.c_str());
  require(found == (want == std::wstring::npos ? nullptr : a.c_str() + want),
          "where it points");
  const int order =
      string_utility_t<wchar_t>::compare_nocase(a.c_str(), b.c_str());
  // The C library subtracts units; one difference has no opposite.
  require(order == std::numeric_limits<int>::min() ||
              sign(order) == -sign(string_utility_t<wchar_t>::compare_nocase(
                                 b.c_str(), a.c_str(), 1)),
          "the order turned round");
  if (lowered(a) == lowered(b)) require(order == 0, "equal but for case");
  const bool is_true = lowered(a) == L"true" || a == L"1";
  require(Wide::str_to_bool(a.c_str()) == is_true, "true");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::string text = input.bytes_until('\n');
  const std::wstring pattern = input.text();
  check_scanned(std::string(text.c_str()));
  check_integer(std::strtol(text.c_str(), nullptr, 10));
  check_real(std::strtod(text.c_str(), nullptr));
  // The eight bytes that end the input are a number of either kind as well.
  long bits = 0;
  double real = 0;
  if (size >= sizeof bits) {
    std::memcpy(&bits, data + size - sizeof bits, sizeof bits);
    std::memcpy(&real, &bits, sizeof real);
  }
  check_integer(bits);
  check_real(real);
  check_case(widen(text), pattern);
  return 0;
}
