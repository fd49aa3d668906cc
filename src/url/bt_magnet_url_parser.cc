#include <korvane/bt_magnet_url_parser.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include <korvane/korvane_links.h>
#include "text/ascii.h"
#include "url/base_decoding.h"
#include "url/entry_point.h"
#include "url/narrow_text.h"
#include "url/percent_coding.h"
#include "url/text_decoding.h"

namespace {

using namespace qk::url;
using qk::text::begins_with;
using namespace std::string_view_literals;

constexpr std::wstring_view kPrefix = L"magnet:?";
constexpr std::wstring_view kHashPrefix = L"urn:btih:";
constexpr std::size_t kBase16Digits = 2UL * MAGNET_HASH_SIZE;
constexpr std::size_t kBase32Groups = MAGNET_HASH_SIZE / kBase32GroupBytes;
constexpr std::size_t kBase32Digits = kBase32Groups * kBase32GroupDigits;

struct InfoHash {
  std::array<unsigned char, MAGNET_HASH_SIZE> bytes{};
  bool is_found = false;
};

// The parameters of a link; empty if it is no magnet link.
std::wstring_view parameters_of(std::wstring_view url) {
  return begins_with(url, kPrefix) ? url.substr(kPrefix.size()) : L""sv;
}

// Whether the key at the start of `rest` is `name`, or `name` with a number as
// in "tr.1"; if so, moves `rest` to the value. A parameter without "=" is its
// own value.
bool take_key(std::wstring_view& rest, std::wstring_view name) {
  if (!begins_with(rest, name)) return false;
  std::size_t end = name.size();
  if (end < rest.size() && rest[end] == L'.') {
    end = std::min(rest.find_first_of(L"=&", end), rest.size());
  }
  if (end == rest.size() || rest[end] == L'&') return true;
  if (rest[end] != L'=') return false;
  rest.remove_prefix(end + 1);
  return true;
}

// Moves `rest` past its part up to `separator`, and returns that.
std::wstring_view take_part(std::wstring_view& rest, wchar_t separator) {
  const std::size_t size = std::min(rest.find(separator), rest.size());
  const std::wstring_view part = rest.substr(0, size);
  rest.remove_prefix(std::min(size + 1, rest.size()));
  return part;
}

// Decodes the digits up to the first invalid one; false for a wrong number of
// digits. Quirk: the rest of the hash is then zero in base16; in base32 it
// keeps its value from the invalid digit's group of 8 on.
bool decode_hash(std::wstring_view digits, InfoHash& hash) {
  if (digits.size() == kBase32Digits) {
    decode_base32_groups(kUpperBase32Values, digits.data(), kBase32Groups,
                         hash.bytes.data());
  } else if (digits.size() == kBase16Digits) {
    hash.bytes = {};
    decode_base16_pairs(qk::text::kHexValues, digits.data(), MAGNET_HASH_SIZE,
                        hash.bytes.data());
  } else {
    return false;
  }
  return true;
}

// Reads the value of "xt"; false if it makes the link invalid.
bool read_exact_topic(std::wstring_view value, InfoHash& hash) {
  if (!begins_with(value, kHashPrefix)) return false;
  hash.is_found = true;
  std::wstring bytes;
  return decode_hash(narrow_bytes(value.substr(kHashPrefix.size()), bytes),
                     hash);
}

// Takes a value, decoded to `out`; `see` receives each code unit. Finding the
// end on the way takes a seventh less time than searching for it first.
template <typename See>
std::wstring_view take_decoded(std::wstring_view& rest, wchar_t* out, See see) {
  const wchar_t* end = percent_decode_until(
      [](wchar_t unit) { return unit == L'&'; }, rest, out, see);
  if (!rest.empty()) rest.remove_prefix(1);
  return {out, static_cast<std::size_t>(end - out)};
}

// Quirk: a tracker is decoded twice, the second time without the escapes of
// reserved characters.
std::wstring_view take_tracker(std::wstring_view& rest, wchar_t* out) {
  bool has_percent = false;
  const std::wstring_view once = take_decoded(
      rest, out,
      [&](wchar_t unit, bool /*is_percent*/) { has_percent |= unit == L'%'; });
  if (!has_percent) return once;
  const wchar_t* end = percent_decode<Kept::kSeparating>(once, out);
  return {out, static_cast<std::size_t>(end - out)};
}

}  // namespace

bt_magnet_url_parser::bt_magnet_url_parser(std::wstring url)
    : url_(std::move(url)) {}

bool bt_magnet_url_parser::parse_magnet_url() {
  std::wstring_view rest = parameters_of(url_);
  InfoHash hash;
  Scratch<1024> scratch;  // most links are shorter
  wchar_t* const out = scratch.reserve(rest.size());
  while (!rest.empty()) {
    if (take_key(rest, L"tr"sv)) {
      if (trackers_.empty()) trackers_.reserve(8);
      trackers_.emplace_back(take_tracker(rest, out));
    } else if (take_key(rest, L"dn"sv)) {
      display_name_ = take_decoded(rest, out, [](wchar_t, bool) {});
    } else if (!take_key(rest, L"xt"sv)) {
      take_part(rest, L'&');
    } else {
      const bool is_valid = read_exact_topic(take_part(rest, L'&'), hash);
      has_info_hash_ = hash.is_found;
      if (!is_valid) return false;
      info_hash_.assign(hash.bytes.begin(), hash.bytes.end());
    }
  }
  return has_info_hash_;
}

void bt_magnet_url_parser::divide_string(const std::wstring& text,
                                         wchar_t separator,
                                         std::vector<std::wstring>& out) {
  std::wstring_view rest = text;
  std::vector<std::wstring> parts;
  while (!rest.empty()) parts.emplace_back(take_part(rest, separator));
  out = std::move(parts);
}

long parse_magnet_url_u(const wchar_t* url, size_t length,
                        unsigned char* info_hash) {
  if (url == nullptr || is_too_long(length)) return URL_E_UNSUPPORTED;
  return without_exceptions(URL_E_UNSUPPORTED, [&]() -> long {
    std::wstring_view rest = parameters_of({url, length});
    InfoHash hash;
    while (!rest.empty()) {
      const bool is_exact_topic = take_key(rest, L"xt"sv);
      const std::wstring_view value = take_part(rest, L'&');
      if (is_exact_topic && !read_exact_topic(value, hash)) {
        return URL_E_UNSUPPORTED;
      }
    }
    if (!hash.is_found) return URL_E_UNSUPPORTED;
    std::copy(hash.bytes.begin(), hash.bytes.end(), info_hash);
    return 0;
  });
}
