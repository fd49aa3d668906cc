// A conversion between two character sets by the C library's iconv.
#ifndef KORVANE_TEXT_ICONV_CONVERSION_H_
#define KORVANE_TEXT_ICONV_CONVERSION_H_

#include <cstddef>
#include <string>

namespace qk::text {

// Some character sets compose characters: their converters hold back the last
// one until they are flushed.
enum class Ending { kPlain, kFlushed };

// Converts `length` code units at `input` from character set `from` to `to`,
// and replaces `output` with the result up to its first zero. `input` may point
// into `output`.
//
// Returns whether the whole input was converted. On false (unknown character
// set, invalid or incomplete input, more than `capacity` code units of output)
// `output` is what was converted before.
template <typename In, typename Out>
bool convert(const char* to, const char* from, const In* input,
             std::size_t length, std::size_t capacity,
             std::basic_string<Out>& output, Ending ending = Ending::kPlain);

}  // namespace qk::text

#endif  // KORVANE_TEXT_ICONV_CONVERSION_H_
