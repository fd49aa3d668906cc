#include "url/url_parts.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "text/code_of.h"
#include "text/format_utility.h"
#include "url/percent_coding.h"

namespace qk::url {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kNowhere = std::wstring_view::npos;
constexpr std::wstring_view kSchemeEnd = L"://";

constexpr std::wstring_view kNoPath = L"/";

// A scheme in lower case, packed into a number to be compared at once. All
// texts that are too long for one, or not ASCII, are one that is no scheme.
struct PackedScheme {
  std::size_t size = 0;
  std::uint64_t units = 0;
};

template <typename Unit>
constexpr PackedScheme pack_scheme(std::basic_string_view<Unit> schema) {
  PackedScheme packed = {schema.size(), 0};
  if (schema.size() > sizeof(packed.units)) return {};
  for (const Unit unit : schema) {
    const std::uint32_t code = text::code_of(unit);
    if (code >= 0x80) return {};
    const bool is_capital = code >= 'A' && code <= 'Z';
    packed.units = packed.units << 8 | (is_capital ? code | 0x20 : code);
  }
  return packed;
}

struct Scheme {
  constexpr Scheme(std::string_view text, SCHEMA_TYPE its_type)
      : packed(pack_scheme(text)), type(its_type) {}

  PackedScheme packed;
  SCHEMA_TYPE type;
};

constexpr Scheme kSchemes[] = {
    {"http://", SCHEMA_HTTP},   {"ftp://", SCHEMA_FTP},
    {"mms://", SCHEMA_MMS},     {"rtsp://", SCHEMA_RTSP},
    {"https://", SCHEMA_HTTPS}, {"ftps://", SCHEMA_FTPS},
    {"mmst://", SCHEMA_MMST},   {"rtspt://", SCHEMA_RTSPT},
    {"peer://", SCHEMA_PEER},
};

std::wstring_view without_leading_blanks(std::wstring_view text) {
  while (!text.empty() && is_one_of(text.front(), kBlank))
    text.remove_prefix(1);
  return text;
}

// The text from `begin` up to `end`.
std::wstring_view between(std::wstring_view text, std::size_t begin,
                          std::size_t end) {
  return text.substr(begin, end - begin);
}

// Where the scheme's "://" begins: near the start, so a plain loop finds it
// before a search of the library has begun.
std::size_t find_scheme_end(std::wstring_view text) {
  for (std::size_t i = 0; i + kSchemeEnd.size() <= text.size(); ++i) {
    if (text[i] == L':' && text[i + 1] == L'/' && text[i + 2] == L'/') return i;
  }
  return kNowhere;
}

// Where the authority's separators stand, kNowhere for those that it lacks.
struct Authority {
  std::size_t end;         // its own: the first "/" or the end of the text
  std::size_t user_end;    // the last "@"
  std::size_t user_colon;  // the first ":" before that
  std::size_t host_colon;  // the first ":" behind it
};

// A search for each: the C library looks at several units at once, where one
// loop for all would stop and start at every separator.
Authority find_separators(std::wstring_view text, std::size_t begin) {
  const std::size_t end = std::min(text.find(L'/', begin), text.size());
  const std::wstring_view authority = text.substr(0, end);
  std::size_t user_end = kNowhere;
  for (std::size_t at = authority.find(L'@', begin); at != kNowhere;
       at = authority.find(L'@', at + 1)) {
    user_end = at;
  }
  if (user_end == kNowhere) {
    return {end, kNowhere, kNowhere, authority.find(L':', begin)};
  }
  return {end, user_end, authority.substr(0, user_end).find(L':', begin),
          authority.find(L':', user_end + 1)};
}

// Reads an explicit port; empty digits are port 0.
bool read_port(std::wstring_view digits, std::uint32_t& port) {
  for (const wchar_t unit : digits) {
    if (!url_object::is_digit(unit)) return false;
  }
  port = static_cast<std::uint32_t>(text::decimal_value(digits));
  return true;
}

// No text of the number layer: that allocates, and printing must not fail once
// it writes.
std::string_view decimal(std::uint32_t number, std::array<char, 10>& digits) {
  char* const begin = digits.data();
  const char* const end =
      std::to_chars(begin, begin + digits.size(), number).ptr;
  return {begin, static_cast<std::size_t>(end - begin)};
}

class Measure {
 public:
  template <typename Unit>
  void put(std::basic_string_view<Unit> text) {
    size_ += text.size();
  }
  void put_escaped(std::wstring_view text) { size_ += escaped_size(text); }
  std::size_t size() const { return size_; }

 private:
  std::size_t size_ = 0;
};

class Writer {
 public:
  explicit Writer(wchar_t* out) : out_(out) {}
  template <typename Unit>
  void put(std::basic_string_view<Unit> text) {
    out_ = std::copy(text.begin(), text.end(), out_);
  }
  void put_escaped(std::wstring_view text) { out_ = escape(text, out_); }

 private:
  wchar_t* out_;
};

template <typename Sink>
void print_to(Sink& sink, const UrlParts& parts) {
  if (parts.port == 0) return;
  sink.put(parts.schema);
  if (!parts.user.empty() || !parts.password.empty()) {
    sink.put_escaped(parts.user);
    // Kept: callers rely on the ":" even without a password.
    sink.put(":"sv);
    sink.put_escaped(parts.password);
    sink.put("@"sv);
  }
  sink.put(parts.host);
  if (parts.port != url_object::default_port_for(parts.type)) {
    std::array<char, 10> digits;
    sink.put(":"sv);
    sink.put(decimal(parts.port, digits));
  }
  sink.put(parts.path);
}

}  // namespace

template <typename Unit>
SCHEMA_TYPE schema_type_of(std::basic_string_view<Unit> schema) {
  const PackedScheme packed = pack_scheme(schema);
  for (const Scheme& known : kSchemes) {
    if (known.packed.units == packed.units &&
        known.packed.size == packed.size) {
      return known.type;
    }
  }
  return SCHEMA_UNKNOWN;
}

template SCHEMA_TYPE schema_type_of(std::string_view schema);
template SCHEMA_TYPE schema_type_of(std::wstring_view schema);

SplitUrl split_url(std::wstring_view url) {
  const std::wstring_view text = without_leading_blanks(url);
  const std::size_t scheme_end = find_scheme_end(text);
  if (scheme_end == kNowhere || scheme_end == 0) {
    return {UrlFault::kNoScheme, {}};
  }
  std::size_t begin = scheme_end + kSchemeEnd.size();
  const std::wstring_view schema = text.substr(0, begin);
  const SCHEMA_TYPE type = schema_type_of(schema);

  const Authority authority = find_separators(text, begin);
  const bool has_path = authority.end < text.size();
  if (has_path && authority.end == begin) {
    return {UrlFault::kNoAuthority, {schema, type, {}, {}, {}, 0, {}}};
  }
  std::wstring_view user;
  std::wstring_view password;
  if (authority.user_end != kNowhere) {
    const std::size_t colon =
        std::min(authority.user_colon, authority.user_end);
    user = between(text, begin, colon);
    // Behind the colon; none without one.
    password = between(text, std::min(colon + 1, authority.user_end),
                       authority.user_end);
    begin = authority.user_end + 1;
  }

  const std::size_t host_end = std::min(authority.host_colon, authority.end);
  std::uint32_t port = 0;
  if (host_end == authority.end) {
    port = url_object::default_port_for(type);
  } else if (!read_port(between(text, host_end + 1, authority.end), port)) {
    return {UrlFault::kNoPort, {schema, type, user, password, {}, 0, {}}};
  }
  std::wstring_view path = kNoPath;
  if (has_path) {
    const std::wstring_view rest = text.substr(authority.end);
    path = rest.substr(0, rest.find(L'#'));
  }
  return {UrlFault::kNone,
          {schema, type, user, password, between(text, begin, host_end), port,
           path}};
}

std::size_t printed_size(const UrlParts& parts) {
  Measure measure;
  print_to(measure, parts);
  return measure.size();
}

void print_url(const UrlParts& parts, wchar_t* out) {
  Writer writer(out);
  print_to(writer, parts);
}

}  // namespace qk::url
