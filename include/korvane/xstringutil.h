// Small functions for narrow strings (bytes). None depends on the locale.
#ifndef KORVANE_XSTRINGUTIL_H_
#define KORVANE_XSTRINGUTIL_H_

#include <korvane/needs_cpp17.h>

#include <string>

// Output strings may be the input strings.
namespace xstringutil {

// True if the `text_len` code units at `text` begin with `prefix` (case-
// sensitive). False if `text` is null, otherwise true for an empty prefix.
bool IsBeginWith(const wchar_t* text, unsigned text_len,
                 const std::wstring& prefix);

// The same for the end of narrow text.
bool IsEndWith(const char* text, unsigned text_len, const std::string& suffix);

// Copies the first line, with its line feed, to `line` and returns its length.
// Without a line feed returns 0 and does not change `line`.
int GetLine(const char* buf, int len, std::string& line);

// Remove spaces and tabs from the start or the end; return `s`.
std::string& TrimLeft(std::string& s);
std::string& TrimRight(std::string& s);

// Removes `suffix` once if `s` ends with it; returns `s`.
std::string& TrimRight(std::string& s, const std::string& suffix);

// Splits behind the last "/": "a/b" into "a/" and "b". `dir` is not changed
// without a "/", `file` not if `path` ends with "/".
void SplitNetPathFile(const std::string& path, std::string& dir,
                      std::string& file);

// Splits at the last ".": "a.b" into "a" and "b". `ext` is not changed without
// a "." or if `name` ends with ".".
void SplitFileName(const std::string& name, std::string& base,
                   std::string& ext);

// True for 1 to 215 bytes without \ / : * ? " < > |.
bool IsValidWindowsFileName(const std::string& name);

// Reads decimal digits with an optional "-"; "+" and white space are invalid. A
// number out of range wraps around. Returns false and does not change `value`
// if `s` is invalid or empty.
// Quirk: "-" alone is 0.
bool StringToInt64(const std::string& s, long long& value);

std::string Int64ToString(long long value);

// The first `bit_count` bits of `data` as "0" and "1", most significant first.
// Empty if `data` is null or the count is not positive.
std::string Data2BitString(const char* data, int bit_count);

// Two lower-case hexadecimal digits and `separator` for each byte. Here and
// below, a negative `len` is 0.
// Quirk: the separator also follows the last byte.
std::string DataToHexString(const char* data, int len,
                            const std::string& separator);

// Percent-encodes all but ASCII letters and digits, with upper-case digits.
std::string EscapeString(const char* data, int len);

// Percent-encodes all but ASCII letters, digits and / - _ . ! ~ * ( ).
// Quirk: the digits are lower-case, unlike those of EscapeString.
std::string EscapePath(const char* data, int len);

// Decodes "+" to a space and percent-encoded bytes.
// Quirk: the result is empty if there is an invalid escape.
std::string UnescapeString(const std::string& s);

}  // namespace xstringutil

#endif  // KORVANE_XSTRINGUTIL_H_
