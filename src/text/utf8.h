// UTF-8 coding without a converter, for text of any length.
#ifndef KORVANE_TEXT_UTF8_H_
#define KORVANE_TEXT_UTF8_H_

#include <string>
#include <string_view>

namespace qk::text {

// Replaces `wide` with the characters of `utf8`. Returns whether all of it is
// valid UTF-8 (shortest forms, no surrogates, at most U+10FFFF); otherwise
// `wide` holds the characters before the first bad byte.
bool decode_utf8(std::string_view utf8, std::wstring& wide);

// Replaces `utf8` with the UTF-8 form of `wide`. Returns whether every unit is
// a character (no surrogate, at most U+10FFFF); otherwise `utf8` holds the
// characters before the first that is not.
bool encode_utf8(std::wstring_view wide, std::string& utf8);

}  // namespace qk::text

#endif  // KORVANE_TEXT_UTF8_H_
