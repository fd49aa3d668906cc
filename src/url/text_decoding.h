// Percent-escapes read as text in a code page.
#ifndef KORVANE_URL_TEXT_DECODING_H_
#define KORVANE_URL_TEXT_DECODING_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "text/ascii.h"
#include "url/character_classes.h"

namespace qk::url {

// A buffer for decoded text: on the stack for up to `kShort` code units, which
// are not initialised, otherwise on the heap.
template <std::size_t kShort>
class Scratch {
 public:
  // A buffer for `size` code units. It may replace the one before.
  wchar_t* reserve(std::size_t size) {
    if (size <= kShort) return short_.data();
    long_.resize(size);
    return long_.data();
  }
  // Keeps `text` and returns a view of it.
  std::wstring_view hold(std::wstring&& text) {
    long_ = std::move(text);
    return long_;
  }

 private:
  std::array<wchar_t, kShort> short_;
  std::wstring long_;
};

using ScratchText = Scratch<256>;

using text::is_ascii;

struct ClassifiedText {
  std::wstring_view text;
  CharacterClasses classes;  // at least those of its characters

  bool holds(CharacterClasses some) const { return (classes & some) != 0; }
};

constexpr ClassifiedText classify(std::wstring_view text) {
  return {text, classes_in(text)};
}

constexpr bool is_default_code_page(unsigned code_page) {
  return code_page == 0 || code_page == 0xFFFFFFFF;
}

// Whether `code_page` is known to read 7-bit bytes as ASCII. Another host may
// know code pages that do not.
inline bool reads_ascii(unsigned code_page) {
  constexpr unsigned kUtf8 = 65001;
  return is_default_code_page(code_page) || code_page == kUtf8;
}

// Whether `text` needs no look at its encoding.
inline bool is_decoded(std::wstring_view text, unsigned code_page) {
  const bool is_special =
      std::any_of(text.begin(), text.end(),
                  [](wchar_t unit) { return unit == L'%' || unit == L'\0'; });
  return text.empty() || (!is_special && is_default_code_page(code_page));
}

// Chooses the code page to read bytes in from the one that was asked for.
using ChooseCodePage = unsigned (*)(const std::string& bytes,
                                    unsigned code_page);

inline unsigned choose_as_asked(const std::string& /*bytes*/,
                                unsigned code_page) {
  return code_page;
}

// Decodes ASCII text: its escapes, and then its bytes in `code_page`.
void decode_ascii(ClassifiedText& text, unsigned code_page,
                  ScratchText& scratch, ChooseCodePage choose);

// Replaces `text` by its decoded form, a view of the same text or of `scratch`.
//
// Text with a character above 127 counts as decoded. Other text is
// percent-decoded to bytes, which are read in `code_page` up to the first zero;
// 0 and 0xFFFFFFFF mean the default narrow encoding.
inline void decode_with_code_page(ClassifiedText& text, unsigned code_page,
                                  ScratchText& scratch,
                                  ChooseCodePage choose = choose_as_asked) {
  if (text.holds(kForeign)) return;
  if (reads_ascii(code_page) && !text.holds(kPercent | kZero)) return;
  decode_ascii(text, code_page, scratch, choose);
}

inline std::wstring_view decoded(std::wstring_view text, unsigned code_page,
                                 ScratchText& scratch) {
  ClassifiedText result = classify(text);
  decode_with_code_page(result, code_page, scratch);
  return result.text;
}

}  // namespace qk::url

#endif  // KORVANE_URL_TEXT_DECODING_H_
