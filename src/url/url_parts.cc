#include "url/url_parts.h"

#include <algorithm>
#include <optional>

#include "text/decimal.h"
#include "url/character_classes.h"
#include "url/percent_coding.h"
#include "url/schemes.h"

namespace qk::url {
namespace {

constexpr std::size_t kNowhere = std::wstring_view::npos;
constexpr std::wstring_view kNoPath = L"/";

// The size of the scheme that `text` begins with, "://" included; 0 if none.
std::size_t schema_size(std::wstring_view text, const Scheme& scheme) {
  if (scheme.type != SCHEMA_UNKNOWN) return scheme.text.size();
  constexpr std::wstring_view kEnd = L"://";
  const std::size_t end = text.find(kEnd);
  return end == 0 || end == kNowhere ? 0 : end + kEnd.size();
}

// The position of the next "/", ":" or "@"; text.size() if there is none. URLs
// with a port or a user take a tenth less time than with a search for each.
std::size_t next_separator(std::wstring_view text, std::size_t from) {
  while (from < text.size() && text[from] != L'/' && text[from] != L':' &&
         text[from] != L'@') {
    ++from;
  }
  return from;
}

struct Authority {
  std::wstring_view user;
  std::wstring_view password;
  std::wstring_view host;
  std::wstring_view port;  // with its ":"; empty if there is none
};

// Splits the text before the first "/" and moves `rest` there.
Authority take_authority(std::wstring_view& rest) {
  std::size_t at = kNowhere;  // the last one
  std::size_t first_colon = kNowhere;
  std::size_t port_colon = kNowhere;  // the first one after `at`
  std::size_t end = next_separator(rest, 0);
  while (end < rest.size() && rest[end] != L'/') {
    if (rest[end] == L'@') {
      at = end;
      port_colon = kNowhere;
    } else {
      first_colon = std::min(first_colon, end);
      port_colon = std::min(port_colon, end);
    }
    end = next_separator(rest, end + 1);
  }

  Authority found;
  std::wstring_view host = rest.substr(0, std::min(port_colon, end));
  found.port = rest.substr(host.size(), end - host.size());
  if (at != kNowhere) {
    found.user = host.substr(0, std::min(first_colon, at));
    if (first_colon < at) {
      found.password = host.substr(first_colon + 1, at - first_colon - 1);
    }
    host.remove_prefix(at + 1);
  }
  found.host = host;
  rest.remove_prefix(end);
  return found;
}

// Reads an explicit port; false if it is no number.
bool read_port(std::wstring_view text, std::uint32_t& port) {
  if (text.empty()) return true;
  const std::optional<std::uint64_t> value =
      text::decimal_value(text.substr(1));
  if (!value) return false;
  port = static_cast<std::uint32_t>(*value);
  return true;
}

}  // namespace

SplitUrl split_url(std::wstring_view url) {
  const std::wstring_view text = without_leading_blanks(url);
  const Scheme& scheme = scheme_of(text);
  const std::size_t size = schema_size(text, scheme);
  if (size == 0) return {UrlFault::kNoScheme, {}};
  const std::wstring_view schema = text.substr(0, size);
  std::wstring_view rest = text.substr(size);
  if (!rest.empty() && rest.front() == L'/') {
    return {UrlFault::kNoAuthority, {schema, scheme.type, {}, {}, {}, {}, {}}};
  }
  const auto [user, password, host, port_text] = take_authority(rest);
  std::uint32_t port = scheme.port;
  if (!read_port(port_text, port)) {
    return {UrlFault::kNoPort,
            {schema, scheme.type, user, password, {}, {}, {}}};
  }
  const std::wstring_view path =
      rest.empty() ? kNoPath : rest.substr(0, rest.find(L'#'));
  return {UrlFault::kNone,
          {schema, scheme.type, user, password, host, port, path}};
}

std::wstring print_url(const UrlParts& parts) {
  std::wstring text;
  if (parts.port == 0) return text;
  constexpr std::size_t kPort = 16;  // with the separators
  text.reserve(parts.schema.size() + parts.user.size() + parts.password.size() +
               parts.host.size() + kPort + parts.path.size());
  text += parts.schema;
  if (!parts.user.empty() || !parts.password.empty()) {
    append_escaped(parts.user, text);
    text += L':';  // Quirk: even without a password.
    append_escaped(parts.password, text);
    text += L'@';
  }
  text += parts.host;
  if (parts.port != default_port_of(parts.type)) {
    text += L':';
    text += std::to_wstring(parts.port);
  }
  text += parts.path;
  return text;
}

}  // namespace qk::url
