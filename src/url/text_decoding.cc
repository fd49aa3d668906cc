#include "url/text_decoding.h"

#include <korvane/korvane_host.h>
#include <korvane/url_object.h>
#include "url/percent_coding.h"

namespace qk::url {
namespace {

constexpr unsigned kDefaultCodePage = 0;
constexpr unsigned kAnyCodePage = 0xFFFFFFFF;

unsigned named_code_page(unsigned code_page) {
  return code_page == kAnyCodePage ? kDefaultCodePage : code_page;
}

unsigned code_page_of(const std::string& bytes, unsigned code_page) {
  const unsigned named = named_code_page(code_page);
  if (named != kDefaultCodePage) return named;
  return named_code_page(
      url_object::get_generally_codepage(bytes, kAnyCodePage));
}

void cut_at_zero(DecodedText& decoded) {
  if (!decoded.holds(kZero)) return;
  decoded.text = decoded.text.substr(0, decoded.text.find(L'\0'));
}

// The classes of the units up to the first "%" and of that.
CharacterClasses classes_until_escape(std::wstring_view text) {
  unsigned classes = 0;
  for (std::size_t i = 0; i < text.size() && (classes & kPercent) == 0; ++i) {
    classes |= classes_of(text[i]);
  }
  return static_cast<CharacterClasses>(classes);
}

// Units of 0 to 255 where `text` is ASCII.
void decode_escapes(std::wstring_view text, ScratchText& scratch,
                    DecodedText& decoded) {
  wchar_t* const begin = scratch.reserve(text.size());
  unsigned classes = 0;
  const wchar_t* const end = percent_decode(
      text, begin, [&classes](wchar_t unit) { classes |= classes_of(unit); });
  decoded.text = {begin, static_cast<std::size_t>(end - begin)};
  decoded.classes = static_cast<CharacterClasses>(classes);
}

void convert(const std::string& bytes, unsigned code_page, ScratchText& scratch,
             DecodedText& decoded) {
  decoded.text = scratch.hold(string_to_wstring_with_code_page(
      bytes, static_cast<int>(code_page_of(bytes, code_page))));
  decoded.classes = classes_in(decoded.text);
}

}  // namespace

DecodedText decode_with_code_page(std::wstring_view text, unsigned code_page,
                                  ScratchText& scratch) {
  DecodedText decoded = {text, classes_until_escape(text)};
  if (decoded.holds(kForeign)) return {text, kEveryClass};
  if (decoded.holds(kPercent)) {
    decode_escapes(text, scratch, decoded);
    if (decoded.holds(kForeign) && !is_ascii(text)) return {text, kEveryClass};
  }
  cut_at_zero(decoded);
  // Every code page agrees with ASCII: only other bytes need the conversion.
  if (decoded.holds(kForeign)) {
    convert({decoded.text.begin(), decoded.text.end()}, code_page, scratch,
            decoded);
  }
  return decoded;
}

}  // namespace qk::url
