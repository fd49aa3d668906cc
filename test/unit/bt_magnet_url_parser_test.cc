#include <korvane/bt_magnet_url_parser.h>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "table.h"

const Text kHash = L"0123456789ABCDEF0123456789ABCDEF01234567";
const Text kBase32 = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH";
const Text kTopic = L"xt=urn:btih:";
const Text kLink = L"magnet:?" + kTopic;

// Whether `url` is a link, or has a hash if not; then the fields besides kHash.
const Table row = [](const Text& url, const Text& want) {
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
  EXPECT_EQ(fields, want);
  EXPECT_EQ(link.get_url(), url);
};

TEST(bt_magnet_url_parser, BeginsExactlyAndNeedsAHash) {
  row(L"magnet:?&&xt.1=urn:btih:" + kHash + L"&&xtt=2&xt,1=3&as=4&ws", L"yes");
  row(kLink + kHash + L"&xt.2", L"hash");
  for (const Text& begin :
       {L""s, L"magnet:"s, L"MAGNET:?"s + kTopic, L" magnet:?"s + kTopic,
        L"magnet?:"s + kTopic, L"magnet:?XT=urn:btih:"s,
        L"magnet:?xt=URN:btih:"s, L"magnet:?x="s, L"magnet:?xtx=urn:btih:"s}) {
    row(begin + kHash, L"no ");
  }
  // What was read before a fault is kept; the last hash wins.
  row(L"magnet:?tr=a&dn=b&xt=&tr=c", L"no  b tr=a");
  const Text two = kLink + kHash + L"&" + kTopic;
  row(two + Text(8, L'7') + Text(24, L'8'),
      L"yes FFFFFFFFFFABCDEF0123456789ABCDEF01234567");
  row(two + Text(39, L'f') + L"z", L"yes " + Text(38, L'F') + L"00");
}

TEST(bt_magnet_url_parser, HashesHave32Or40Characters) {
  row(kLink + L"0123456789abcdef0123456789abcdef01234567\0x"s, L"yes");
  row(kLink + kBase32 + L"\xD800", L"yes");
  for (const std::size_t size : {0U, 31U, 33U, 39U, 41U}) {
    row(kLink + Text(size, L'A'), L"hash ");
  }
  // A bad digit ends base32 at its group and base16 at its byte.
  const Text groups = L"yes " + Text(30, L'F') + Text(10, L'0');
  row(kLink + Text(24, L'7') + L"7777777a", groups);
  row(kLink + Text(24, L'7') + Text(4, L'é'), groups);
  row(kLink + Text(31, L'f') + Text(9, L'g'), groups);
}

TEST(bt_magnet_url_parser, DecodesNamesOnceAndTrackersTwice) {
  const Text link = kLink + kHash + L"&";
  row(link + L"dn=a%20%252F%E4%00%4\xD800"s, L"yes a %2F\xE4\0%4\xD800"s);
  row(link + L"dn=a&dn.1=b&dn.=c=d&DN=a&dnx=b&TR=d&trr=e&t=f", L"yes c=d");
  row(link + L"dn&tr", L"yes dn tr=tr");
  row(link + L"tr=udp%3A%2F%2Fh%3A80&tr.1==", L"yes tr=udp://h:80 tr==");
  row(link + L"tr=%252F%2541%25&tr=x%25%34%31&tr=", L"yes tr=%2FA% tr=xA tr=");
  const Text name(2000, L'n');
  row(link + L"tr=" + name + L"%2541&tr=%2525", L"yes tr=" + name + L"A tr=%");
}

TEST(bt_magnet_url_parser, DivideStringHasNoEmptyLastItem) {
  std::vector<Text> items = {L"old"};
  bt_magnet_url_parser::divide_string(L"&&a\0|b&"s, L'&', items);
  EXPECT_EQ(items, (std::vector<Text>{L"", L"", L"a\0|b"s}));
  bt_magnet_url_parser::divide_string(L"", L'&', items);
  EXPECT_TRUE(items.empty());
}
