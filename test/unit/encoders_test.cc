#include <korvane/encoders.h>

#include <korvane/korvane_links.h>
#include "unit_test.h"

// What a decoder writes over "YZ"; behind "no " if it fails.
static Bytes decoded(bool (*decode)(const char*, unsigned long, Bytes&),
                     const Bytes& text) {
  const ExactCopy copy(text);
  Bytes out = "YZ";
  return decode(copy.data(), copy.size(), out) ? out : "no " + out;
}

TEST(encoders, DecodersKeepWhatTheyWroteBeforeABadDigit) {
  EXPECT_EQ(decoded(decode_base16, "4a4Ab"), "JJ");
  EXPECT_EQ(decoded(decode_base16, "4142414G"), "no ABA@");
  EXPECT_EQ(decoded(decode_base16, "41x"), "no A");
  EXPECT_EQ(decoded(decode_base16, "9:@F"), "\x99\x9F");  // quirk: ":" is 9
  EXPECT_EQ(decoded(decode_base32, "MZXW6ytboi"), "foobar");
  EXPECT_EQ(decoded(decode_base32, "MZXW6YTBOI7AAAA="), "no foobar>\0\0"s);
  for (const char bad : "189@[`{=\xE1\0"s) {
    EXPECT_EQ(decoded(decode_base32, "74"s + bad), "no \xFF") << bad;
  }
}

TEST(encoders, EncodeWholeDigits) {
  EXPECT_EQ(encode_base16("\x01\xAF", 2), "01AF");
  EXPECT_EQ(encode_base32("foobar", 4), "MZXW6YQ");
  // Quirk: inverted digits, and a zero byte at the end.
  EXPECT_EQ(encode_url("aZ 1@[`{\xA9", 9), "aZ%CA%DB%EA%F;%GA%H;%:J\0"s);
}

// What a function returns, the length, and what is then in a buffer of exactly
// that capacity.
template <typename Out, typename In>
static Bytes coded(int (*code)(Out*, unsigned*, const In*, unsigned),
                   const Bytes& source, unsigned capacity) {
  std::vector<Out> out(capacity, Out('#'));
  const ExactCopy copy(source);
  const auto* const input = reinterpret_cast<const In*>(copy.data());
  unsigned length = capacity;
  const int result = code(out.data(), &length, input, copy.size());
  return std::to_string(result) + " " + std::to_string(length) + " " +
         Bytes(out.begin(), out.end());
}

TEST(base64_coding, EncodesIntoItsCapacity) {
  EXPECT_EQ(coded(base64_encode, "a", 5), "0 4 YQ==\0"s);
  EXPECT_EQ(coded(base64_encode, "abcde", 10), "0 8 YWJjZGU=\0#"s);
  EXPECT_EQ(coded(base64_encode, "abc", 4), "-16 5 ####");
  // A capacity that is needed and does not fit in the length.
  unsigned length = 9;
  const unsigned char byte = 0;
  EXPECT_EQ(base64_encode(nullptr, &length, &byte, ~0U), -16);
  EXPECT_EQ(length, ~0U);
  EXPECT_EQ(base64_encode(nullptr, &length, nullptr, 3), -16);
}

TEST(base64_coding, DecodesPastLineBreaks) {
  EXPECT_EQ(coded(base64_decode, "YWJjYW=", 5), "-16 6 #####");
  EXPECT_EQ(coded(base64_decode, "YQ=\n=", 3), "0 1 a##");
  EXPECT_EQ(coded(base64_decode, "\nYWJj\r\nYWJjYW\nJjAAA=", 12),
            "0 11 abcabcabc\0\0#"s);
  EXPECT_EQ(coded(base64_decode, "\n\r\n", 2), "0 2 ##");
  // A group that is not whole needs capacity and gives nothing.
  EXPECT_EQ(coded(base64_decode, "YWJjYWJ", 6), "0 3 abc###");
  EXPECT_EQ(coded(base64_decode, "", 2), "-18 2 ##");
  EXPECT_EQ(coded(base64_decode, "YQ===", 4), "-18 4 ####");
  EXPECT_EQ(coded(base64_decode, "YQ=j", 3), "-18 3 ###");
  for (const char bad : "\r,-:@[`{\xEA\0"s) {
    const Bytes text = Bytes(40, 'k') + bad + Bytes(40, 'k');
    EXPECT_EQ(coded(base64_decode, text, 1), "-18 1 #") << bad;
  }
}

TEST(base64_coding, EveryDigitThereAndBack) {
  const Bytes digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const Bytes bytes = decoded(
      decode_base16,
      "00108310518720928B30D38F41149351559761969B71D79F8218A39259A7A29AABB2DBAF"
      "C31CB3D35DB7E39EBBF3DFBF");
  EXPECT_EQ(coded(base64_encode, bytes, 69), "0 64 " + digits + "\0####"s);
  EXPECT_EQ(coded(base64_decode, digits, 48), "0 48 " + bytes);
}
