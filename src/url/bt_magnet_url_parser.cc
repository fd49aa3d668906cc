// One reader for the class, which keeps every field, and for the C function,
// which drops all but the info hash undecoded.
#include <korvane/bt_magnet_url_parser.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include <korvane/korvane_links.h>
#include "url/base_decoding.h"
#include "url/entry_point.h"
#include "url/narrow_text.h"
#include "url/percent_coding.h"
#include "url/text_decoding.h"

namespace {

using namespace qk::url;

constexpr std::wstring_view kPrefix = L"magnet:?";
constexpr std::wstring_view kExactTopic = L"xt";
constexpr std::wstring_view kTracker = L"tr";
constexpr std::wstring_view kDisplayName = L"dn";
constexpr std::wstring_view kHashPrefix = L"urn:btih:";
constexpr std::size_t kHashSize = MAGNET_HASH_SIZE;
constexpr std::size_t kBase16Digits = 2 * kHashSize;
constexpr std::size_t kBase32Groups = kHashSize / kBase32GroupBytes;
constexpr std::size_t kBase32Digits = kBase32Groups * kBase32GroupDigits;

// Prefixes are short: a call to compare them costs more than the comparison.
constexpr bool begins_with(std::wstring_view text, std::wstring_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (text[i] != prefix[i]) return false;
  }
  return true;
}

// Moves `rest` past its next part; false when nothing is left, so that a
// separator at the end is not followed by an empty part.
bool next_part(std::wstring_view& rest, wchar_t separator,
               std::wstring_view& part) {
  if (rest.empty()) return false;
  const std::size_t end = std::min(rest.find(separator), rest.size());
  part = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return true;
}

// Whether the key of the first item of `rest`, what stands before its first
// "=", is `name`: "xt" stands for "xt" and for "xt.1", "xt.2", ... If so,
// `rest` goes on behind the "="; an item without one is its own value.
constexpr bool has_key(std::wstring_view& rest, std::wstring_view name) {
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

// Decodes the digits up to the first bad one; false for a wrong number of them.
template <typename Unit, typename Link>
bool decode_info_hash(std::basic_string_view<Unit> digits, Link& link) {
  if (digits.size() == kBase32Digits) {
    decode_base32_groups(kUpperBase32Values, digits.data(), kBase32Groups,
                         link.info_hash());
    return true;
  }
  if (digits.size() != kBase16Digits) return false;
  auto* hash = link.info_hash();
  std::fill_n(hash, kHashSize, '\0');
  decode_base16_pairs(qk::text::kHexValues, digits.data(), kHashSize, hash);
  return true;
}

template <typename Link>
bool read_exact_topic(std::wstring_view value, Link& link) {
  if (!begins_with(value, kHashPrefix)) return false;
  link.put_has_info_hash();
  const std::wstring_view text = value.substr(kHashPrefix.size());
  // What is a hash as it stands is one in every narrow encoding.
  std::array<unsigned char, kHashSize> hash;
  if (text.size() == kBase16Digits &&
      decode_base16_pairs(qk::text::kHexValues, text.data(), kHashSize,
                          hash.data()) == kHashSize) {
    std::copy(hash.begin(), hash.end(), link.info_hash());
    return true;
  }
  return read_narrow(
      text, [&link](auto digits) { return decode_info_hash(digits, link); });
}

// Hands every field to `link` as soon as it is read; false for no link.
template <typename Link>
bool read_link(std::wstring_view url, Link& link) {
  if (!begins_with(url, kPrefix)) return false;
  std::wstring_view rest = url.substr(kPrefix.size());
  while (!rest.empty()) {
    if (has_key(rest, kTracker)) {
      link.take_tracker(rest);
    } else if (has_key(rest, kDisplayName)) {
      link.take_display_name(rest);
    } else {
      const bool is_exact_topic = has_key(rest, kExactTopic);
      std::wstring_view value;
      next_part(rest, L'&', value);
      if (is_exact_topic && !read_exact_topic(value, link)) return false;
    }
  }
  return link.has_info_hash();
}

// What the C function returns: other fields are not even decoded.
struct InfoHash {
  bool has_info_hash() const { return found; }
  void put_has_info_hash() { found = true; }
  unsigned char* info_hash() { return octets.data(); }
  static void take_tracker(std::wstring_view& rest) { skip_value(rest); }
  static void take_display_name(std::wstring_view& rest) { skip_value(rest); }
  static void skip_value(std::wstring_view& rest) {
    std::wstring_view value;
    next_part(rest, L'&', value);
  }

  std::array<unsigned char, kHashSize> octets{};
  bool found = false;
};

}  // namespace

struct bt_magnet_url_parser::all_fields {
  explicit all_fields(bt_magnet_url_parser& parser) : link(parser) {}

  bool has_info_hash() const { return link.has_info_hash_; }
  void put_has_info_hash() { link.has_info_hash_ = true; }
  char* info_hash() {
    link.info_hash_.resize(kHashSize);
    return link.info_hash_.data();
  }
  // Decoded twice (kept: callers rely on it), the second time but for the
  // escapes that keep the parts of the tracker's address apart.
  void take_tracker(std::wstring_view& rest) {
    constexpr std::size_t kUsualTrackers = 8;
    if (link.trackers_.empty()) link.trackers_.reserve(kUsualTrackers);
    bool is_escaped = false;
    std::wstring_view tracker = take_decoded(
        rest, [&is_escaped](wchar_t unit) { is_escaped |= unit == L'%'; });
    if (is_escaped) {
      wchar_t* const begin = scratch.reserve(tracker.size());
      const wchar_t* const end =
          percent_decode<Kept::kSeparating>(tracker, begin);
      tracker = {begin, static_cast<std::size_t>(end - begin)};
    }
    link.trackers_.emplace_back(tracker);
  }
  void take_display_name(std::wstring_view& rest) {
    link.display_name_ = take_decoded(rest, [](wchar_t) {});
  }

  // The first value of `rest`, decoded; a view of `scratch`. In links of usual
  // length its end is found on the way, not in a pass of its own.
  template <typename See>
  std::wstring_view take_decoded(std::wstring_view& rest, See see) {
    const std::wstring_view text =
        rest.size() <= kUsualLength ? rest : rest.substr(0, rest.find(L'&'));
    wchar_t* const begin = scratch.reserve(text.size());
    std::wstring_view left = text;
    const wchar_t* const end = percent_decode_until(
        [](wchar_t unit) { return unit == L'&'; }, left, begin, see);
    const std::size_t read = text.size() - left.size();
    rest.remove_prefix(std::min(read + 1, rest.size()));
    return {begin, static_cast<std::size_t>(end - begin)};
  }

  static constexpr std::size_t kUsualLength = 1024;

  bt_magnet_url_parser& link;
  Scratch<kUsualLength> scratch;
};

bt_magnet_url_parser::bt_magnet_url_parser(std::wstring url)
    : url_(std::move(url)) {}

bool bt_magnet_url_parser::parse_magnet_url() {
  all_fields fields(*this);
  return read_link(url_, fields);
}

void bt_magnet_url_parser::divide_string(const std::wstring& text,
                                         wchar_t separator,
                                         std::vector<std::wstring>& out) {
  std::wstring_view rest = text;
  std::wstring_view part;
  std::vector<std::wstring> parts;
  while (next_part(rest, separator, part)) parts.emplace_back(part);
  out = std::move(parts);
}

long parse_magnet_url_u(const wchar_t* url, size_t length,
                        unsigned char* info_hash) {
  if (url == nullptr || length > kLongestText) return URL_E_UNSUPPORTED;
  return answer(URL_E_UNSUPPORTED, [&]() -> long {
    InfoHash hash;
    if (!read_link(std::wstring_view(url, length), hash)) {
      return URL_E_UNSUPPORTED;
    }
    std::copy(hash.octets.begin(), hash.octets.end(), info_hash);
    return 0;
  });
}
