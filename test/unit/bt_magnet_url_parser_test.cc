#include <korvane/bt_magnet_url_parser.h>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "unit_test.h"

const Text kHash = L"0123456789ABCDEF0123456789ABCDEF01234567";
const Text kLink = L"magnet:?xt=urn:btih:";

// Whether `url` is a link, or has a hash if not; then the fields besides kHash.
static Text parsed(const Text& url) {
  bt_magnet_url_parser link(url);
  Text fields = link.parse_magnet_url() ? L"yes"
                : link.has_info_hash()  ? L"hash"
                                        : L"no";
  const Bytes& bytes = link.get_info_hash();
  const Text hash = string_2_wstring(encode_base16(bytes.data(), bytes.size()));
  if (kHash != hash) fields += L" " + hash;
  const Text& name = link.get_display_name();
  if (!name.empty()) fields += L" " + name;
  for (const Text& tracker : link.get_trackers()) fields += L" tr=" + tracker;
  return fields;
}

TEST(bt_magnet_url_parser, BeginsExactlyAndNeedsAHash) {
  EXPECT_EQ(parsed(L"magnet:?&xt.1=urn:btih:" + kHash + L"&xt,1&ws"), L"yes");
  EXPECT_EQ(parsed(kLink + kHash + L"&xt.2"), L"hash");
  EXPECT_EQ(parsed(L"magnet:?tr=a&dn=b&xt=&tr=c"), L"no  b tr=a");
  EXPECT_EQ(parsed(L"MAGNET:?xt=urn:btih:" + kHash), L"no ");
  EXPECT_EQ(parsed(L"magnet:?xt=URN:btih:" + kHash), L"no ");
}

TEST(bt_magnet_url_parser, HashesHave32Or40Characters) {
  for (const Text& hash : {L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH\xD800"s,
                           L"0123456789abcdef0123456789abcdef01234567\0x"s}) {
    EXPECT_EQ(parsed(kLink + hash), L"yes");
  }
  for (const std::size_t size : {0U, 31U, 33U, 39U, 41U}) {
    EXPECT_EQ(parsed(kLink + Text(size, L'A')), L"hash ") << size;
  }
  // The last hash wins: base32 up to the group of a bad digit, base16 whole.
  const Text two = kLink + kHash + L"&xt=urn:btih:";
  EXPECT_EQ(parsed(two + Text(8, L'7') + Text(24, L'a')),
            L"yes FFFFFFFFFFABCDEF0123456789ABCDEF01234567");
  EXPECT_EQ(parsed(two + Text(39, L'f') + L"g"),
            L"yes " + Text(38, L'F') + L"00");
}

TEST(bt_magnet_url_parser, DecodesNamesOnceAndTrackersTwice) {
  const Text link = kLink + kHash + L"&";
  EXPECT_EQ(parsed(link + L"dn=%252F%E4%00%4\xD800"), L"yes %2Fä\0%4\xD800"s);
  EXPECT_EQ(parsed(link + L"dn&dn.=ctr=d&DN=a&dnx=b&t=f&tr"),
            L"yes ctr=d tr=tr");
  const Text name(2000, L'n');
  EXPECT_EQ(parsed(link + L"tr=%252F%2541%25&tr.1=x%25%34%31&tr=" + name),
            L"yes tr=%2FA% tr=xA tr=" + name);
}

TEST(bt_magnet_url_parser, DivideStringHasNoEmptyLastItem) {
  std::vector<Text> items = {L"old"};
  bt_magnet_url_parser::divide_string(L"&&a\0|b&"s, L'&', items);
  EXPECT_EQ(items, (std::vector<Text>{L"", L"", L"a\0|b"s}));
}
