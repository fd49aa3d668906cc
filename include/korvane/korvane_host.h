// The host's support library: what the link library calls and does not define.
//
// In the product these functions come from the host program; libkorvane_host.so
// is a build of them for every other place. Text conversions share three rules:
//
// 1. The default narrow encoding is UTF-8, whatever the locale.
// 2. A conversion ends at the first zero unit; the conversions to narrow text
//    also at the first unit that is no character. The result is what precedes
//    it.
// 3. Nothing is reported; only running out of memory throws.
#ifndef KORVANE_KORVANE_HOST_H_
#define KORVANE_KORVANE_HOST_H_

#include <korvane/needs_cpp17.h>

#include <string>

// Wide text in the default narrow encoding.
std::string wstring_2_string(const std::wstring& text);

// Wide text in UTF-8.
std::string wstring_2_utf8(const std::wstring& text);

// Bytes in the default narrow encoding as wide text: the same as
// string_to_wstring_with_code_page(text, 0).
std::wstring string_2_wstring(const std::string& text);

// Bytes in `code_page` as wide text, up to the first zero byte. Code pages are
// numbered as desktop systems number them (65001 UTF-8, 936 GBK, 1252 Western,
// ...). The rest of the text is never lost:
//
// - 0, -1, an unknown number, and a code page in which some of the bytes are
//   invalid mean the default reading: UTF-8 if all bytes are valid UTF-8,
//   otherwise GBK if all are valid GBK, otherwise Western.
// - In that last case the five bytes that Western leaves undefined (81, 8D, 8F,
//   90, 9D) become the characters of the same numbers.
std::wstring string_to_wstring_with_code_page(const std::string& text,
                                              int code_page);

namespace qk {

// Records the calling thread's error code.
void set_last_error(unsigned code);

// The code last recorded by the calling thread; 0 before the first.
unsigned get_last_error();

namespace crypto::base64 {

// Replaces `out` with the base64 text of `in`: standard alphabet, "=" padding,
// no line breaks. `in` and `out` may be one string.
void encode(const std::string& in, std::string& out);

}  // namespace crypto::base64
}  // namespace qk

#endif  // KORVANE_KORVANE_HOST_H_
