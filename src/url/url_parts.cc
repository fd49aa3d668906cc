#include "url/url_parts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>

#include <korvane/format_utility.h>
#include "text/code_of.h"
#include "url/percent_coding.h"

namespace qk::url {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kNowhere = std::wstring_view::npos;
constexpr std::wstring_view kSchemeEnd = L"://";

constexpr std::wstring_view kNoPath = L"/";

// A scheme's name in lower case and its size, packed into a number to be
// compared at once.
class PackedName {
 public:
  constexpr void put(std::uint32_t code) {
    // 0x20 makes capitals small, and letters of nothing else.
    units_ = (units_ & kKept) << 8 | code | 0x20;
    seen_ |= code;
    ++size_;
  }
  // The same for all names that are too long or not ASCII: that of no scheme.
  constexpr std::uint64_t value() const {
    return seen_ < 0x80 && size_ < 8 ? units_ | size_ << 56 : 0;
  }

 private:
  static constexpr std::uint64_t kKept = (std::uint64_t{1} << 48) - 1;

  std::uint64_t units_ = 0;
  std::uint64_t size_ = 0;
  std::uint32_t seen_ = 0;
};

template <typename Unit>
constexpr std::uint64_t pack_name(std::basic_string_view<Unit> name) {
  PackedName packed;
  for (const Unit unit : name) packed.put(text::code_of(unit));
  return packed.value();
}

struct Scheme {
  std::uint64_t name;
  SCHEMA_TYPE type;
};

constexpr Scheme kSchemes[] = {
    {pack_name("http"sv), SCHEMA_HTTP},   {pack_name("ftp"sv), SCHEMA_FTP},
    {pack_name("mms"sv), SCHEMA_MMS},     {pack_name("rtsp"sv), SCHEMA_RTSP},
    {pack_name("https"sv), SCHEMA_HTTPS}, {pack_name("ftps"sv), SCHEMA_FTPS},
    {pack_name("mmst"sv), SCHEMA_MMST},   {pack_name("rtspt"sv), SCHEMA_RTSPT},
    {pack_name("peer"sv), SCHEMA_PEER},
};

// Looks at all of them: which one it is cannot be foreseen, and a wrong guess
// costs more than the comparisons.
SCHEMA_TYPE type_of_name(std::uint64_t name) {
  SCHEMA_TYPE type = SCHEMA_UNKNOWN;
  for (const Scheme& known : kSchemes) {
    type = known.name == name ? known.type : type;
  }
  return type;
}

std::wstring_view without_leading_blanks(std::wstring_view text) {
  while (!text.empty() && is_one_of(text.front(), kBlank))
    text.remove_prefix(1);
  return text;
}

// The text from `begin` up to `end`.
std::wstring_view between(std::wstring_view text, std::size_t begin,
                          std::size_t end) {
  return {text.data() + begin, end - begin};
}

bool is_scheme_end(std::wstring_view text, std::size_t position) {
  return text[position] == L':' &&
         text.size() - position >= kSchemeEnd.size() &&
         text[position + 1] == L'/' && text[position + 2] == L'/';
}

struct FoundScheme {
  std::size_t size;  // with its "://"; 0 if there is none
  SCHEMA_TYPE type;
};

FoundScheme find_scheme(std::wstring_view text) {
  PackedName name;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (is_scheme_end(text, i)) {
      if (i == 0) break;
      return {i + kSchemeEnd.size(), type_of_name(name.value())};
    }
    name.put(text::code_of(text[i]));
  }
  return {0, SCHEMA_UNKNOWN};
}

// Where the authority's separators stand, kNowhere for those that it lacks.
struct Authority {
  std::size_t end;                    // its own: the first "/" or the end
  std::size_t user_end = kNowhere;    // the last "@"
  std::size_t user_colon = kNowhere;  // the first ":" before that
  std::size_t host_colon = kNowhere;  // the first ":" behind it
};

// One pass: authorities are too short for searches of the library to pay.
Authority find_separators(std::wstring_view text, std::size_t begin) {
  Authority found = {begin};
  for (; found.end < text.size(); ++found.end) {
    const wchar_t unit = text[found.end];
    if (unit > L'@') continue;  // most are letters
    if (unit == L'/') break;
    if (unit == L':') {
      found.host_colon = std::min(found.host_colon, found.end);
    } else if (unit == L'@') {
      // What has been seen belongs to the user.
      found.user_colon = std::min(found.user_colon, found.host_colon);
      found.user_end = found.end;
      found.host_colon = kNowhere;
    }
  }
  return found;
}

// Reads an explicit port; empty digits are port 0.
bool read_port(std::wstring_view digits, std::uint32_t& port) {
  const std::optional<std::uint64_t> value = text::decimal_value(digits);
  if (!value) return false;
  port = static_cast<std::uint32_t>(*value & 0xFFFFFFFF);
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
  constexpr Unit kEnd[] = {':', '/', '/'};
  constexpr std::size_t kLongest = 8;  // "https://"
  if (schema.size() < std::size(kEnd) || schema.size() > kLongest) {
    return SCHEMA_UNKNOWN;
  }
  const std::size_t size = schema.size() - std::size(kEnd);
  if (!std::equal(std::begin(kEnd), std::end(kEnd), schema.begin() + size)) {
    return SCHEMA_UNKNOWN;
  }
  return type_of_name(pack_name(schema.substr(0, size)));
}

template SCHEMA_TYPE schema_type_of(std::string_view schema);
template SCHEMA_TYPE schema_type_of(std::wstring_view schema);

SplitUrl split_url(std::wstring_view url) {
  const std::wstring_view text = without_leading_blanks(url);
  const auto [scheme_size, type] = find_scheme(text);
  if (scheme_size == 0) return {UrlFault::kNoScheme, {}};
  const std::wstring_view schema = text.substr(0, scheme_size);
  std::size_t begin = scheme_size;

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
