#include <korvane/string_utility.h>

#include <strings.h>

#include <algorithm>
#include <cctype>
#include <cwchar>
#include <string_view>

#include "text/code_of.h"

namespace qk::text {
namespace {

// tolower is for bytes alone.
wchar_t to_lower(wchar_t unit) {
  const auto code = code_of(unit);
  if (code >= 256) return unit;
  return static_cast<wchar_t>(std::tolower(static_cast<int>(code)));
}

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
  if (text == nullptr || pattern == nullptr || *pattern == 0) return nullptr;
  const std::wstring_view all(text);
  const std::wstring_view part(pattern);
  const auto found = std::search(
      all.begin(), all.end(), part.begin(), part.end(),
      [](wchar_t a, wchar_t b) { return to_lower(a) == to_lower(b); });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace qk::text
