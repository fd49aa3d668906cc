// Reading ed2k links: one reader for the class, which keeps every field, and
// for the C function, which checks the optional ones and drops them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include <korvane/ed2k_file_link.h>
#include <korvane/korvane_links.h>
#include <korvane/transcode.h>
#include "text/ascii.h"
#include "text/utf8.h"
#include "url/base_decoding.h"
#include "url/character_classes.h"
#include "url/entry_point.h"
#include "url/narrow_text.h"
#include "url/percent_coding.h"
#include "url/text_decoding.h"

// Host programs share the record's memory.
static_assert(sizeof(ed2k_url_info_u) == 4120);
static_assert(offsetof(ed2k_url_info_u, size) == 0);
static_assert(offsetof(ed2k_url_info_u, name) == 8);
static_assert(offsetof(ed2k_url_info_u, hash) == 4104);

namespace {

using namespace qk::url;
using qk::text::begins_with_ascii_nocase;
using qk::text::contains_ascii_nocase;

constexpr std::wstring_view kScheme = L"ed2k://";
constexpr std::wstring_view kFile = L"file";
constexpr std::wstring_view kBar = L"|";
constexpr std::wstring_view kEscapedBar = L"%7C";
constexpr std::size_t kFixedPieces = 5;
constexpr std::uint64_t kLargestFile = std::uint64_t{1} << 50;
constexpr std::size_t kKeySize = 2;  // of "h=", "p=" and "s="
constexpr std::size_t kFileHashDigits = 32;
constexpr std::size_t kRootHashGroups = 4;

// The pieces of a text between separators, empty ones left out.
template <typename Unit>
class Pieces {
 public:
  using View = std::basic_string_view<Unit>;

  Pieces(View text, View separator) : rest_(text), separator_(separator) {}

  // Moves to the next piece; false at the end.
  bool next(View& piece) {
    do {
      if (rest_.empty()) return false;
      const std::size_t end = std::min(find_separator(), rest_.size());
      piece = rest_.substr(0, end);
      rest_.remove_prefix(std::min(end + separator_.size(), rest_.size()));
    } while (piece.empty());
    return true;
  }

 private:
  // Nearly all are one unit, which is found without a comparison.
  std::size_t find_separator() const {
    return separator_.size() == 1 ? rest_.find(separator_[0])
                                  : rest_.find(separator_);
  }

  View rest_;
  View separator_;
};

// Kept: callers rely on escaped separators counting only in a link without a
// plain one, and only in upper case.
Pieces<wchar_t> pieces_of(std::wstring_view url) {
  const bool plain = url.find(L'|') != std::wstring_view::npos;
  return {url, plain ? kBar : kEscapedBar};
}

// What scanning with "%I64u" makes of any text: leading white space, a sign,
// digits of the locale, at most 64 units. False if there is no number.
bool scan_number(std::wstring_view text, unsigned& number) {
  constexpr std::size_t kMostUnits = 64;
  while (!text.empty() &&
         std::iswspace(static_cast<std::wint_t>(text[0])) != 0) {
    text.remove_prefix(1);
  }
  wchar_t units[kMostUnits + 1];
  units[text.copy(units, kMostUnits)] = L'\0';
  return std::swscanf(units, L"%I64u", &number) == 1;
}

// The low 32 bits of the number that `text` begins with; false if there is
// none. Plain decimals are read here, all else as the C library reads it.
bool read_low_bits(std::wstring_view text, unsigned& low_bits) {
  constexpr std::size_t kMostDigits = 19;  // always less than 2^64
  std::uint64_t number = 0;
  std::size_t i = 0;
  for (; i < text.size() && i < kMostDigits; ++i) {
    if (text[i] < L'0' || text[i] > L'9') break;
    number = number * 10 + static_cast<std::uint64_t>(text[i] - L'0');
  }
  if (i == 0 || i != text.size()) return scan_number(text, low_bits);
  low_bits = static_cast<unsigned>(number & 0xFFFFFFFF);
  return true;
}

// Kept: callers rely on a size being read into its low 32 bits, and on a text
// without a number leaving it as it was.
void read_size(std::wstring_view text, unsigned long& size) {
  unsigned low_bits = 0;
  if (read_low_bits(text, low_bits)) size = size >> 32 << 32 | low_bits;
}

// What is behind the digits does not count.
template <typename Unit>
bool decode_file_hash(std::basic_string_view<Unit> digits,
                      ed2k_file_link::file_hash& hash) {
  auto& octets = hash.octets;
  return digits.size() >= kFileHashDigits &&
         decode_base16_pairs(kBase16Values, digits.data(), octets.size(),
                             octets.data()) == octets.size();
}

template <typename Link>
bool read_file_hash(std::wstring_view text, Link& link) {
  ed2k_file_link::file_hash hash;
  const auto decode = [&hash](auto digits) {
    return digits.size() == kFileHashDigits && decode_file_hash(digits, hash);
  };
  // What is a hash as it stands is one in every narrow encoding.
  const bool valid = decode(text) || read_narrow(text, decode);
  if (valid) link.put_file_hash(hash);
  return valid;
}

// What stands behind the digits does not count. Narrowing makes no digits.
template <typename Link>
bool read_root_hash(std::wstring_view text, Link& link) {
  if (text.size() < kRootHashGroups * kBase32GroupDigits) return false;
  ed2k_file_link::root_hash hash;
  const std::size_t groups = decode_base32_groups(
      kBase32Values, text.data(), kRootHashGroups, hash.octets.data());
  if (groups != kRootHashGroups) return false;
  link.put_root_hash(hash);
  return true;
}

template <typename Link>
bool read_part_hashes(std::wstring_view field, Link& link) {
  Pieces<wchar_t> items(field, L":");
  std::wstring_view item;
  std::size_t key = kKeySize;
  while (items.next(item)) {
    item.remove_prefix(std::min(std::exchange(key, 0), item.size()));
    ed2k_file_link::file_hash hash;
    const bool valid = read_narrow(
        item, [&hash](auto digits) { return decode_file_hash(digits, hash); });
    if (!valid) return false;
    link.add_part_hash(hash);
  }
  return true;
}

template <typename Unit, typename Link>
bool read_source_items(std::basic_string_view<Unit> field, Link& link) {
  constexpr Unit kComma[] = {Unit(','), Unit(0)};
  Pieces<Unit> items(field, kComma);
  std::basic_string_view<Unit> item;
  items.next(item);  // the word "sources"
  while (items.next(item)) {
    const std::size_t colon = item.find(Unit(':'));
    if (colon == item.npos) return false;
    link.add_source(item.substr(0, colon), item.substr(colon + 1));
  }
  return true;
}

template <typename Link>
bool read_sources(std::wstring_view field, Link& link) {
  return read_narrow(
      field, [&link](auto text) { return read_source_items(text, link); });
}

// The keys that stand in an optional field. A key is a letter and a "=", so the
// units before each "=" tell them all.
struct Keys {
  bool root_hash = false;
  bool part_hashes = false;
  bool http_url = false;
};

Keys keys_in(std::wstring_view field) {
  Keys keys;
  for (std::size_t sign = field.find(L'=', 1); sign != std::wstring_view::npos;
       sign = field.find(L'=', sign + 1)) {
    const wchar_t letter = field[sign - 1];
    keys.root_hash |= letter == L'h' || letter == L'H';
    keys.part_hashes |= letter == L'p' || letter == L'P';
    keys.http_url |= letter == L's' || letter == L'S';
  }
  return keys;
}

bool has_sources(std::wstring_view field) {
  return field.find(L',') != std::wstring_view::npos &&
         contains_ascii_nocase(field, L"sources,");
}

// Kept: callers rely on a key counting anywhere in the field, so that a web
// address with "p=" in its query is taken for part hashes.
template <typename Link>
bool read_optional_field(std::wstring_view field, Link& link) {
  if (field.size() < kKeySize) return true;  // the closing "/"
  const std::wstring_view searched = until_zero(field);
  const Keys keys = keys_in(searched);
  if (keys.root_hash) return read_root_hash(field.substr(kKeySize), link);
  if (keys.part_hashes) return read_part_hashes(field, link);
  if (keys.http_url) {
    link.put_http_url(field.substr(kKeySize));
  } else if (has_sources(searched)) {
    return read_sources(field, link);
  }
  return true;
}

// Of the characters that are illegal in names, line breaks and tabs may stay.
bool is_forbidden(wchar_t unit) {
  return is_one_of(unit, kIllegal) && unit > L' ';
}

template <typename Iterator>
void clean_name(Iterator begin, Iterator end) {
  std::replace_if(begin, end, is_forbidden, L'_');
}

// Decodes and cleans `name`; the result is a view of `scratch`. Empty for what
// is left as it stands, uncleaned (kept: callers rely on it): names without an
// escape or beyond ASCII, and those that decode to nothing.
std::wstring_view decode_name(std::wstring_view name, ScratchText& scratch) {
  if (name.find(L'%') == std::wstring_view::npos) return {};
  wchar_t* units = scratch.reserve(name.size());
  unsigned classes = 0;
  const wchar_t* end = percent_decode(
      name, units, [&classes](wchar_t unit) { classes |= classes_of(unit); });
  std::wstring_view decoded(units, static_cast<std::size_t>(end - units));
  const bool is_foreign = (classes & kForeign) != 0;
  if (is_foreign && !is_ascii(name)) return {};
  if ((classes & kZero) != 0) decoded = until_zero(decoded);
  if (!is_foreign) {
    if ((classes & kIllegal) != 0) clean_name(units, units + decoded.size());
    return decoded;
  }
  const std::string utf8(decoded.begin(), decoded.end());
  std::wstring wide;
  // Valid UTF-8 needs no converter, and nearly every name is.
  if (!qk::text::decode_utf8(utf8, wide)) {
    qk::text::transcode::UTF8_to_Unicode(
        utf8.data(), static_cast<unsigned>(utf8.size()), wide);
  }
  clean_name(wide.begin(), wide.end());
  return scratch.hold(std::move(wide));
}

// Hands every field to `link` as soon as it is read; false for no link.
template <typename Link>
bool read_link(std::wstring_view url, Link& link) {
  Pieces<wchar_t> pieces = pieces_of(url);
  std::wstring_view fixed[kFixedPieces];
  for (std::wstring_view& piece : fixed) {
    if (!pieces.next(piece)) return false;
  }
  const auto& [scheme, kind, name, size, hash] = fixed;
  if (!begins_with_ascii_nocase(scheme, kScheme)) return false;
  if (!begins_with_ascii_nocase(kind, kFile)) return false;
  link.put_name(name);
  read_size(size, link.size());
  if (link.size() == 0 || link.size() > kLargestFile) return false;
  if (!read_file_hash(hash, link)) return false;
  std::wstring_view field;
  while (pieces.next(field)) {
    if (!read_optional_field(field, link)) return false;
  }
  const std::wstring_view decoded = decode_name(name, link.scratch);
  if (!decoded.empty()) link.put_name(decoded);
  return true;
}

// What the C function returns: optional fields are only checked.
struct RecordFields {
  unsigned long& size() { return file_size; }
  void put_name(std::wstring_view text) { name = text; }
  void put_file_hash(const ed2k_file_link::file_hash& value) { hash = value; }
  void put_root_hash(const ed2k_file_link::root_hash& /*value*/) {}
  void add_part_hash(const ed2k_file_link::file_hash& /*value*/) {}
  void put_http_url(std::wstring_view /*url*/) {}
  template <typename View>
  void add_source(View /*host*/, View /*port*/) {}

  ScratchText scratch;
  std::wstring_view name;
  unsigned long file_size = 0;
  ed2k_file_link::file_hash hash;
};

// Kept: callers rely on a terminated name and on zeros behind it.
void write_record(const RecordFields& fields, ed2k_url_info_u& info) {
  info.size = static_cast<double>(fields.file_size);
  const std::size_t length =
      until_zero(fields.name).copy(info.name, ED2K_NAME_CAPACITY - 1);
  std::fill(std::begin(info.name) + length, std::end(info.name), L'\0');
  std::copy(fields.hash.octets.begin(), fields.hash.octets.end(), info.hash);
}

// The number that scanning with "%i" gives, cut to 16 bits.
template <typename View>
std::uint16_t port_of(View text) {
  const std::string digits(text.begin(), text.end());
  return static_cast<std::uint16_t>(std::strtol(digits.c_str(), nullptr, 0));
}

}  // namespace

struct ed2k_file_link::all_fields {
  unsigned long& size() { return link.file_size_; }
  void put_name(std::wstring_view name) { link.file_name_ = name; }
  void put_file_hash(const file_hash& hash) { link.file_hash_ = hash; }
  void put_root_hash(const ed2k_file_link::root_hash& hash) {
    link.root_hash_ = hash;
  }
  void add_part_hash(const file_hash& hash) {
    link.part_hashes_.push_back(hash);
  }
  void put_http_url(std::wstring_view url) { link.http_url_ = url; }
  template <typename View>
  void add_source(View host, View port) {
    link.add_source(std::string(host.begin(), host.end()), port_of(port));
  }

  ed2k_file_link& link;
  ScratchText scratch;
};

bool ed2k_file_link::create_from_ed2k_url(const std::wstring& url) {
  // `url` may be a member of this object, which is written field by field.
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const std::wstring link = url;
  all_fields fields{*this, {}};
  return read_link(link, fields);
}

long parse_ed2k_url_u(const wchar_t* url, size_t length,
                      ed2k_url_info_u* info) {
  if (url == nullptr || info == nullptr) return URL_E_INVALID_ARG;
  if (length > kLongestText) return URL_E_UNSUPPORTED;
  return answer(URL_E_UNSUPPORTED, [&]() -> long {
    RecordFields fields;
    if (!read_link(std::wstring_view(url, length), fields)) {
      return URL_E_UNSUPPORTED;
    }
    write_record(fields, *info);
    return 0;
  });
}
