#include "url/url_parts.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "text/format_utility.h"
#include "url/percent_coding.h"

namespace qk::url {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kNowhere = std::wstring_view::npos;
constexpr std::wstring_view kSchemeEnd = L"://";

struct Scheme {
  std::string_view text;
  SCHEMA_TYPE type;
};

constexpr Scheme kSchemes[] = {
    {"http://", SCHEMA_HTTP},   {"ftp://", SCHEMA_FTP},
    {"mms://", SCHEMA_MMS},     {"rtsp://", SCHEMA_RTSP},
    {"https://", SCHEMA_HTTPS}, {"ftps://", SCHEMA_FTPS},
    {"mmst://", SCHEMA_MMST},   {"rtspt://", SCHEMA_RTSPT},
    {"peer://", SCHEMA_PEER},
};

template <typename Unit>
bool is_scheme_unit(Unit unit, char lower) {
  const bool is_capital = unit >= Unit('A') && unit <= Unit('Z');
  return (is_capital ? unit + ('a' - 'A') : unit) == lower;
}

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

// Where the authority's separators stand, kNowhere for those that it lacks.
struct Authority {
  std::size_t end;  // its own: the first "/" or the end of the text
  std::size_t user_end = kNowhere;    // the last "@"
  std::size_t user_colon = kNowhere;  // the first ":" before that
  std::size_t host_colon = kNowhere;  // the first ":" behind it
};

Authority scan_authority(std::wstring_view text, std::size_t begin) {
  Authority found{begin};
  for (; found.end < text.size() && text[found.end] != L'/'; ++found.end) {
    const wchar_t unit = text[found.end];
    if (unit == L':' && found.host_colon == kNowhere) {
      found.host_colon = found.end;
    } else if (unit == L'@') {
      found.user_end = found.end;
      if (found.user_colon == kNowhere) found.user_colon = found.host_colon;
      found.host_colon = kNowhere;
    }
  }
  return found;
}

void split_user(std::wstring_view text, std::size_t begin,
                const Authority& authority, UrlParts& parts) {
  const std::size_t user_end =
      std::min(authority.user_colon, authority.user_end);
  parts.user = between(text, begin, user_end);
  if (authority.user_colon == kNowhere) return;
  parts.password = between(text, user_end + 1, authority.user_end);
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
  for (const Scheme& known : kSchemes) {
    if (schema.size() == known.text.size() &&
        std::equal(schema.begin(), schema.end(), known.text.begin(),
                   is_scheme_unit<Unit>)) {
      return known.type;
    }
  }
  return SCHEMA_UNKNOWN;
}

template SCHEMA_TYPE schema_type_of(std::string_view schema);
template SCHEMA_TYPE schema_type_of(std::wstring_view schema);

UrlFault split_url(std::wstring_view url, UrlParts& parts) {
  const std::wstring_view text = without_leading_blanks(url);
  const std::size_t scheme_end = text.find(kSchemeEnd);
  if (scheme_end == kNowhere || scheme_end == 0) return UrlFault::kNoScheme;
  std::size_t begin = scheme_end + kSchemeEnd.size();
  parts.schema = text.substr(0, begin);
  parts.type = schema_type_of(parts.schema);

  const Authority authority = scan_authority(text, begin);
  const bool has_path = authority.end < text.size();
  if (has_path && authority.end == begin) return UrlFault::kNoAuthority;
  if (authority.user_end != kNowhere) {
    split_user(text, begin, authority, parts);
    begin = authority.user_end + 1;
  }

  if (authority.host_colon == kNowhere) {
    parts.host = between(text, begin, authority.end);
    parts.port = url_object::default_port_for(parts.type);
  } else {
    parts.host = between(text, begin, authority.host_colon);
    if (!read_port(between(text, authority.host_colon + 1, authority.end),
                   parts.port)) {
      return UrlFault::kNoPort;
    }
  }
  parts.path = L"/";
  if (has_path) {
    const std::wstring_view rest = text.substr(authority.end);
    parts.path = rest.substr(0, rest.find(L'#'));
  }
  return UrlFault::kNone;
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
