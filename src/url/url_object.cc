#include <korvane/url_object.h>

#include <array>
#include <utility>

#include "url/text_decoding.h"
#include "url/url_parts.h"

namespace {

using qk::url::UrlFault;
using qk::url::UrlParts;

constexpr unsigned kDefaultPort = 80;
// From SCHEMA_FTP on. Kept: callers rely on 21 for SCHEMA_FTPS.
constexpr std::array<std::uint16_t, 8> kPorts = {21,   1755, 443, 1755,
                                                 3077, 554,  554, 21};

std::wstring decoded(std::wstring_view text, unsigned code_page) {
  qk::url::ScratchText scratch;
  return std::wstring(
      qk::url::decode_with_code_page(text, code_page, scratch).text);
}

url_object object_of(const UrlParts& parts, unsigned code_page) {
  url_object object;
  object.schema = parts.schema;
  object.user = decoded(parts.user, code_page);
  object.password = decoded(parts.password, code_page);
  object.host = parts.host;
  object.port = parts.port;
  object.path = parts.path;
  return object;
}

}  // namespace

url_object url_object::null_url() { return {}; }

bool url_object::parse_url(const std::wstring& url, unsigned code_page,
                           url_object& out) {
  if (url.empty()) {
    out = null_url();
    return true;
  }
  const auto [fault, parts] = qk::url::split_url(url);
  // The text may be a member of `out`: read it whole before the first write.
  url_object parsed = object_of(parts, code_page);
  if (fault == UrlFault::kNoScheme) return false;
  out.schema = std::move(parsed.schema);
  if (fault == UrlFault::kNoAuthority) return false;
  out.user = std::move(parsed.user);
  out.password = std::move(parsed.password);
  if (fault == UrlFault::kNoPort) return false;
  out.host = std::move(parsed.host);
  out.port = parsed.port;
  out.path = std::move(parsed.path);
  return true;
}

std::wstring url_object::to_string() const {
  const UrlParts parts = {schema, schema_type(), user, password,
                          host,   port,          path};
  std::wstring text(qk::url::printed_size(parts), L'\0');
  qk::url::print_url(parts, text.data());
  return text;
}

SCHEMA_TYPE url_object::schema_type() const { return schema_type_for(schema); }

unsigned url_object::default_port() const {
  return default_port_for(schema_type());
}

SCHEMA_TYPE url_object::schema_type_for(const std::wstring& scheme) {
  return qk::url::schema_type_of(std::wstring_view(scheme));
}

unsigned url_object::default_port_for(SCHEMA_TYPE type) {
  if (type < SCHEMA_FTP || type > SCHEMA_FTPS) return kDefaultPort;
  return kPorts[type - SCHEMA_FTP];
}
