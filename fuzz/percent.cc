// Every percent-decoder and escaper, against a slow one, and back.
#include <algorithm>
#include <cctype>

#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>
#include "fuzz.h"

namespace {

using fuzz::require;
using fuzz::require_equal;

template <typename Unit>
bool is_escape(const std::basic_string<Unit>& text, std::size_t i) {
  const auto is_hex = [](Unit unit) {
    const auto code = qk::text::code_of(unit);
    return code < 128 && std::isxdigit(static_cast<int>(code)) != 0;
  };
  return text[i] == Unit('%') && i + 2 < text.size() && is_hex(text[i + 1]) &&
         is_hex(text[i + 2]);
}

template <typename Unit>
Unit escaped_at(const std::basic_string<Unit>& text, std::size_t i) {
  const std::string digits(text.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                           text.begin() + static_cast<std::ptrdiff_t>(i) + 3);
  return static_cast<Unit>(std::stoi(digits, nullptr, 16));
}

template <typename Unit>
std::basic_string<Unit> decode_slowly(const std::basic_string<Unit>& text,
                                      std::string_view kept = "") {
  std::basic_string<Unit> decoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const Unit unit = is_escape(text, i) ? escaped_at(text, i) : text[i];
    const bool is_kept =
        std::find(kept.begin(), kept.end(), unit) != kept.end();
    decoded += is_kept ? text[i] : unit;
    if (is_escape(text, i) && !is_kept) i += 2;
  }
  return decoded;
}

// Each byte that `is_plain` does not tell as "%" and two digits.
template <typename IsPlain>
std::string escape_slowly(const std::string& bytes, const char* format,
                          IsPlain is_plain) {
  std::string text;
  for (const char byte : bytes) {
    char escaped[4] = {byte};
    if (!is_plain(byte)) {
      std::snprintf(escaped, sizeof escaped, format, qk::text::code_of(byte));
    }
    text.append(escaped, is_plain(byte) ? 1 : 3);
  }
  return text;
}

bool is_letter_or_digit(char byte) {
  return url_object::is_alpha(byte) || url_object::is_digit(byte);
}

std::wstring encode_slowly(const std::wstring& text) {
  std::wstring encoded;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const wchar_t unit = text[i];
    if (!is_escape(text, i) &&
        (url_object::need_escape(unit) || url_object::is_reserved(unit))) {
      const std::string digits = char2hex(static_cast<unsigned char>(unit));
      encoded += L'%';
      encoded.append(digits.begin(), digits.end());
    } else {
      encoded += unit;
    }
  }
  return encoded;
}

void check_unescape(const std::string& bytes) {
  const std::size_t size = bytes.size();
  bool is_good = true;
  for (std::size_t i = bytes.find('%'); i < size && is_good;
       i = bytes.find('%', i + 3)) {
    is_good = is_escape(bytes, i);
  }
  std::string want = bytes;
  std::replace(want.begin(), want.end(), '+', ' ');
  require_equal(is_good ? decode_slowly(want) : "",
                xstringutil::UnescapeString(bytes), "unescaped");
}

void check_escapers(const std::string& bytes) {
  const int size = static_cast<int>(bytes.size());
  const std::string all = xstringutil::EscapeString(bytes.data(), size);
  require_equal(escape_slowly(bytes, "%%%02X", is_letter_or_digit), all,
                "EscapeString");
  require_equal(bytes, xstringutil::UnescapeString(all), "and back");
  const std::string path = xstringutil::EscapePath(bytes.data(), size);
  const auto is_path = [](char byte) {
    return is_letter_or_digit(byte) ||
           std::string_view("/-_.!~*()").find(byte) != std::string::npos;
  };
  require_equal(escape_slowly(bytes, "%%%02x", is_path), path, "EscapePath");
  require_equal(bytes, xstringutil::UnescapeString(path), "and back");
  check_unescape(bytes);
}

void check_narrow(const std::string& bytes) {
  const std::string want = decode_slowly(bytes);
  std::string decoded = "old";
  require(decode_url(bytes.data(), bytes.size(), decoded), "always true");
  require_equal(want, decoded, "decode_url");
  require_equal(want, url_object::decode(bytes), "decode");
  require_equal(want, url_object::decode_ex(bytes), "decode_ex");
  require_equal(want, decode_slowly(utf8_2_hexstr(bytes)), "utf8_2_hexstr");

  std::string text = encode_url(bytes.data(), bytes.size());
  require(text.back() == '\0', "a zero ends the text");
  text.pop_back();
  for (std::size_t i = text.find('%'); i < text.size();
       i = text.find('%', i + 3)) {
    for (std::size_t k = i + 1; k < i + 3; ++k) {
      const int half = text[k] >= 'A' ? text[k] - 'A' : text[k] - '0';
      text[k] = "0123456789abcdef"[half];
    }
  }
  require_equal(bytes, decode_slowly(text), "encode_url with its own digits");
}

void check_wide(const std::wstring& text, int code_page) {
  const std::wstring want = decode_slowly(text);
  require_equal(want, url_object::decode_ex(text), "wide decode_ex");
  require_equal(decode_slowly(text, "$&+,/:;=?@"), url_object::decode(text),
                "wide decode");
  const std::wstring encoded = url_object::encode_ex(text);
  require_equal(encode_slowly(text), encoded, "encode_ex");
  require_equal(want, decode_slowly(encoded), "encoded and decoded");

  std::wstring in_code_page = text;
  if (std::all_of(text.begin(), text.end(),
                  [](wchar_t unit) { return qk::text::code_of(unit) < 128; })) {
    const std::wstring ended = text.substr(0, text.find(L'\0'));
    in_code_page = string_to_wstring_with_code_page(
        decode_slowly(std::string(ended.begin(), ended.end())), code_page);
  }
  require_equal(in_code_page,
                url_object::decode_ex(text, static_cast<unsigned>(code_page)),
                "decode_ex with a code page");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kCodePages[] = {0, 65001, 936, 1252, -1, 950};
  fuzz::Input input(data, size);
  const int code_page = kCodePages[input.choose(6)];
  check_narrow(input.bytes());
  check_escapers(input.bytes());
  check_wide(input.text(), code_page);
  return 0;
}
