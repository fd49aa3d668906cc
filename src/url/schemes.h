// The schemes that the library knows and their default ports.
#ifndef KORVANE_URL_SCHEMES_H_
#define KORVANE_URL_SCHEMES_H_

#include <cstdint>
#include <string_view>

#include <korvane/url_object.h>

namespace qk::url {

struct Scheme {
  std::string_view text;  // in lower case, with its "://"; empty if unknown
  SCHEMA_TYPE type;
  std::uint16_t port;
};

// The scheme that a URL begins with, in any case.
const Scheme& scheme_of(std::wstring_view url);

// The scheme that `text` is, in any case and with its "://".
template <typename Unit>
const Scheme& scheme_named(std::basic_string_view<Unit> text);

std::uint16_t default_port_of(SCHEMA_TYPE type);

}  // namespace qk::url

#endif  // KORVANE_URL_SCHEMES_H_
