// Conversions between wide text (UTF-32 in wchar_t), UTF-8, GBK and the ANSI
// code page (Western, "MS-ANSI").
#ifndef KORVANE_TRANSCODE_H_
#define KORVANE_TRANSCODE_H_

#include <korvane/needs_cpp17.h>

#include <string>

namespace qk::text {

// Every function takes a pointer to text with its length in units (bytes, or
// wchar_t units), and replaces the output string whole. `text` may point into
// the output string.
class transcode {
 public:
  // The converters. Null text or length 0 empties the output. The result ends
  // at the first zero unit, at the first invalid, incomplete or unmappable
  // sequence, and where the output room is used up: 3 x length + 1 bytes for
  // Unicode_to_UTF8 and 2 x length for GBK_to_UTF8, so text of several
  // characters beyond U+FFFF, or of signs of the euro alone, may be cut; more
  // than any valid text needs for the others. Nothing is reported.
  static void Unicode_to_UTF8(const wchar_t* text, unsigned length,
                              std::string& utf8);
  static void UTF8_to_Unicode(const char* text, unsigned length,
                              std::wstring& wide);
  static void GBK_to_UTF8(const char* text, unsigned length, std::string& utf8);
  static void UTF8_to_GBK(const char* text, unsigned length, std::string& gbk);
  static void Unicode_to_GBK(const wchar_t* text, unsigned length,
                             std::string& gbk);
  static void GBK_to_Unicode(const char* text, unsigned length,
                             std::wstring& wide);
  static void Unicode_to_ANSI(const wchar_t* text, unsigned length,
                              std::string& ansi);
  static void ANSI_to_Unicode(const char* text, unsigned length,
                              std::wstring& wide);

  // The tstring family: the program's text string in its narrow and its wide
  // form. Narrow text counts as GBK where it meets UTF-8 or GBK, and as ANSI
  // where it meets wide text or ANSI (kept: callers rely on the mixture).
  // Where both sides are the same, exactly `length` units are copied, zero
  // units included; `text` is then not checked for null.
  static void UTF8_to_tstring(const char* text, unsigned length,
                              std::string& gbk);
  static void UTF8_to_tstring(const char* text, unsigned length,
                              std::wstring& wide);
  static void tstring_to_UTF8(const char* text, unsigned length,
                              std::string& utf8);
  static void tstring_to_UTF8(const wchar_t* text, unsigned length,
                              std::string& utf8);
  static void tstring_to_GBK(const char* text, unsigned length,
                             std::string& gbk);
  static void tstring_to_GBK(const wchar_t* text, unsigned length,
                             std::string& gbk);
  static void GBK_to_tstring(const char* text, unsigned length,
                             std::string& gbk);
  static void GBK_to_tstring(const char* text, unsigned length,
                             std::wstring& wide);
  static void tstring_to_Unicode(const char* text, unsigned length,
                                 std::wstring& wide);
  static void tstring_to_Unicode(const wchar_t* text, unsigned length,
                                 std::wstring& wide);
  static void Unicode_to_tstring(const wchar_t* text, unsigned length,
                                 std::string& ansi);
  static void Unicode_to_tstring(const wchar_t* text, unsigned length,
                                 std::wstring& wide);
  static void tstring_to_ANSI(const char* text, unsigned length,
                              std::string& ansi);
  static void tstring_to_ANSI(const wchar_t* text, unsigned length,
                              std::string& ansi);
  static void ANSI_to_tstring(const char* text, unsigned length,
                              std::string& ansi);
  static void ANSI_to_tstring(const char* text, unsigned length,
                              std::wstring& wide);
};

}  // namespace qk::text

#endif  // KORVANE_TRANSCODE_H_
