#include <korvane/korvane_url.h>

#include <korvane/korvane_host.h>
#include <korvane/transcode.h>

namespace {

constexpr unsigned kEmptyUrlError = 20100001;
constexpr char kOpeningMarker[] = "AA";
constexpr char kClosingMarker[] = "ZZ";

bool is_empty(const char* text) { return text == nullptr || *text == '\0'; }

}  // namespace

template <>
const char korvane_url_t<char>::s_schema[] = "korvane://";

template <>
std::string korvane_url_t<char>::encode(const char* url) {
  if (is_empty(url)) {
    qk::set_last_error(kEmptyUrlError);
    return {};
  }
  std::string marked(kOpeningMarker);
  marked.append(url).append(kClosingMarker);
  std::string encoded;
  qk::crypto::base64::encode(marked, encoded);
  return s_schema + encoded;
}

template <>
std::wstring korvane_url_t<wchar_t>::encode(const char* url) {
  std::wstring wide;
  if (is_empty(url)) return wide;
  const std::string narrow = korvane_url_t<char>::encode(url);
  qk::text::transcode::ANSI_to_Unicode(
      narrow.data(), static_cast<unsigned>(narrow.size()), wide);
  return wide;
}

template <>
std::string korvane_url_t<char>::decode(const char* /*link*/) {
  return {};
}

template <>
std::string korvane_url_t<wchar_t>::decode(const wchar_t* /*link*/) {
  return {};
}
