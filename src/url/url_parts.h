// A URL as views of its parts: what parsing finds and printing needs.
#ifndef KORVANE_URL_URL_PARTS_H_
#define KORVANE_URL_URL_PARTS_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <korvane/url_object.h>

namespace qk::url {

struct UrlParts {
  std::wstring_view schema;
  SCHEMA_TYPE type = SCHEMA_UNKNOWN;
  std::wstring_view user;
  std::wstring_view password;
  std::wstring_view host;
  std::uint32_t port = 0;
  std::wstring_view path;
};

// What keeps a text from being a URL.
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

// Takes `url` apart. User and password are not decoded. The parts are views of
// `url`, except for the path "/" of a URL without one.
SplitUrl split_url(std::wstring_view url);

// How long the printed URL is; its user and password are taken as decoded.
std::size_t printed_size(const UrlParts& parts);

// Writes the printed URL, printed_size(parts) units, to `out`.
void print_url(const UrlParts& parts, wchar_t* out);

// url_object::schema_type_for without a copy, for narrow text as well.
template <typename Unit>
SCHEMA_TYPE schema_type_of(std::basic_string_view<Unit> schema);

}  // namespace qk::url

#endif  // KORVANE_URL_URL_PARTS_H_
