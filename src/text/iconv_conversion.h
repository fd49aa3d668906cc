// One conversion between two character sets by the C library's iconv.
#ifndef KORVANE_TEXT_ICONV_CONVERSION_H_
#define KORVANE_TEXT_ICONV_CONVERSION_H_

#include <cstddef>
#include <string>

namespace qk::text {

// Whether a converter is asked, at the end, for what it holds back: some sets
// compose characters and so keep the last one until they know what follows.
enum class Ending { kPlain, kFlushed };

// Converts `length` units at `input` from character set `from` to `to`, with
// room for `room` units of output, and replaces `output` with the result up to
// its first zero unit. `input` may point into `output`.
//
// Returns whether the whole input was converted. On false (unknown character
// set, invalid or incomplete input, no room left) `output` holds what was
// converted before.
template <typename In, typename Out>
bool convert(const char* to, const char* from, const In* input,
             std::size_t length, std::size_t room,
             std::basic_string<Out>& output, Ending ending = Ending::kPlain);

}  // namespace qk::text

#endif  // KORVANE_TEXT_ICONV_CONVERSION_H_
