#include "url/text_decoding.h"

#include <korvane/korvane_host.h>
#include "url/percent_coding.h"

namespace qk::url {
namespace {

// The bytes of ASCII text, one per code unit.
ClassifiedText unescape(ClassifiedText text, ScratchText& scratch) {
  unsigned classes = text.classes;
  wchar_t* const begin = scratch.reserve(text.text.size());
  const wchar_t* const end =
      percent_decode(text.text, begin, [&](wchar_t unit, bool is_percent) {
        if (is_percent) classes |= classes_of(unit);
      });
  return {{begin, static_cast<std::size_t>(end - begin)},
          static_cast<CharacterClasses>(classes)};
}

}  // namespace

void decode_ascii(ClassifiedText& text, unsigned code_page,
                  ScratchText& scratch, ChooseCodePage choose) {
  text = unescape(text, scratch);
  if (!reads_ascii(code_page) || text.holds(kForeign)) {
    const std::string bytes(text.text.begin(), text.text.end());
    text = classify(scratch.hold(string_to_wstring_with_code_page(
        bytes, static_cast<int>(choose(bytes, code_page)))));
  } else if (text.holds(kZero)) {
    text.text = text::until_zero(text.text);
  }
}

}  // namespace qk::url
