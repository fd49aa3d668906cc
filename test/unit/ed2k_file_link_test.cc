#include "url/ed2k_file_link.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "allocation_counter.h"
#include "exact_copy.h"
#include "host/korvane_host.h"
#include "rows.h"
#include "url/encoders.h"
#include "url/korvane_links.h"

namespace {

using namespace std::string_literals;

// Too short to run out of memory over. NOLINTBEGIN(cert-err58-cpp)
const std::wstring kName = L"a.bin";
const std::wstring kHash = L"0123456789ABCDEF0123456789ABCDEF";
const std::wstring kRoot = L"AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH";
const std::wstring kLink = L"ed2k://|file|a.bin|100|" + kHash + L"|/";
constexpr char kHashText[] = "0123456789ABCDEF0123456789ABCDEF";
const std::string kNoRoot(40, '0');
// NOLINTEND(cert-err58-cpp)

std::wstring link_with(const std::wstring& fields) {
  return L"ed2k://|file|a.bin|100|" + kHash + L"|" + fields;
}
std::wstring link_named(const std::wstring& name) {
  return L"ed2k://|file|" + name + L"|100|" + kHash + L"|/";
}
std::wstring link_sized(const std::wstring& size) {
  return L"ed2k://|file|a.bin|" + size + L"|" + kHash + L"|/";
}
std::wstring link_hashed(const std::wstring& hash) {
  return L"ed2k://|file|a.bin|100|" + hash + L"|/";
}

template <typename Hash>
std::string text_of(const Hash& hash) {
  return encode_base16(hash.octets.data(), hash.octets.size());
}

ed2k_file_link fresh_link() { return {L"nil", 0, {}}; }

struct CAnswer {
  long code;
  ed2k_url_info_u info;
};

CAnswer c_answer(const std::wstring& url) {
  const ExactCopy copy{std::wstring_view(url)};
  CAnswer answer{};
  std::memset(&answer.info, '#', sizeof answer.info);
  answer.code = parse_ed2k_url_u(copy.data(), copy.size(), &answer.info);
  return answer;
}

bool is_untouched(const ed2k_url_info_u& info) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(&info);
  return std::all_of(bytes, bytes + sizeof info,
                     [](unsigned char byte) { return byte == '#'; });
}

// The name in the record for a name of the class.
std::wstring cut(const std::wstring& name) {
  return name.substr(0, std::min<std::size_t>(name.find(L'\0'), 1023));
}

// A link read by both skins, which must agree.
struct Parsed {
  explicit Parsed(const std::wstring& url)
      : link(fresh_link()), valid(link.create_from_ed2k_url(url)) {
    const CAnswer answer = c_answer(url);
    EXPECT_EQ(answer.code, valid ? 0 : -1) << testing::PrintToString(url);
    if (!valid) {
      EXPECT_TRUE(is_untouched(answer.info)) << testing::PrintToString(url);
      return;
    }
    std::wstring name = cut(link.get_file_name());
    name.resize(std::size(answer.info.name));
    EXPECT_EQ(
        std::wstring(std::begin(answer.info.name), std::end(answer.info.name)),
        name);
    EXPECT_EQ(answer.info.size, static_cast<double>(link.get_file_size()));
    EXPECT_EQ(encode_base16(answer.info.hash, sizeof answer.info.hash),
              text_of(link.get_file_hash()));
  }
  // Whether it is a link, and the fields that are not those of kLink; "nothing"
  // if not even the name was read.
  std::wstring description() const {
    if (link.get_file_name() == L"nil") return L"nothing";
    std::wostringstream out;
    out << (valid ? "yes" : "no");
    if (link.get_file_name() != kName) out << " name=" << link.get_file_name();
    if (link.get_file_size() != 100) out << " size=" << link.get_file_size();
    const std::string hash = text_of(link.get_file_hash());
    if (hash != kHashText) out << " hash=" << hash.c_str();
    const std::string root = text_of(link.get_root_hash());
    if (root != kNoRoot) out << " root=" << root.c_str();
    for (const auto& part : link.get_part_hash()) {
      out << " part=" << text_of(part).c_str();
    }
    if (!link.get_http_url().empty()) out << " url=" << link.get_http_url();
    for (const auto& source : link.get_source_list()) {
      out << " source=" << string_2_wstring(source.host) << ":" << source.port;
    }
    return out.str();
  }
  ed2k_file_link link;
  bool valid;
};

TEST(Ed2kLink, StringReplaceGoesOnBehindWhatItPutIn) {
  for (const Row& row : rows_of("replaced")) {
    std::string narrow = bytes(row[0]);
    std::wstring text = row[0];
    ed2k_file_link::string_replace(narrow, bytes(row[1]), bytes(row[2]));
    ed2k_file_link::string_replace(text, row[1], row[2]);
    EXPECT_EQ(narrow, bytes(row[3])) << row[0];
    EXPECT_EQ(text, row[3]) << row[0];
  }
}

TEST(Ed2kLink, ReadsWhatEachRowWants) {
  for (const Row& row : rows_of("ed2k links")) {
    EXPECT_EQ(Parsed(row[0]).description(), wanted(row)) << row[0];
  }
}

TEST(Ed2kLink, ReadsEverySizeAsTheCLibraryScansIt) {
  std::mt19937 random(1);  // NOLINT(cert-msc*)
  const std::wstring units = L"00123456789 \t+-x,.\x3000\x661\xFF11\xA0";
  for (int i = 0; i < 20'000; ++i) {
    std::wstring size(1 + random() % (i % 3 == 0 ? 70 : 6), L'0');
    for (wchar_t& unit : size) {
      unit = i % 3 == 0 ? static_cast<wchar_t>(L'0' + random() % 10)
                        : units[random() % units.size()];
    }
    unsigned want = 777;
    if (std::swscanf(size.c_str(), L"%I64u", &want) != 1) want = 777;
    ed2k_file_link link(L"", 777, {});
    link.create_from_ed2k_url(link_sized(size));
    ASSERT_EQ(link.get_file_size(), want) << testing::PrintToString(size);
  }
}

TEST(Ed2kLink, KeepsTheHighHalfOfTheSizeAndChecksTheWhole) {
  for (const Row& row : rows_of("sizes over sizes")) {
    ed2k_file_link link(L"", number(row[0]), {});
    EXPECT_EQ(link.create_from_ed2k_url(link_sized(row[1])), row[2] == L"yes");
    EXPECT_EQ(link.get_file_size(), number(row[3])) << row[0];
  }
}

TEST(Ed2kLink, ReadsPortsAsTheCLibraryScansThem) {
  for (const Row& row : rows_of("ports")) {
    const std::string port = bytes(row[0]);
    int want = 0;
    // NOLINTNEXTLINE(cert-err34-c): just what it is for
    if (std::sscanf(port.c_str(), "%i", &want) != 1) want = 0;
    for (const std::wstring host : {L"a", L"\xE4"}) {
      const Parsed parsed(
          link_with(L"sources," + host + L":" + row[0] + L",z:9"));
      ASSERT_EQ(parsed.link.get_source_list().size(), 2U) << port;
      EXPECT_EQ(parsed.link.get_source_list().front().port,
                static_cast<std::uint16_t>(want))
          << port;
    }
  }
}

TEST(Ed2kLink, FieldsComeInAnyOrder) {
  std::vector<std::wstring> fields = {L"h=" + kRoot, L"p=" + kHash, L"s=u",
                                      L"sources,a:1", L"/"};
  std::sort(fields.begin(), fields.end());
  do {
    std::wstring url = link_with(L"");
    for (const std::wstring& field : fields) url += field + L"|";
    EXPECT_EQ(Parsed(url).description(), L"yes root=" + kHash +
                                             L"01234567 part=" + kHash +
                                             L" url=u source=a:1");
  } while (std::next_permutation(fields.begin(), fields.end()));
}

TEST(Ed2kLink, TheRecordHoldsUpTo1023CharactersOfTheName) {
  for (const std::size_t length : {1U, 1022U, 1023U, 1024U, 4096U, 5000U}) {
    EXPECT_TRUE(Parsed(link_named(std::wstring(length, L'a'))).valid);
    EXPECT_TRUE(Parsed(link_named(std::wstring(length, L'a') + L"%3A")).valid);
    EXPECT_TRUE(Parsed(link_named(std::wstring(length, L'\x4E2D'))).valid);
  }
  const CAnswer answer = c_answer(link_named(std::wstring(1024, L'a')));
  EXPECT_EQ(std::wcslen(answer.info.name), 1023U);
}

TEST(Ed2kLink, KeepsWhatItReadBeforeAFault) {
  for (const Row& row : rows_of("ed2k faults")) {
    ed2k_file_link link(L"old", 9, {{{7}}});
    EXPECT_FALSE(link.create_from_ed2k_url(row[0]));
    EXPECT_EQ(link.get_file_name(), row[1]) << row[0];
    EXPECT_EQ(link.get_file_size(), number(row[2])) << row[0];
    EXPECT_EQ(link.get_file_hash().octets[0], number(row[3])) << row[0];
  }
}

TEST(Ed2kLink, ListsAreAddedToByASecondLink) {
  Parsed parsed(link_with(L"p=" + kHash + L"|sources,a:1|h=" + kRoot));
  EXPECT_TRUE(parsed.link.create_from_ed2k_url(
      link_with(L"p=" + kHash + L"|sources,a:1")));
  EXPECT_EQ(parsed.description(), L"yes root=" + kHash + L"01234567 part=" +
                                      kHash + L" part=" + kHash +
                                      L" source=a:1 source=a:1");
}

TEST(Ed2kLink, PrintsTheFieldsThatTheFlagsName) {
  const std::string head =
      "ed2k://|file|a.bin|100|" + std::string(kHashText) + "|";
  const std::string root = "h=AERUKZ4JVPG66AJDIVTYTK6N54ASGRLH|";
  const std::string parts =
      "p=" + std::string(kHashText) + ":" + kHashText + "|";
  const std::string url = "s=u?|%\xC3\xA4|";
  const std::string sources = "/|sources,1.2.3.4:4662,h:65535|";
  Parsed full(link_with(L"h=" + kRoot + L"|p=" + kHash + L":" + kHash +
                        L"|sources,1.2.3.4:4662,h:65535|"));
  full.link.set_http_url(L"u?|%\xE4");
  const ed2k_file_link fresh = fresh_link();
  for (unsigned long flags = 0; flags < 32; ++flags) {
    const auto pick = [flags](unsigned long flag, const std::string& field) {
      return (flags & flag) != 0 ? field : ""s;
    };
    const std::string want = head + pick(1, root) + pick(2, parts) +
                             pick(4, url) + pick(8, sources) + "/";
    const std::string want_fresh =
        "ed2k://|file|nil|0|" + std::string(32, '0') + "|" +
        pick(1, "h=" + std::string(32, 'A') + "|") + pick(2, "p=|") +
        pick(4, "s=|") + pick(8, "/|sources|") + "/";
    std::string narrow = "old";
    std::wstring wide = L"old";
    EXPECT_TRUE(full.link.get_ed2k_url(narrow, flags));
    EXPECT_TRUE(full.link.get_ed2k_url(wide, flags));
    EXPECT_EQ(narrow, want);
    EXPECT_EQ(wide, string_2_wstring(want));
    fresh.get_ed2k_url(narrow, flags);
    fresh.get_ed2k_url(wide, flags);
    EXPECT_EQ(narrow, want_fresh);
    EXPECT_EQ(wide, string_2_wstring(want_fresh));
  }
}

TEST(Ed2kLink, PrintsSizesWholeAndNamesRaw) {
  ed2k_file_link link(L"|%\x4E2D\x1F600\0x"s, ~0UL, {});
  link.add_source("\xE4\xB8\xAD", 0);
  std::string narrow;
  std::wstring wide;
  link.get_ed2k_url(narrow, 8);
  link.get_ed2k_url(wide, 8);
  const std::string hash(32, '0');
  EXPECT_EQ(narrow,
            "ed2k://|file||%\xE4\xB8\xAD\xF0\x9F\x98\x80|"
            "18446744073709551615|" +
                hash + "|/|sources,\xE4\xB8\xAD:0|/");
  EXPECT_EQ(wide, L"ed2k://|file||%\x4E2D\x1F600\0x|18446744073709551615|"s +
                      string_2_wstring(hash) + L"|/|sources,\x4E2D:0|/");
}

TEST(Ed2kLink, PrintedLinksReadBack) {
  std::mt19937 random(7);  // NOLINT(cert-msc*)
  const auto fill = [&random](auto& hash) {
    for (unsigned char& octet : hash.octets) {
      octet = static_cast<unsigned char>(random() & 255);
    }
  };
  const std::wstring units = L"ab.:?*/ \xE4\x4E2D\x1F600~";
  for (unsigned i = 0; i < 10'000; ++i) {
    ed2k_file_link link = fresh_link();
    std::wstring name(1 + random() % 20, L'n');
    for (wchar_t& unit : name) unit = units[random() % units.size()];
    link.set_file_name(name);
    link.set_file_size(1 + random() % 0xFFFFFFFF);
    uintx<128, 16> hash;
    uintx<160, 20> root;
    fill(hash);
    link.set_file_hash(hash);
    fill(root);
    link.set_root_hash(root);
    std::list<uintx<128, 16>> parts(1 + random() % 3);
    for (auto& part : parts) fill(part);
    link.set_part_hash(parts);
    link.set_http_url(L"http://" + name);
    const unsigned long flags = i % 8;
    std::wstring url;
    std::string utf8;
    link.get_ed2k_url(url, flags);
    link.get_ed2k_url(utf8, flags);
    ASSERT_EQ(string_2_wstring(utf8), url);
    const Parsed parsed(url);
    ASSERT_TRUE(parsed.valid) << utf8;
    ASSERT_EQ(parsed.link.get_file_name(), name);
    ASSERT_EQ(parsed.link.get_file_size(), link.get_file_size());
    ASSERT_EQ(parsed.link.get_file_hash(), hash);
    ASSERT_EQ(parsed.link.get_root_hash(),
              (flags & 1) != 0 ? root : (uintx<160, 20>{}));
    ASSERT_EQ(parsed.link.get_part_hash(),
              (flags & 2) != 0 ? parts : decltype(parts)());
    ASSERT_EQ(parsed.link.get_http_url(),
              (flags & 4) != 0 ? link.get_http_url() : L"");
  }
}

TEST(Ed2kLink, Utf8IsEscapedByteByByte) {
  EXPECT_EQ(utf8_2_hexstr("\xC3\xA4"), "%C3%A4");
  EXPECT_EQ(utf8_2_hexstr("a b%|\0"s), "a b%|\0"s);
  for (unsigned code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    EXPECT_EQ(char2hex(static_cast<unsigned char>(code)),
              encode_base16(byte.data(), 1));
    EXPECT_EQ(utf8_2_hexstr(byte),
              code < 0x80 ? byte : "%" + encode_base16(byte.data(), 1));
  }
}

TEST(Ed2kLink, TheCFunctionAnswersCodes) {
  ed2k_url_info_u info;
  std::memset(&info, '#', sizeof info);
  EXPECT_EQ(parse_ed2k_url_u(nullptr, 5, &info), -11);
  EXPECT_EQ(parse_ed2k_url_u(kLink.data(), kLink.size(), nullptr), -11);
  EXPECT_EQ(parse_ed2k_url_u(nullptr, 5, nullptr), -11);
  EXPECT_EQ(parse_ed2k_url_u(kLink.data(), std::size_t{1} << 32, &info), -1);
  EXPECT_EQ(parse_ed2k_url_u(kLink.data(), ~std::size_t{0}, &info), -1);
  EXPECT_EQ(parse_ed2k_url_u(kLink.data(), 0, &info), -1);
  EXPECT_TRUE(is_untouched(info));
}

TEST(Ed2kLink, TheCFunctionAllocatesOnlyToDecode) {
  const std::wstring fields = L"h=" + kRoot + L"|p=" + kHash + L":" + kHash +
                              L"00112233445566778899|s=http://h/x|/|sources,"
                              L"a.long.host.name.example.org:4662,b:0x10|/";
  const std::wstring odd_hash = kHash + L"\0x"s;
  std::wstring escaped = link_with(fields);
  ed2k_file_link::string_replace(escaped, L"|", L"%7C");
  for (const std::wstring& url :
       {kLink, link_with(fields), escaped, link_named(std::wstring(2000, L'n')),
        link_named(L"\x4E2D%41"), link_sized(L" +7x"), link_hashed(odd_hash),
        link_named(L"a%20b")}) {
    ed2k_url_info_u info;
    long code = -1;
    EXPECT_EQ(allocations_of([&] {
                code = parse_ed2k_url_u(url.data(), url.size(), &info);
              }),
              0U);
    EXPECT_EQ(code, 0) << testing::PrintToString(url);
  }
}

TEST(Ed2kLink, TheCFunctionFailsWhenMemoryRunsOut) {
  const std::wstring url = L"ed2k://|file|" + std::wstring(2000, L'n') +
                           L"%E4%B8%AD|100|" + kHash + L"|sources,\x4E2D:1|";
  ed2k_url_info_u info;
  std::memset(&info, '#', sizeof info);
  EXPECT_GT(fail_each_allocation(
                [&] { return parse_ed2k_url_u(url.data(), url.size(), &info); },
                [&](long code) {
                  EXPECT_EQ(code, -1);
                  EXPECT_TRUE(is_untouched(info));
                }),
            2U);
  EXPECT_FALSE(is_untouched(info));
}

TEST(Ed2kLink, ReadsManyFieldsInOnePass) {
  constexpr std::size_t kMany = 100'000;
  for (const std::wstring field :
       {L",a:1", L":p", L"%%", L"=", L"|", L"||s=u", L"%7C%7C"}) {
    std::wstring fields = L"sources";
    for (std::size_t i = 0; i < kMany; ++i) fields += field;
    const Parsed parsed(link_with(fields));
    EXPECT_EQ(parsed.link.get_source_list().size(),
              field == L",a:1" ? kMany : 0U);
  }
}

TEST(Ed2kLink, ReadsItsOwnMembers) {
  const std::wstring text =
      L"ed2k://|file|long%20name.bin|100|0123456789ABCDEF0123456789ABCDEF|"
      L"s=zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz|/";
  ed2k_file_link link(text, 0, {});
  EXPECT_TRUE(link.create_from_ed2k_url(link.get_file_name()));
  EXPECT_EQ(link.get_file_name(), L"long name.bin");
  link.set_http_url(text);
  EXPECT_TRUE(link.create_from_ed2k_url(link.get_http_url()));
  EXPECT_EQ(link.get_file_name(), L"long name.bin");
}

}  // namespace
