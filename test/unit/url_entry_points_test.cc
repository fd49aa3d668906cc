// The functions with C linkage that read links. That they agree with the
// classes is a property that fuzz/ checks.
#include <korvane/korvane_links.h>

#include <cstring>
#include "table.h"

namespace {

// Programs are compiled with these.
static_assert(URL_E_UNSUPPORTED == -1 && URL_E_BUFFER == -4 &&
              URL_E_PARSE == -9 && URL_E_INVALID_ARG == -11 &&
              BASE64_E_BUFFER == -16 && BASE64_E_CHARACTER == -18);

// Outputs of every kind, full of "#".
struct Outputs {
  Outputs() { std::memset(this, '#', sizeof *this); }
  bool are_untouched() const {
    const Outputs fresh;
    return std::memcmp(this, &fresh, sizeof fresh) == 0;
  }
  url_info_u url;
  ed2k_url_info_u ed2k;
  unsigned char hash[MAGNET_HASH_SIZE];
  std::size_t length;
  wchar_t text[16];
  unsigned supported;
};

Text field(const wchar_t* text, std::uint64_t size) { return {text, size}; }

TEST(url_entry_points, ParseUrlStopsAtWhatDoesNotFit) {
  const Table row = [](const Text& url, long want) {
    const ExactCopy<wchar_t> copy(url);
    Outputs out;
    EXPECT_EQ(parse_url_u(copy.data(), copy.size(), 936, &out.url), want);
    const bool is_written = want == 0 || want == URL_E_BUFFER;
    EXPECT_EQ(out.are_untouched(), !is_written);
    EXPECT_EQ(out.url.code_page == 936, want == 0);
  };
  const Text name(256, L'n');
  const Text path = L"/" + Text(2047, L'p');
  row(L"ftp://" + name + L":" + name + L"@" + name + path, 0);
  row(L"ftp://" + name + L"u:@h", -4);
  row(L"ftp://:" + name + L"p@h", -4);
  row(L"ftp://" + name + L"h", -4);
  row(L"ftp://h" + path + L"p", -4);
  row(L"", -1);
  row(name + L"://h", -1);
  row(L"h/x", -9);
  row(L"ftp:///", -9);
}

// Prints into exactly as many units as are wanted, and into one fewer.
void expect_printed(const url_info_u& info, const Text& want) {
  std::size_t size = want.size();
  const ExactCopy<wchar_t> copy(want);
  const auto out = const_cast<wchar_t*>(copy.data());
  EXPECT_EQ(url_info_to_str_u(out, &size, &info), 0);
  EXPECT_EQ(field(out, size), want);
  if (want.empty()) return;
  size = want.size() - 1;
  EXPECT_EQ(url_info_to_str_u(out, &size, &info), -4);
  EXPECT_EQ(size, want.size() - 1);
}

TEST(url_entry_points, UrlInfoToStrTrustsTheLengths) {
  url_info_u info = {};
  EXPECT_EQ(parse_url_u(L"http://u%41@h:81/p", 18, 0, &info), 0);
  expect_printed(info, L"http://uA:@h:81/p");
  info.port = 0x100000050;
  expect_printed(info, L"http://uA:@h/p");
  info.port = 0x100000000;
  expect_printed(info, L"");
  info.port = L'Q';
  info.host_len = 257;  // and the port behind the host
  std::wmemset(info.host, L'h', 256);
  expect_printed(info, L"http://uA:@" + Text(256, L'h') + L"Q:81/p");
  std::size_t size = 20;
  info.host_len = 1;
  EXPECT_EQ(url_info_to_str_u(info.host, &size, &info), 0);
  EXPECT_EQ(field(info.host, size), L"http://uA:@h:81/p");
}

TEST(url_entry_points, ParseFilenameCutsTheQueryBeforeItDecodes) {
  const Table row = [](const Text& url, const Text& want) {
    Outputs out;
    out.length = want.size();
    const ExactCopy<wchar_t> copy(url);
    const auto parse = [&] {
      return parse_filename_u(out.text, &out.length, copy.data(), copy.size(),
                              0);
    };
    EXPECT_EQ(parse(), 0);
    EXPECT_EQ(field(out.text, out.length), want);
    EXPECT_EQ(out.text[out.length], Outputs().text[0]);
    out.length = want.size() - 1;
    EXPECT_EQ(parse(), -4);
    EXPECT_EQ(out.length, want.size() - 1);
  };
  row(L"", L"index.html");
  row(L"?", L"index.html");
  row(L"http://h/a/b\\c%20d?x/y", L"c d");
  row(L"http://h/a&b:?url=/c", L"a&b_");
  row(L"h/c.zip%3Fd=e", L"c.zip_");
  row(L"h/c%3Furl=d%2Fe%26f%3F", L"e");
}

TEST(url_entry_points, ParseEd2kCutsTheName) {
  const Text end = L"|4294967297|000102030405060708090A0B0C0D0E0F|";
  const Text name(1024, L'n');
  const Text url = L"ed2k://|file|" + name + end;
  Outputs out;
  EXPECT_EQ(parse_ed2k_url_u(url.data(), url.size(), &out.ed2k), 0);
  EXPECT_EQ(out.ed2k.name, name.substr(1));
  EXPECT_EQ(out.ed2k.size, 1);
  EXPECT_EQ(out.ed2k.hash[15], 15);
  const Text other = L"ed2k://|file|%41%00" + end;
  EXPECT_EQ(parse_ed2k_url_u(other.data(), other.size(), &out.ed2k), 0);
  EXPECT_EQ(field(out.ed2k.name, 1024), L"A" + Text(1023, L'\0'));
}

TEST(url_entry_points, RefuseNullPointersAndAbsurdLengths) {
  Outputs out;
  const wchar_t* const null = nullptr;
  EXPECT_EQ(parse_url_u(null, 0, 0, &out.url), -11);
  EXPECT_EQ(parse_url_u(L"http://h", 8, 0, nullptr), -11);
  EXPECT_EQ(url_info_to_str_u(nullptr, &out.length, &out.url), -11);
  EXPECT_EQ(url_info_to_str_u(out.text, nullptr, &out.url), -11);
  EXPECT_EQ(url_info_to_str_u(out.text, &out.length, nullptr), -11);
  EXPECT_EQ(parse_filename_u(nullptr, &out.length, L"a", 1, 0), -11);
  EXPECT_EQ(parse_filename_u(out.text, nullptr, L"a", 1, 0), -11);
  EXPECT_EQ(parse_filename_u(out.text, &out.length, null, 0, 0), -11);
  EXPECT_EQ(is_support_schema(nullptr, 0, &out.supported), -11);
  EXPECT_EQ(is_support_schema("http://", 7, nullptr), -11);
  EXPECT_EQ(parse_ed2k_url_u(null, 5, &out.ed2k), -11);
  EXPECT_EQ(parse_ed2k_url_u(L"ed2k://", 7, nullptr), -11);
  EXPECT_EQ(parse_magnet_url_u(null, 60, out.hash), -1);
  for (const std::size_t size : {1UL << 32, 1UL << 61, ~0UL}) {
    EXPECT_EQ(parse_url_u(L"", size, 0, &out.url), -4);
    EXPECT_EQ(parse_filename_u(out.text, &out.length, L"", size, 0), -4);
    EXPECT_EQ(is_support_schema("", size, &out.supported), -4);
    EXPECT_EQ(parse_ed2k_url_u(L"", size, &out.ed2k), -1);
    EXPECT_EQ(parse_magnet_url_u(L"", size, out.hash), -1);
    for (std::uint64_t url_info_u::*const length :
         {&url_info_u::schema_len, &url_info_u::user_len,
          &url_info_u::password_len, &url_info_u::host_len,
          &url_info_u::path_len}) {
      url_info_u info = {};
      info.port = 80;
      info.*length = size;
      EXPECT_EQ(url_info_to_str_u(out.text, &out.length, &info), -4) << size;
    }
  }
  EXPECT_TRUE(out.are_untouched());
}

}  // namespace
