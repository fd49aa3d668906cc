// Base16, base32 and percent encoding of bytes. base64_encode and base64_decode
// are in korvane_links.h.
//
// A decoder replaces `out`, which must not contain the text that is decoded. If
// it returns false, `out` begins with the bytes before the invalid character.
// With a length of 0 the pointer may be null.
#ifndef KORVANE_ENCODERS_H_
#define KORVANE_ENCODERS_H_

#include <korvane/needs_cpp17.h>

#include <string>

// "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567".
extern const std::string DefaultBase32Map;

// Two upper-case digits for each byte.
std::string encode_base16(const void* bytes, unsigned long length);

// Digits are case-insensitive; an odd last digit is checked and dropped. `out`
// is resized to `length` / 2 bytes: on false, those from the invalid character
// on are unspecified.
// Quirk: the seven characters between "9" and "A" are read as 9.
bool decode_base16(const char* text, unsigned long length, std::string& out);

// Alphabet as in RFC 4648, without "=" padding.
std::string encode_base32(const void* bytes, unsigned long length);

// Digits are case-insensitive; "=" is invalid. Bits that do not fill a byte at
// the end are dropped.
bool decode_base32(const char* text, unsigned long length, std::string& out);

// Copies letters (isalpha in the current locale) and encodes every other byte
// as "%" and two characters.
// Quirk: the digits are unusual, "A" to "J" for 0 to 9 and ":" to "?" for 10 to
// 15, so decode_url does not decode them. A zero byte follows the text and is
// part of the result.
std::string encode_url(const void* bytes, unsigned long length);

// Decodes "%" and two hexadecimal digits to a byte; any other "%" stays.
// Returns true.
bool decode_url(const char* text, unsigned long length, std::string& out);

#endif  // KORVANE_ENCODERS_H_
