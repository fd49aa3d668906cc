#include <korvane/url_object.h>

#include <utility>

#include "url/schemes.h"
#include "url/url_parts.h"

namespace {

using qk::url::UrlFault;
using qk::url::UrlParts;

url_object object_of(const UrlParts& parts, unsigned code_page) {
  url_object object;
  object.schema = parts.schema;
  object.user = url_object::decode_ex(std::wstring(parts.user), code_page);
  object.password =
      url_object::decode_ex(std::wstring(parts.password), code_page);
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
  return qk::url::print_url(
      {schema, schema_type(), user, password, host, port, path});
}

SCHEMA_TYPE url_object::schema_type() const { return schema_type_for(schema); }

unsigned url_object::default_port() const {
  return default_port_for(schema_type());
}

SCHEMA_TYPE url_object::schema_type_for(const std::wstring& scheme) {
  return qk::url::scheme_named(std::wstring_view(scheme)).type;
}

unsigned url_object::default_port_for(SCHEMA_TYPE type) {
  return qk::url::default_port_of(type);
}
