#include <korvane/ed2k_file_link.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <tuple>
#include <vector>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "rows.h"

namespace {

using namespace std::string_literals;

constexpr wchar_t kHash[] = L"0123456789ABCDEF0123456789ABCDEF";
constexpr wchar_t kLink[] =
    L"ed2k://|file|a.bin|100|0123456789ABCDEF0123456789ABCDEF|";

template <typename Hash>
std::wstring text_of(const Hash& hash) {
  return units(encode_base16(hash.octets.data(), hash.octets.size()));
}

ed2k_file_link fresh_link() { return {L"nil", 0, {}}; }

// Whether it is a link, and the fields that are not those of kLink; "nothing"
// if not even the name was read.
Row fields_of(const ed2k_file_link& link, bool is_link) {
  if (link.get_file_name() == L"nil") return {L"nothing"};
  Row fields = {is_link ? L"yes" : L"no"};
  const auto add = [&](const wchar_t* name, const std::wstring& value,
                       const std::wstring& usual) {
    if (value != usual) fields.push_back(name + value);
  };
  add(L"name=", link.get_file_name(), L"a.bin");
  add(L"size=", std::to_wstring(link.get_file_size()), L"100");
  add(L"hash=", text_of(link.get_file_hash()), kHash);
  add(L"root=", text_of(link.get_root_hash()), std::wstring(40, L'0'));
  for (const auto& part : link.get_part_hash())
    add(L"part=", text_of(part), L"");
  add(L"url=", link.get_http_url(), L"");
  for (const auto& [host, port] : link.get_source_list()) {
    add(L"source=", string_2_wstring(host) + L":" + std::to_wstring(port), L"");
  }
  return fields;
}

Row fields_of(const std::wstring& url) {
  ed2k_file_link link = fresh_link();
  const bool is_link = link.create_from_ed2k_url(url);
  return fields_of(link, is_link);
}

TEST(Ed2kLink, StringReplaceGoesOnBehindWhatItPutIn) {
  const auto replaced = [](auto text, const auto& from, const auto& to) {
    ed2k_file_link::string_replace(text, from, to);
    return text;
  };
  check<std::string, std::string, std::string>("replaced", replaced);
  check<std::wstring, std::wstring, std::wstring>("replaced", replaced);
}

TEST(Ed2kLink, ReadsWhatEachRowWants) {
  check<std::wstring>("ed2k links",
                      [](const std::wstring& url) { return fields_of(url); });
}

TEST(Ed2kLink, KeepsTheHighHalfOfTheSizeAndChecksTheWhole) {
  check<unsigned long, std::wstring>(
      "sizes over sizes", [](unsigned long size, const std::wstring& text) {
        ed2k_file_link link(L"", size, {});
        const bool is_link =
            link.create_from_ed2k_url(L"ed2k://|file|a|" + text + L"|" + kHash);
        return std::tuple(is_link, link.get_file_size());
      });
}

TEST(Ed2kLink, ReadsPortsAsTheCLibraryScansThem) {
  for (const Row& row : rows_of("ports")) {
    int port = 0;
    // NOLINTNEXTLINE(cert-err34-c): just what it is for
    if (std::sscanf(bytes(row[0]).c_str(), "%i", &port) != 1) port = 0;
    const std::wstring want = std::to_wstring(port & 0xFFFF);
    for (std::wstring host : {L"a:", L"\xE4:"}) {
      const std::wstring url = kLink + (L"sources," + host) + row[0] + L",z:9";
      host += want;
      EXPECT_EQ(fields_of(url), (Row{L"yes", L"source=" + host, L"source=z:9"}))
          << row[0];
    }
  }
}

TEST(Ed2kLink, FieldsComeInAnyOrder) {
  const std::wstring hash = kHash;
  std::vector<std::wstring> fields = {
      L"/|", L"h=AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH|", L"p=" + hash + L"|",
      L"s=u|", L"sources,a:1|"};
  do {
    std::wstring url = kLink;
    for (const std::wstring& field : fields) url += field;
    EXPECT_EQ(fields_of(url), (Row{L"yes", L"root=" + hash + L"01234567",
                                   L"part=" + hash, L"url=u", L"source=a:1"}));
  } while (std::next_permutation(fields.begin(), fields.end()));
}

TEST(Ed2kLink, KeepsWhatItReadBeforeAFault) {
  check<std::wstring>("ed2k faults", [](const std::wstring& url) {
    ed2k_file_link link(L"old", 9, {{{7}}});
    EXPECT_FALSE(link.create_from_ed2k_url(url));
    return std::tuple(link.get_file_name(), link.get_file_size(),
                      link.get_file_hash().octets[0]);
  });
}

TEST(Ed2kLink, ListsAreAddedToByASecondLink) {
  const std::wstring part = L"p=" + std::wstring(kHash);
  const std::wstring url = kLink + part + L"|sources,a:1";
  ed2k_file_link link = fresh_link();
  EXPECT_TRUE(link.create_from_ed2k_url(url));
  EXPECT_TRUE(link.create_from_ed2k_url(url));
  EXPECT_EQ(link.get_part_hash().size(), 2U);
  EXPECT_EQ(link.get_source_list().size(), 2U);
}

std::wstring printed(const ed2k_file_link& link, unsigned long flags) {
  std::string narrow = "old";
  std::wstring wide = L"old";
  EXPECT_TRUE(link.get_ed2k_url(narrow, flags));
  EXPECT_TRUE(link.get_ed2k_url(wide, flags));
  EXPECT_EQ(narrow, wstring_2_utf8(wide));
  return wide;
}

TEST(Ed2kLink, PrintsTheFieldsThatTheFlagsName) {
  check<std::wstring, unsigned long>(
      "ed2k printed", [](const std::wstring& url, unsigned long flags) {
        ed2k_file_link link = fresh_link();
        EXPECT_EQ(link.create_from_ed2k_url(url), !url.empty());
        return printed(link, flags);
      });
}

TEST(Ed2kLink, PrintsSizesWholeAndNamesRaw) {
  ed2k_file_link link = fresh_link();
  link.set_file_name(L"|%\x4E2D\x1F600");
  link.set_file_size(~0UL);
  link.set_file_hash({{{0xAB}}});
  link.set_root_hash({{{0xF8}}});
  link.set_part_hash({{{{1}}}, {{{2}}}});
  link.set_http_url(L"|%");
  link.add_source("\xE4\xB8\xAD", 0);
  const std::wstring zeros(30, L'0');
  EXPECT_EQ(printed(link, 15),
            L"ed2k://|file||%\x4E2D\x1F600|18446744073709551615|AB" + zeros +
                L"|h=7" + std::wstring(31, L'A') + L"|p=01" + zeros + L":02" +
                zeros + L"|s=|%|/|sources,\x4E2D:0|/");
  // Narrow text ends at a zero.
  link.set_file_name(L"a\0b"s);
  std::string narrow;
  link.get_ed2k_url(narrow, 0);
  EXPECT_EQ(narrow.substr(0, 15), "ed2k://|file|a|");
}

TEST(Ed2kLink, Utf8IsEscapedByteByByte) {
  check<std::string>("escaped UTF-8", utf8_2_hexstr);
}

TEST(Ed2kLink, ReadsItsOwnMembers) {
  std::wstring text = kLink + (L"s=" + std::wstring(40, L'z'));
  text.replace(text.find(L"a.bin"), 5, L"long%20name.bin");
  ed2k_file_link link(text, 0, {});
  EXPECT_TRUE(link.create_from_ed2k_url(link.get_file_name()));
  EXPECT_EQ(link.get_file_name(), L"long name.bin");
  link.set_http_url(text);
  EXPECT_TRUE(link.create_from_ed2k_url(link.get_http_url()));
  EXPECT_EQ(link.get_file_name(), L"long name.bin");
}

}  // namespace
