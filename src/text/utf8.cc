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

// One length of UTF-8 sequence: what marks its first byte, how many bytes
// follow it, and the least character that needs so many.
struct Form {
  std::uint32_t mask;
  std::uint32_t mark;
  std::size_t following;
  std::uint32_t least;
};

constexpr Form kForms[] = {{0x80, 0x00, 0, 0},
                           {0xE0, 0xC0, 1, 0x80},
                           {0xF0, 0xE0, 2, 0x800},
                           {0xF8, 0xF0, 3, 0x10000}};

const Form* form_of(std::uint32_t first_byte) {
  for (const Form& form : kForms) {
    if ((first_byte & form.mask) == form.mark) return &form;
  }
  return nullptr;
}

// Reads one character at `position` and moves past it; false if there is none.
bool read_character(std::string_view utf8, std::size_t& position,
                    std::uint32_t& character) {
  const std::uint32_t first = code_of(utf8[position]);
  const Form* form = form_of(first);
  if (form == nullptr || utf8.size() - position <= form->following) {
    return false;
  }
  std::uint32_t value = first & ~form->mask;
  for (std::size_t i = 1; i <= form->following; ++i) {
    const std::uint32_t byte = code_of(utf8[position + i]);
    if ((byte & 0xC0) != 0x80) return false;
    value = value << 6 | (byte & 0x3F);
  }
  if (value < form->least || !is_character(value)) return false;
  character = value;
  position += form->following + 1;
  return true;
}

// Writes one character at `out`; returns the place behind it.
char* write_character(std::uint32_t character, char* out) {
  const auto put = [&out](std::uint32_t byte) {
    *out++ = static_cast<char>(byte);
  };
  const auto put_following = [&](unsigned shift) {
    put(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) return put(character), out;
  if (character < 0x800) {
    put(0xC0 | character >> 6);
  } else if (character < 0x10000) {
    put(0xE0 | character >> 12);
    put_following(6);
  } else {
    put(0xF0 | character >> 18);
    put_following(12);
    put_following(6);
  }
  put_following(0);
  return out;
}

}  // namespace

bool decode_utf8(std::string_view utf8, std::wstring& wide) {
  wide.resize(utf8.size());
  std::size_t written = 0;
  std::size_t position = 0;
  while (position < utf8.size()) {
    // Most text is ASCII, and that needs no form to be looked for.
    std::uint32_t character = code_of(utf8[position]);
    if (character < 0x80) {
      ++position;
    } else if (!read_character(utf8, position, character)) {
      break;
    }
    wide[written++] = static_cast<wchar_t>(character);
  }
  wide.resize(written);
  return position == utf8.size();
}

bool encode_utf8(std::wstring_view wide, std::string& utf8) {
  utf8.resize(wide.size() * 4);
  char* out = utf8.data();
  std::size_t read = 0;
  for (; read < wide.size(); ++read) {
    const std::uint32_t unit = code_of(wide[read]);
    if (!is_character(unit)) break;
    out = write_character(unit, out);
  }
  utf8.resize(static_cast<std::size_t>(out - utf8.data()));
  return read == wide.size();
}

}  // namespace qk::text
