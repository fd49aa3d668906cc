#include <korvane/ed2k_file_link.h>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <cstdio>
#include "table.h"

namespace {

const Text kFile = L"ed2k://|file|";
const Text kHash = L"0123456789ABCDEF0123456789ABCDEF";
const Text kLink = kFile + L"a|100|" + kHash + L"|";
const Text kRoot = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH";
const Text kZeros(32, L'0');

template <typename Hash>
Text digits_of(const Hash& hash) {
  return string_2_wstring(
      encode_base16(hash.octets.data(), hash.octets.size()));
}

// Whether `url` is a link, and the fields that differ from those of kLink.
Text read(const Text& url) {
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
    add(L"p=" + digits_of(hash), L"");
  }
  add(L"s=" + link.get_http_url(), L"s=");
  for (const auto& [host, port] : link.get_source_list()) {
    add(string_2_wstring(host) + L":" + std::to_wstring(port), L"");
  }
  return fields;
}
const Text kNothing = L"no - 0 " + kZeros;

TEST(ed2k_file_link, HasFivePieces) {
  const Table row = [](const Text& url, const Text& want) {
    EXPECT_EQ(read(url), want);
  };
  row(kLink, L"yes");
  row(kFile + L"a|100|" + kHash, L"yes");
  row(L"||ED2K://x||FiLeX|a||100|" + kHash + L"||/", L"yes");
  row(kFile + L"a|100|", kNothing);
  row(L"", kNothing);
  row(L"ed2k:/x|file|a|100|" + kHash, kNothing);
  row(L"xed2k://|file|a|100|" + kHash, kNothing);
  row(L"ed2\x212A://|file|a|100|" + kHash, kNothing);
  row(L"ed2k://|xfile|a|100|" + kHash, kNothing);
  // Escaped separators count without a plain one only.
  const Text escaped = L"ed2k://%7C%7Cfile%7Ca%%7C7%7C" + kHash;
  row(escaped + L"%7C/%7Csources,b:1%7C/", L"yes a% 7 b:1");
  row(escaped + L"|", kNothing);
  row(L"ed2k://%7cfile%7ca%7c7%7c" + kHash, kNothing);
}

TEST(ed2k_file_link, ReadsTheLowHalfOfTheSize) {
  const Table row = [](const Text& size, const Text& want) {
    EXPECT_EQ(read(kFile + L"a|" + size + L"|" + kHash), want);
  };
  for (const Text none :
       {L"0", L"4294967296", L"0x10", L"abc", L" ", L"- 5", L"\x80000035"}) {
    row(none, L"no 0 " + kZeros);
  }
  row(L"4294967297", L"yes 1");
  row(L"1\0002"s, L"yes 1");
  row(L"18446744073709551616", L"yes 4294967295");
  row(Text(19, L'9'), L"yes 2313682943");
  row(L"-5x", L"yes 4294967291");
  row(L" \t\n+5", L"yes 5");
  row(L"5\xD800", L"yes 5");
  row(L"010", L"yes 10");
  // 64 units are scanned.
  row(Text(63, L'0') + L"12", L"yes 1");
  row(Text(100, L' ') + L"12", L"yes 12");
}

TEST(ed2k_file_link, KeepsTheHighHalfOfTheSizeAndChecksTheWhole) {
  const Table row = [](unsigned long size, const Text& text, bool is_link,
                       unsigned long want) {
    ed2k_file_link link(L"", size, {});
    EXPECT_EQ(link.create_from_ed2k_url(kFile + L"a|" + text + L"|" + kHash),
              is_link);
    EXPECT_EQ(link.get_file_size(), want);
  };
  row(0x500000009, L"7", true, 0x500000007);
  row(5, L"x", true, 5);
  row(5, L"\0007"s, true, 5);
  row(0x4000000000000, L"0", true, 0x4000000000000);
  row(0x4000000000000, L"1", false, 0x4000000000001);
}

TEST(ed2k_file_link, FileHashHas32Digits) {
  const Table row = [](const Text& hash, const Text& want) {
    EXPECT_EQ(read(kFile + L"a|100|" + hash + L"|/"), want);
  };
  const Text digits(31, L'F');
  row(L"0123456789abcdef0123456789abcdeF", L"yes");
  row(digits + L":", L"yes " + digits + L"9");
  row(digits + L"F\0F"s, L"yes " + digits + L"F");
  row(digits + L"F\xD800", L"yes " + digits + L"F");
  for (const Text& bad : {L""s, L"FF"s, L"G"s, L"/"s, L"\xE9"s, L"\0F"s,
                          L"\x80000046"s, L"\x146"s}) {
    row(digits + bad, L"no " + kZeros);
  }
  row(Text(16, L'\xE9'), L"no " + kZeros);
}

TEST(ed2k_file_link, OptionalFieldsHaveTheirKeyAnywhere) {
  const Table row = [](const Text& field, const Text& want) {
    EXPECT_EQ(read(kLink + field + L"|/"), want);
  };
  const Text root = L" h=" + kHash + L"01234567";
  const Text part = L" p=" + kHash;
  row(L"H=" + kRoot, L"yes" + root);
  row(L"XX" + kRoot + L"\xE9h=", L"yes" + root);
  row(L"h=aerukz4jvpg66ajdivtytk6n54asgrlh", L"yes" + root);
  row(L"h=" + kRoot + L"|h=x", L"no" + root);
  row(L"h=" + kRoot.substr(1), L"no");
  row(L"xh=" + kRoot, L"no");
  row(L"h=1" + kRoot.substr(1), L"no");
  row(L"h=\xE9" + kRoot.substr(1), L"no");
  row(L"=h", L"yes");
  row(L"h-" + kRoot, L"yes");
  row(L"\0h="s, L"yes");
  row(L"P=" + kHash + L"G::" + kZeros + L"\0:"s + kHash,
      L"yes" + part + L" p=" + kZeros + part);
  row(L":p=" + kHash + L"|p=" + kHash + L"\xD800", L"yes" + part + part);
  row(L"p=" + kHash + L":" + kHash.substr(1), L"no" + part);
  row(L"x:p=" + kHash, L"no");
  row(L"p=", L"no");
  // "h=" before "p=" before "s=" before "sources,".
  row(L"h=" + kRoot + L"p=", L"yes" + root);
  row(L"s=http://host/a?p=1", L"no");
  row(L"S=中\xD800\0p=1"s, L"yes s=中\xD800\0p=1"s);
  row(L"XXas=", L"yes s=as=");
  row(L"sources,s=1", L"yes s=urces,s=1");
  row(L"s=a|s=b", L"yes s=b");
}

TEST(ed2k_file_link, CollectsSources) {
  const Table row = [](const Text& field, const Text& want) {
    EXPECT_EQ(read(kLink + L"/|" + field + L"|/"), want);
  };
  row(L"SOURCES,1.2.3.4:4662,,b:c:1,", L"yes 1.2.3.4:4662 b:0");
  row(L"xsources,a:1|sources,\x80\x4E2D:2", L"yes a:1 \x80\x4E2D:2");
  row(L",sources,:", L"yes :0");
  row(L"sources,a:1\0,b"s, L"yes a:1");
  row(L"sources", L"yes");
  row(L"sources,|sourc\0es,a"s, L"yes");
  row(L"sources,a:1,b\xD800:2,c:3", L"no a:1");
  row(L"a:1,sources,b:1", L"no");
  for (const char* text : {"",
                           "4662",
                           "65536",
                           "-1",
                           "+5",
                           "0x1F",
                           "0X1f",
                           "010",
                           "08",
                           "0x",
                           "0xg",
                           "-0x10",
                           "0x-1",
                           "--1",
                           "00x1",
                           " 7",
                           "\t7",
                           "- 1",
                           "1x",
                           "abc",
                           "2147483648",
                           "4294967297",
                           "9223372036854775808",
                           "18446744073709551615",
                           "-9223372036854775809"}) {
    int port = 0;
    // NOLINTNEXTLINE(cert-err34-c): ports are what it scans
    if (std::sscanf(text, "%i", &port) != 1) port = 0;
    const Text digits = string_2_wstring(text);
    row(L"sources,a:" + digits + L",\xE4:" + digits,
        L"yes a:" + std::to_wstring(port & 0xFFFF) + L" \xE4:" +
            std::to_wstring(port & 0xFFFF));
  }
}

TEST(ed2k_file_link, DecodesAndCleansNamesWithEscapes) {
  const Table row = [](const Text& name, const Text& want) {
    EXPECT_EQ(read(kFile + name + L"|100|" + kHash), L"yes " + want);
  };
  row(L"b:.txt", L"b:.txt");
  row(L"b%20c:%3F.txt", L"b c__.txt");
  row(L"<>:\"/\\?*%3C%3E%3A%22%2F%5C%7C%3F%2A", Text(17, L'_'));
  row(L"%09%0A%0D;=%7E%21\x7F", L"\t\n\r;=~!\x7F");
  row(L"%E4%B8%AD%F0%9F%98%80", L"中😀");
  row(L"%f4%90%80%80x", L"\x110000\x78");
  row(L"b%E4%B8x", L"b");
  row(L"b:%00c", L"b_");
  row(L"%00b:c", L"%00b:c");
  row(L"%FF:b", L"%FF:b");
  row(L"%4:%2541%", L"%4_%41%");
  row(L"中%41:", L"中%41:");
  row(L"b\0:%41"s, L"b");
}

TEST(ed2k_file_link, KeepsWhatItReadBeforeAFault) {
  const Table row = [](const Text& url, const Text& name, unsigned long size,
                       unsigned char octet) {
    ed2k_file_link link(L"old", 9, {{{7}}});
    EXPECT_FALSE(link.create_from_ed2k_url(url));
    EXPECT_EQ(link.get_file_name(), name);
    EXPECT_EQ(link.get_file_size(), size);
    EXPECT_EQ(link.get_file_hash().octets[0], octet);
  };
  row(kFile + L"n|5", L"old", 9, 7);
  row(kFile + L"n%41|5|x", L"n%41", 5, 7);
  row(kFile + L"n|5|" + kHash + L"|h=x", L"n", 5, 1);
}

Text printed(const ed2k_file_link& link, unsigned long flags) {
  std::string narrow = "old";
  Text wide = L"old";
  EXPECT_TRUE(link.get_ed2k_url(narrow, flags));
  EXPECT_TRUE(link.get_ed2k_url(wide, flags));
  EXPECT_EQ(narrow, wstring_2_utf8(wide));
  return wide;
}

TEST(ed2k_file_link, PrintsTheFieldsThatTheFlagsName) {
  const Text root = L"h=" + kRoot + L"|";
  const Text parts = L"p=" + kHash + L":" + kHash + L"|";
  const Text sources = L"/|sources,1.2.3.4:4662,h:65535|";
  const Text all = kLink + root + parts + L"s=u?%ä||";
  ed2k_file_link link(L"", 0, {});
  EXPECT_TRUE(link.create_from_ed2k_url(all + sources));
  EXPECT_EQ(printed(link, 16), kLink + L"/");
  EXPECT_EQ(printed(link, 1), kLink + root + L"/");
  EXPECT_EQ(printed(link, 2), kLink + parts + L"/");
  EXPECT_EQ(printed(link, 4), kLink + L"s=u?%ä|/");
  EXPECT_EQ(printed(link, 8), kLink + sources + L"/");
  // Lists are added to.
  EXPECT_TRUE(link.create_from_ed2k_url(all + sources));
  EXPECT_EQ(link.get_part_hash().size() + link.get_source_list().size(), 8U);
  link = {L"|\x1F600", ~0UL, {{{0xAB}}}};
  EXPECT_EQ(printed(link, 15), kFile + L"|\x1F600|18446744073709551615|AB" +
                                   Text(30, L'0') + L"|h=" + Text(32, L'A') +
                                   L"|p=|s=|/|sources|/");
}

TEST(ed2k_file_link, ReadsItsOwnMembers) {
  ed2k_file_link link(kFile + L"long%20name|1|" + kHash, 0, {});
  EXPECT_TRUE(link.create_from_ed2k_url(link.get_file_name()));
  EXPECT_EQ(link.get_file_name(), L"long name");
}

TEST(ed2k_file_link, StringReplaceContinuesAfterWhatItPutIn) {
  const Table row = [](std::string text, const std::string& from,
                       const std::string& to, const std::string& want) {
    Text wide = string_2_wstring(text);
    ed2k_file_link::string_replace(wide, string_2_wstring(from),
                                   string_2_wstring(to));
    EXPECT_EQ(wide, string_2_wstring(want));
    ed2k_file_link::string_replace(text, from, to);
    EXPECT_EQ(text, want);
  };
  row("a|b||", "|", "%7C", "a%7Cb%7C%7C");
  row("a%7cb", "%7C", "|", "a%7cb");
  row("aaa", "aa", "b", "ba");
  row("ab", "", "-", "-a-b-");
  row("", "", "-", "-");
  row("ab", "", "", "ab");
}

}  // namespace
