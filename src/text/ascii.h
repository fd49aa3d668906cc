// Tests and searches that know ASCII alone, whatever the locale.
#ifndef KORVANE_TEXT_ASCII_H_
#define KORVANE_TEXT_ASCII_H_

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "text/code_of.h"

namespace qk::text {

template <typename Unit>
constexpr bool is_ascii(std::basic_string_view<Unit> text) {
  std::uint32_t seen = 0;  // no early exit: faster for text of usual length
  for (const Unit unit : text) seen |= code_of(unit);
  return seen < 0x80;
}

// The text up to its first zero.
template <typename Unit>
constexpr std::basic_string_view<Unit> until_zero(
    std::basic_string_view<Unit> text) {
  return text.substr(0, text.find(Unit(0)));
}

// The lower-case form of the letters "A" to "Z"; any other unit unchanged.
constexpr wchar_t to_lower_ascii(wchar_t unit) {
  return unit >= L'A' && unit <= L'Z' ? unit + (L'a' - L'A') : unit;
}

// Whether `text` begins with `word`, which is in lower case, in any case.
inline bool begins_with_ascii_nocase(std::wstring_view text,
                                     std::wstring_view word) {
  if (text.size() < word.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (to_lower_ascii(text[i]) != word[i]) return false;
  }
  return true;
}

// Whether `text` contains `word`, which is in lower case, in any case.
inline bool contains_ascii_nocase(std::wstring_view text,
                                  std::wstring_view word) {
  for (; text.size() >= word.size(); text.remove_prefix(1)) {
    if (begins_with_ascii_nocase(text, word)) return true;
  }
  return false;
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_ASCII_H_
