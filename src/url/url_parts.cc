#include "url/url_parts.h"

#include <optional>

#include "text/decimal.h"
#include "url/character_classes.h"
#include "url/percent_coding.h"
#include "url/schemes.h"

namespace qk::url {
namespace {

constexpr std::size_t kNowhere = std::wstring_view::npos;

// The size of the scheme that `text` begins with, "://" included; 0 if none.
std::size_t schema_size(std::wstring_view text, const Scheme& scheme) {
  if (scheme.type != SCHEMA_UNKNOWN) return scheme.text.size();
  constexpr std::wstring_view kEnd = L"://";
  const std::size_t end = text.find(kEnd);
  return end == 0 || end == kNowhere ? 0 : end + kEnd.size();
}

// Moves user and password, which an "@" follows, from the front of `host`.
void take_user(std::wstring_view& host, std::wstring_view& user,
               std::wstring_view& password) {
  if (host.find(L'@') == kNowhere) return;
  const std::size_t at = host.rfind(L'@');
  user = host.substr(0, at);
  host.remove_prefix(at + 1);
  const std::size_t colon = user.find(L':');
  if (colon == kNowhere) return;
  password = user.substr(colon + 1);
  user = user.substr(0, colon);
}

// Moves an explicit port from the end of `host`; false if it is no number.
bool take_port(std::wstring_view& host, std::uint32_t& port) {
  const std::size_t colon = host.find(L':');
  if (colon == kNowhere) return true;
  const std::optional<std::uint64_t> value =
      text::decimal_value(host.substr(colon + 1));
  if (!value) return false;
  port = static_cast<std::uint32_t>(*value & 0xFFFFFFFF);
  host = host.substr(0, colon);
  return true;
}

}  // namespace

SplitUrl split_url(std::wstring_view url) {
  const std::wstring_view text = without_leading_blanks(url);
  const Scheme& scheme = scheme_of(text);
  const std::size_t size = schema_size(text, scheme);
  if (size == 0) return {UrlFault::kNoScheme, {}};
  const std::wstring_view schema = text.substr(0, size);
  const std::wstring_view rest = text.substr(size);

  const std::size_t slash = rest.find(L'/');
  if (slash == 0) {
    return {UrlFault::kNoAuthority, {schema, scheme.type, {}, {}, {}, 0, {}}};
  }
  std::wstring_view host = rest.substr(0, slash);
  std::wstring_view user;
  std::wstring_view password;
  take_user(host, user, password);
  std::uint32_t port = scheme.port;
  if (!take_port(host, port)) {
    return {UrlFault::kNoPort,
            {schema, scheme.type, user, password, {}, 0, {}}};
  }
  std::wstring_view path = L"/";
  if (slash != kNowhere) {
    path = rest.substr(slash);
    path = path.substr(0, path.find(L'#'));
  }
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
