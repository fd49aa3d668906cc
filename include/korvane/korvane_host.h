// The host's support library: functions that the link library calls. In the
// product the host program defines them; everywhere else libkorvane_host.so
// does.
//
// The text conversions end at the first zero; those to narrow text also before
// the first code unit that is not a character. The default narrow encoding is
// UTF-8, in every locale. Only running out of memory throws.
#ifndef KORVANE_KORVANE_HOST_H_
#define KORVANE_KORVANE_HOST_H_

#include <korvane/needs_cpp17.h>

#include <string>

// Converts wide text to the default narrow encoding.
std::string wstring_2_string(const std::wstring& text);

// Converts wide text to UTF-8.
std::string wstring_2_utf8(const std::wstring& text);

// Same as string_to_wstring_with_code_page(text, 0).
std::wstring string_2_wstring(const std::string& text);

// Converts bytes in `code_page` to wide text. Code pages have the numbers of
// desktop systems: 65001 UTF-8, 936 GBK, 1252 Western, ...
//
// 0, -1 and unknown numbers mean the default: UTF-8 if all bytes are valid
// UTF-8, otherwise GBK if all are valid GBK, otherwise Western. A code page in
// which some of the bytes are invalid is ignored in favor of the default.
// Western reads all bytes (81, 8D, 8F, 90 and 9D become U+0081, ...), so text
// is never cut.
std::wstring string_to_wstring_with_code_page(const std::string& text,
                                              int code_page);

namespace qk {

// Sets the error code of the calling thread.
void set_last_error(unsigned code);

// The error code of the calling thread; initially 0.
unsigned get_last_error();

namespace crypto::base64 {

// Replaces `out` with the base64 of `in`: standard alphabet, "=" padding, no
// line breaks. `in` and `out` may be the same string.
void encode(const std::string& in, std::string& out);

}  // namespace crypto::base64
}  // namespace qk

#endif  // KORVANE_KORVANE_HOST_H_
