// Reading ed2k links: for the class, which stores every field, and for the C
// function, which only checks the optional ones.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cwchar>
#include <cwctype>
#include <iterator>
#include <list>
#include <optional>
#include <string>
#include <string_view>

#include <korvane/ed2k_file_link.h>
#include <korvane/korvane_links.h>
#include <korvane/transcode.h>
#include "text/ascii.h"
#include "text/decimal.h"
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

using namespace qk::text;
using namespace qk::url;
using namespace std::string_view_literals;
using FileHash = ed2k_file_link::file_hash;
using RootHash = ed2k_file_link::root_hash;

constexpr std::size_t kFileHashDigits = 32;
constexpr std::size_t kRootHashGroups = 4;
constexpr std::uint64_t kLargestFile = std::uint64_t{1} << 50;

// What is read from a link.
struct Fields {
  std::wstring_view name;
  unsigned long size = 0;
  FileHash hash;
  // Where optional fields are stored; null: they are only checked.
  ed2k_file_link* link = nullptr;
  std::list<FileHash>* part_hashes = nullptr;
};

// Moves `rest` past its next piece that is not empty; false if there is none.
bool next_piece(std::wstring_view& rest, std::wstring_view separator,
                std::wstring_view& piece) {
  do {
    if (rest.empty()) return false;
    const std::size_t size = std::min(rest.find(separator), rest.size());
    piece = rest.substr(0, size);
    rest.remove_prefix(std::min(size + separator.size(), rest.size()));
  } while (piece.empty());
  return true;
}

// Scans with "%I64u": up to 64 code units behind white space, with a sign and
// the digits of the locale, into 32 bits.
std::optional<std::uint32_t> scan_number(std::wstring_view text) {
  constexpr std::size_t kMostUnits = 64;
  // Plain digits, as nearly all sizes are, need no scan.
  if (const auto value = decimal_value(text.substr(0, kMostUnits))) {
    return static_cast<std::uint32_t>(*value);
  }
  while (!text.empty() &&
         std::iswspace(static_cast<std::wint_t>(text[0])) != 0) {
    text.remove_prefix(1);
  }
  wchar_t units[kMostUnits + 1] = {};
  text.copy(units, kMostUnits);
  unsigned number;
  if (std::swscanf(units, L"%I64u", &number) != 1) return std::nullopt;
  return number;
}

// Quirk: only the low 32 bits are read. The high ones are not changed; without
// a number none are.
void read_size(std::wstring_view text, unsigned long& size) {
  const std::optional<std::uint32_t> low_bits = scan_number(text);
  if (low_bits) size = size >> 32 << 32 | *low_bits;
}

// Ignores what is behind the 32 digits.
std::optional<FileHash> decode_file_hash(std::wstring_view digits) {
  FileHash hash;
  const std::size_t size = hash.octets.size();
  if (digits.size() < kFileHashDigits ||
      decode_base16_pairs(kBase16Values, digits.data(), size,
                          hash.octets.data()) != size) {
    return std::nullopt;
  }
  return hash;
}

// The text must have 32 bytes when it is narrow: digits alone.
bool read_file_hash(std::wstring_view text, FileHash& hash) {
  const std::optional<FileHash> decoded = decode_file_hash(text);
  if (!decoded) return false;
  std::wstring bytes;
  if (text.size() != kFileHashDigits &&
      narrow_bytes(text, bytes).size() != kFileHashDigits) {
    return false;
  }
  hash = *decoded;
  return true;
}

// Ignores what is behind the 32 digits.
bool read_root_hash(std::wstring_view digits, const Fields& fields) {
  if (digits.size() < kRootHashGroups * kBase32GroupDigits) return false;
  RootHash hash;
  const std::size_t groups = decode_base32_groups(
      kBase32Values, digits.data(), kRootHashGroups, hash.octets.data());
  if (groups != kRootHashGroups) return false;
  if (fields.link != nullptr) fields.link->set_root_hash(hash);
  return true;
}

bool read_part_hashes(std::wstring_view field, const Fields& fields) {
  std::size_t key_size = 2;
  std::wstring_view item;
  while (next_piece(field, L":"sv, item)) {
    item.remove_prefix(std::min(key_size, item.size()));
    key_size = 0;  // only the first has one
    const std::optional<FileHash> hash = decode_file_hash(item);
    if (!hash) return false;
    if (fields.part_hashes != nullptr) fields.part_hashes->push_back(*hash);
  }
  return true;
}

// Scans with "%i", and keeps 16 bits.
std::uint16_t read_port(const std::string& text) {
  return static_cast<std::uint16_t>(std::strtol(text.c_str(), nullptr, 0));
}

bool read_sources(std::wstring_view field, const Fields& fields) {
  std::wstring bytes;
  std::wstring_view rest = narrow_bytes(field, bytes);
  std::wstring_view item;
  next_piece(rest, L","sv, item);  // the word "sources"
  while (next_piece(rest, L","sv, item)) {
    const auto colon = std::find(item.begin(), item.end(), L':');
    if (colon == item.end()) return false;
    if (fields.link != nullptr) {
      fields.link->add_source({item.begin(), colon},
                              read_port({colon + 1, item.end()}));
    }
  }
  return true;
}

// The letter before a "=", anywhere in `field`; zero if there is none. Quirk:
// so a web address with "p=" in its query is read as part hashes.
wchar_t key_of(std::wstring_view field) {
  wchar_t key = L'\0';
  std::size_t sign = field.find(L'=', 1);
  while (sign != field.npos) {
    const wchar_t letter = to_lower_ascii(field[sign - 1]);
    const bool is_key = letter == L'h' || letter == L'p' || letter == L's';
    // They count in this order.
    if (is_key && (key == L'\0' || letter < key)) key = letter;
    sign = field.find(L'=', sign + 1);
  }
  return key;
}

bool read_optional_field(std::wstring_view field, const Fields& fields) {
  const std::wstring_view text = until_zero(field);
  const wchar_t key = key_of(text);
  if (key == L'h') return read_root_hash(field.substr(2), fields);
  if (key == L'p') return read_part_hashes(field, fields);
  if (key == L's') {
    if (fields.link != nullptr) {
      fields.link->set_http_url(std::wstring(field.substr(2)));
    }
    return true;
  }
  return !contains_nocase(text, "sources,"sv) || read_sources(text, fields);
}

// Valid UTF-8 needs no converter.
std::wstring decode_bytes(std::wstring_view bytes) {
  const std::string utf8(bytes.begin(), bytes.end());
  std::wstring wide;
  if (!decode_utf8(utf8, wide)) {
    transcode::UTF8_to_Unicode(utf8.data(), static_cast<unsigned>(utf8.size()),
                               wide);
  }
  return wide;
}

// Of the characters that file names must not contain, white space stays.
bool is_forbidden(wchar_t unit) {
  return is_one_of(unit, kIllegal) && unit > L' ';
}

// Decodes a name and replaces forbidden characters; the result is a view of
// `name` or of `scratch`. Quirk: a name without escapes, one with characters
// beyond ASCII, and one that decodes to nothing are returned as they are.
std::wstring_view decode_name(std::wstring_view name, ScratchText& scratch) {
  if (name.find(L'%') == name.npos || !is_ascii(name)) return name;
  wchar_t* const begin = scratch.reserve(name.size());
  const wchar_t* const end =
      percent_decode(name, begin, [](wchar_t& unit, bool /*is_percent*/) {
        if (is_forbidden(unit)) unit = L'_';
      });
  std::wstring_view decoded(begin, static_cast<std::size_t>(end - begin));
  decoded = until_zero(decoded);
  if (!is_ascii(decoded)) decoded = scratch.hold(decode_bytes(decoded));
  return decoded.empty() ? name : decoded;
}

// Writes to `fields` as it reads: after an invalid field they hold those before
// it. The name is a view of `url` or of `scratch`.
bool read_link(std::wstring_view url, Fields& fields, ScratchText& scratch) {
  // Quirk: escaped separators count only in a link without a plain one, and
  // only in upper case.
  const std::wstring_view separator =
      url.find(L'|') == url.npos ? L"%7C"sv : L"|"sv;
  std::wstring_view pieces[5];
  for (std::wstring_view& piece : pieces) {
    if (!next_piece(url, separator, piece)) return false;
  }
  const auto& [scheme, kind, name, size, hash] = pieces;
  if (!begins_with_nocase(scheme, "ed2k://"sv)) return false;
  if (!begins_with_nocase(kind, "file"sv)) return false;
  fields.name = name;
  read_size(size, fields.size);
  if (fields.size == 0 || fields.size > kLargestFile) return false;
  if (!read_file_hash(hash, fields.hash)) return false;
  std::wstring_view field;
  while (next_piece(url, separator, field)) {
    if (!read_optional_field(field, fields)) return false;
  }
  fields.name = decode_name(name, scratch);
  return true;
}

}  // namespace

bool ed2k_file_link::create_from_ed2k_url(const std::wstring& url) {
  // `url` may be a member of this object.
  // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
  const std::wstring text = url;
  ScratchText scratch;
  Fields fields{file_name_, file_size_, file_hash_, this, &part_hashes_};
  const bool is_link = read_link(text, fields, scratch);
  file_name_ = fields.name;
  file_size_ = fields.size;
  file_hash_ = fields.hash;
  return is_link;
}

long parse_ed2k_url_u(const wchar_t* url, size_t length,
                      ed2k_url_info_u* info) {
  if (url == nullptr || info == nullptr) return URL_E_INVALID_ARG;
  if (is_too_long(length)) return URL_E_UNSUPPORTED;
  const std::wstring_view link(url, length);
  return without_exceptions(URL_E_UNSUPPORTED, [&]() -> long {
    ScratchText scratch;
    Fields fields;
    if (!read_link(link, fields, scratch)) return URL_E_UNSUPPORTED;
    info->size = static_cast<double>(fields.size);
    const std::size_t name_size =
        until_zero(fields.name).copy(info->name, ED2K_NAME_CAPACITY - 1);
    // No stale units behind the terminator.
    std::fill(info->name + name_size, std::end(info->name), L'\0');
    std::copy(fields.hash.octets.begin(), fields.hash.octets.end(), info->hash);
    return 0;
  });
}
