// The classes of the characters of URLs. Characters of 128 and above are
// foreign and in no other class.
#ifndef KORVANE_URL_CHARACTER_CLASSES_H_
#define KORVANE_URL_CHARACTER_CLASSES_H_

#include <array>
#include <cstdint>
#include <string_view>

#include "text/code_of.h"

namespace qk::url {

using CharacterClasses = std::uint8_t;

constexpr CharacterClasses kForeign = 1;     // not ASCII
constexpr CharacterClasses kNeedEscape = 2;  // is escaped when printed
constexpr CharacterClasses kReserved = 4;    // separates the parts of a URL
constexpr CharacterClasses kSeparator = 8;   // precedes the name of a file
constexpr CharacterClasses kIllegal = 16;    // no file name may contain it
constexpr CharacterClasses kDot = 32;        // begins a file extension
constexpr CharacterClasses kPercent = 64;    // begins an escape
constexpr CharacterClasses kZero = 128;      // ends text that is converted

namespace internal {

constexpr std::array<CharacterClasses, 128> make_character_classes() {
  std::array<CharacterClasses, 128> classes{};
  const auto mark = [&classes](std::string_view characters,
                               CharacterClasses character_class) {
    for (const char character : characters) {
      classes[text::code_of(character)] |= character_class;
    }
  };
  for (unsigned code = 0; code <= ' '; ++code) classes[code] = kNeedEscape;
  mark("\x7F\"#%<>[\\]^`{|}~", kNeedEscape);
  mark("$&+,/:;=?@", kReserved);
  mark("\\/", kSeparator);
  mark("\\/:*?\"<>|\t\r\n", kIllegal);
  mark(".", kDot);
  mark("%", kPercent);
  classes[0] |= kZero;
  return classes;
}

inline constexpr std::array<CharacterClasses, 128> kClasses =
    make_character_classes();

}  // namespace internal

template <typename Unit>
constexpr CharacterClasses classes_of(Unit unit) {
  const std::uint32_t code = text::code_of(unit);
  // Most units are ASCII. Saying so saves file names a tenth of their time.
  if (__builtin_expect(code >= internal::kClasses.size(), 0)) return kForeign;
  return internal::kClasses[code];
}

template <typename Unit>
constexpr bool is_one_of(Unit unit, CharacterClasses character_classes) {
  return (classes_of(unit) & character_classes) != 0;
}

template <typename Unit>
constexpr bool is_letter(Unit unit) {
  const auto lower = unit | 0x20;
  return lower >= 'a' && lower <= 'z';
}

template <typename Unit>
constexpr bool is_decimal(Unit unit) {
  return unit >= Unit('0') && unit <= Unit('9');
}

template <typename Unit>
constexpr bool is_blank(Unit unit) {
  return unit == Unit(' ') || unit == Unit('\t');
}

template <typename Unit>
constexpr std::basic_string_view<Unit> without_leading_blanks(
    std::basic_string_view<Unit> text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  return text;
}

// The classes of all code units of `text` together.
constexpr CharacterClasses classes_in(std::wstring_view text) {
  unsigned classes = 0;
  for (const wchar_t unit : text) classes |= classes_of(unit);
  return static_cast<CharacterClasses>(classes);
}

}  // namespace qk::url

#endif  // KORVANE_URL_CHARACTER_CLASSES_H_
