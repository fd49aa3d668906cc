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

// Whether `text` is ASCII without a zero.
template <typename Unit>
constexpr bool is_plain(std::basic_string_view<Unit> text) {
  std::uint32_t seen = 0;
  unsigned zeros = 0;  // no early exit, as above
  for (const Unit unit : text) {
    seen |= code_of(unit);
    zeros |= static_cast<unsigned>(unit == Unit(0));
  }
  return seen < 0x80 && zeros == 0;
}

// The text up to its first zero.
template <typename Unit>
constexpr std::basic_string_view<Unit> until_zero(
    std::basic_string_view<Unit> text) {
  return text.substr(0, text.find(Unit(0)));
}

// The lower-case form of the letters "A" to "Z"; any other unit unchanged.
template <typename Unit>
constexpr Unit to_lower_ascii(Unit unit) {
  const bool is_upper = unit >= Unit('A') && unit <= Unit('Z');
  return static_cast<Unit>(is_upper ? unit + ('a' - 'A') : unit);
}

inline bool begins_with(std::wstring_view text, std::wstring_view prefix) {
  return text.size() >= prefix.size() &&
         std::equal(prefix.begin(), prefix.end(), text.begin());
}

// Whether `text` begins with `prefix`, which is in lower case, in any case.
template <typename Unit>
bool begins_with_nocase(std::basic_string_view<Unit> text,
                        std::string_view prefix) {
  return text.size() >= prefix.size() &&
         std::equal(prefix.begin(), prefix.end(), text.begin(),
                    [](char lower, Unit unit) {
                      return to_lower_ascii(unit) == Unit(lower);
                    });
}

// Whether `text` contains `word`, which is in lower case, in any case.
inline bool contains_nocase(std::wstring_view text, std::string_view word) {
  return std::search(text.begin(), text.end(), word.begin(), word.end(),
                     [](wchar_t unit, char lower) {
                       return to_lower_ascii(unit) == wchar_t(lower);
                     }) != text.end();
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_ASCII_H_
