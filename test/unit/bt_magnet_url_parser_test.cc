#include <korvane/bt_magnet_url_parser.h>

#include <vector>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "table.h"

namespace {

const Text kHash = L"0123456789ABCDEF0123456789ABCDEF01234567";
const Text kBase32 = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH";
const Text kTopic = L"xt=urn:btih:";
const Text kLink = L"magnet:?" + kTopic;

// Whether it is a link, or has a hash if not; then its fields.
Text read(const Text& url) {
  bt_magnet_url_parser link(url);
  Text fields = link.parse_magnet_url() ? L"yes"
                : link.has_info_hash()  ? L"hash"
                                        : L"no";
  EXPECT_EQ(link.get_url(), url);
  const std::string& bytes = link.get_info_hash();
  const std::string hash = encode_base16(bytes.data(), bytes.size());
  if (kHash != string_2_wstring(hash)) {
    fields += L" " + string_2_wstring(hash);
  }
  if (!link.get_display_name().empty())
    fields += L" " + link.get_display_name();
  for (const Text& tracker : link.get_trackers()) fields += L" tr=" + tracker;
  return fields;
}

TEST(bt_magnet_url_parser, BeginsExactlyAndNeedsAHash) {
  const Table row = [](const Text& url, const Text& want) {
    EXPECT_EQ(read(url), want);
  };
  row(L"magnet:?&&xt.1=urn:btih:" + kHash + L"&&xtt=2&xt,1=3&as=4&ws", L"yes");
  row(kLink + kHash + L"&xt=urn:sha1:x", L"hash");
  row(kLink + kHash + L"&xt.2", L"hash");
  for (const Text& begin :
       {L""s, L"magnet:"s, L"MAGNET:?"s + kTopic, L" magnet:?"s + kTopic,
        L"magnet?:"s + kTopic, L"magnet:?XT=urn:btih:"s,
        L"magnet:?xt=URN:btih:"s, L"magnet:?x="s, L"magnet:?xtx=urn:btih:"s}) {
    row(begin + kHash, L"no ");
  }
  // What was read before a fault is kept; the last hash wins.
  row(L"magnet:?tr=a&dn=b&xt=&tr=c", L"no  b tr=a");
  row(kLink + Text(40, L'e') + L"&" + kTopic + kBase32, L"yes");
  row(kLink + kHash + L"&" + kTopic + Text(8, L'7') + Text(24, L'8'),
      L"yes FFFFFFFFFFABCDEF0123456789ABCDEF01234567");
  row(kLink + kHash + L"&" + kTopic + Text(39, L'f') + L"z",
      L"yes " + Text(38, L'F') + L"00");
}

TEST(bt_magnet_url_parser, HashesHave32Or40Characters) {
  const Table row = [](const Text& digits, const Text& want) {
    EXPECT_EQ(read(kLink + digits), want);
  };
  row(L"0123456789abcdef0123456789abcdef01234567\0x"s, L"yes");
  row(kBase32 + L"\xD800", L"yes");
  for (const std::size_t size : {0, 31, 33, 39, 41}) {
    row(Text(size, L'A'), L"hash ");
  }
  // A bad digit ends base32 at its group and base16 at its byte.
  row(Text(24, L'7') + L"7777777a", L"yes " + Text(30, L'F') + Text(10, L'0'));
  row(Text(24, L'7') + Text(4, L'é'),
      L"yes " + Text(30, L'F') + Text(10, L'0'));
  row(Text(21, L'f') + Text(19, L'g'),
      L"yes " + Text(20, L'F') + Text(20, L'0'));
  row(Text(20, L'é'), L"yes " + Text(40, L'0'));
}

TEST(bt_magnet_url_parser, DecodesNamesOnceAndTrackersTwice) {
  const Table row = [](const Text& items, const Text& want) {
    EXPECT_EQ(read(kLink + kHash + L"&" + items), L"yes" + want);
  };
  row(L"dn=a%20%252F%E4%00%4\xD800"s, L" a %2F\xE4\0%4\xD800"s);
  row(L"dn=a&dn.1=b&dn.=c=d", L" c=d");
  row(L"dn&tr", L" dn tr=tr");
  row(L"dn=&DN=a&dnx=b&d=c&TR=d&trr=e&t=f", L"");
  row(L"tr=udp%3A%2F%2Fh%3A80&tr.1==", L" tr=udp://h:80 tr==");
  row(L"tr=%252F%2541%25&tr=x%25%34%31&tr=", L" tr=%2FA% tr=xA tr=");
  row(L"tr=" + Text(2000, L'n') + L"%2541&tr=%2525",
      L" tr=" + Text(2000, L'n') + L"A tr=%");
}

TEST(bt_magnet_url_parser, DivideStringHasNoEmptyLastItem) {
  const Table row = [](const Text& text, const std::vector<Text>& want) {
    std::vector<Text> items = {L"old"};
    bt_magnet_url_parser::divide_string(text, L'&', items);
    EXPECT_EQ(items, want);
  };
  row(L"", {});
  row(L"&&a\0|b&"s, {L"", L"", L"a\0|b"s});
  row(L"a&b", {L"a", L"b"});
}

}  // namespace
