// Bytes as base16, base32 and percent text, and back.
//
// An encoder returns its text. A decoder replaces `out`, which must not be the
// text that it reads; when it returns false, `out` holds what was decoded
// before the bad character. A length of 0 needs no pointer.
#ifndef KORVANE_ENCODERS_H_
#define KORVANE_ENCODERS_H_

#include <korvane/needs_cpp17.h>

#include <string>

// "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567".
extern const std::string DefaultBase32Map;

// Two upper-case digits a byte.
std::string encode_base16(const void* bytes, unsigned long length);

// Reads digits of either case. Kept: callers rely on the seven characters
// between "9" and "A" being read as 9. `out` gets `length` / 2 bytes, those
// behind the first bad character unchanged or zero; an odd last digit is
// checked and dropped.
bool decode_base16(const char* text, unsigned long length, std::string& out);

// The fewest digits that hold all bits, with no "=" behind them.
std::string encode_base32(const void* bytes, unsigned long length);

// Reads digits of either case and drops the bits left over at the end; "=" is
// no digit.
bool decode_base32(const char* text, unsigned long length, std::string& out);

// Copies what isalpha takes for a letter and writes any other byte as "%" and
// two characters: a half of 0 to 9 as "A" to "J", a half of 10 to 15 as ":" to
// "?". One zero byte follows the text and counts in its length. Both are kept:
// callers rely on them, though decode_url does not read this form.
std::string encode_url(const void* bytes, unsigned long length);

// Turns every "%" with two hexadecimal digits into the byte they name; any
// other "%" stays. Always true.
bool decode_url(const char* text, unsigned long length, std::string& out);

#endif  // KORVANE_ENCODERS_H_
