// Every function of the three libraries, on any text: it ends, keeps nothing,
// and shares nothing with another thread. KORVANE_CALLS sets how often each is
// called.
#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <thread>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/format_utility.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/korvane_url.h>
#include <korvane/string_utility.h>
#include <korvane/transcode.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>
#include "text/utf8.h"

#ifdef __SANITIZE_THREAD__
// The converters' modules are loaded under locks that the sanitizer does not
// know.
extern "C" const char* __tsan_default_suppressions() {
  return "called_from_lib:libc.so.6\ncalled_from_lib:ld-linux\n";
}
#endif

namespace {

using qk::text::transcode;

struct Text {
  std::string narrow;
  std::wstring wide;

  const char* bytes() const { return narrow.data(); }
  const wchar_t* units() const { return wide.data(); }
  unsigned length() const { return static_cast<unsigned>(narrow.size()); }
  unsigned width() const { return static_cast<unsigned>(wide.size()); }
  int count() const { return static_cast<int>(narrow.size()); }
};

// Each uses what is exported for one purpose; answers how much came out.

std::size_t use_urls(const Text& text) {
  url_info_u info;
  url_object url;
  std::wstring name(text.width() + 10, L'\0');
  std::size_t name_size = name.size();
  unsigned supported = 0;
  if (parse_url_u(text.units(), text.width(), 65001, &info) == 0) {
    wchar_t printed[8192];
    std::size_t printed_size = 8192;
    url_info_to_str_u(printed, &printed_size, &info);
  }
  parse_filename_u(name.data(), &name_size, text.units(), text.width(), 0);
  is_support_schema(text.bytes(), text.length(), &supported);
  url_object::parse_url(text.wide, 936, url);
  const std::string link = korvane_url_t<char>::encode(text.narrow.c_str());
  return name_size + url.to_string().size() +
         url_object::file_name_for(text.wide, 0).size() + link.size() +
         korvane_url_t<char>::decode(link.c_str()).size() +
         korvane_url_t<wchar_t>::encode(text.narrow.c_str()).size() +
         korvane_url_t<wchar_t>::decode(text.wide.c_str()).size();
}

std::size_t use_ed2k_links(const Text& text) {
  ed2k_url_info_u info;
  ed2k_file_link link(L"", 0, {});
  std::string narrow;
  std::wstring wide;
  parse_ed2k_url_u(text.units(), text.width(), &info);
  link.create_from_ed2k_url(text.wide);
  link.get_ed2k_url(narrow, 15);
  link.get_ed2k_url(wide, 15);
  ed2k_file_link::string_replace(narrow, "%", "%25");
  return narrow.size() + wide.size();
}

std::size_t use_magnet_links(const Text& text) {
  unsigned char hash[MAGNET_HASH_SIZE];
  bt_magnet_url_parser parser(text.wide);
  parse_magnet_url_u(text.units(), text.width(), hash);
  parser.parse_magnet_url();
  return parser.get_trackers().size() + parser.get_display_name().size();
}

std::size_t use_escapes(const Text& text) {
  std::string decoded;
  decode_url(text.bytes(), text.length(), decoded);
  return decoded.size() + encode_url(text.bytes(), text.length()).size() +
         url_object::decode(text.narrow).size() +
         url_object::decode(text.wide).size() +
         url_object::decode_ex(text.wide).size() +
         url_object::decode_ex(text.wide, 1252).size() +
         url_object::encode_ex(text.wide).size() +
         utf8_2_hexstr(text.narrow).size() +
         xstringutil::EscapeString(text.bytes(), text.count()).size() +
         xstringutil::EscapePath(text.bytes(), text.count()).size() +
         xstringutil::UnescapeString(text.narrow).size();
}

std::size_t use_digits(const Text& text) {
  std::string out;
  std::string base64(4 * text.narrow.size() / 3 + 5, '\0');
  auto size = static_cast<unsigned>(base64.size());
  const auto bytes = [](const char* of) {
    return reinterpret_cast<const unsigned char*>(of);
  };
  base64_encode(base64.data(), &size, bytes(text.bytes()), text.length());
  std::vector<unsigned char> back(base64.size());
  unsigned back_size = size;
  base64_decode(back.data(), &back_size, base64.data(), size);
  base64_decode(back.data(), &size, text.bytes(), text.length());
  qk::crypto::base64::encode(text.narrow, base64);
  decode_base16(text.bytes(), text.length(), out);
  decode_base32(text.bytes(), text.length(), out);
  return base64.size() + encode_base16(text.bytes(), text.length()).size() +
         encode_base32(text.bytes(), text.length()).size() +
         xstringutil::Data2BitString(text.bytes(), text.count()).size() +
         xstringutil::DataToHexString(text.bytes(), text.count(), ":").size();
}

std::size_t use_conversions(const Text& text) {
  std::size_t size = wstring_2_string(text.wide).size() +
                     wstring_2_utf8(text.wide).size() +
                     string_2_wstring(text.narrow).size() +
                     string_to_wstring_with_code_page(text.narrow, 1258).size();
  std::string narrow;
  for (const auto convert : {transcode::UTF8_to_GBK, transcode::GBK_to_UTF8}) {
    convert(text.bytes(), text.length(), narrow);
    size += narrow.size();
  }
  for (const auto convert :
       {transcode::Unicode_to_UTF8, transcode::Unicode_to_GBK,
        transcode::Unicode_to_ANSI}) {
    convert(text.units(), text.width(), narrow);
    size += narrow.size();
  }
  std::wstring wide;
  for (const auto convert :
       {transcode::UTF8_to_Unicode, transcode::GBK_to_Unicode,
        transcode::ANSI_to_Unicode}) {
    convert(text.bytes(), text.length(), wide);
    size += wide.size();
  }
  return size;
}

template <typename Unit>
std::size_t use_numbers(const Unit* text) {
  using Format = qk::text::format_utility_t<Unit>;
  using Compare = qk::text::string_utility_t<Unit>;
  return Format::to_string(Format::str_to_uint32(text)).size() +
         Format::to_string(Format::str_to_sint32(text)).size() +
         Format::to_string(Format::str_to_uint64(text)).size() +
         Format::to_string(Format::str_to_sint64(text)).size() +
         Format::to_string(Format::str_to_float32(text)).size() +
         Format::to_string(Format::str_to_float64(text)).size() +
         Format::kilo_format(Format::str_to_bool(text) ? 1025 : 1).size() +
         (Compare::compare_nocase(text, text) == 0 ? 1 : 0);
}

std::size_t use_small_functions(const Text& text) {
  using qk::text::string_utility_t;
  std::string all = text.narrow;
  std::string other;
  long long value = 0;
  xstringutil::IsBeginWith(text.units(), text.width(), text.wide);
  xstringutil::IsEndWith(text.bytes(), text.length(), all);
  xstringutil::GetLine(text.bytes(), text.count(), other);
  xstringutil::TrimRight(xstringutil::TrimLeft(all));
  xstringutil::TrimRight(all, text.narrow);
  xstringutil::SplitNetPathFile(text.narrow, all, other);
  xstringutil::SplitFileName(text.narrow, all, other);
  xstringutil::IsValidWindowsFileName(text.narrow);
  xstringutil::StringToInt64(text.narrow, value);
  string_utility_t<wchar_t>::find_nocase(text.wide.c_str(), L"sources,");
  qk::set_last_error(text.length());
  return all.size() + make_upper(text.wide).size() +
         use_numbers(text.narrow.c_str()) + use_numbers(text.wide.c_str());
}

// The beginning of a text gets it far into the functions.
constexpr struct {
  const char* beginning;
  std::size_t (*call)(const Text& text);
} kUses[] = {
    {"http://", use_urls},
    {"ftp://u:p@h:8/a", use_urls},
    {"ed2k://|file|", use_ed2k_links},
    {"ed2k://|file|a%41|9|0123456789ABCDEF0123456789ABCDEF|", use_ed2k_links},
    {"ed2k://|file|a|9|0123456789ABCDEF0123456789ABCDEF|sources",
     use_ed2k_links},
    {"ed2k://|file|a|9|0123456789ABCDEF0123456789ABCDEF|p=", use_ed2k_links},
    {"magnet:?xt=urn:btih:0123456789ABCDEF0123456789ABCDEF&tr=",
     use_magnet_links},
    {"magnet:?dn=", use_magnet_links},
    {"", use_escapes},
    {"", use_digits},
    {"", use_conversions},
    {"-1", use_small_functions},
};

// FF stands for narrow text where a unit is no character.
Text repeated(const std::wstring& filling, std::size_t count) {
  const std::string narrow = wstring_2_utf8(filling);
  Text text;
  for (std::size_t i = 0; i < count; ++i) {
    text.narrow += narrow.empty() ? "\xFF" : narrow;
    text.wide += filling;
  }
  return text;
}

Text text_for(const char* beginning, const Text& end) {
  return {beginning + end.narrow, string_2_wstring(beginning) + end.wide};
}

unsigned long calls() {
  const char* const wanted = std::getenv("KORVANE_CALLS");
  return wanted == nullptr ? 200 : std::strtoul(wanted, nullptr, 10);
}

TEST(EveryFunction, AnswersAMegabyteOfAnything) {
#ifdef KORVANE_SANITIZED
  constexpr std::size_t kSize = 1 << 16;
#else
  constexpr std::size_t kSize = 1 << 20;
#endif
  const std::wstring odd_units = {L'\0', wchar_t(0xD800), wchar_t(0xFFFFFFFF)};
  std::vector<std::wstring> fillings = {L"%41", L"%C3%A9",  L"%2525", L"%7C",
                                        L"://", L"&tr=",    L",a:1",  L":p=",
                                        L"|h=", L"\x1F600", L"url=",  L"\r\n"};
  for (const wchar_t unit : L"/\\?&#@:|=., +%a9\xE9" + odd_units) {
    fillings.emplace_back(1, unit);
  }
  for (const std::wstring& filling : fillings) {
    const Text end = repeated(filling, kSize / filling.size());
    for (const auto& [beginning, call] : kUses) {
      const Text text = text_for(beginning, end);
      EXPECT_LE(call(text), 20 * text.narrow.size() + 2000)
          << beginning << filling;
    }
  }
}

std::size_t open_descriptors() {
  const std::filesystem::directory_iterator open("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(open), end(open)));
}

const Text& mixed_text() {
  static const Text kText = repeated(L"%C3%A9\xE9|h=a,b:1&tr=/?:@.", 4);
  return kText;
}

// Less than a byte a call: the converters' own caches come and go.
TEST(EveryFunction, KeepsNothing) {
  const std::size_t descriptors = open_descriptors();
  for (const auto& [beginning, call] : kUses) {
    const Text text = text_for(beginning, mixed_text());
    const auto bytes_after = [&text, use = call](unsigned long count) {
      for (; count != 0; --count) use(text);
      return mallinfo2().uordblks;
    };
    const std::size_t before = bytes_after(20);
    EXPECT_LT(bytes_after(calls()), before + calls()) << beginning;
  }
  EXPECT_EQ(open_descriptors(), descriptors);
}

TEST(EveryFunction, WorksInTwoThreadsAtATime) {
  const auto call_all = [] {
    for (unsigned long i = 0; i < calls(); ++i) {
      for (const auto& [beginning, call] : kUses) {
        call(text_for(beginning, mixed_text()));
      }
    }
  };
  std::thread other(call_all);
  call_all();
  other.join();
}

}  // namespace
