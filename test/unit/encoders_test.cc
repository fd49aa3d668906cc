#include <korvane/encoders.h>

#include <gtest/gtest.h>
#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <algorithm>
#include <cctype>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <tuple>

#include <korvane/korvane_links.h>
#include "exact_copy.h"
#include "failing_calls.h"
#include "rows.h"

namespace {

using Bytes = ExactCopy<char>;

const unsigned char* octets(const Bytes& bytes) {
  return reinterpret_cast<const unsigned char*>(bytes.data());
}

// A decoder's answer and what it leaves of "YZ" in its output.
auto decoded(bool (*decode)(const char*, unsigned long, std::string&)) {
  return [decode](const Bytes& text) {
    std::string out = "YZ";
    const bool is_good = decode(text.data(), text.size(), out);
    return std::tuple(is_good, out);
  };
}

TEST(Encoders, DecodersKeepWhatTheyWroteBeforeABadDigit) {
  check<Bytes>("base16", decoded(decode_base16));
  check<Bytes>("base32", decoded(decode_base32));
  check<Bytes>("decoded", [](const Bytes& text) {
    std::string out = "old text";
    EXPECT_TRUE(decode_url(text.data(), text.size(), out));
    return out;
  });
  std::string out;
  EXPECT_TRUE(decode_base16(nullptr, 0, out));
  EXPECT_TRUE(decode_base32(nullptr, 0, out));
  EXPECT_EQ(encode_base16(nullptr, 0) + encode_base32(nullptr, 0), "");
  EXPECT_EQ(DefaultBase32Map, "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567");
}

TEST(Encoders, EncodeUrlWritesInvertedDigitsAndAZeroByte) {
  check<Bytes>("encoded bytes", [](const Bytes& text) {
    return encode_url(text.data(), text.size());
  });
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    EXPECT_EQ(encode_url(&byte, 1).size(), std::isalpha(code) != 0 ? 2U : 4U)
        << code;
  }
}

// The code, the length and what then stands in a room of that size.
template <typename Out, typename In>
auto coded(int (*code)(Out*, unsigned*, const In*, unsigned)) {
  return [code](const Bytes& source, unsigned room) {
    const std::unique_ptr<Out[]> out(new Out[room]);
    std::fill_n(out.get(), room, Out('#'));
    unsigned length = room;
    const int answer =
        code(out.get(), &length, reinterpret_cast<const In*>(source.data()),
             static_cast<unsigned>(source.size()));
    return std::tuple(answer, length, std::string(out.get(), out.get() + room));
  };
}

TEST(Encoders, Base64AnswersCodes) {
  check<Bytes, unsigned>("base64 encoded", coded(base64_encode));
  check<Bytes, unsigned>("base64 decoded", coded(base64_decode));
  unsigned length = 9;
  char text[9];
  unsigned char bytes[9] = {};
  EXPECT_EQ(base64_encode(text, &length, nullptr, 3), -16);
  EXPECT_EQ(base64_decode(bytes, &length, nullptr, 4), -18);
  EXPECT_EQ(length, 9U);
  // The room that is needed does not fit in the length: nothing is read.
  EXPECT_EQ(base64_encode(text, &length, bytes, 0xFFFFFFFF), -16);
  EXPECT_EQ(length, 0xFFFFFFFF);
  length = 9;
  EXPECT_EQ(base64_encode(text, &length, bytes, 0x80000000), -16);
  EXPECT_EQ(length, 0xAAAAAAADU);
}

TEST(Encoders, AgreeWithOpenSsl) {
  std::mt19937 random(1);  // NOLINT(cert-msc*)
  for (std::size_t size = 1; size <= 300; ++size) {
    std::string text(size, '\0');
    for (char& byte : text) byte = static_cast<char>(random() & 0xFF);
    const Bytes bytes{std::string_view(text)};
    char* const spaced =
        OPENSSL_buf2hexstr(octets(bytes), static_cast<long>(size));
    std::string base16;
    for (std::size_t i = 0; i < 2 * size; ++i) base16 += spaced[i / 2 + i];
    OPENSSL_free(spaced);
    EXPECT_EQ(encode_base16(bytes.data(), size), base16);
    std::string base64(4 * ((size + 2) / 3) + 1, '#');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(base64.data()),
                    octets(bytes), static_cast<int>(size));
    const auto room = static_cast<unsigned>(base64.size());
    EXPECT_EQ(coded(base64_encode)(bytes, room),
              std::tuple(0, room - 1, base64));
    base64.pop_back();
    EXPECT_EQ(
        std::get<2>(coded(base64_decode)(Bytes(base64), room)).substr(0, size),
        text);
    std::string back;
    EXPECT_TRUE(decode_base16(base16.data(), base16.size(), back));
    EXPECT_EQ(back, text);
  }
}

}  // namespace
