#include "url/bt_magnet_url_parser.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "allocation_counter.h"
#include "exact_copy.h"
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
  std::string hash() const {
    return encode_base16(link.get_info_hash().data(),
                         link.get_info_hash().size());
  }
  bt_magnet_url_parser link;
  bool valid;
};

TEST(MagnetLink, IsFreshBeforeItIsParsed) {
  const bt_magnet_url_parser link(kLink);
  EXPECT_EQ(link.get_url(), kLink);
  EXPECT_EQ(link.get_info_hash(), "");
  EXPECT_EQ(link.get_display_name(), L"");
  EXPECT_TRUE(link.get_trackers().empty());
  EXPECT_FALSE(link.has_info_hash());
}

TEST(MagnetLink, BeginsExactlyAndNeedsAnInfoHash) {
  const struct {
    std::wstring url;
    bool valid, has_hash;
  } kCases[] = {
      {kLink, true, true},
      {L"", false, false},
      {L"magnet:", false, false},
      {L"magnet:?", false, false},
      {L"magnet:?&", false, false},
      {L"magnet:?dn=x", false, false},
      {L"MAGNET:?" + kTopic + kBase16, false, false},
      {L"magnet?:" + kTopic + kBase16, false, false},
      {L" " + kLink, false, false},
      {L"magnet:?XT=urn:btih:" + kBase16, false, false},
      {L"magnet:?xt=URN:btih:" + kBase16, false, false},
      {L"magnet:?xt=urn:btih" + kBase16, false, false},
      {L"magnet:?xt=" + kBase16, false, false},
      {L"magnet:?xt", false, false},
      {L"magnet:?xt=", false, false},
      {L"magnet:?xt=urn:btih:", false, true},
      {L"magnet:?&&" + kTopic + kBase16 + L"&&", true, true},
      {kLink + L"&xt=urn:sha1:x", false, true},
      {kLink + L"&xt.2=x", false, true},
      {kLink + L"&x=1&xtt=2&xt,1=3&as=4&ws", true, true},
      {L"magnet:?xt.1=urn:btih:" + kBase16, true, true},
      {L"magnet:?xt.=urn:btih:" + kBase16, true, true},
      {L"magnet:?xtx=urn:btih:" + kBase16, false, false},
      {L"magnet:?x=urn:btih:" + kBase16, false, false},
  };
  for (const auto& test : kCases) {
    const Parsed parsed(test.url);
    EXPECT_EQ(parsed.valid, test.valid) << testing::PrintToString(test.url);
    EXPECT_EQ(parsed.link.has_info_hash(), test.has_hash)
        << testing::PrintToString(test.url);
  }
}

TEST(MagnetLink, ReadsHashesOf32And40CharactersOnly) {
  for (std::size_t length = 0; length <= 48; ++length) {
    const std::wstring hash(length, L'A');
    const Parsed parsed(link_with_hash(hash));
    EXPECT_EQ(parsed.valid, length == 32 || length == 40) << length;
    EXPECT_EQ(parsed.hash(), length == 32   ? std::string(40, '0')
                             : length == 40 ? std::string(40, 'A')
                                            : "");
  }
  const struct {
    std::wstring hash;
    const char* want;
  } kCases[] = {
      {kBase16, kHash},
      {kBase32, kHash},
      {L"0123456789ABCDEF0123456789ABCDEF01234567", kHash},
      {std::wstring(32, L'7'), "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF"},
      // A zero, or what is no character, ends the hash like its end.
      {kBase16 + L'\0' + L"x", kHash},
      {kBase32 + L'\xD800' + L"x", kHash},
      // Sixteen characters of two bytes each: the right length, no digit.
      {std::wstring(16, L'\xE9'), "0000000000000000000000000000000000000000"},
      {std::wstring(20, L'\xE9'), "0000000000000000000000000000000000000000"},
      {std::wstring(8, L'\x1F600'), "0000000000000000000000000000000000000000"},
      {std::wstring(24, L'7') + std::wstring(4, L'\xE9'),
       "FFFFFFFFFFFFFFFFFFFFFFFFFFFFFF0000000000"},
      {std::wstring(33, L'A') + L"\xE9", ""},
      {std::wstring(32, L'\xE9'), ""},
      {std::wstring(31, L'A') + L'\0' + L"A", ""},
  };
  for (const auto& test : kCases) {
    const Parsed parsed(link_with_hash(test.hash));
    EXPECT_EQ(parsed.valid, test.want[0] != 0);
    EXPECT_EQ(parsed.hash(), test.want) << testing::PrintToString(test.hash);
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

TEST(MagnetLink, TheLastHashWins) {
  const std::wstring other(40, L'e');
  EXPECT_EQ(Parsed(kLink + L"&" + kTopic + other).hash(), std::string(40, 'E'));
  EXPECT_EQ(
      Parsed(L"magnet:?" + kTopic + other + L"&" + kTopic + kBase32).hash(),
      kHash);
}

TEST(MagnetLink, DecodesNamesOnceAndTrackersTwice) {
  const struct {
    std::wstring query, name;
    Items trackers;
  } kCases[] = {
      {L"dn=a%20b", L"a b", {}},
      {L"dn=a&dn.1=b&dn.=c", L"c", {}},
      {L"dn", L"dn", {}},
      {L"dn=", L"", {}},
      {L"dn=%E4%B8%AD", L"\xE4\xB8\xAD", {}},
      {L"dn=%252F%2F", L"%2F/", {}},
      {L"dn=\x1F600%20\xD800%4", L"\x1F600 \xD800%4", {}},
      {L"dn=a=b", L"a=b", {}},
      {L"dn=a%00b", L"a\0b"s, {}},
      {L"DN=a&dnx=b&d=c&TR=d&trr=e&t=f", L"", {}},
      {L"tr=udp%3A%2F%2Fhost%3A80", L"", {L"udp://host:80"}},
      {L"tr=a&tr.1=b&tr=a", L"", {L"a", L"b", L"a"}},
      {L"tr", L"", {L"tr"}},
      {L"tr=&tr==", L"", {L"", L"="}},
      {L"tr=%252F%2541%25", L"", {L"%2FA%"}},
      {L"tr=x%25%34%31", L"", {L"xA"}},
      {L"tr=%2525", L"", {L"%"}},
      {L"tr=\x4E2D%E4", L"", {L"\x4E2D\xE4"}},
  };
  for (const auto& test : kCases) {
    const Parsed parsed(link_with(test.query));
    EXPECT_TRUE(parsed.valid);
    EXPECT_EQ(parsed.link.get_display_name(), test.name)
        << testing::PrintToString(test.query);
    EXPECT_EQ(parsed.link.get_trackers(), test.trackers)
        << testing::PrintToString(test.query);
  }
}

TEST(MagnetLink, KeepsWhatItReadBeforeAFault) {
  const Parsed parsed(L"magnet:?tr=a&dn=b&xt=urn:btih:" + kBase16 +
                      L"&tr=c&xt=x&tr=d&dn=e");
  EXPECT_FALSE(parsed.valid);
  EXPECT_EQ(parsed.hash(), kHash);
  EXPECT_EQ(parsed.link.get_display_name(), L"b");
  EXPECT_EQ(parsed.link.get_trackers(), (Items{L"a", L"c"}));
}

TEST(MagnetLink, DividesWithoutAnEmptyLastItem) {
  const struct {
    std::wstring text;
    Items want;
  } kCases[] = {
      {L"", {}},
      {L"a&&b&", {L"a", L"", L"b"}},
      {L"&", {L""}},
      {L"&a", {L"", L"a"}},
      {L"&&", {L"", L""}},
      {L"a", {L"a"}},
      {L"a\0&b"s, {L"a\0"s, L"b"}},
  };
  for (const auto& test : kCases) {
    Items out = {L"old"};
    bt_magnet_url_parser::divide_string(test.text, L'&', out);
    EXPECT_EQ(out, test.want) << testing::PrintToString(test.text);
  }
  Items out;
  bt_magnet_url_parser(L"").divide_string(L"a|b&c", L'|', out);
  EXPECT_EQ(out, (Items{L"a", L"b&c"}));
}

TEST(MagnetLink, TheCFunctionRefusesNullAndAbsurdLengths) {
  std::array<unsigned char, 20> hash{};
  EXPECT_EQ(parse_magnet_url_u(nullptr, 5, hash.data()), -1);
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
