// Codings of bytes, there and back: base16, base32, base64, percent-coding and
// character sets.
#include <vector>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/transcode.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>
#include "fuzz.h"

using qk::text::transcode;

// Decodes with exactly the capacity that the function asks for.
static Bytes decode_base64(const Bytes& text) {
  const ExactCopy copy(text);
  unsigned length = 0;
  base64_decode(nullptr, &length, copy.data(), copy.size());
  std::vector<unsigned char> out(length);
  const int result =
      base64_decode(out.data(), &length, copy.data(), copy.size());
  return result == 0 ? Bytes(out.data(), out.data() + length) : Bytes();
}

static void check_bases(const Bytes& input) {
  const ExactCopy copy(input);
  Bytes out;
  const Bytes base16 = encode_base16(copy.data(), copy.size());
  decode_base16(base16.data(), base16.size(), out);
  require(out == input, "base16 and back");
  const Bytes base32 = encode_base32(copy.data(), copy.size());
  decode_base32(base32.data(), base32.size(), out);
  require(out == input, "base32 and back");
  qk::crypto::base64::encode(input, out);
  require(decode_base64(out) == input, "base64 and back");
  // Any text, at least, is read to its end alone.
  decode_base16(copy.data(), copy.size(), out);
  decode_base32(copy.data(), copy.size(), out);
  decode_base64(input);
}

static void check_percent_coding(const Bytes& input) {
  const ExactCopy copy(input);
  const Bytes path = xstringutil::EscapePath(copy.data(), int(input.size()));
  require(xstringutil::UnescapeString(path) == input, "escaped and back");
  const Text text = widen(input);
  const Text encoded = url_object::encode_ex(text);
  require(url_object::encode_ex(encoded) == encoded, "escapes stay");
  require(url_object::decode_ex(encoded) == url_object::decode_ex(text),
          "encoded and decoded");
}

void check(const Bytes& input) {
  check_bases(input);
  check_percent_coding(input);
  const ExactCopy copy(input);
  Text wide;
  transcode::GBK_to_Unicode(copy.data(), copy.size(), wide);
  const ExactCopy wide_copy(wide);
  Bytes back;
  transcode::Unicode_to_GBK(wide_copy.data(), wide_copy.size(), back);
  require(input.compare(0, back.size(), back) == 0, "GBK and back");
}
