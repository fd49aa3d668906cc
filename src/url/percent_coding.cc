#include "url/percent_coding.h"

namespace qk::url {

void append_escaped(std::wstring_view text, std::wstring& out) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool is_kept = text[i] == L'%'
                             ? escape_at(text, i) != kNoEscape
                             : !is_one_of(text[i], kNeedEscape | kReserved);
    if (is_kept) {
      out += text[i];
      continue;
    }
    const std::uint32_t code = text::code_of(text[i]);
    out += L'%';
    out += static_cast<wchar_t>(text::kUpperHexDigits[code >> 4]);
    out += static_cast<wchar_t>(text::kUpperHexDigits[code & 15]);
  }
}

}  // namespace qk::url
