#include "text/utf8.h"

#include <cstddef>
#include <cstdint>

#include "text/code_of.h"

namespace qk::text {
namespace {

constexpr std::uint32_t kLastCharacter = 0x10FFFF;

bool is_character(std::uint32_t unit) {
  return unit <= kLastCharacter && (unit < 0xD800 || unit > 0xDFFF);
}

// The forms of a character by the number of bytes that follow the first: the
// fixed bits of the first byte, a mask for them, and the least character.
struct Form {
  std::uint32_t mask;
  std::uint32_t mark;
  std::uint32_t least;
};

constexpr std::size_t kForms = 4;
constexpr Form kFormOf[kForms] = {{0x80, 0x00, 0},
                                  {0xE0, 0xC0, 0x80},
                                  {0xF0, 0xE0, 0x800},
                                  {0xF8, 0xF0, 0x10000}};

// Reads the character at the start of `utf8` and moves past it; returns whether
// it is valid.
bool read_character(std::string_view& utf8, std::uint32_t& character) {
  const std::uint32_t first = code_of(utf8.front());
  std::size_t following = 0;
  while (following < kForms &&
         (first & kFormOf[following].mask) != kFormOf[following].mark) {
    ++following;
  }
  if (following == kForms || utf8.size() <= following) return false;
  character = first & ~kFormOf[following].mask;
  for (const char unit : utf8.substr(1, following)) {
    const std::uint32_t byte = code_of(unit);
    if ((byte & 0xC0) != 0x80) return false;
    character = character << 6 | (byte & 0x3F);
  }
  utf8.remove_prefix(following + 1);
  return character >= kFormOf[following].least && is_character(character);
}

void append_character(std::string& utf8, std::uint32_t character) {
  std::size_t following = kForms - 1;
  while (character < kFormOf[following].least) --following;
  utf8 +=
      static_cast<char>(kFormOf[following].mark | character >> 6 * following);
  for (; following != 0; --following) {
    const std::uint32_t bits = character >> 6 * (following - 1);
    utf8 += static_cast<char>(0x80 | (bits & 0x3F));
  }
}

}  // namespace

bool decode_utf8(std::string_view utf8, std::wstring& wide) {
  wide.clear();
  wide.reserve(utf8.size());
  while (!utf8.empty()) {
    std::uint32_t character = 0;
    if (!read_character(utf8, character)) return false;
    wide += static_cast<wchar_t>(character);
  }
  return true;
}

bool encode_utf8(std::wstring_view wide, std::string& utf8) {
  utf8.clear();
  for (const wchar_t unit : wide) {
    if (!is_character(code_of(unit))) return false;
    append_character(utf8, code_of(unit));
  }
  return true;
}

}  // namespace qk::text
