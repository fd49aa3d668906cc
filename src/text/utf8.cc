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

// By the number of bytes that follow the first: the least character and the
// fixed bits of the first byte.
constexpr std::uint32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
constexpr std::uint32_t kMark[] = {0, 0xC0, 0xE0, 0xF0};

// Reads the character at the start of `utf8` and moves past it; returns whether
// it is valid.
bool read_character(std::string_view& utf8, std::uint32_t& character) {
  const std::uint32_t first = code_of(utf8.front());
  const std::size_t following = first < 0x80   ? 0
                                : first < 0xE0 ? 1
                                : first < 0xF0 ? 2
                                               : 3;
  // What F8 to FF begin is beyond the last character.
  if (first < kMark[following] || utf8.size() <= following) return false;
  character = first - kMark[following];
  for (std::size_t i = 1; i <= following; ++i) {
    const std::uint32_t byte = code_of(utf8[i]);
    if ((byte & 0xC0) != 0x80) return false;
    character = character << 6 | (byte & 0x3F);
  }
  utf8.remove_prefix(following + 1);
  return character >= kLeast[following] && is_character(character);
}

void append_character(std::string& utf8, std::uint32_t character) {
  std::size_t following = 3;
  while (character < kLeast[following]) --following;
  utf8 += static_cast<char>(kMark[following] | character >> 6 * following);
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
