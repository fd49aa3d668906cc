// What the libraries do when memory or a converter is wanting: each call for
// one fails in turn until none does. Nothing is left behind, and the next call
// answers as ever.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <functional>
#include <new>
#include <string>
#include <string_view>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/format_utility.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/korvane_url.h>
#include <korvane/transcode.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>
#include "failing_calls.h"

namespace {

using qk::text::transcode;

// Too short to run out of memory over. NOLINTBEGIN(cert-err58-cpp)
const std::string kDigits(80, '5');
const std::wstring kWide(40, L'w');
const std::string kGbk = kDigits + "\xD6\xD0";
const std::string kRead = kDigits + "\x2D";  // U+4E2D
// As much as fits in a field.
const std::wstring kEscaped = std::wstring(255, L'n') + L"%D6%D0";
const std::wstring kUrl = L"ftp://" + kEscaped + L"@h/" + kEscaped;
const std::wstring kHash = L"0123456789ABCDEF0123456789ABCDEF";
// Only a name that is no UTF-8 to its end needs a converter.
const std::wstring kEd2k =
    L"ed2k://|file|" + std::wstring(300, L'n') + L"%E4%B8%AD%FF|100|" + kHash;
const std::wstring kMagnet =
    L"magnet:?xt=urn:btih:" + std::wstring(16, L'\xE9');

using Text = std::function<std::string()>;

// The low bytes of all units.
template <typename... Texts>
std::string all(const Texts&... texts) {
  std::string bytes;
  (bytes.append(texts.begin(), texts.end()), ...);
  return bytes;
}

template <typename In, typename Out>
Text with(void (*convert)(const In*, unsigned, std::basic_string<Out>&),
          const std::basic_string<In>& text) {
  return [=] {
    std::basic_string<Out> out;
    convert(text.data(), static_cast<unsigned>(text.size()), out);
    return all(out);
  };
}

std::string encoders() {
  std::array<std::string, 3> out;
  decode_base16(kDigits.data(), 80, out[0]);
  decode_base32(kDigits.data(), 80, out[1]);
  decode_url(kDigits.data(), 80, out[2]);
  return all(out[0], out[1], out[2], encode_base16(kDigits.data(), 80),
             encode_base32(kDigits.data(), 80), encode_url(kDigits.data(), 80));
}

std::string char_strings() {
  std::array<std::string, 5> out;
  const std::string path = kDigits + "/" + kDigits + "." + kDigits + "\n";
  const char* data = path.data();
  xstringutil::GetLine(data, 244, out[0]);
  xstringutil::SplitNetPathFile(path, out[1], out[2]);
  xstringutil::SplitFileName(path, out[3], out[4]);
  return all(out[0], out[1], out[2], out[3], out[4],
             xstringutil::Data2BitString(data, 80),
             xstringutil::DataToHexString(data, 80, " "),
             xstringutil::EscapeString(data, 80),
             xstringutil::EscapePath(data, 80),
             xstringutil::UnescapeString(path),
             xstringutil::Int64ToString(-1234567890123456789));
}

std::string host_texts() {
  std::string base64;
  qk::crypto::base64::encode(kDigits, base64);
  return all(base64, wstring_2_string(kWide), string_2_wstring(kDigits),
             wstring_2_utf8(kWide + L'\x4E2D'));
}

template <typename Unit>
std::string numbers() {
  return all(qk::text::format_utility_t<Unit>::to_string(1e300),
             qk::text::format_utility_t<Unit>::kilo_format(1e300));
}

std::string url() {
  url_object url;
  url_object::parse_url(kUrl, 936, url);
  return all(url.user, url.path, url.to_string(), url_object::decode(kUrl),
             url_object::decode_ex(kUrl), url_object::encode_ex(kUrl),
             url_object::file_name_for(kUrl, 936));
}

std::string ed2k_link() {
  ed2k_file_link link(L"nil", 0, {});
  link.create_from_ed2k_url(kEd2k + L"|p=" + kHash + L"|s=" + kUrl +
                            L"|/|sources," + kWide + L":1|");
  std::string narrow;
  std::wstring wide;
  link.get_ed2k_url(narrow, 15);
  link.get_ed2k_url(wide, 15);
  return all(utf8_2_hexstr(narrow), wide);
}

std::string magnet_link() {
  bt_magnet_url_parser link(kMagnet + L"&tr=" + kWide + L"&dn=" + kWide);
  link.parse_magnet_url();
  return all(link.get_info_hash(), link.get_display_name(),
             link.get_trackers().at(0));
}

// What the C functions write.
struct Outputs {
  url_info_u url;
  std::array<wchar_t, 512> text;
  std::size_t length;
  ed2k_url_info_u file;
  std::array<unsigned char, 20> hash;
} outputs, untouched;

std::string_view bytes_of(const Outputs& some) {
  return {reinterpret_cast<const char*>(&some), sizeof(some)};
}

// The code, and one number of the outputs unless they are untouched: short
// enough to ask for no memory itself.
template <typename Function, typename Number>
Text told(Function function, const Number& number) {
  return [function, &number] {
    std::memset(&untouched, '#', sizeof(untouched));
    untouched.length = untouched.text.size();
    outputs = untouched;
    const std::string code = std::to_string(function());
    return bytes_of(outputs) == bytes_of(untouched)
               ? code
               : code + ", " + std::to_string(number);
  };
}

long parse_url() {
  return parse_url_u(kUrl.data(), kUrl.size(), 936, &outputs.url);
}
long parse_filename() {
  return parse_filename_u(outputs.text.data(), &outputs.length, kUrl.data(),
                          kUrl.size(), 936);
}
long parse_ed2k() {
  return parse_ed2k_url_u(kEd2k.data(), kEd2k.size(), &outputs.file);
}
long parse_magnet() {
  return parse_magnet_url_u(kMagnet.data(), kMagnet.size(),
                            outputs.hash.data());
}

struct Row {
  const char* name;
  Text call;
  // Null where no converter is needed.
  const char* without_converter = nullptr;
  const char* without_memory = "throws";
};

const Row kRows[] = {
    {"wide to UTF-8", with(transcode::Unicode_to_UTF8, kWide), ""},
    {"UTF-8 to wide", with(transcode::UTF8_to_Unicode, kDigits), ""},
    {"GBK to UTF-8", with(transcode::GBK_to_UTF8, kDigits), ""},
    {"UTF-8 to GBK", with(transcode::UTF8_to_GBK, kDigits), ""},
    {"wide to GBK", with(transcode::Unicode_to_GBK, kWide), ""},
    {"GBK to wide", with(transcode::GBK_to_Unicode, kDigits), ""},
    {"wide to ANSI", with(transcode::Unicode_to_ANSI, kWide), ""},
    {"ANSI to wide", with(transcode::ANSI_to_Unicode, kDigits), ""},
    {"GBK", [] { return all(string_to_wstring_with_code_page(kGbk, 936)); },
     kRead.c_str()},
    // What is neither UTF-8 nor, without a converter, GBK is Western.
    {"default", [] { return all(string_2_wstring(kGbk)); }, kGbk.c_str()},
    {"wide private link",
     [] { return all(korvane_url_t<wchar_t>::encode("x")); }, ""},
    {"private link", [] { return korvane_url_t<char>::encode("http://h/"); }},
    {"host texts", host_texts},
    {"char strings", char_strings},
    {"narrow numbers", numbers<char>},
    {"wide numbers", numbers<wchar_t>},
    {"encoders", encoders},
    {"url_object", url},
    {"ed2k_file_link", ed2k_link},
    {"bt_magnet_url_parser", magnet_link},
    {"parse_url_u", told(parse_url, outputs.url.user_len), "0, 256", "-4"},
    {"parse_filename_u", told(parse_filename, outputs.length), "0, 256", "-4"},
    // "%": the name is not decoded.
    {"parse_ed2k_url_u", told(parse_ed2k, outputs.file.name[300]), "0, 37",
     "-1"},
    {"parse_magnet_url_u", told(parse_magnet, outputs.hash[0]), nullptr, "-1"},
};
// NOLINTEND(cert-err58-cpp)

TEST(Faults, AreAnsweredAndLeaveNothing) {
  for (const Row& row : kRows) {
    const std::string usual = row.call();
    std::string got;
    got.reserve(usual.size());
    const auto as_wanted = [&](Call kind) {
      try {
        got.assign(row.call());
      } catch (const std::bad_alloc&) {
        got = "throws";
      }
      // The second iconv asks for what is held back, which is nothing.
      if (kind == Call::kIconv && got == usual) return true;
      return got ==
             (kind == Call::kNew ? row.without_memory : row.without_converter);
    };
    for (const Call kind : {Call::kNew, Call::kIconvOpen, Call::kIconv}) {
      if (kind != Call::kNew && row.without_converter == nullptr) continue;
      const std::size_t count = fail_each(
          kind, [&] { return as_wanted(kind); },
          [&](bool wanted, std::ptrdiff_t more) {
            EXPECT_TRUE(wanted) << row.name << ": " << got;
            EXPECT_EQ(more, 0) << row.name;
            EXPECT_EQ(row.call(), usual) << row.name;
          });
      EXPECT_GT(count, 0U) << row.name;
    }
  }
}

}  // namespace
