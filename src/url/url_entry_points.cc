#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include <korvane/korvane_links.h>
#include "url/entry_point.h"
#include "url/text_decoding.h"
#include "url/url_file_name.h"
#include "url/url_parts.h"

namespace {

using qk::url::answer;
using qk::url::FileName;
using qk::url::kLongestText;
using qk::url::schema_type_of;
using qk::url::ScratchText;
using qk::url::UrlFault;
using qk::url::UrlParts;

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

// What a field of fewer units holds is mostly so short that a call to copy it
// costs more than the copy.
constexpr std::size_t kLongField = 1024;

template <std::size_t kCapacity>
bool put(std::wstring_view text, std::uint64_t& length,
         wchar_t (&field)[kCapacity]) {
  if (text.size() > kCapacity) return false;
  length = text.size();
  if constexpr (kCapacity < kLongField) {
    for (std::size_t i = 0; i < text.size(); ++i) field[i] = text[i];
  } else {
    std::copy(text.begin(), text.end(), field);
  }
  return true;
}

std::wstring_view decoded(std::wstring_view text, unsigned code_page,
                          ScratchText& scratch) {
  return decode_with_code_page(text, code_page, scratch).text;
}

long put_url(std::wstring_view url, unsigned code_page, url_info_u& info) {
  if (url.empty()) return URL_E_UNSUPPORTED;
  const auto [fault, parts] = qk::url::split_url(url);
  if (fault != UrlFault::kNone) return URL_E_PARSE;
  if (parts.type == SCHEMA_UNKNOWN) return URL_E_UNSUPPORTED;

  // Decoded before the first write: want of memory leaves the record alone.
  ScratchText user_scratch;
  ScratchText password_scratch;
  const auto user = decoded(parts.user, code_page, user_scratch);
  const auto password = decoded(parts.password, code_page, password_scratch);
  const bool fits = put(parts.schema, info.schema_len, info.schema) &&
                    put(user, info.user_len, info.user) &&
                    put(password, info.password_len, info.password) &&
                    put(parts.host, info.host_len, info.host) &&
                    put(parts.path, info.path_len, info.path);
  if (!fits) return URL_E_BUFFER;
  info.code_page = code_page;
  info.port = parts.port;
  return 0;
}

UrlParts parts_of(const url_info_u& info) {
  UrlParts parts;
  parts.schema = {info.schema, info.schema_len};
  parts.type = schema_type_of(parts.schema);
  parts.user = {info.user, info.user_len};
  parts.password = {info.password, info.password_len};
  parts.host = {info.host, info.host_len};
  parts.port = static_cast<std::uint32_t>(info.port);
  parts.path = {info.path, info.path_len};
  return parts;
}

bool is_readable(const UrlParts& parts) {
  const auto lengths = {parts.schema.size(), parts.user.size(),
                        parts.password.size(), parts.host.size(),
                        parts.path.size()};
  return std::max(lengths) <= kLongestText;
}

bool is_supported(SCHEMA_TYPE type) {
  // Kept: callers rely on "peer://" being parsed and yet not supported.
  return type != SCHEMA_PEER && type != SCHEMA_UNKNOWN;
}

}  // namespace

long parse_url_u(const wchar_t* url, size_t url_len, unsigned code_page,
                 url_info_u* info) {
  if (url == nullptr || info == nullptr) return URL_E_INVALID_ARG;
  if (url_len > kLongestText) return URL_E_BUFFER;
  return answer(URL_E_BUFFER, [&] {
    return put_url({url, url_len}, code_page, *info);
  });
}

long url_info_to_str_u(wchar_t* out, size_t* out_len, const url_info_u* info) {
  if (out == nullptr || out_len == nullptr || info == nullptr) {
    return URL_E_INVALID_ARG;
  }
  return answer(URL_E_BUFFER, [&]() -> long {
    const UrlParts parts = parts_of(*info);
    if (!is_readable(parts)) return URL_E_BUFFER;
    const std::size_t size = printed_size(parts);
    if (size > *out_len) return URL_E_BUFFER;
    // `out` may lie within the record.
    ScratchText scratch;
    wchar_t* const printed = scratch.reserve(size);
    print_url(parts, printed);
    std::copy_n(printed, size, out);
    *out_len = size;
    return 0;
  });
}

long parse_filename_u(wchar_t* out, size_t* out_len, const wchar_t* url,
                      size_t url_len, unsigned code_page) {
  if (out == nullptr || out_len == nullptr || url == nullptr) {
    return URL_E_INVALID_ARG;
  }
  if (url_len > kLongestText) return URL_E_BUFFER;
  return answer(URL_E_BUFFER, [&]() -> long {
    const std::wstring_view text(url, url_len);
    ScratchText scratch;
    const FileName name = qk::url::find_file_name(
        qk::url::last_segment(text.substr(0, text.find(L'?'))), code_page,
        scratch);
    if (name.text.size() > *out_len) return URL_E_BUFFER;
    write_file_name(name, out);
    *out_len = name.text.size();
    return 0;
  });
}

long is_support_schema(const char* schema, size_t schema_len,
                       unsigned* supported) {
  if (schema == nullptr || supported == nullptr) return URL_E_INVALID_ARG;
  if (schema_len > kLongestText) return URL_E_BUFFER;
  // Schemes are ASCII, which every narrow encoding reads alike.
  const auto type = schema_type_of(std::string_view(schema, schema_len));
  *supported = is_supported(type) ? 1 : 0;
  return 0;
}
