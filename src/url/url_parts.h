// A URL as views of its parts: what parsing finds and printing needs.
#ifndef KORVANE_URL_URL_PARTS_H_
#define KORVANE_URL_URL_PARTS_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <korvane/url_object.h>

namespace qk::url {

struct UrlParts {
  std::wstring_view schema;
  SCHEMA_TYPE type;
  std::wstring_view user;
  std::wstring_view password;
  std::wstring_view host;
  std::uint32_t port;
  std::wstring_view path;
};

// Why a text is no URL.
enum class UrlFault {
  kNone,
  kNoScheme,     // no part is set
  kNoAuthority,  // the scheme is set
  kNoPort,       // the scheme, user and password are set
};

struct SplitUrl {
  UrlFault fault;
  UrlParts parts;
};

// Splits `url` into views of its parts. User and password are not decoded; the
// path of a URL without one is "/".
SplitUrl split_url(std::wstring_view url);

// Prints a URL; user and password, which are decoded, are escaped.
std::wstring print_url(const UrlParts& parts);

}  // namespace qk::url

#endif  // KORVANE_URL_URL_PARTS_H_
