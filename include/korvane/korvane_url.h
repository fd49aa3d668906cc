// The program's private links: "korvane://" and the base64 form of a URL that
// stands between two markers.
#ifndef KORVANE_KORVANE_URL_H_
#define KORVANE_KORVANE_URL_H_

#include <korvane/needs_cpp17.h>

#include <string>

// For char and wchar_t. Texts are zero-terminated and may be null.
template <typename Char>
class korvane_url_t {
 public:
  // "korvane://"; narrow only.
  static const char s_schema[];

  // The private link to `url`, narrow text in both forms; empty for no or empty
  // text. Only the narrow form then records the error 20100001 (kept: callers
  // rely on it).
  static std::basic_string<Char> encode(const char* url);

  // Always empty: private links are not read on this platform.
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
