// The functions with C linkage that read links. That they agree with the
// classes is a property that fuzz/ checks.
#include <korvane/korvane_links.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <thread>

#include "unit_test.h"

// How many more times this thread gets memory.
static thread_local std::size_t allowed = ~0UL;

[[gnu::noinline]] void* operator new(std::size_t size) {
  void* const block = allowed == 0 ? nullptr : std::malloc(size);
  allowed -= block == nullptr ? 0 : 1;
  return block != nullptr ? block : throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  operator delete(block);
}

#ifdef __SANITIZE_THREAD__
// The converters' modules are loaded under locks that the sanitizer does not
// know.
extern "C" const char* __tsan_default_suppressions() {
  return "called_from_lib:libc.so.6\ncalled_from_lib:ld-linux\n";
}
#endif

namespace {

// Outputs of every kind, full of "#".
struct Outputs {
  Outputs() { std::memset(this, '#', sizeof *this); }
  bool are_untouched() const {
    const Bytes bytes(reinterpret_cast<const char*>(this), sizeof *this);
    return bytes == Bytes(sizeof *this, '#');
  }
  url_info_u url;
  ed2k_url_info_u ed2k;
  unsigned char hash[MAGNET_HASH_SIZE];
  wchar_t text[1024];
  std::size_t length;
  unsigned supported;
};
thread_local Outputs out;

long parse_url(const wchar_t* url, std::size_t size) {
  return parse_url_u(url, size, 0, &out.url);
}
long parse_filename(const wchar_t* url, std::size_t size) {
  return parse_filename_u(out.text, &out.length, url, size, 0);
}
long parse_ed2k(const wchar_t* url, std::size_t size) {
  return parse_ed2k_url_u(url, size, &out.ed2k);
}
long parse_magnet(const wchar_t* url, std::size_t size) {
  return parse_magnet_url_u(url, size, out.hash);
}

// Calls one of them on exactly a text, with untouched outputs.
using Parse = long (*)(const wchar_t* url, std::size_t size);
long run(Parse parse, const Text& url, std::size_t allocations = 1000) {
  const ExactCopy copy(url);
  out = {};
  allowed = allocations;
  const long result = parse(copy.data(), copy.size());
  allowed = ~0UL;
  return result;
}

const Text kName(256, L'n');
const Text kHash = L"|4294967297|000102030405060708090A0B0C0D0E0F";

TEST(url_entry_points, ParseUrlStopsAtWhatDoesNotFit) {
  const Text path = L"/" + Text(2047, L'p');
  const Text url = L"ftp://" + kName + L":" + kName + L"@" + kName;
  EXPECT_EQ(run(parse_url, url + path), 0);
  EXPECT_EQ(out.url.port + out.url.code_page, 21U);
  EXPECT_EQ(run(parse_url, url + path + L"p"), -4);
  EXPECT_EQ(out.url.host_len, 256U);
  EXPECT_EQ(out.url.port, Outputs().url.port);
  EXPECT_EQ(out.url.code_page, Outputs().url.code_page);
  EXPECT_EQ(run(parse_url, L""), -1);
  EXPECT_EQ(run(parse_url, kName + L"://h"), -1);
  EXPECT_EQ(run(parse_url, L"ftp:///"), -9);
  EXPECT_TRUE(out.are_untouched());
}

TEST(url_entry_points, UrlInfoToStrTrustsTheLengths) {
  url_info_u info = {};
  EXPECT_EQ(parse_url_u(L"http://u%41:%E9@h:81/p", 22, 1251, &info), 0);
  EXPECT_EQ(info.code_page, 1251U);
  std::size_t size = 17;
  EXPECT_EQ(url_info_to_str_u(info.host, &size, &info), -4);
  EXPECT_EQ(size++, 17U);
  EXPECT_EQ(url_info_to_str_u(info.host, &size, &info), 0);
  EXPECT_EQ(Text(info.host, size), L"http://uA:й@h:81/p");
  info.port = 0x100000050;
  info.host_len = 257;  // with the port behind it
  EXPECT_EQ(url_info_to_str_u(out.text, &(size = 1000), &info), 0);
  EXPECT_EQ(Text(out.text, size).substr(12 + 256), L"P/p");
  info.port = 0x100000000;
  EXPECT_EQ(url_info_to_str_u(out.text, &size, &info), 0);
  EXPECT_EQ(size, 0U);
}

TEST(url_entry_points, ParseFilenameCutsTheQueryBeforeItDecodes) {
  const auto name = [](const Text& url) {
    EXPECT_EQ(run(parse_filename, url), 0);
    return Text(out.text, out.length);
  };
  EXPECT_EQ(name(L"http://h/a/b\\c&%20d:?url=/c?"), L"c& d_");
  EXPECT_EQ(name(L"h/c%3Furl=d%2Fe%26f%3F"), L"e");
  EXPECT_EQ(out.text[1], Outputs().text[1]);
  EXPECT_EQ(parse_filename(L"a", 1), 0);
  EXPECT_EQ(parse_filename(L"ab", 2), -4);
}

TEST(url_entry_points, ParseEd2kCutsTheName) {
  EXPECT_EQ(run(parse_ed2k, L"ed2k://|file|" + Text(1024, L'n') + kHash), 0);
  EXPECT_EQ(Text(out.ed2k.name), Text(1023, L'n'));
  EXPECT_EQ(run(parse_ed2k, L"ed2k://|file|b:%41%00c" + kHash), 0);
  EXPECT_EQ(Text(out.ed2k.name, 1024), L"b_A" + Text(1021, L'\0'));
  EXPECT_EQ(out.ed2k.size, 1);
  EXPECT_EQ(out.ed2k.hash[15], 15);
  EXPECT_EQ(run(parse_ed2k, L"ed2k://|file|a|x" + kHash), -1);
}

TEST(url_entry_points, RefuseNullPointersAndAbsurdLengths) {
  out = {};
  EXPECT_EQ(parse_url(nullptr, 0), -11);
  EXPECT_EQ(parse_url_u(L"http://h", 8, 0, nullptr), -11);
  EXPECT_EQ(url_info_to_str_u(nullptr, &out.length, &out.url), -11);
  EXPECT_EQ(url_info_to_str_u(out.text, nullptr, &out.url), -11);
  EXPECT_EQ(url_info_to_str_u(out.text, &out.length, nullptr), -11);
  EXPECT_EQ(parse_filename(nullptr, 0), -11);
  EXPECT_EQ(parse_filename_u(out.text, nullptr, L"a", 1, 0), -11);
  EXPECT_EQ(is_support_schema(nullptr, 0, &out.supported), -11);
  EXPECT_EQ(is_support_schema("http://", 7, nullptr), -11);
  EXPECT_EQ(parse_ed2k(nullptr, 5), -11);
  EXPECT_EQ(parse_ed2k_url_u(L"ed2k://", 7, nullptr), -11);
  EXPECT_EQ(parse_magnet(nullptr, 60), -1);
  constexpr std::size_t kAbsurd = 1UL << 32;
  EXPECT_EQ(parse_url(L"", kAbsurd), -4);
  EXPECT_EQ(parse_filename(L"", kAbsurd), -4);
  EXPECT_EQ(is_support_schema("", kAbsurd, &out.supported), -4);
  EXPECT_EQ(parse_ed2k(L"", kAbsurd), -1);
  EXPECT_EQ(parse_magnet(L"", kAbsurd), -1);
  url_info_u info = {};
  info.port = 80;
  info.path_len = kAbsurd;
  EXPECT_EQ(url_info_to_str_u(out.text, &out.length, &info), -4);
  EXPECT_TRUE(out.are_untouched());
}

TEST(url_entry_points, WorkInTwoThreadsAndWithoutMemory) {
  EXPECT_EQ(run(parse_url, L"ftp://us%3Aer:pass%20word@h:8/a%20b?c#d", 0), 0);
  EXPECT_EQ(run(parse_filename, L"h/a%20:" + Text(249, L'n') + L"?b", 0), 0);
  EXPECT_EQ(run(parse_ed2k, L"ed2k://|file|a%20b" + kHash + L"|s=u|", 0), 0);
  EXPECT_EQ(run(parse_magnet, L"magnet:?xt=urn:btih:" + Text(40, L'a'), 0), 0);
  // A call of each that needs memory, and what it returns without.
  const Text escapes = Text(500, L'n') + L"%D6%D0";
  const std::tuple<Parse, Text, long> calls[] = {
      {parse_url, L"ftp://" + Text(200, L'n') + L"%D6%D0@h", -4},
      {parse_filename, escapes, -4},
      {parse_ed2k, L"ed2k://|file|" + escapes + kHash, -1},
      {parse_magnet, L"magnet:?xt=urn:btih:" + Text(16, L'\xE9'), -1}};
  const auto use = [&calls] {
    for (const auto& [parse, url, failure] : calls) {
      EXPECT_EQ(run(parse, url, 0), failure);
      for (std::size_t n = 0; n < 20; ++n) {
        EXPECT_TRUE(run(parse, url, n) == 0 || out.are_untouched()) << n;
      }
      EXPECT_EQ(run(parse, url, 20), 0);
    }
  };
  std::thread other(use);
  use();
  other.join();
}

}  // namespace
