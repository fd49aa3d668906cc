// Base16, base32 and base64, there and back.
#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>

#include "fuzz.h"

// Decodes with exactly the capacity that the function asks for.
static Bytes decode_base64(const Bytes& text) {
  const ExactCopy copy(text);
  unsigned length = 0;
  base64_decode(nullptr, &length, copy.data(), copy.size());
  std::vector<unsigned char> out(length);
  if (base64_decode(out.data(), &length, copy.data(), copy.size()) != 0) {
    return {};
  }
  return {out.data(), out.data() + length};
}

void check(Bytes& input) {
  const ExactCopy copy(input);
  Bytes out;
  const Bytes base16 = encode_base16(copy.data(), copy.size());
  require(decode_base16(base16.data(), base16.size(), out) && out == input,
          "base16 and back");
  const Bytes base32 = encode_base32(copy.data(), copy.size());
  require(decode_base32(base32.data(), base32.size(), out) && out == input,
          "base32 and back");
  Bytes base64;
  qk::crypto::base64::encode(input, base64);
  require(decode_base64(base64) == input, "base64 and back");
  // Any text, at least, is read to its end alone.
  decode_base16(copy.data(), copy.size(), out);
  decode_base32(copy.data(), copy.size(), out);
  decode_base64(input);
}
