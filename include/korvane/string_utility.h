// Case-insensitive comparison and search.
#ifndef KORVANE_STRING_UTILITY_H_
#define KORVANE_STRING_UTILITY_H_

#include <korvane/needs_cpp17.h>

namespace qk::text {

// For char and wchar_t. Text is zero-terminated. Upper and lower case are those
// of the current locale.
template <typename Unit>
class string_utility_t {
 public:
  // Like strcasecmp and wcscasecmp. Neither pointer may be null.
  static int compare_nocase(const Unit* a, const Unit* b);

  // Quirk: `count` is ignored; the whole text is compared.
  static int compare_nocase(const Unit* a, const Unit* b, unsigned count);

  // wchar_t only. The first `pattern` in `text`, or null if there is none or if
  // one of them is null or empty. Code units of 256 and above have no case.
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

template <>
const char* string_utility_t<char>::find_nocase(const char* text,
                                                const char* pattern) = delete;

}  // namespace qk::text

#endif  // KORVANE_STRING_UTILITY_H_
