#include "url/percent_coding.h"

namespace qk::url {
namespace {

constexpr CharacterClasses kEscaped = kNeedEscape | kReserved;

bool is_copied(std::wstring_view text, std::size_t position) {
  if (text[position] == L'%') return escape_at(text, position) != kNoEscape;
  return !is_one_of(text[position], kEscaped);
}

}  // namespace

std::size_t escaped_size(std::wstring_view text) {
  std::size_t size = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    size += is_copied(text, i) ? 1 : 3;
  }
  return size;
}

wchar_t* escape(std::wstring_view text, wchar_t* out) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (is_copied(text, i)) {
      *out++ = text[i];
      continue;
    }
    const std::uint32_t code = text::code_of(text[i]);
    *out++ = L'%';
    *out++ = static_cast<wchar_t>(text::kUpperHexDigits[code >> 4]);
    *out++ = static_cast<wchar_t>(text::kUpperHexDigits[code & 15]);
  }
  return out;
}

}  // namespace qk::url
