#include <korvane/encoders.h>

#include <cctype>

#include <korvane/korvane_links.h>
#include "table.h"

TEST(encoders, DecodersKeepWhatTheyWroteBeforeABadDigit) {
  using Decode = bool (*)(const char*, unsigned long, Bytes&);
  const Table row = [](Decode decode, const Bytes& text, bool is_good,
                       const Bytes& want) {
    const ExactCopy copy(text);
    Bytes out = "YZ";
    EXPECT_EQ(decode(copy.data(), copy.size(), out), is_good);
    EXPECT_EQ(out, want);
  };
  row(decode_base16, "4a4Ab", true, "JJ");
  row(decode_base16, "41x1", false, "AZ");
  row(decode_base16, "4142414G", false, "ABA@");
  row(decode_base16, "414241`1", false, "ABA\0"s);
  row(decode_base16, "41x", false, "A");
  row(decode_base16, "/0", false, "Y");
  row(decode_base16, "9:@F", true, "\x99\x9F");  // quirk: ":" to "@" are 9
  row(decode_base32, "MZXW6ytboi", true, "foobar");
  row(decode_base32, "MZXW6YTBOI7AAAA=", false, "foobar>\0\0"s);
  for (const char bad : "189@[`{=\xE1\0"s) {
    row(decode_base32, "74"s + bad, false, "\xFF");
  }
}

TEST(encoders, EncodeWholeDigits) {
  EXPECT_EQ(encode_base16("\x01\xAF", 2), "01AF");
  EXPECT_EQ(encode_base32("foobarfoob", 10), "MZXW6YTBOJTG633C");
  EXPECT_EQ(encode_base32("foob", 4), "MZXW6YQ");
  EXPECT_EQ(DefaultBase32Map, "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567");
}

TEST(encoders, EncodeUrlWritesInvertedDigitsAndAZeroByte) {
  EXPECT_EQ(encode_url("aZ 1\xFF\xA9", 6), "aZ%CA%DB%??%:J\0"s);
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    EXPECT_EQ(encode_url(&byte, 1).size(), std::isalpha(code) != 0 ? 2U : 4U)
        << code;
  }
}

// What a function returns, the length, and what is then in a buffer of exactly
// that capacity.
template <typename Out, typename In>
static auto expect_coded(int (*code)(Out*, unsigned*, const In*, unsigned)) {
  return [code](const Bytes& source, unsigned capacity, int result,
                unsigned want_length, const Bytes& want) {
    std::vector<Out> out(capacity, Out('#'));
    const ExactCopy copy(source);
    unsigned length = capacity;
    EXPECT_EQ(code(out.data(), &length,
                   reinterpret_cast<const In*>(copy.data()), copy.size()),
              result);
    EXPECT_EQ(length, want_length);
    EXPECT_EQ(Bytes(out.begin(), out.end()),
              want + Bytes(capacity - want.size(), '#'));
  };
}

TEST(base64_coding, EncodesIntoItsCapacity) {
  const Table row = expect_coded(base64_encode);
  row("", 2, -16, 2, "");
  row("a", 5, 0, 4, "YQ==\0"s);
  row("ab", 6, 0, 4, "YWI=\0"s);
  row("abcdefg", 13, 0, 12, "YWJjZGVmZw==\0"s);
  row("abc", 4, -16, 5, "");
  unsigned length = 9;
  EXPECT_EQ(base64_encode(nullptr, &length, nullptr, 3), -16);
  const unsigned char byte = 0;
  EXPECT_EQ(base64_encode(nullptr, &length, &byte, 0x80000000), -16);
  EXPECT_EQ(length, 0xAAAAAAADU);
  // The size that is needed does not fit in the length.
  EXPECT_EQ(base64_encode(nullptr, &length, &byte, ~0U), -16);
  EXPECT_EQ(length, ~0U);
}

TEST(base64_coding, DecodesPastLineBreaks) {
  const Table row = expect_coded(base64_decode);
  row("++//", 4, 0, 3, "\xFB\xEF\xFF");
  row("YWJj", 2, -16, 3, "");
  row("YQ=\n=", 3, 0, 1, "a");
  row("\nYW\r\nJj\n\nYWI=", 6, 0, 5, "abcab");
  row("\n\r\n", 2, 0, 2, "");
  // A group that is not whole needs capacity and gives nothing.
  row("YWJjYWJ", 6, 0, 3, "abc");
  row("==", 2, 0, 0, "");
  row("Y", 0, -16, 1, "");
  // No base64.
  row("", 2, -18, 2, "");
  row("YQ===", 4, -18, 4, "");
  row("YQ=j", 3, -18, 3, "");
  for (const char bad : "\r,-:@[`{\xEA\0"s) {
    row("YWJj"s + bad, 9, -18, 9, "");
    row(Bytes(40, 'k') + bad + Bytes(40, 'k'), 9, -18, 9, "");
  }
  unsigned length = 9;
  EXPECT_EQ(base64_decode(nullptr, &length, nullptr, 4), -18);
}

TEST(base64_coding, EveryDigitThereAndBack) {
  const Bytes digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  Bytes bytes;
  EXPECT_TRUE(
      decode_base16("00108310518720928B30D38F41149351559761969B71D79F8"
                    "218A39259A7A29AABB2DBAFC31CB3D35DB7E39EBBF3DFBF",
                    96, bytes));
  expect_coded(base64_encode)(bytes, 65, 0, 64, digits + "\0"s);
  expect_coded(base64_decode)(digits, 48, 0, 48, bytes);
}
