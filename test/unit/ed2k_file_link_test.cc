#include <korvane/ed2k_file_link.h>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "unit_test.h"

const Text kFile = L"ed2k://|file|";
const Text kHash = L"0123456789ABCDEF0123456789ABCDEF";
const Text kLink = kFile + L"a|100|" + kHash + L"|";
const Text kRoot = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRlh";
const Text kZeros(32, L'0');

// Whether `url` is a link, and the fields that differ from those of kLink.
static Text parsed(const Text& url) {
  ed2k_file_link link(L"-", 0, {});
  Text fields = link.create_from_ed2k_url(url) ? L"yes" : L"no";
  const auto add = [&fields](const Text& value, const Text& usual) {
    if (value != usual) fields += L" " + value;
  };
  const auto digits_of = [](const auto& hash) {
    return string_2_wstring(
        encode_base16(hash.octets.data(), hash.octets.size()));
  };
  add(link.get_file_name(), L"a");
  add(std::to_wstring(link.get_file_size()), L"100");
  add(digits_of(link.get_file_hash()), kHash);
  add(L"h=" + digits_of(link.get_root_hash()), L"h=" + Text(40, L'0'));
  for (const auto& hash : link.get_part_hash()) add(digits_of(hash), L"");
  add(L"s=" + link.get_http_url(), L"s=");
  for (const auto& [host, port] : link.get_source_list()) {
    add(string_2_wstring(host) + L":" + std::to_wstring(port), L"");
  }
  return fields;
}

TEST(ed2k_file_link, HasFivePieces) {
  EXPECT_EQ(parsed(L"||ED2K://x||FiLeX|a||100|" + kHash + L"||/|"), L"yes");
  // Escaped separators count without a plain one only.
  const Text escaped = L"ed2k://%7C%7Cfile%7Ca%%7C7%7C" + kHash;
  EXPECT_EQ(parsed(escaped + L"%7C/%7Csources,b:1%7C/"), L"yes a% 7 b:1");
  const Text end = L"|a|100|" + kHash;
  for (const Text& none : {kFile + L"a|100|", L"ed2\x212A://|file" + end,
                           L"ed2k://|fil" + end, escaped + L"|"}) {
    EXPECT_EQ(parsed(none), L"no - 0 " + kZeros);
  }
  // What was read before a fault is kept.
  EXPECT_EQ(parsed(kFile + L"n%41|5|" + kHash + L"|h=x"), L"no n%41 5");
}

TEST(ed2k_file_link, ReadsTheLowHalfOfTheSize) {
  const auto sized = [](const Text& size) {
    return parsed(kFile + L"a|" + size + L"|" + kHash);
  };
  for (const Text none : {L"4294967296", L"0x10", L"- 5", L"\x80000035"}) {
    EXPECT_EQ(sized(none), L"no 0 " + kZeros);
  }
  EXPECT_EQ(sized(L"184467440737095516160"), L"yes 4294967295");
  EXPECT_EQ(sized(L" \t\n-5x"), L"yes 4294967291");
  // 64 code units behind white space.
  EXPECT_EQ(sized(L"+" + Text(62, L'0') + L"12"), L"yes 1");
  EXPECT_EQ(sized(Text(100, L' ') + L"12\0003"s), L"yes 12");
  // The high half stays; the whole is checked.
  ed2k_file_link link(L"", 0x4000000000009, {});
  EXPECT_TRUE(link.create_from_ed2k_url(kFile + L"a|0|" + kHash));
  EXPECT_FALSE(link.create_from_ed2k_url(kFile + L"a|1|" + kHash));
  EXPECT_EQ(link.get_file_size(), 0x4000000000001U);
}

TEST(ed2k_file_link, FileHashHas32Digits) {
  const Text begin = kFile + L"a|100|" + Text(31, L'f');
  EXPECT_EQ(parsed(begin + L":\0F"s), L"yes " + Text(31, L'F') + L"9");
  for (const Text bad : {L"", L"FF", L"G", L"\x80000046", L"\x146"}) {
    EXPECT_EQ(parsed(begin + bad), L"no " + kZeros);
  }
}

TEST(ed2k_file_link, OptionalFieldsHaveTheirKeyAnywhere) {
  EXPECT_EQ(parsed(kLink + L"XX" + kRoot + L"AAAAAAAAp=H=|h-|\0h="s),
            L"yes h=" + kHash + L"01234567");
  EXPECT_EQ(parsed(kLink + L"h=1" + kRoot.substr(1)), L"no");
  EXPECT_EQ(parsed(kLink + L"P=" + kHash + L"FFG::" + kZeros + L"\0:p="s),
            L"no " + kHash + L" " + kZeros);
  EXPECT_EQ(parsed(kLink + L"s=http://host/a?p=1"), L"no");
  EXPECT_EQ(parsed(kLink + L"sources,|s=a|S=中a=\xD800\0p=1"s),
            L"yes s=中a=\xD800\0p=1"s);
}

TEST(ed2k_file_link, CollectsSources) {
  EXPECT_EQ(parsed(kLink + L"unknown,x|SOURCES,,b:c:1,|xsources,\x80:1\0,b"s),
            L"yes b:0 \x80:1");
  EXPECT_EQ(parsed(kLink + L"sources,a:1,b\xD800:2,c:3"), L"no a:1");
  // Ports are read like numbers in C, and are 16 bits.
  EXPECT_EQ(parsed(kLink + L"sources,a:0x1F,b: -1x,c:65537,d:,e:9999999999999"),
            L"yes a:31 b:65535 c:1 d:0 e:40959");
}

TEST(ed2k_file_link, DecodesAndCleansNamesWithEscapes) {
  const auto name = [](const Text& text) {
    return parsed(kFile + text + L"|100|" + kHash).substr(4);
  };
  EXPECT_EQ(name(L"b:.txt"), L"b:.txt");
  EXPECT_EQ(name(L"<>:\"/\\?*%3C%3E%3A%22%2F%5C%7C%3F%2A"), Text(17, L'_'));
  EXPECT_EQ(name(L"%E4%B8%AD%f4%90%80%80x"), L"中\x110000\x78");
  EXPECT_EQ(name(L"b:%C3%A4%00c"), L"b_ä");
  EXPECT_EQ(name(L"%00b:c") + name(L"%80"), L"%00b:c%80");
  EXPECT_EQ(name(L"a\x80:%41"), L"a\x80:%41");
  EXPECT_EQ(name(L"b%4:%2541%\0%41"s), L"b%4_%41%");
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
  const Text begin = kFile + L"|\x1F600|18446744073709551615|AB" + zeros + L"|";
  Text wide = L"old";
  EXPECT_TRUE(link.get_ed2k_url(wide, 1));
  EXPECT_EQ(wide, begin + L"h=7" + Text(31, L'A') + L"|/");
  std::string narrow = "old";
  EXPECT_TRUE(link.get_ed2k_url(narrow, 14));
  EXPECT_TRUE(link.get_ed2k_url(wide, 14));
  EXPECT_EQ(wide, begin + L"p=01" + zeros + L":02" + zeros +
                      L"|s=u?%ä|/|sources,1.2.3.4:4662,中:65535|/");
  EXPECT_EQ(narrow, wstring_2_utf8(wide));
  // Lists are added to.
  link.set_file_size(0);
  EXPECT_TRUE(link.create_from_ed2k_url(kLink + L"sources,a:1|p=" + kHash));
  EXPECT_EQ(link.get_part_hash().size() + link.get_source_list().size(), 6U);
}

TEST(ed2k_file_link, StringReplaceContinuesAfterWhatItPutIn) {
  const auto replaced = [](Text text, const Text& from, const Text& to) {
    ed2k_file_link::string_replace(text, from, to);
    return text;
  };
  EXPECT_EQ(replaced(L"a|b||%7c", L"|", L"%7C|"), L"a%7C|b%7C|%7C|%7c");
  EXPECT_EQ(replaced(L"ab", L"", L"-"), L"-a-b-");
  Bytes narrow = "a|";
  ed2k_file_link::string_replace(narrow, "|", "%7C");
  EXPECT_EQ(narrow, "a%7C");
}
