// Small functions over narrow strings (bytes), and one wide prefix test. None
// depends on the locale. Bad input gives false, an empty string or an untouched
// output; outputs may be the inputs themselves.
#ifndef KORVANE_XSTRINGUTIL_H_
#define KORVANE_XSTRINGUTIL_H_

#include <korvane/needs_cpp17.h>

#include <string>

namespace xstringutil {

// Whether the `text_len` units at `text` begin with `prefix`, case-sensitively.
// False for null text; true for an empty prefix of any other.
bool IsBeginWith(const wchar_t* text, unsigned text_len,
                 const std::wstring& prefix);

// The same for the end of narrow text.
bool IsEndWith(const char* text, unsigned text_len, const std::string& suffix);

// Puts the bytes up to and including the first line feed into `line` and
// returns how many they are. 0, with `line` untouched, if there is no line
// feed: an unterminated last line is not returned.
int GetLine(const char* buf, int len, std::string& line);

// Remove leading or trailing spaces and tabs, nothing else; return `s`.
std::string& TrimLeft(std::string& s);
std::string& TrimRight(std::string& s);

// Removes `suffix` once if `s` ends with it; returns `s`.
std::string& TrimRight(std::string& s, const std::string& suffix);

// Splits behind the last "/", which stays with `dir`. A part that the path
// does not have is untouched: `dir` without a "/", `file` behind a last "/".
void SplitNetPathFile(const std::string& path, std::string& dir,
                      std::string& file);

// Splits at the last ".", which belongs to neither part. `ext` is untouched
// without a "." and when the name ends with it.
void SplitFileName(const std::string& name, std::string& base,
                   std::string& ext);

// Whether `name` has 1 to 215 bytes and none of \ / : * ? " < > |.
bool IsValidWindowsFileName(const std::string& name);

// Reads decimal digits behind an optional "-"; no "+" and no white space. A
// number out of range wraps around. "-" alone reads as 0 (kept: callers rely
// on it). False, with `value` untouched, for anything else.
bool StringToInt64(const std::string& s, long long& value);

std::string Int64ToString(long long value);

// The first `bit_count` bits of `data` as "0" and "1", each byte from its most
// significant bit; empty for null data or a count that is not positive.
std::string Data2BitString(const char* data, int bit_count);

// Two lower-case digits for each byte, every one followed by `separator`, the
// last included (kept: callers rely on it). Like the functions below, a `len`
// that is not positive means no bytes.
std::string DataToHexString(const char* data, int len,
                            const std::string& separator);

// Escapes all but ASCII letters and digits as "%" and two upper-case digits.
std::string EscapeString(const char* data, int len);

// Escapes all but ASCII letters, digits and / - _ . ! ~ * ( ) as "%" and two
// lower-case digits (kept: callers rely on the case and on the escaped "'").
std::string EscapePath(const char* data, int len);

// Turns "+" into a space and "%" with two digits of either case into the byte
// they name. One bad escape makes the whole result empty.
std::string UnescapeString(const std::string& s);

}  // namespace xstringutil

#endif  // KORVANE_XSTRINGUTIL_H_
