// Base16, base32 and base64, against slow readers and back; private links,
// which are base64 behind a scheme.
#include <algorithm>
#include <memory>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/korvane_url.h>
#include "fuzz.h"
#include "unit/exact_copy.h"

namespace {

using fuzz::require;
using fuzz::require_equal;

constexpr std::string_view kBase64Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::string bits_of(std::size_t value, std::size_t count) {
  std::string bits;
  while (count-- != 0) bits += (value >> count & 1) != 0 ? '1' : '0';
  return bits;
}

std::size_t value_of(const std::string& bits, std::size_t at,
                     std::size_t count) {
  std::size_t value = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    value = 2 * value + (bits[i] == '1' ? 1 : 0);
  }
  return value;
}

// Whole bytes alone.
std::string bytes_of(const std::string& bits) {
  std::string bytes;
  for (std::size_t i = 0; i + 8 <= bits.size(); i += 8) {
    bytes += static_cast<char>(value_of(bits, i, 8));
  }
  return bytes;
}

std::string encode_slowly(const std::string& bytes, std::string_view alphabet,
                          std::size_t width) {
  std::string bits;
  for (const char byte : bytes) bits += bits_of(qk::text::code_of(byte), 8);
  bits.append((width - bits.size() % width) % width, '0');
  std::string text;
  for (std::size_t i = 0; i < bits.size(); i += width) {
    text += alphabet[value_of(bits, i, width)];
  }
  return text;
}

char raised(char digit) {
  return digit >= 'a' && digit <= 'z' ? static_cast<char>(digit - 32) : digit;
}

void check_base16(const std::string& text) {
  std::string bits;
  bool is_good = true;
  for (const char digit : text) {
    const std::size_t place =
        std::string_view("0123456789:;<=>?@ABCDEF").find(raised(digit));
    is_good = is_good && place != std::string::npos;
    if (is_good) {
      bits +=
          bits_of(place < 10 ? place : std::max<std::size_t>(place, 16) - 7, 4);
    }
  }
  std::string want = bytes_of(bits + (is_good ? "" : "0000"));
  want.resize(text.size() / 2);
  const ExactCopy copy{std::string_view(text)};
  std::string got;
  require(decode_base16(copy.data(), copy.size(), got) == is_good, "base16");
  require_equal(want, got, "base16 bytes");
}

void check_base32(const std::string& text) {
  std::string bits;
  bool is_good = true;
  for (const char digit : text) {
    const std::size_t value = DefaultBase32Map.find(raised(digit));
    is_good = is_good && value != std::string::npos;
    if (is_good) bits += bits_of(value, 5);
  }
  const ExactCopy copy{std::string_view(text)};
  std::string got = "old";
  require(decode_base32(copy.data(), copy.size(), got) == is_good, "base32");
  require_equal(bytes_of(bits), got, "base32 bytes");
}

// The characters that count; false if one is none.
bool read_base64(const std::string& text, std::string& characters) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "\r\n") == 0) ++i;
    if (text[i] == '\n') continue;
    const bool padded = !characters.empty() && characters.back() == '=';
    const bool is_known = kBase64Alphabet.find(text[i]) != std::string::npos;
    if (text[i] != '=' && (!is_known || padded)) return false;
    characters += text[i];
  }
  return std::count(characters.begin(), characters.end(), '=') <= 2;
}

std::string decode_base64_slowly(const std::string& characters) {
  std::string bytes;
  for (std::size_t i = 0; i + 4 <= characters.size(); i += 4) {
    std::string group = characters.substr(i, 4);
    const auto padding = std::count(group.begin(), group.end(), '=');
    std::replace(group.begin(), group.end(), '=', 'A');
    std::string bits;
    for (const char digit : group)
      bits += bits_of(kBase64Alphabet.find(digit), 6);
    bytes += bytes_of(bits).substr(0, 3 - static_cast<std::size_t>(padding));
  }
  return bytes;
}

std::string decode_base64(const std::string& text, unsigned room, int want) {
  const ExactCopy copy{std::string_view(text)};
  const std::unique_ptr<unsigned char[]> out(new unsigned char[room]);
  unsigned size = room;
  require_equal(want,
                base64_decode(out.get(), &size, copy.data(),
                              static_cast<unsigned>(copy.size())),
                "what base64_decode answers");
  if (want == BASE64_E_BUFFER) require_equal(room + 1, size, "the room needed");
  return want == 0 ? std::string(out.get(), out.get() + size) : "";
}

void check_base64_text(const std::string& text) {
  std::string characters;
  if (text.empty() || !read_base64(text, characters)) {
    decode_base64(text, 1, BASE64_E_CHARACTER);
    return;
  }
  const auto room = static_cast<unsigned>((6 * characters.size() + 7) / 8);
  if (room != 0) decode_base64(text, room - 1, BASE64_E_BUFFER);
  const std::string bytes = decode_base64(text, room, 0);
  require_equal(decode_base64_slowly(characters), bytes, "base64 bytes");
}

std::string encode_base64(const std::string& bytes) {
  std::string text;
  qk::crypto::base64::encode(bytes, text);
  std::string want = encode_slowly(bytes, kBase64Alphabet, 6);
  want.append((4 - want.size() % 4) % 4, '=');
  require_equal(want, text, "the host's base64");
  if (bytes.empty()) return text;
  const auto room = static_cast<unsigned>(text.size() + 1);
  const std::unique_ptr<char[]> out(new char[room]);
  const ExactCopy copy{std::string_view(bytes)};
  const auto encode = [&](unsigned& size) {
    return base64_encode(out.get(), &size,
                         reinterpret_cast<const unsigned char*>(copy.data()),
                         static_cast<unsigned>(copy.size()));
  };
  unsigned size = room - 1;
  require_equal(BASE64_E_BUFFER, encode(size), "the room is too small");
  require_equal(room, size, "the room that is needed");
  require_equal(0, encode(size), "the room is large enough");
  require_equal(text, std::string_view(out.get(), size), "base64_encode");
  require(out[size] == '\0', "a zero stands behind the text");
  return text;
}

void check_encoders(const std::string& bytes) {
  std::string back;
  const std::string base16 = encode_base16(bytes.data(), bytes.size());
  require_equal(encode_slowly(bytes, "0123456789ABCDEF", 4), base16, "base16");
  require(decode_base16(base16.data(), base16.size(), back), "base16 back");
  require_equal(bytes, back, "base16 and back");
  const std::string base32 = encode_base32(bytes.data(), bytes.size());
  require_equal(encode_slowly(bytes, DefaultBase32Map, 5), base32, "base32");
  require(decode_base32(base32.data(), base32.size(), back), "base32 back");
  require_equal(bytes, back, "base32 and back");
  const std::string base64 = encode_base64(bytes);
  require_equal(bytes, decode_base64_slowly(base64), "base64 and back");
}

void check_private_link(const std::string& bytes) {
  const std::string url = bytes.c_str();
  const std::string link = korvane_url_t<char>::encode(bytes.c_str());
  const std::wstring wide = korvane_url_t<wchar_t>::encode(bytes.c_str());
  require_equal(link, std::string(wide.begin(), wide.end()), "the wide form");
  require_equal("", korvane_url_t<char>::decode(link.c_str()), "not read");
  require_equal("", korvane_url_t<wchar_t>::decode(wide.c_str()), "not read");
  require(link.empty() == url.empty(), "no link to nothing");
  if (link.empty()) return;
  require_equal("korvane://", link.substr(0, 10), "the scheme");
  require_equal("AA" + url + "ZZ", decode_base64_slowly(link.substr(10)),
                "link");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes = fuzz::Input(data, size).bytes();
  check_encoders(bytes);
  check_base16(bytes);
  check_base32(bytes);
  check_base64_text(bytes);
  check_private_link(bytes);
  return 0;
}
