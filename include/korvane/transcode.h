// Converts between wide text (UTF-32), UTF-8, GBK and ANSI (Western, 1252).
#ifndef KORVANE_TRANSCODE_H_
#define KORVANE_TRANSCODE_H_

#include <korvane/needs_cpp17.h>

#include <string>

namespace qk::text {

// Every function replaces the output string with the conversion of `length`
// code units at `text`, which may point into the output string.
class transcode {
 public:
  // The result ends at the first zero, before the first invalid, incomplete or
  // unmappable sequence, and at the output limit. Null text and length 0 empty
  // the output. No function reports an error.
  //
  // Output limits: 3 x length + 1 bytes for Unicode_to_UTF8, so text of several
  // characters beyond U+FFFF may be cut; 2 x length bytes for GBK_to_UTF8, so
  // text of euro signs may be cut. The others have the capacity for any text.
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

  // A "tstring" is text in the program's own form, narrow or wide.
  // Quirk: narrow text is GBK in conversions from and to UTF-8 and GBK, and
  // ANSI in those from and to wide text and ANSI.
  //
  // If both sides are the same, exactly `length` code units are copied, zeros
  // included; then `text` must not be null.
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
