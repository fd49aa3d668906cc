// Wide text as bytes, for formats that are read in narrow text.
#ifndef KORVANE_URL_NARROW_TEXT_H_
#define KORVANE_URL_NARROW_TEXT_H_

#include <string>
#include <string_view>

#include <korvane/korvane_host.h>
#include "text/ascii.h"
#include "text/code_of.h"

namespace qk::url {

// The bytes of `text` in the default narrow encoding, one per code unit, up to
// the first zero. A view of `text` if that is plain, otherwise of `bytes`,
// which is empty at first.
inline std::wstring_view narrow_bytes(std::wstring_view text,
                                      std::wstring& bytes) {
  if (text::is_plain(text)) return text;
  const std::wstring wide(text::until_zero(text));
  for (const char byte : wstring_2_string(wide)) {
    bytes += static_cast<wchar_t>(text::code_of(byte));
  }
  return bytes;
}

}  // namespace qk::url

#endif  // KORVANE_URL_NARROW_TEXT_H_
