// Base16, base32, base64 and private links, there and back.
#include <korvane/encoders.h>

#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/korvane_url.h>
#include "fuzz.h"

// What base64_decode makes of a text in a buffer of the size that it asks for.
static Bytes decode_base64(const Bytes& text) {
  const ExactCopy<char> copy(text);
  const auto size = static_cast<unsigned>(copy.size());
  unsigned length = 0;
  if (base64_decode(nullptr, &length, copy.data(), size) != BASE64_E_BUFFER) {
    return {};
  }
  const std::unique_ptr<unsigned char[]> out(new unsigned char[length]);
  require(base64_decode(out.get(), &length, copy.data(), size) == 0, "fits");
  return {out.get(), out.get() + length};
}

static Bytes encode_base64(const Bytes& bytes) {
  Bytes text;
  qk::crypto::base64::encode(bytes, text);
  if (bytes.empty()) return text;
  const ExactCopy<char> copy(bytes);
  Bytes out(text.size() + 1, '#');
  auto length = static_cast<unsigned>(text.size());
  const auto encode = [&] {
    return base64_encode(out.data(), &length,
                         reinterpret_cast<const unsigned char*>(copy.data()),
                         static_cast<unsigned>(copy.size()));
  };
  require(encode() == BASE64_E_BUFFER && length == out.size(), "no zero fits");
  require(encode() == 0 && length == text.size(), "what fits");
  require(out == text + '\0', "the host's base64 is the same");
  return text;
}

void check(Bytes& input) {
  Bytes out;
  const ExactCopy<char> copy(input);
  const Bytes base16 = encode_base16(copy.data(), copy.size());
  require(decode_base16(base16.data(), base16.size(), out) && out == input,
          "base16 and back");
  const Bytes base32 = encode_base32(copy.data(), copy.size());
  require(decode_base32(base32.data(), base32.size(), out) && out == input,
          "base32 and back");
  require(decode_base64(encode_base64(input)) == input, "base64 and back");
  // Any text, at least, is read to its end alone.
  decode_base16(copy.data(), copy.size(), out);
  decode_base32(copy.data(), copy.size(), out);
  decode_base64(input);
  const Bytes url = input.c_str();
  const Bytes link = korvane_url_t<char>::encode(url.c_str());
  const Text wide = korvane_url_t<wchar_t>::encode(url.c_str());
  require(link == Bytes(wide.begin(), wide.end()), "the wide form");
  require(url.empty() ? link.empty()
                      : decode_base64(link.substr(10)) == "AA" + url + "ZZ",
          "a link and back");
}
