#include <korvane/ed2k_file_link.h>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "table.h"

const Text kFile = L"ed2k://|file|";
const Text kHash = L"0123456789ABCDEF0123456789ABCDEF";
const Text kLink = kFile + L"a|100|" + kHash + L"|";
const Text kRoot = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH";
const Text kZeros(32, L'0');

template <typename Hash>
static Text digits_of(const Hash& hash) {
  return string_2_wstring(encode_base16(&hash.octets[0], hash.octets.size()));
}

// Whether `url` is a link, and the fields that differ from those of kLink.
static Text fields_of(const Text& url) {
  ed2k_file_link link(L"-", 0, {});
  Text fields = link.create_from_ed2k_url(url) ? L"yes" : L"no";
  const auto add = [&fields](const Text& value, const Text& usual) {
    if (value != usual) fields += L" " + value;
  };
  add(link.get_file_name(), L"a");
  add(std::to_wstring(link.get_file_size()), L"100");
  add(digits_of(link.get_file_hash()), kHash);
  add(L"h=" + digits_of(link.get_root_hash()), L"h=" + Text(40, L'0'));
  for (const auto& hash : link.get_part_hash()) {
    fields += L" p=" + digits_of(hash);
  }
  add(L"s=" + link.get_http_url(), L"s=");
  for (const auto& [host, port] : link.get_source_list()) {
    fields += L" " + string_2_wstring(host) + L":" + std::to_wstring(port);
  }
  return fields;
}

const Table row = [](const Text& url, const Text& want) {
  EXPECT_EQ(fields_of(url), want);
};

TEST(ed2k_file_link, HasFivePieces) {
  row(kLink, L"yes");
  row(L"||ED2K://x||FiLeX|a||100|" + kHash + L"||/|", L"yes");
  // Escaped separators count without a plain one only.
  const Text escaped = L"ed2k://%7C%7Cfile%7Ca%%7C7%7C" + kHash;
  row(escaped + L"%7C/%7Csources,b:1%7C/", L"yes a% 7 b:1");
  const Text end = L"|a|100|" + kHash;
  for (const Text& none :
       {L""s, kFile + L"a|100|", L"ed2k:/x|file" + end, L"xed2k://|file" + end,
        L"ed2\x212A://|file" + end, L"ed2k://|xfile" + end,
        L"ed2k://|fil" + end, L"ed2k:|file" + end, escaped + L"|",
        L"ed2k://%7cfile%7ca%7c7%7c" + kHash}) {
    row(none, L"no - 0 " + kZeros);
  }
}

TEST(ed2k_file_link, ReadsTheLowHalfOfTheSize) {
  const auto link_with = [](const Text& size) {
    return kFile + L"a|" + size + L"|" + kHash;
  };
  for (const Text none :
       {L"0", L"4294967296", L"0x10", L"abc", L" ", L"- 5", L"\x80000035"}) {
    row(link_with(none), L"no 0 " + kZeros);
  }
  row(link_with(L"4294967297\0002"s), L"yes 1");
  row(link_with(L"18446744073709551616"), L"yes 4294967295");
  row(link_with(L"-5x"), L"yes 4294967291");
  row(link_with(L" \t\n+010\xD800"), L"yes 10");
  row(link_with(L"+" + Text(62, L'0') + L"12"), L"yes 1");  // of 64 units
  row(link_with(Text(100, L' ') + L"12"), L"yes 12");
  // The high half stays; the whole is checked.
  ed2k_file_link link(L"", 0x4000000000009, {});
  EXPECT_TRUE(link.create_from_ed2k_url(link_with(L"0")));
  EXPECT_FALSE(link.create_from_ed2k_url(link_with(L"1")));
  EXPECT_EQ(link.get_file_size(), 0x4000000000001U);
  EXPECT_FALSE(link.create_from_ed2k_url(link_with(L"x")));
  EXPECT_EQ(link.get_file_size(), 0x4000000000001U);
}

TEST(ed2k_file_link, FileHashHas32Digits) {
  const Text begin = kFile + L"a|100|" + Text(31, L'F');
  row(kFile + L"a|100|0123456789abcdef0123456789abcdeF", L"yes");
  row(begin + L":", L"yes " + Text(31, L'F') + L"9");
  row(begin + L"F\0F"s, L"yes " + Text(32, L'F'));
  for (const Text& bad : {L""s, L"FF"s, L"G"s, L"/"s, L"\xE9"s, L"\0F"s,
                          L"\x80000046"s, L"\x146"s}) {
    row(begin + bad, L"no " + kZeros);
  }
}

TEST(ed2k_file_link, OptionalFieldsHaveTheirKeyAnywhere) {
  const Text root = L" h=" + kHash + L"01234567";
  const Text part = L" p=" + kHash;
  row(kLink + L"XX" + kRoot + L"\xE9H=", L"yes" + root);
  row(kLink + L"h=aerukz4jvpg66ajdivtytk6n54asgrlhp=|h=x", L"no" + root);
  for (const Text bad : {L"h=", L"xh=A", L"h=1", L"h=\xE9"}) {
    row(kLink + bad + kRoot.substr(1), L"no");
  }
  row(kLink + L"=h|h-" + kRoot + L"|\0h="s, L"yes");
  row(kLink + L"P=" + kHash + L"G::" + kZeros + L"\0:"s + kHash,
      L"yes" + part + L" p=" + kZeros + part);
  row(kLink + L":p=" + kHash + L"|p=" + kHash.substr(1), L"no" + part);
  row(kLink + L"p=", L"no");
  row(kLink + L"s=http://host/a?p=1", L"no");
  row(kLink + L"s=a|S=中\xD800\0p=1"s, L"yes s=中\xD800\0p=1"s);
  row(kLink + L"sources,s=1", L"yes s=urces,s=1");
}

TEST(ed2k_file_link, CollectsSources) {
  row(kLink + L"SOURCES,1.2.3.4:4662,,b:c:1,", L"yes 1.2.3.4:4662 b:0");
  row(kLink + L"xsources,a:1\0,b|,sources,\x80\x4E2D:2"s,
      L"yes a:1 \x80\x4E2D:2");
  row(kLink + L"sources|sources,|sourc\0es,a"s, L"yes");
  row(kLink + L"sources,a:1,b\xD800:2,c:3", L"no a:1");
  // Ports are read like numbers in C, and are 16 bits.
  row(kLink +
          L"sources,a:0x1F,b:010,c: -1x,d:65537,e:f,g:,h:9223372036854775808",
      L"yes a:31 b:8 c:65535 d:1 e:0 g:0 h:65535");
}

TEST(ed2k_file_link, DecodesAndCleansNamesWithEscapes) {
  const Text end = L"|100|" + kHash;
  row(kFile + L"b:.txt" + end, L"yes b:.txt");
  row(kFile + L"<>:\"/\\?*%3C%3E%3A%22%2F%5C%7C%3F%2A" + end,
      L"yes " + Text(17, L'_'));
  row(kFile + L"%09%0A%0D;=%7E%20\x7F" + end, L"yes \t\n\r;=~ \x7F");
  row(kFile + L"%E4%B8%AD%f4%90%80%80x" + end, L"yes 中\x110000\x78");
  row(kFile + L"b:%C3%A4%E4%B8x" + end, L"yes b_ä");
  row(kFile + L"b:%00c" + end, L"yes b_");
  row(kFile + L"%00b:c" + end, L"yes %00b:c");
  row(kFile + L"%FF:b" + end, L"yes %FF:b");
  row(kFile + L"%4:%2541%" + end, L"yes %4_%41%");
  row(kFile + L"b\0:%41"s + end, L"yes b");
}

TEST(ed2k_file_link, KeepsWhatItReadBeforeAFault) {
  ed2k_file_link link(L"old", 9, {{{7}}});
  EXPECT_FALSE(link.create_from_ed2k_url(kFile + L"n|5"));
  EXPECT_EQ(link.get_file_name(), L"old");
  EXPECT_FALSE(link.create_from_ed2k_url(kFile + L"n%41|5|x"));
  EXPECT_EQ(link.get_file_name(), L"n%41");
  EXPECT_EQ(link.get_file_size(), 5U);
  EXPECT_EQ(link.get_file_hash().octets[0], 7);
  link.set_http_url(kFile + L"long%20enough%20name|5|" + kHash + L"|h=x");
  EXPECT_FALSE(link.create_from_ed2k_url(link.get_http_url()));
  EXPECT_EQ(link.get_file_name(), L"long%20enough%20name");
  EXPECT_EQ(link.get_file_hash().octets[0], 1);
}

TEST(ed2k_file_link, PrintsTheFieldsThatTheFlagsName) {
  ed2k_file_link link(L"", ~0UL, {{{0xAB}}});
  link.set_file_name(L"|\x1F600");
  link.set_root_hash({{{0xF8}}});
  EXPECT_TRUE(link.get_root_hash() != ed2k_file_link::root_hash());
  link.set_part_hash({{{{1}}}, {{{2}}}});
  link.set_http_url(L"u?%ä");
  link.add_source("1.2.3.4", 4662);
  link.add_source("\xE4\xB8\xAD", 65535);
  const Text zeros(30, L'0');
  const Table prints = [&link, &zeros](unsigned long flags, const Text& want) {
    std::string narrow = "old";
    Text wide = L"old";
    EXPECT_TRUE(link.get_ed2k_url(narrow, flags));
    EXPECT_TRUE(link.get_ed2k_url(wide, flags));
    EXPECT_EQ(wide, kFile + L"|\x1F600|18446744073709551615|AB" + zeros + L"|" +
                        want + L"/");
    EXPECT_EQ(narrow, wstring_2_utf8(wide));
  };
  const Text root = L"h=7" + Text(31, L'A') + L"|";
  const Text parts = L"p=01" + zeros + L":02" + zeros + L"|";
  const Text sources = L"/|sources,1.2.3.4:4662,中:65535|";
  prints(16, L"");
  prints(1, root);
  prints(2, parts);
  prints(12, L"s=u?%ä|" + sources);
  // Lists are added to.
  link.set_file_size(0);
  EXPECT_TRUE(link.create_from_ed2k_url(kLink + parts + sources));
  EXPECT_EQ(link.get_part_hash().size() + link.get_source_list().size(), 8U);
}

TEST(ed2k_file_link, StringReplaceContinuesAfterWhatItPutIn) {
  const Table replaced = [](Bytes text, const Bytes& from, const Bytes& to,
                            const Bytes& want) {
    Text wide(text.begin(), text.end());
    ed2k_file_link::string_replace(wide, {from.begin(), from.end()},
                                   {to.begin(), to.end()});
    EXPECT_EQ(wide, string_2_wstring(want));
    ed2k_file_link::string_replace(text, from, to);
    EXPECT_EQ(text, want);
  };
  replaced("a|b||%7c", "|", "%7C|", "a%7C|b%7C|%7C|%7c");
  replaced("aaa", "aa", "b", "ba");
  replaced("ab", "", "-", "-a-b-");
  replaced("", "", "-", "-");
  replaced("ab", "", "", "ab");
}
