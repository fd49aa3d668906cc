// Private links: "korvane://" and the base64 of a URL between two markers, "AA"
// and "ZZ".
#ifndef KORVANE_KORVANE_URL_H_
#define KORVANE_KORVANE_URL_H_

#include <korvane/needs_cpp17.h>

#include <string>

// For char and wchar_t. Text is zero-terminated; null is the same as empty.
template <typename Char>
class korvane_url_t {
 public:
  // "korvane://"; narrow only.
  static const char s_schema[];

  // Returns the private link for `url`, which is narrow in both forms. Empty
  // for an empty URL. Quirk: only the narrow form then sets the error code
  // 20100001.
  static std::basic_string<Char> encode(const char* url);

  // Returns empty text: private links are not decoded on this platform.
  static std::string decode(const Char* link);
};

template <>
const char korvane_url_t<char>::s_schema[];

template <>
std::string korvane_url_t<char>::encode(const char* url);
template <>
std::wstring korvane_url_t<wchar_t>::encode(const char* url);
template <>
std::string korvane_url_t<char>::decode(const char* link);
template <>
std::string korvane_url_t<wchar_t>::decode(const wchar_t* link);

#endif  // KORVANE_KORVANE_URL_H_
