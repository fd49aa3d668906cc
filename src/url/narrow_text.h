// Wide text read as narrow text by the decoders of bytes and digits.
#ifndef KORVANE_URL_NARROW_TEXT_H_
#define KORVANE_URL_NARROW_TEXT_H_

#include <string>
#include <string_view>

#include <korvane/korvane_host.h>
#include "url/text_decoding.h"

namespace qk::url {

using text::until_zero;

// Gives `read` the text up to its first zero in the default narrow encoding and
// answers what it answers. ASCII text, the same in every encoding, is handed on
// as it is: `read` takes views of char and of wchar_t.
template <typename Read>
auto read_narrow(std::wstring_view text, Read read) {
  const std::wstring_view ended = until_zero(text);
  if (is_ascii(ended)) return read(ended);
  const std::string narrow = wstring_2_string(std::wstring(ended));
  return read(std::string_view(narrow));
}

}  // namespace qk::url

#endif  // KORVANE_URL_NARROW_TEXT_H_
