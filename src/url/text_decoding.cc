#include "url/text_decoding.h"

#include <korvane/korvane_host.h>
#include "url/percent_coding.h"

namespace qk::url {
namespace {

// Whether `code_page` is known to read 7-bit bytes as ASCII. Another host may
// know code pages that do not.
bool reads_ascii(unsigned code_page) {
  constexpr unsigned kUtf8 = 65001;
  return is_default_code_page(code_page) || code_page == kUtf8;
}

bool has_foreign_escape(std::wstring_view text) {
  for (std::size_t at = text.find(L'%'); at != std::wstring_view::npos;
       at = text.find(L'%', at + 1)) {
    const unsigned value = escape_at(text, at);
    if (value != kNoEscape && value > 0x7F) return true;
  }
  return false;
}

std::wstring convert(std::wstring_view text, unsigned code_page,
                     ChooseCodePage choose) {
  std::string bytes(text.size(), '\0');
  const char* const end = percent_decode(text, bytes.data());
  bytes.resize(static_cast<std::size_t>(end - bytes.data()));
  return string_to_wstring_with_code_page(
      bytes, static_cast<int>(choose(bytes, code_page)));
}

}  // namespace

DecodedText decode_with_code_page(std::wstring_view text, unsigned code_page,
                                  ScratchText& scratch, ChooseCodePage choose) {
  CharacterClasses classes = classes_in(text);
  if (text.empty() || (classes & kForeign) != 0) return {text, classes};
  if (!reads_ascii(code_page) ||
      ((classes & kPercent) != 0 && has_foreign_escape(text))) {
    text = scratch.hold(convert(text, code_page, choose));
    return {text, classes_in(text)};
  }
  if ((classes & kPercent) != 0) {
    wchar_t* const begin = scratch.reserve(text.size());
    const wchar_t* const end = percent_decode(text, begin);
    text = {begin, static_cast<std::size_t>(end - begin)};
    classes = classes_in(text);
  }
  if ((classes & kZero) != 0) text = text.substr(0, text.find(L'\0'));
  return {text, classes};
}

}  // namespace qk::url
