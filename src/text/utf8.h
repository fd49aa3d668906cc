// UTF-8 without a converter.
#ifndef KORVANE_TEXT_UTF8_H_
#define KORVANE_TEXT_UTF8_H_

#include <string>
#include <string_view>

namespace qk::text {

// Replaces `wide` with the characters of `utf8` before the first invalid byte;
// returns whether all are valid: shortest forms, no surrogates, up to U+10FFFF.
bool decode_utf8(std::string_view utf8, std::wstring& wide);

// Replaces `utf8` with the characters of `wide` before the first code unit that
// is not a character; returns whether all are characters.
bool encode_utf8(std::wstring_view wide, std::string& utf8);

}  // namespace qk::text

#endif  // KORVANE_TEXT_UTF8_H_
