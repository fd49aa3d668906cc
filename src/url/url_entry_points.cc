#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include <korvane/korvane_links.h>
#include "url/entry_point.h"
#include "url/schemes.h"
#include "url/text_decoding.h"
#include "url/url_file_name.h"
#include "url/url_parts.h"

namespace {

using namespace qk::url;

// Host programs share the record's memory.
static_assert(sizeof(wchar_t) == 4 && sizeof(long) == 8);
static_assert(sizeof(url_info_u) == 12344);
static_assert(offsetof(url_info_u, schema_len) == 0);
static_assert(offsetof(url_info_u, schema) == 8);
static_assert(offsetof(url_info_u, user_len) == 1032);
static_assert(offsetof(url_info_u, user) == 1040);
static_assert(offsetof(url_info_u, password_len) == 2064);
static_assert(offsetof(url_info_u, password) == 2072);
static_assert(offsetof(url_info_u, host_len) == 3096);
static_assert(offsetof(url_info_u, host) == 3104);
static_assert(offsetof(url_info_u, port) == 4128);
static_assert(offsetof(url_info_u, path_len) == 4136);
static_assert(offsetof(url_info_u, path) == 4144);
static_assert(offsetof(url_info_u, code_page) == 12336);

template <std::size_t kCapacity>
bool put(std::wstring_view text, std::uint64_t& length,
         wchar_t (&field)[kCapacity]) {
  if (text.size() > kCapacity) return false;
  length = text.size();
  std::copy(text.begin(), text.end(), field);
  return true;
}

// The parts before one that does not fit are written.
long write_record(const UrlParts& parts, unsigned code_page, url_info_u& info) {
  const bool fits = put(parts.schema, info.schema_len, info.schema) &&
                    put(parts.user, info.user_len, info.user) &&
                    put(parts.password, info.password_len, info.password) &&
                    put(parts.host, info.host_len, info.host) &&
                    put(parts.path, info.path_len, info.path);
  if (!fits) return URL_E_BUFFER;
  info.code_page = code_page;
  info.port = parts.port;
  return 0;
}

long write_decoded(UrlParts parts, unsigned code_page, url_info_u& info) {
  ScratchText user;
  ScratchText password;
  parts.user = decoded(parts.user, code_page, user);
  parts.password = decoded(parts.password, code_page, password);
  return write_record(parts, code_page, info);
}

long parse(std::wstring_view url, unsigned code_page, url_info_u& info) {
  if (url.empty()) return URL_E_UNSUPPORTED;
  const auto [fault, parts] = split_url(url);
  if (fault != UrlFault::kNone) return URL_E_PARSE;
  if (parts.type == SCHEMA_UNKNOWN) return URL_E_UNSUPPORTED;
  const bool is_ready = is_decoded(parts.user, code_page) &&
                        is_decoded(parts.password, code_page);
  return is_ready ? write_record(parts, code_page, info)
                  : write_decoded(parts, code_page, info);
}

UrlParts parts_of(const url_info_u& info) {
  const std::wstring_view schema(info.schema, info.schema_len);
  return {schema,
          scheme_named(schema).type,
          {info.user, info.user_len},
          {info.password, info.password_len},
          {info.host, info.host_len},
          static_cast<std::uint32_t>(info.port),
          {info.path, info.path_len}};
}

bool has_too_long_part(const UrlParts& parts) {
  return is_too_long(
      std::max({parts.schema.size(), parts.user.size(), parts.password.size(),
                parts.host.size(), parts.path.size()}));
}

}  // namespace

long parse_url_u(const wchar_t* url, size_t url_len, unsigned code_page,
                 url_info_u* info) {
  if (url == nullptr || info == nullptr) return URL_E_INVALID_ARG;
  if (is_too_long(url_len)) return URL_E_BUFFER;
  return without_exceptions(URL_E_BUFFER, [&] {
    return parse({url, url_len}, code_page, *info);
  });
}

long url_info_to_str_u(wchar_t* out, size_t* out_len, const url_info_u* info) {
  if (out == nullptr || out_len == nullptr || info == nullptr) {
    return URL_E_INVALID_ARG;
  }
  return without_exceptions(URL_E_BUFFER, [&]() -> long {
    const UrlParts parts = parts_of(*info);
    if (has_too_long_part(parts)) return URL_E_BUFFER;
    // Printed aside: `out` may lie within the record.
    const std::wstring text = print_url(parts);
    if (text.size() > *out_len) return URL_E_BUFFER;
    *out_len = text.copy(out, text.size());
    return 0;
  });
}

long parse_filename_u(wchar_t* out, size_t* out_len, const wchar_t* url,
                      size_t url_len, unsigned code_page) {
  if (out == nullptr || out_len == nullptr || url == nullptr) {
    return URL_E_INVALID_ARG;
  }
  if (is_too_long(url_len)) return URL_E_BUFFER;
  return without_exceptions(URL_E_BUFFER, [&]() -> long {
    const std::wstring_view text(url, url_len);
    ClassifiedText segment = last_segment(text.substr(0, text.find(L'?')));
    ScratchText scratch;
    const FileName name = find_file_name(segment, code_page, scratch);
    if (name.text.size() > *out_len) return URL_E_BUFFER;
    write_file_name(name, out);
    *out_len = name.text.size();
    return 0;
  });
}

long is_support_schema(const char* schema, size_t schema_len,
                       unsigned* supported) {
  if (schema == nullptr || supported == nullptr) return URL_E_INVALID_ARG;
  if (is_too_long(schema_len)) return URL_E_BUFFER;
  // Schemes are ASCII, which the default narrow encoding reads as it is.
  const SCHEMA_TYPE type =
      scheme_named(std::string_view(schema, schema_len)).type;
  // Quirk: "peer://" is not supported, although parse_url_u accepts it.
  *supported = type != SCHEMA_PEER && type != SCHEMA_UNKNOWN ? 1 : 0;
  return 0;
}
