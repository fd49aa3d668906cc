#include <korvane/string_utility.h>

#include <strings.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cwchar>

#include "text/code_of.h"

namespace qk::text {
namespace {

std::uint32_t fold(wchar_t unit) {
  const std::uint32_t code = code_of(unit);
  if (code >= 256) return code;
  return static_cast<std::uint32_t>(std::tolower(static_cast<int>(code)));
}

bool equal_nocase(wchar_t a, wchar_t b) { return a == b || fold(a) == fold(b); }

}  // namespace

template <>
int string_utility_t<char>::compare_nocase(const char* a, const char* b) {
  return strcasecmp(a, b);
}

template <>
int string_utility_t<char>::compare_nocase(const char* a, const char* b,
                                           unsigned /*count*/) {
  return compare_nocase(a, b);
}

template <>
int string_utility_t<wchar_t>::compare_nocase(const wchar_t* a,
                                              const wchar_t* b) {
  return wcscasecmp(a, b);
}

template <>
int string_utility_t<wchar_t>::compare_nocase(const wchar_t* a,
                                              const wchar_t* b,
                                              unsigned /*count*/) {
  return compare_nocase(a, b);
}

template <>
const wchar_t* string_utility_t<wchar_t>::find_nocase(const wchar_t* text,
                                                      const wchar_t* pattern) {
  if (text == nullptr || pattern == nullptr) return nullptr;
  const std::size_t position = qk::text::find_nocase(
      std::wstring_view(text), std::wstring_view(pattern));
  return position == std::wstring_view::npos ? nullptr : text + position;
}

std::size_t find_nocase(std::wstring_view text, std::wstring_view pattern) {
  if (pattern.empty()) return std::wstring_view::npos;
  const std::uint32_t first = fold(pattern.front());
  for (std::size_t i = 0; text.size() - i >= pattern.size(); ++i) {
    if (fold(text[i]) != first) continue;
    if (std::equal(pattern.begin(), pattern.end(), &text[i], equal_nocase)) {
      return i;
    }
  }
  return std::wstring_view::npos;
}

}  // namespace qk::text
