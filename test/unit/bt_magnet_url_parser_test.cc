#include "url/bt_magnet_url_parser.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "allocation_counter.h"
#include "exact_copy.h"
#include "rows.h"
#include "url/encoders.h"
#include "url/korvane_links.h"

namespace {

using namespace std::string_literals;

using Items = std::vector<std::wstring>;

// Too short to run out of memory over. NOLINTBEGIN(cert-err58-cpp)
const std::wstring kBase16 = L"0123456789abcdef0123456789abcdef01234567";
const std::wstring kBase32 = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH";
const std::wstring kTopic = L"xt=urn:btih:";
const std::wstring kLink = L"magnet:?" + kTopic + kBase16;
constexpr char kHash[] = "0123456789ABCDEF0123456789ABCDEF01234567";
const std::string kPattern(20, '#');
// NOLINTEND(cert-err58-cpp)

std::wstring link_with_hash(const std::wstring& hash) {
  return L"magnet:?" + kTopic + hash;
}
std::wstring link_with(const std::wstring& items) {
  return kLink + L"&" + items;
}

// What parse_magnet_url_u answers and leaves in a buffer full of a pattern.
std::pair<long, std::string> c_answer(const std::wstring& url) {
  const ExactCopy copy{std::wstring_view(url)};
  std::array<unsigned char, 20> hash{};
  hash.fill('#');
  const long code = parse_magnet_url_u(copy.data(), copy.size(), hash.data());
  return {code, {hash.begin(), hash.end()}};
}

struct Parsed {
  explicit Parsed(const std::wstring& url)
      : link(url), valid(link.parse_magnet_url()) {
    // Both skins agree.
    const std::pair<long, std::string> want = {
        valid ? 0 : -1, valid ? link.get_info_hash() : kPattern};
    EXPECT_EQ(c_answer(url), want) << testing::PrintToString(url);
    EXPECT_EQ(link.get_url(), url);
  }
  // Whether it is a link, and its fields other than an info hash of kHash.
  std::wstring description() const {
    std::wostringstream out;
    out << (valid ? "yes" : link.has_info_hash() ? "no, but a hash" : "no");
    if (hash() != kHash) out << " hash=" << hash().c_str();
    if (!link.get_display_name().empty()) {
      out << " name=" << link.get_display_name();
    }
    for (const auto& tracker : link.get_trackers()) out << " tr=" << tracker;
    return out.str();
  }
  std::string hash() const {
    return encode_base16(link.get_info_hash().data(),
                         link.get_info_hash().size());
  }
  bt_magnet_url_parser link;
  bool valid;
};

TEST(MagnetLink, ReadsWhatEachRowWants) {
  for (const Row& row : rows_of("magnet links")) {
    EXPECT_EQ(Parsed(row[0]).description(), wanted(row)) << row[0];
  }
}

TEST(MagnetLink, ABadDigitEndsBase32AndLeavesTheBytesBeforeIt) {
  for (const wchar_t bad : L"1089a=@[ "s) {
    for (std::size_t place = 0; place < 32; ++place) {
      std::wstring hash(32, L'7');
      hash[place] = bad;
      const std::size_t written = place / 8 * 10;
      EXPECT_EQ(Parsed(link_with_hash(hash)).hash(),
                std::string(written, 'F') + std::string(40 - written, '0'));
      // The bytes of an earlier hash stay.
      EXPECT_EQ(Parsed(link_with(kTopic + hash)).hash(),
                std::string(written, 'F') + (kHash + written));
    }
  }
}

TEST(MagnetLink, ABadDigitEndsBase16AndLeavesZerosBehindIt) {
  for (const wchar_t bad : L"/:@GgZz`[{ "s) {
    for (std::size_t place = 0; place < 40; ++place) {
      std::wstring hash(40, place % 2 == 0 ? L'f' : L'F');
      hash[place] = bad;
      const std::size_t written = place / 2 * 2;
      EXPECT_EQ(Parsed(link_with(kTopic + hash)).hash(),
                std::string(written, 'F') + std::string(40 - written, '0'))
          << place;
    }
  }
}

TEST(MagnetLink, DividesWithoutAnEmptyLastItem) {
  for (const Row& row : rows_of("divided")) {
    Items out = {L"old"};
    bt_magnet_url_parser::divide_string(row[0], row[1][0], out);
    EXPECT_EQ(out, Items(row.begin() + 2, row.end())) << row[0];
  }
}

TEST(MagnetLink, TheCFunctionRefusesNullAndAbsurdLengths) {
  std::array<unsigned char, 20> hash{};
  EXPECT_EQ(parse_magnet_url_u(nullptr, 60, hash.data()), -1);
  EXPECT_EQ(parse_magnet_url_u(kLink.data(), std::size_t{1} << 32, hash.data()),
            -1);
  EXPECT_EQ(parse_magnet_url_u(kLink.data(), ~std::size_t{0}, hash.data()), -1);
}

TEST(MagnetLink, TheCFunctionAllocatesNothing) {
  std::wstring long_link = kLink;
  for (int i = 0; i < 1000; ++i) long_link += L"&tr=udp%3A%2F%2Fh%3A80&dn=%20";
  const std::wstring base32 = link_with_hash(kBase32);
  for (const std::wstring& url : {kLink, long_link, base32, L"magnet:?xt=x"s}) {
    std::array<unsigned char, 20> hash{};
    EXPECT_EQ(allocations_of([&] {
                parse_magnet_url_u(url.data(), url.size(), hash.data());
              }),
              0U);
  }
}

TEST(MagnetLink, TheCFunctionFailsWhenMemoryRunsOut) {
  const std::wstring url = L"magnet:?" + kTopic + std::wstring(16, L'\xE9');
  std::array<unsigned char, 20> hash{};
  hash.fill('#');
  const auto call = [&] {
    return parse_magnet_url_u(url.data(), url.size(), hash.data());
  };
  EXPECT_GT(fail_each_allocation(call,
                                 [&](long code) {
                                   EXPECT_EQ(code, -1);
                                   EXPECT_EQ(hash[0], '#');
                                 }),
            0U);
}

TEST(MagnetLink, ReadsManyItems) {
  constexpr std::size_t kMany = 100'000;
  std::wstring url = kLink;
  for (std::size_t i = 0; i < kMany; ++i) url += L"&tr=a";
  const Parsed parsed(url);
  EXPECT_TRUE(parsed.valid);
  EXPECT_EQ(parsed.link.get_trackers().size(), kMany);
}

}  // namespace
