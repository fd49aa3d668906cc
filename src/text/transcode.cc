#include <korvane/transcode.h>

#include <cstddef>

#include "text/iconv_conversion.h"

namespace qk::text {
namespace {

constexpr char kWide[] = "WCHAR_T";
constexpr char kUtf8[] = "UTF-8";
constexpr char kGbk[] = "GBK";
constexpr char kAnsi[] = "MS-ANSI";

// Output beyond `capacity` code units is cut off.
template <typename In, typename Out>
void convert_all(const char* to, const char* from, const In* text,
                 unsigned length, std::size_t capacity,
                 std::basic_string<Out>& output) {
  if (text == nullptr || length == 0) {
    output.clear();
    return;
  }
  convert(to, from, text, length, capacity, output);
}

}  // namespace

void transcode::Unicode_to_UTF8(const wchar_t* text, unsigned length,
                                std::string& utf8) {
  convert_all(kUtf8, kWide, text, length, 3UL * length + 1, utf8);
}

void transcode::UTF8_to_Unicode(const char* text, unsigned length,
                                std::wstring& wide) {
  convert_all(kWide, kUtf8, text, length, length, wide);
}

void transcode::GBK_to_UTF8(const char* text, unsigned length,
                            std::string& utf8) {
  convert_all(kUtf8, kGbk, text, length, 2UL * length, utf8);
}

void transcode::UTF8_to_GBK(const char* text, unsigned length,
                            std::string& gbk) {
  convert_all(kGbk, kUtf8, text, length, length, gbk);
}

void transcode::Unicode_to_GBK(const wchar_t* text, unsigned length,
                               std::string& gbk) {
  convert_all(kGbk, kWide, text, length, 2UL * length, gbk);
}

void transcode::GBK_to_Unicode(const char* text, unsigned length,
                               std::wstring& wide) {
  convert_all(kWide, kGbk, text, length, length, wide);
}

void transcode::Unicode_to_ANSI(const wchar_t* text, unsigned length,
                                std::string& ansi) {
  convert_all(kAnsi, kWide, text, length, length, ansi);
}

void transcode::ANSI_to_Unicode(const char* text, unsigned length,
                                std::wstring& wide) {
  convert_all(kWide, kAnsi, text, length, length, wide);
}

void transcode::UTF8_to_tstring(const char* text, unsigned length,
                                std::string& gbk) {
  UTF8_to_GBK(text, length, gbk);
}

void transcode::UTF8_to_tstring(const char* text, unsigned length,
                                std::wstring& wide) {
  UTF8_to_Unicode(text, length, wide);
}

void transcode::tstring_to_UTF8(const char* text, unsigned length,
                                std::string& utf8) {
  GBK_to_UTF8(text, length, utf8);
}

void transcode::tstring_to_UTF8(const wchar_t* text, unsigned length,
                                std::string& utf8) {
  Unicode_to_UTF8(text, length, utf8);
}

void transcode::tstring_to_GBK(const char* text, unsigned length,
                               std::string& gbk) {
  gbk.assign(text, length);
}

void transcode::tstring_to_GBK(const wchar_t* text, unsigned length,
                               std::string& gbk) {
  Unicode_to_GBK(text, length, gbk);
}

void transcode::GBK_to_tstring(const char* text, unsigned length,
                               std::string& gbk) {
  gbk.assign(text, length);
}

void transcode::GBK_to_tstring(const char* text, unsigned length,
                               std::wstring& wide) {
  GBK_to_Unicode(text, length, wide);
}

void transcode::tstring_to_Unicode(const char* text, unsigned length,
                                   std::wstring& wide) {
  ANSI_to_Unicode(text, length, wide);
}

void transcode::tstring_to_Unicode(const wchar_t* text, unsigned length,
                                   std::wstring& wide) {
  wide.assign(text, length);
}

void transcode::Unicode_to_tstring(const wchar_t* text, unsigned length,
                                   std::string& ansi) {
  Unicode_to_ANSI(text, length, ansi);
}

void transcode::Unicode_to_tstring(const wchar_t* text, unsigned length,
                                   std::wstring& wide) {
  wide.assign(text, length);
}

void transcode::tstring_to_ANSI(const char* text, unsigned length,
                                std::string& ansi) {
  ansi.assign(text, length);
}

void transcode::tstring_to_ANSI(const wchar_t* text, unsigned length,
                                std::string& ansi) {
  Unicode_to_ANSI(text, length, ansi);
}

void transcode::ANSI_to_tstring(const char* text, unsigned length,
                                std::string& ansi) {
  ansi.assign(text, length);
}

void transcode::ANSI_to_tstring(const char* text, unsigned length,
                                std::wstring& wide) {
  ANSI_to_Unicode(text, length, wide);
}

}  // namespace qk::text
