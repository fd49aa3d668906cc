// Percent-coding, for every coder of the library.
#ifndef KORVANE_URL_PERCENT_CODING_H_
#define KORVANE_URL_PERCENT_CODING_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "text/hex_digits.h"
#include "url/character_classes.h"

namespace qk::url {

constexpr unsigned kNoEscape = 0x100;  // more than any byte

// The byte that the "%" at `position` and two hexadecimal digits mean;
// kNoEscape if two of them do not follow.
template <typename Unit>
constexpr unsigned escape_at(std::basic_string_view<Unit> text,
                             std::size_t position) {
  if (text.size() - position <= 2) return kNoEscape;
  const unsigned high = text::hex_value(text[position + 1]);
  const unsigned low = text::hex_value(text[position + 2]);
  return text::is_digit_value(high | low) ? high << 4 | low : kNoEscape;
}

// Which escapes a decoder leaves as they are.
enum class Kept {
  kNothing,
  kSeparating,  // those of reserved characters, so that a URL keeps its parts
};

// Writes `text` to `out` with each escape replaced by the code unit of its
// value, 0 to 255, and returns the end: at most text.size() code units. `out`
// may be the start of the text itself. A "%" that begins no escape is copied.
// `see` is called with each code unit before it is written, and whether it
// comes from a "%" or an escape.
//
// Stops at the first code unit outside of escapes for which `ends` returns
// true; `text` becomes what is left from there on.
//
// Wide ASCII text may be decoded to bytes.
template <Kept kKept = Kept::kNothing, typename In, typename Out, typename See,
          typename Ends>
Out* percent_decode_until(Ends ends, std::basic_string_view<In>& text, Out* out,
                          See see) {
  const In* const begin = text.data();
  const In* const end = begin + text.size();
  const In* in = begin;
  for (; in != end; ++in) {
    Out unit = static_cast<Out>(*in);
    if (*in == In('%')) {
      const unsigned value =
          escape_at(text, static_cast<std::size_t>(in - begin));
      const bool kept = value == kNoEscape ||
                        (kKept == Kept::kSeparating &&
                         is_one_of(static_cast<wchar_t>(value), kReserved));
      if (!kept) {
        unit = static_cast<Out>(value);
        in += 2;
      }
      see(unit, true);
    } else {
      if (ends(*in)) break;
      see(unit, false);
    }
    *out++ = unit;
  }
  text.remove_prefix(static_cast<std::size_t>(in - begin));
  return out;
}

// The whole of `text`.
template <Kept kKept = Kept::kNothing, typename In, typename Out, typename See>
Out* percent_decode(std::basic_string_view<In> text, Out* out, See see) {
  return percent_decode_until<kKept>([](In /*unit*/) { return false; }, text,
                                     out, see);
}

template <Kept kKept = Kept::kNothing, typename In, typename Out>
Out* percent_decode(std::basic_string_view<In> text, Out* out) {
  return percent_decode<kKept>(text, out,
                               [](Out /*unit*/, bool /*is_percent*/) {});
}

// Appends `text` to `out`: characters that need it and reserved ones escaped,
// escapes in the text as they are.
void append_escaped(std::wstring_view text, std::wstring& out);

}  // namespace qk::url

#endif  // KORVANE_URL_PERCENT_CODING_H_
