// Magnet links, against a slow reader.
#include <cstring>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "fuzz.h"
#include "unit/exact_copy.h"

namespace {

using fuzz::require;
using fuzz::require_equal;
using Text = std::wstring;

struct Link {
  Text name;
  std::vector<Text> trackers;
  std::string hash;
  bool has_hash = false;
};

// The values of digits up to one that is none; false if there is one.
template <typename Add>
bool each_digit(const std::string& digits, const std::string& alphabet,
                Add add) {
  for (const char digit : digits) {
    const std::size_t value = alphabet.find(digit);
    if (value == std::string::npos) return false;
    add(static_cast<unsigned>(value));
  }
  return true;
}

void read_base32(const std::string& digits, std::string& hash) {
  hash.resize(MAGNET_HASH_SIZE);
  for (std::size_t group = 0; group < 4; ++group) {
    std::string bits;
    const auto add = [&bits](unsigned value) {
      for (unsigned bit = 16; bit != 0; bit /= 2) {
        bits += (value & bit) != 0 ? '1' : '0';
      }
    };
    if (!each_digit(digits.substr(8 * group, 8), DefaultBase32Map, add)) return;
    for (std::size_t i = 0; i < 5; ++i) {
      hash[5 * group + i] =
          static_cast<char>(std::stoi(bits.substr(8 * i, 8), nullptr, 2));
    }
  }
}

void read_base16(std::string digits, std::string& hash) {
  hash.assign(MAGNET_HASH_SIZE, '\0');
  for (char& digit : digits) {
    if (digit >= 'a' && digit <= 'z') digit -= 32;
  }
  for (std::size_t i = 0; i < hash.size(); ++i) {
    unsigned byte = 0;
    const auto add = [&byte](unsigned value) { byte = byte << 4 | value; };
    if (!each_digit(digits.substr(2 * i, 2), "0123456789ABCDEF", add)) return;
    hash[i] = static_cast<char>(byte);
  }
}

bool is_key(const Text& key, const Text& name) {
  return key == name || key.rfind(name + L'.', 0) == 0;
}

bool read_item(const Text& item, Link& link) {
  const std::size_t equals = item.find(L'=');
  const Text key = item.substr(0, equals);
  const Text value = equals == Text::npos ? item : item.substr(equals + 1);
  if (is_key(key, L"tr")) {
    link.trackers.push_back(url_object::decode(url_object::decode_ex(value)));
  } else if (is_key(key, L"dn")) {
    link.name = url_object::decode_ex(value);
  } else if (is_key(key, L"xt")) {
    if (value.substr(0, 9) != L"urn:btih:") return false;
    link.has_hash = true;
    const std::string digits = wstring_2_string(value.substr(9));
    if (digits.size() != 32 && digits.size() != 40) return false;
    if (digits.size() == 32) read_base32(digits, link.hash);
    if (digits.size() == 40) read_base16(digits, link.hash);
  }
  return true;
}

bool read_slowly(const Text& url, Link& link) {
  if (url.substr(0, 8) != L"magnet:?") return false;
  std::vector<Text> items(1);
  for (const wchar_t unit : url.substr(8)) {
    if (unit != L'&') {
      items.back() += unit;
    } else {
      items.emplace_back();
    }
  }
  if (items.back().empty()) items.pop_back();
  std::vector<Text> divided;
  bt_magnet_url_parser::divide_string(url.substr(8), L'&', divided);
  require(items == divided, "the items");
  for (const Text& item : items) {
    if (!read_item(item, link)) return false;
  }
  return link.has_hash;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text text = fuzz::Input(data, size).text();
  Link link;
  const bool is_link = read_slowly(text, link);
  bt_magnet_url_parser parser(text);
  require(parser.parse_magnet_url() == is_link, "whether it is a link");
  require_equal(link.hash, parser.get_info_hash(), "the info hash");
  require_equal(link.name, parser.get_display_name(), "the name");
  require(link.trackers == parser.get_trackers(), "the trackers");
  require(link.has_hash == parser.has_info_hash(), "whether there is a hash");

  const ExactCopy copy{std::wstring_view(text)};
  unsigned char hash[MAGNET_HASH_SIZE] = {1, 2, 3};
  const long code = parse_magnet_url_u(copy.data(), copy.size(), hash);
  require_equal(is_link ? 0 : URL_E_UNSUPPORTED, code, "the answer");
  unsigned char want[MAGNET_HASH_SIZE] = {1, 2, 3};
  if (is_link) std::memcpy(want, link.hash.data(), link.hash.size());
  require(std::memcmp(want, hash, sizeof want) == 0, "what is written");
  return 0;
}
