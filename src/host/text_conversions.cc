#include <string_view>

#include <korvane/korvane_host.h>
#include "text/ascii.h"
#include "text/iconv_conversion.h"
#include "text/utf8.h"

namespace {

using qk::text::convert;
using qk::text::decode_utf8;
using qk::text::encode_utf8;
using qk::text::is_plain;
using qk::text::until_zero;

struct CodePage {
  int number;
  const char* name;  // as iconv knows it
};

constexpr CodePage kCodePages[] = {
    {866, "CP866"},         {874, "CP874"},         {932, "CP932"},
    {936, "GBK"},           {949, "CP949"},         {950, "CP950"},
    {1250, "CP1250"},       {1251, "CP1251"},       {1252, "MS-ANSI"},
    {1253, "CP1253"},       {1254, "CP1254"},       {1255, "CP1255"},
    {1256, "CP1256"},       {1257, "CP1257"},       {1258, "CP1258"},
    {20866, "KOI8-R"},      {21866, "KOI8-U"},      {28591, "ISO-8859-1"},
    {28592, "ISO-8859-2"},  {28593, "ISO-8859-3"},  {28594, "ISO-8859-4"},
    {28595, "ISO-8859-5"},  {28596, "ISO-8859-6"},  {28597, "ISO-8859-7"},
    {28598, "ISO-8859-8"},  {28599, "ISO-8859-9"},  {28600, "ISO-8859-10"},
    {28601, "ISO-8859-11"}, {28603, "ISO-8859-13"}, {28604, "ISO-8859-14"},
    {28605, "ISO-8859-15"}, {28606, "ISO-8859-16"}, {54936, "GB18030"},
};

const char* iconv_name(int code_page) {
  for (const CodePage& known : kCodePages) {
    if (known.number == code_page) return known.name;
  }
  return nullptr;
}

// No character set here has more characters than bytes.
bool convert_bytes(const char* from, std::string_view bytes,
                   std::wstring& wide) {
  return convert("WCHAR_T", from, bytes.data(), bytes.size(), bytes.size() + 1,
                 wide, qk::text::Ending::kFlushed);
}

// Bytes 80 to 9F of Western; the five that it leaves undefined are themselves.
constexpr wchar_t kWestern[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Needs no converter and reads every byte.
std::wstring decode_western(std::string_view bytes) {
  std::wstring wide;
  for (const char unit : bytes) {
    const auto byte = static_cast<unsigned char>(unit);
    wide += byte >= 0x80 && byte < 0xA0 ? kWestern[byte - 0x80]
                                        : static_cast<wchar_t>(byte);
  }
  return wide;
}

// The default reading begins with UTF-8, which needs no name here.
std::wstring decode(std::string_view bytes, int code_page) {
  std::wstring wide;
  const char* const name = iconv_name(code_page);
  if (name != nullptr && convert_bytes(name, bytes, wide)) return wide;
  if (decode_utf8(bytes, wide)) return wide;
  if (convert_bytes("GBK", bytes, wide)) return wide;
  return decode_western(bytes);
}

// Plain text is the same in every encoding here.
std::string to_utf8(std::wstring_view text) {
  if (is_plain(text)) return {text.begin(), text.end()};
  std::string utf8;
  encode_utf8(until_zero(text), utf8);
  return utf8;
}

std::wstring to_wide(std::string_view bytes, int code_page) {
  if (is_plain(bytes)) return {bytes.begin(), bytes.end()};
  return decode(until_zero(bytes), code_page);
}

}  // namespace

std::string wstring_2_string(const std::wstring& text) { return to_utf8(text); }

std::string wstring_2_utf8(const std::wstring& text) { return to_utf8(text); }

std::wstring string_2_wstring(const std::string& text) {
  return to_wide(text, 0);
}

std::wstring string_to_wstring_with_code_page(const std::string& text,
                                              int code_page) {
  return to_wide(text, code_page);
}
