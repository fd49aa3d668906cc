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

// The bytes of ASCII text, one per code unit.
ClassifiedText unescape(std::wstring_view text, ScratchText& scratch) {
  unsigned classes = 0;
  wchar_t* const begin = scratch.reserve(text.size());
  const wchar_t* const end = percent_decode(
      text, begin, [&classes](wchar_t unit) { classes |= classes_of(unit); });
  return {{begin, static_cast<std::size_t>(end - begin)},
          static_cast<CharacterClasses>(classes)};
}

}  // namespace

void decode_with_code_page(ClassifiedText& text, unsigned code_page,
                           ScratchText& scratch, ChooseCodePage choose) {
  const bool is_known = reads_ascii(code_page);
  if (text.holds(kForeign)) return;
  if (is_known && !text.holds(kPercent | kZero)) return;
  text = unescape(text.text, scratch);
  if (!is_known || text.holds(kForeign)) {
    const std::string bytes(text.text.begin(), text.text.end());
    text = classify(scratch.hold(string_to_wstring_with_code_page(
        bytes, static_cast<int>(choose(bytes, code_page)))));
  } else if (text.holds(kZero)) {
    text.text = text::until_zero(text.text);
  }
}

}  // namespace qk::url
