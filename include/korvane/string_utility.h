// Comparison and search without regard to case.
#ifndef KORVANE_STRING_UTILITY_H_
#define KORVANE_STRING_UTILITY_H_

#include <korvane/needs_cpp17.h>

#include <cstddef>
#include <string_view>

namespace qk::text {

// For char and wchar_t. Texts end at their first zero unit; the process's
// locale says what a unit's other case is.
template <typename Unit>
class string_utility_t {
 public:
  // The sign of the comparison, 0 for equal texts. Neither may be null.
  static int compare_nocase(const Unit* a, const Unit* b);

  // The same. Kept: callers rely on the count not limiting the comparison.
  static int compare_nocase(const Unit* a, const Unit* b, unsigned count);

  // Wide only: where `pattern` first stands in `text`, or null. Null when one
  // of them is null or empty.
  static const Unit* find_nocase(const Unit* text, const Unit* pattern);
};

template <>
int string_utility_t<char>::compare_nocase(const char* a, const char* b);
template <>
int string_utility_t<char>::compare_nocase(const char* a, const char* b,
                                           unsigned count);
template <>
int string_utility_t<wchar_t>::compare_nocase(const wchar_t* a,
                                              const wchar_t* b);
template <>
int string_utility_t<wchar_t>::compare_nocase(const wchar_t* a,
                                              const wchar_t* b, unsigned count);
template <>
const wchar_t* string_utility_t<wchar_t>::find_nocase(const wchar_t* text,
                                                      const wchar_t* pattern);

// Where `pattern` first stands in `text`, both taken whole; npos if nowhere or
// if one is empty. Units of 256 and above have no other case.
std::size_t find_nocase(std::wstring_view text, std::wstring_view pattern);

}  // namespace qk::text

#endif  // KORVANE_STRING_UTILITY_H_
