#include "url/schemes.h"

#include "text/ascii.h"

namespace qk::url {
namespace {

constexpr Scheme kSchemes[] = {
    {"http://", SCHEMA_HTTP, 80},
    {"https://", SCHEMA_HTTPS, 443},
    {"ftp://", SCHEMA_FTP, 21},
    {"ftps://", SCHEMA_FTPS, 21},  // Quirk: not 990.
    {"mms://", SCHEMA_MMS, 1755},
    {"mmst://", SCHEMA_MMST, 1755},
    {"rtsp://", SCHEMA_RTSP, 554},
    {"rtspt://", SCHEMA_RTSPT, 554},
    {"peer://", SCHEMA_PEER, 3077},
};
constexpr Scheme kUnknown = {"", SCHEMA_UNKNOWN, 80};

template <typename Unit>
const Scheme& find_scheme(std::basic_string_view<Unit> url) {
  for (const Scheme& scheme : kSchemes) {
    if (text::begins_with_nocase(url, scheme.text)) return scheme;
  }
  return kUnknown;
}

}  // namespace

const Scheme& scheme_of(std::wstring_view url) { return find_scheme(url); }

template <typename Unit>
const Scheme& scheme_named(std::basic_string_view<Unit> text) {
  const Scheme& scheme = find_scheme(text);
  return scheme.text.size() == text.size() ? scheme : kUnknown;
}
template const Scheme& scheme_named(std::string_view text);
template const Scheme& scheme_named(std::wstring_view text);

std::uint16_t default_port_of(SCHEMA_TYPE type) {
  for (const Scheme& scheme : kSchemes) {
    if (scheme.type == type) return scheme.port;
  }
  return kUnknown.port;
}

}  // namespace qk::url
