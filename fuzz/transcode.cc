// The transcoders and the host's conversions, against the C library's iconv
// fed one character at a time and against a UTF-8 coder of our own.
#include <korvane/transcode.h>

#include <iconv.h>

#include <algorithm>
#include <map>
#include <memory>

#include <korvane/korvane_host.h>
#include "fuzz.h"
#include "text/utf8.h"
#include "unit/exact_copy.h"

namespace {

using fuzz::require;
using fuzz::require_equal;
using qk::text::transcode;

constexpr std::size_t kAnyRoom = ~std::size_t{0};

struct Closing {
  void operator()(iconv_t descriptor) const { iconv_close(descriptor); }
};

iconv_t converter(const char* to, const char* from) {
  using Owned = std::unique_ptr<std::remove_pointer_t<iconv_t>, Closing>;
  static std::map<std::pair<std::string, std::string>, Owned> open;
  Owned& descriptor = open[{to, from}];
  if (!descriptor) descriptor.reset(iconv_open(to, from));
  return descriptor.get();
}

// Converts `bytes` to `out`; false if they are not one character.
bool convert_one(iconv_t descriptor, std::string_view bytes, std::string& out) {
  char units[64];
  char* in = const_cast<char*>(bytes.data());
  char* end = units;
  std::size_t size = bytes.size();
  std::size_t room = sizeof units;
  iconv(descriptor, nullptr, nullptr, nullptr, nullptr);
  const std::size_t result = iconv(descriptor, &in, &size, &end, &room);
  if (result == static_cast<std::size_t>(-1) || size != 0) return false;
  out.assign(units, end);
  return true;
}

struct Converted {
  std::string bytes;
  bool is_whole;
};

// `unit` is the size of a unit of the input. Ends at the first zero unit, at
// what is no character, and where `room` bytes are used up.
Converted convert_slowly(const char* to, const char* from,
                         std::string_view input, std::size_t unit,
                         std::size_t room = kAnyRoom) {
  std::string all;
  const std::string zero(unit, '\0');
  while (!input.empty()) {
    if (input.substr(0, unit) == zero) return {all, true};
    std::string one;
    std::size_t size = unit;
    while (!convert_one(converter(to, from), input.substr(0, size), one)) {
      size += unit;
      if (size > std::min<std::size_t>(6, input.size())) return {all, false};
    }
    if (all.size() + one.size() > room) return {all, false};
    all += one;
    input.remove_prefix(size);
  }
  return {all, true};
}

std::string_view bytes_of(std::string_view text) { return text; }
std::string_view bytes_of(std::wstring_view text) {
  return {reinterpret_cast<const char*>(text.data()), 4 * text.size()};
}

template <typename In, typename Out>
struct Transcoder {
  void (*convert)(const In*, unsigned, std::basic_string<Out>&);
  const char* to;
  const char* from;
};

template <typename In, typename Out>
void check(std::basic_string_view<In> text, Transcoder<In, Out> transcoder,
           std::size_t room = kAnyRoom) {
  const ExactCopy<In> copy{text};
  std::basic_string<Out> got(3, Out('x'));
  transcoder.convert(copy.data(), static_cast<unsigned>(copy.size()), got);
  const std::string want = convert_slowly(transcoder.to, transcoder.from,
                                          bytes_of(text), sizeof(In), room)
                               .bytes;
  const std::basic_string_view<Out> got_view = got;
  require_equal(want, bytes_of(got_view), transcoder.to);
}

void check_transcoders(std::string_view bytes, std::wstring_view text) {
  using Narrow = Transcoder<char, char>;
  using Widening = Transcoder<char, wchar_t>;
  using Narrowing = Transcoder<wchar_t, char>;
  check(text, Narrowing{transcode::Unicode_to_UTF8, "UTF-8", "WCHAR_T"},
        3 * text.size() + 1);
  check(text, Narrowing{transcode::Unicode_to_GBK, "GBK", "WCHAR_T"});
  check(text, Narrowing{transcode::Unicode_to_ANSI, "MS-ANSI", "WCHAR_T"});
  check(bytes, Widening{transcode::UTF8_to_Unicode, "WCHAR_T", "UTF-8"});
  check(bytes, Widening{transcode::GBK_to_Unicode, "WCHAR_T", "GBK"});
  check(bytes, Widening{transcode::ANSI_to_Unicode, "WCHAR_T", "MS-ANSI"});
  check(bytes, Narrow{transcode::GBK_to_UTF8, "UTF-8", "GBK"},
        2 * bytes.size());
  check(bytes, Narrow{transcode::UTF8_to_GBK, "GBK", "UTF-8"});
}

std::string encode_utf8_slowly(std::wstring_view text) {
  std::string utf8;
  for (const wchar_t unit : text) {
    const std::uint32_t code = qk::text::code_of(unit);
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) return utf8;
    const int more = code < 0x80      ? 0
                     : code < 0x800   ? 1
                     : code < 0x10000 ? 2
                                      : 3;
    constexpr unsigned kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    utf8 += static_cast<char>(kLeads[more] | code >> (6 * more));
    for (int i = more; i-- != 0;) {
      utf8 += static_cast<char>(0x80 | (code >> (6 * i) & 0x3F));
    }
  }
  return utf8;
}

void check_utf8(const std::string& bytes, const std::wstring& text) {
  std::string utf8;
  std::wstring wide;
  const bool is_whole = qk::text::encode_utf8(text, utf8);
  require_equal(encode_utf8_slowly(text), utf8, "encode_utf8");
  require(qk::text::decode_utf8(utf8, wide), "what was encoded is UTF-8");
  require_equal(text.substr(0, wide.size()), wide, "encoded and decoded");
  require(is_whole == (wide.size() == text.size()), "whether all was encoded");

  const bool is_utf8 = qk::text::decode_utf8(bytes, wide);
  require(qk::text::encode_utf8(wide, utf8), "what was decoded is characters");
  require_equal(bytes.substr(0, utf8.size()), utf8, "decoded and encoded");
  require(is_utf8 == (utf8 == bytes), "whether all was decoded");

  const std::wstring ended = text.substr(0, text.find(L'\0'));
  require_equal(encode_utf8_slowly(ended), wstring_2_utf8(text), "utf8");
  require_equal(wstring_2_utf8(text), wstring_2_string(text), "the default");
}

// Sets that compose characters need to be fed whole, and are not here. As wide
// text iconv would give numbers beyond the last character.
void check_code_pages(const std::string& bytes) {
  const std::map<int, const char*> names = {
      {866, "CP866"},        {874, "CP874"},     {932, "CP932"},
      {936, "GBK"},          {949, "CP949"},     {950, "CP950"},
      {1251, "CP1251"},      {1252, "MS-ANSI"},  {20866, "KOI8-R"},
      {28592, "ISO-8859-2"}, {54936, "GB18030"}, {65001, "UTF-8"},
      {0, "UTF-8"},          {-1, "UTF-8"},      {1, "UTF-8"}};
  const auto decoded = [&bytes](const char* from) {
    return convert_slowly("UTF-32LE", from, bytes, 1);
  };
  std::string western;
  for (const char byte : bytes.substr(0, bytes.find('\0'))) {
    std::string unit(1, byte);  // itself if it is undefined
    unit.resize(sizeof(wchar_t));
    convert_one(converter("UTF-32LE", "MS-ANSI"), {&byte, 1}, unit);
    western += unit;
  }
  const Converted as_utf8 = decoded("UTF-8");
  const Converted as_gbk = decoded("GBK");
  const std::string& usual = as_utf8.is_whole  ? as_utf8.bytes
                             : as_gbk.is_whole ? as_gbk.bytes
                                               : western;
  for (const auto& [number, name] : names) {
    const Converted named = decoded(name);
    const std::wstring got = string_to_wstring_with_code_page(bytes, number);
    require_equal(named.is_whole ? named.bytes : usual,
                  bytes_of(std::wstring_view(got)), name);
  }
  require(string_2_wstring(bytes) == string_to_wstring_with_code_page(bytes, 0),
          "the default");
  // What composes, at least, ends in time and in characters.
  for (const int number : {1255, 1258}) {
    std::string utf8;
    const std::wstring got = string_to_wstring_with_code_page(bytes, number);
    require(got.size() <= bytes.size() && qk::text::encode_utf8(got, utf8),
            "a code page that composes");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const bool is_host = input.choose(2) == 1;
  const std::string bytes = input.bytes();
  const std::wstring text = input.text();
  if (is_host) {
    check_utf8(bytes, text);
    check_code_pages(bytes);
  } else {
    check_transcoders(bytes, text);
  }
  return 0;
}
