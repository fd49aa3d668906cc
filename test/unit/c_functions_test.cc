// What the C functions have in common: which answer there is to what is no
// text, and that a failure writes nothing.
#include <gtest/gtest.h>

#include <cstring>
#include <cwchar>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include <korvane/korvane_links.h>
#include "exact_copy.h"
#include "failing_calls.h"
#include "rows.h"

namespace {

// Programs are compiled with these.
static_assert(URL_E_UNSUPPORTED == -1 && URL_E_BUFFER == -4 &&
              URL_E_PARSE == -9 && URL_E_INVALID_ARG == -11 &&
              BASE64_E_BUFFER == -16 && BASE64_E_CHARACTER == -18);

// Outputs of every kind.
struct Outputs {
  url_info_u url;
  ed2k_url_info_u ed2k;
  unsigned char hash[MAGNET_HASH_SIZE];
  wchar_t text[2048];
  std::size_t length;
  unsigned supported;
};

Outputs patterned() {
  Outputs out;
  std::memset(&out, '#', sizeof out);
  out.length = 2048;
  return out;
}

bool is_untouched(const Outputs& out) {
  const auto bytes_of = [](const Outputs& outputs) {
    return std::string_view(reinterpret_cast<const char*>(&outputs),
                            sizeof outputs);
  };
  return bytes_of(out) == bytes_of(patterned());
}

// The functions that read text, each with its answer to too much of it.
struct Function {
  long (*call)(Outputs& out, const wchar_t* text, std::size_t size);
  long failure;
};

long parse_url(Outputs& out, const wchar_t* text, std::size_t size) {
  return parse_url_u(text, size, 0, &out.url);
}
long parse_filename(Outputs& out, const wchar_t* text, std::size_t size) {
  return parse_filename_u(out.text, &out.length, text, size, 0);
}
long is_support(Outputs& out, const wchar_t* text, std::size_t size) {
  char schema[64];
  for (char& byte : schema) byte = static_cast<char>(*text == 0 ? 0 : *text++);
  return is_support_schema(schema, size, &out.supported);
}
long parse_ed2k(Outputs& out, const wchar_t* text, std::size_t size) {
  return parse_ed2k_url_u(text, size, &out.ed2k);
}
long parse_magnet(Outputs& out, const wchar_t* text, std::size_t size) {
  return parse_magnet_url_u(text, size, out.hash);
}

const std::map<std::wstring, Function>& functions() {
  static const std::map<std::wstring, Function> kFunctions = {
      {L"parse_url_u", {parse_url, -4}},
      {L"parse_filename_u", {parse_filename, -4}},
      {L"is_support_schema", {is_support, -4}},
      {L"parse_ed2k_url_u", {parse_ed2k, -1}},
      {L"parse_magnet_url_u", {parse_magnet, -1}}};
  return kFunctions;
}

// Prints a record; the text, or the code as text.
std::wstring printed(const url_info_u& info) {
  Outputs out = patterned();
  const long code = url_info_to_str_u(out.text, &out.length, &info);
  return code == 0 ? std::wstring(out.text, out.length) : std::to_wstring(code);
}

url_info_u record(const std::wstring& host, std::uint64_t port) {
  url_info_u info = {};
  info.schema_len = std::wstring(L"http://").copy(info.schema, 7);
  info.host_len = host.size();
  std::wmemcpy(info.host, host.data(), host.size());
  info.port = port;
  return info;
}

TEST(IsSupportSchema, TakesWholeSchemesThatFilesAreLoadedFrom) {
  check<ExactCopy<char>>("supported", [](const ExactCopy<char>& schema) {
    unsigned supported = 0xA5;
    EXPECT_EQ(is_support_schema(schema.data(), schema.size(), &supported), 0);
    return supported;
  });
}

TEST(ParseFilenameU, NamesTheLastSegmentBeforeTheQuery) {
  check<ExactCopy<wchar_t>>("names of URLs", [](const auto& url) {
    Outputs out = patterned();
    EXPECT_EQ(parse_filename(out, url.data(), url.size()), 0);
    return std::wstring(out.text, out.length);
  });
}

TEST(UrlInfoToStrU, TrustsLengthsAndTakesTheLowHalfOfThePort) {
  const std::wstring longer(256, L'Q');
  EXPECT_EQ(printed(record(L"h", 0x100000050)), L"http://h");
  EXPECT_EQ(printed(record(L"h", 0x100000000)), L"");
  // The host runs on into the port behind it.
  url_info_u info = record(longer, L'Q');
  info.host_len = 257;
  EXPECT_EQ(printed(info), L"http://" + longer + L"Q:81");
}

TEST(UrlInfoToStrU, PrintsIntoTheRecord) {
  url_info_u info = record(L"host", 81);
  std::size_t size = URL_FIELD_CAPACITY;
  EXPECT_EQ(url_info_to_str_u(info.host, &size, &info), 0);
  EXPECT_EQ(std::wstring(info.host, size), L"http://host:81");
}

TEST(LinkFunctions, RefuseNullPointers) {
  Outputs out = patterned();
  const std::pair<long, long> answers[] = {
      {parse_url(out, nullptr, 0), -11},
      {parse_url_u(L"http://h", 8, 0, nullptr), -11},
      {url_info_to_str_u(nullptr, &out.length, &out.url), -11},
      {url_info_to_str_u(out.text, nullptr, &out.url), -11},
      {url_info_to_str_u(out.text, &out.length, nullptr), -11},
      {parse_filename_u(nullptr, &out.length, L"a", 1, 0), -11},
      {parse_filename_u(out.text, nullptr, L"a", 1, 0), -11},
      {parse_filename(out, nullptr, 0), -11},
      {is_support_schema(nullptr, 0, &out.supported), -11},
      {is_support_schema("http://", 7, nullptr), -11},
      {parse_ed2k(out, nullptr, 5), -11},
      {parse_ed2k_url_u(L"ed2k://", 7, nullptr), -11},
      {parse_magnet(out, nullptr, 60), -1}};
  for (const auto& [got, want] : answers) {
    EXPECT_EQ(got, want) << "line " << &got - &answers[0].first;
  }
  EXPECT_TRUE(is_untouched(out));
}

TEST(LinkFunctions, RefuseAbsurdLengths) {
  Outputs out = patterned();
  for (const std::size_t absurd :
       {std::size_t{1} << 32, std::size_t{1} << 61, ~std::size_t{0}}) {
    for (const auto& [name, function] : functions()) {
      EXPECT_EQ(function.call(out, L"", absurd), function.failure) << name;
    }
    for (std::uint64_t url_info_u::*const field :
         {&url_info_u::schema_len, &url_info_u::user_len,
          &url_info_u::password_len, &url_info_u::host_len,
          &url_info_u::path_len}) {
      url_info_u info = record(L"h", 81);
      info.*field = absurd;
      EXPECT_EQ(printed(info), L"-4") << absurd;
    }
  }
  EXPECT_TRUE(is_untouched(out));
}

// Texts that are told by their first units: the rest is not read.
TEST(LinkFunctions, TakeTheLongestLength) {
  constexpr std::size_t kLongest = 0xFFFFFFFF;
  check<std::wstring, std::wstring>(
      "longest", [](const std::wstring& name, const std::wstring& text) {
        Outputs out = patterned();
        return functions().at(name).call(out, text.c_str(), kLongest);
      });
  url_info_u info = record(L"h", 0);
  info.path_len = kLongest;
  EXPECT_EQ(printed(info), L"");
}

TEST(LinkFunctions, AllocateOnlyForForeignText) {
  check<std::wstring, std::wstring>(
      "allocations", [](const std::wstring& name, const std::wstring& text) {
        const auto call = functions().at(name).call;
        Outputs out = patterned();
        return allocations_of([&] { call(out, text.data(), text.size()); });
      });
  Outputs out = patterned();
  const url_info_u info = record(L"host", 12345);
  char text[9];
  unsigned size = sizeof text;
  EXPECT_EQ(allocations_of([&] {
              url_info_to_str_u(out.text, &out.length, &info);
              base64_encode(text, &size, out.hash, 6);
              base64_decode(out.hash, &size, text, size);
            }),
            0U);
}

}  // namespace
