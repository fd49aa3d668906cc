#include "url/encoders.h"

#include <gtest/gtest.h>
#include <openssl/crypto.h>
#include <openssl/evp.h>

#include <algorithm>
#include <bitset>
#include <cctype>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "allocation_counter.h"
#include "exact_copy.h"
#include "rows.h"
#include "url/korvane_links.h"

namespace {

using namespace std::string_literals;

constexpr char kBase64Alphabet[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// All two-byte strings, then generated ones of each length up to 300.
template <typename Check>
void for_each_input(Check check) {
  for (unsigned i = 0; i < 0x10000; ++i) {
    check(std::string{static_cast<char>(i >> 8), static_cast<char>(i & 255)});
  }
  std::uint64_t state = 1;
  for (std::size_t length = 0; length <= 300; ++length) {
    std::string bytes(length, '\0');
    for (char& byte : bytes) {
      state = state * 48271 % 0x7FFFFFFF;
      byte = static_cast<char>(state & 255);
    }
    check(bytes);
  }
}

// The slow, obvious encoder: bits as text, cut into digits.
std::string encode_bits(const std::string& bytes, std::size_t bits_each,
                        const std::string& alphabet) {
  std::string bits;
  for (const char byte : bytes) {
    bits += std::bitset<8>(static_cast<unsigned char>(byte)).to_string();
  }
  while (bits.size() % bits_each != 0) bits += '0';
  std::string text;
  for (std::size_t i = 0; i < bits.size(); i += bits_each) {
    text += alphabet[std::stoul(bits.substr(i, bits_each), nullptr, 2)];
  }
  return text;
}

using Encode = std::string (*)(const void*, unsigned long);
using Decode = bool (*)(const char*, unsigned long, std::string&);

std::string encoded(Encode encode, const std::string& bytes) {
  const ExactCopy copy{std::string_view(bytes)};
  return encode(copy.data(), copy.size());
}

// The answer and what stands in the output then.
using Decoded = std::pair<bool, std::string>;

Decoded decoded(Decode decode, const std::string& text,
                const std::string& old = "") {
  const ExactCopy copy{std::string_view(text)};
  std::string out = old;
  const bool valid = decode(copy.data(), copy.size(), out);
  return {valid, out};
}

TEST(Encoders, Base16AndBase32AgreeWithTheObviousEncoderAndReadBack) {
  for_each_input([](const std::string& bytes) {
    const std::string base16 = encoded(encode_base16, bytes);
    const std::string base32 = encoded(encode_base32, bytes);
    ASSERT_EQ(base16, encode_bits(bytes, 4, "0123456789ABCDEF"));
    ASSERT_EQ(base32, encode_bits(bytes, 5, DefaultBase32Map));
    ASSERT_EQ(decoded(decode_base16, base16), (Decoded{true, bytes}));
    ASSERT_EQ(decoded(decode_base32, base32), (Decoded{true, bytes}));
  });
  EXPECT_EQ(DefaultBase32Map, "ABCDEFGHIJKLMNOPQRSTUVWXYZ234567");
  std::string out = "old";
  EXPECT_EQ(encode_base16(nullptr, 0) + encode_base32(nullptr, 0), "");
  EXPECT_TRUE(decode_base16(nullptr, 0, out));
  EXPECT_EQ(out, "");
  out = "old";
  EXPECT_TRUE(decode_base32(nullptr, 0, out));
  EXPECT_EQ(out, "");
}

TEST(Encoders, Base16AgreesWithOpenSsl) {
  for_each_input([](const std::string& bytes) {
    if (bytes.empty()) return;
    const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
    char* const spaced =
        OPENSSL_buf2hexstr(data, static_cast<long>(bytes.size()));
    std::string want(spaced);
    OPENSSL_free(spaced);
    want.erase(std::remove(want.begin(), want.end(), ':'), want.end());
    ASSERT_EQ(encoded(encode_base16, bytes), want);
    long size = 0;
    unsigned char* const theirs = OPENSSL_hexstr2buf(want.c_str(), &size);
    std::string ours;
    ASSERT_TRUE(decode_base16(want.data(), want.size(), ours));
    ASSERT_EQ(ours, std::string(reinterpret_cast<char*>(theirs),
                                static_cast<std::size_t>(size)));
    OPENSSL_free(theirs);
  });
}

// What each character counts as: 16 is none.
unsigned lenient_digit(unsigned char unit) {
  if (unit >= '0' && unit <= '9') return unit - '0';
  if (unit > '9' && unit < 'A') return 9;
  const int upper = std::toupper(unit);
  return upper >= 'A' && upper <= 'F' ? static_cast<unsigned>(upper - 'A' + 10)
                                      : 16;
}

TEST(Encoders, DecodeBase16TakesEveryPairAsItsDigitsSay) {
  for (unsigned i = 0; i < 0x10000; ++i) {
    const std::string text = {static_cast<char>(i >> 8),
                              static_cast<char>(i & 255)};
    const unsigned high = lenient_digit(static_cast<unsigned char>(i >> 8));
    const unsigned low = lenient_digit(static_cast<unsigned char>(i & 255));
    const unsigned byte = high == 16  ? 'o'  // nothing written
                          : low == 16 ? high << 4
                                      : high << 4 | low;
    ASSERT_EQ(decoded(decode_base16, text, "old"),
              (Decoded{high < 16 && low < 16, {static_cast<char>(byte)}}))
        << i;
  }
}

TEST(Encoders, DecodeBase16KeepsWhatItWroteBeforeABadDigit) {
  for (const Row& row : rows_of("base16")) {
    EXPECT_EQ(decoded(decode_base16, bytes(row[0]), "YZ"),
              (Decoded{row[1] == L"yes", bytes(row[2])}))
        << row[0];
  }
}

TEST(Encoders, DecodeBase32ReadsBothCasesAndStopsAtABadDigit) {
  EXPECT_EQ(decoded(decode_base32, "74", "old"), (Decoded{true, "\xFF"}));
  EXPECT_EQ(decoded(decode_base32, "mzxw6ytboi"), (Decoded{true, "foobar"}));
  EXPECT_EQ(decoded(decode_base32, "MZXW6===", "old"), (Decoded{false, "foo"}));
  EXPECT_EQ(decoded(decode_base32, "A"), (Decoded{true, ""}));
  const std::string lower = "abcdefghijklmnopqrstuvwxyz234567";
  for (unsigned code = 0; code < 256; ++code) {
    const char unit = static_cast<char>(code);
    const bool valid =
        code != 0 && (DefaultBase32Map + lower).find(unit) != std::string::npos;
    for (std::size_t position = 0; position <= 17; ++position) {
      std::string text(18, '7');
      text[position] = unit;
      const Decoded got = decoded(decode_base32, text, "old");
      ASSERT_EQ(got.first, valid) << code << " at " << position;
      ASSERT_EQ(got.second.size(), valid ? 11 : position * 5 / 8);
      ASSERT_TRUE(valid || got.second == std::string(position * 5 / 8, '\xFF'));
    }
  }
}

TEST(Encoders, EncodeUrlWritesInvertedDigitsAndAZeroByte) {
  EXPECT_EQ(encode_url("a b", 3), "a%CAb\0"s);
  EXPECT_EQ(encode_url(nullptr, 0), "\0"s);
  constexpr char kInverted[] = "ABCDEFGHIJ:;<=>?";
  for (unsigned code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    const std::string escaped = {'%', kInverted[code >> 4],
                                 kInverted[code & 15], '\0'};
    const std::string letter = {byte, '\0'};
    const bool is_letter = std::isalpha(static_cast<int>(code)) != 0;
    EXPECT_EQ(encode_url(&byte, 1), is_letter ? letter : escaped) << code;
  }
}

TEST(Encoders, DecodeUrlKeepsWhatIsNoEscape) {
  for (const Row& row : rows_of("decoded")) {
    EXPECT_EQ(decoded(decode_url, bytes(row[0]), "old text"),
              (Decoded{true, bytes(row[1])}));
  }
}

// The answer, the length and the destination's bytes of a base64 call.
using Answer = std::tuple<int, unsigned, std::string>;

const unsigned char* octets(const char* bytes) {
  return reinterpret_cast<const unsigned char*>(bytes);
}

Answer encode64(const std::string& source, unsigned room) {
  const ExactCopy copy{std::string_view(source)};
  const std::unique_ptr<char[]> destination(new char[room]);
  std::memset(destination.get(), '#', room);
  unsigned length = room;
  const int code =
      base64_encode(destination.get(), &length, octets(copy.data()),
                    static_cast<unsigned>(copy.size()));
  return {code, length, {destination.get(), room}};
}

Answer decode64(const std::string& source, unsigned room) {
  const ExactCopy copy{std::string_view(source)};
  const std::unique_ptr<unsigned char[]> destination(new unsigned char[room]);
  std::memset(destination.get(), '#', room);
  unsigned length = room;
  const int code = base64_decode(destination.get(), &length, copy.data(),
                                 static_cast<unsigned>(copy.size()));
  return {code, length, {destination.get(), destination.get() + room}};
}

TEST(Encoders, Base64AgreesWithTheObviousEncoderAndWithOpenSsl) {
  for_each_input([](const std::string& bytes) {
    if (bytes.empty()) return;
    std::string want = encode_bits(bytes, 6, kBase64Alphabet);
    want.resize((want.size() + 3) / 4 * 4, '=');
    const auto size = static_cast<unsigned>(want.size());
    ASSERT_EQ(encode64(bytes, size + 1), (Answer{0, size, want + '\0'}));
    ASSERT_EQ(encode64(bytes, size),
              (Answer{-16, size + 1, std::string(size, '#')}));
    std::string theirs(size + 1, '#');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(theirs.data()),
                    octets(bytes.data()), static_cast<int>(bytes.size()));
    ASSERT_EQ(theirs, want + '\0');
    // Theirs counts the padding as bytes.
    EVP_DecodeBlock(reinterpret_cast<unsigned char*>(theirs.data()),
                    octets(want.data()), static_cast<int>(want.size()));
    const auto [code, length, decoded] = decode64(want, size / 4 * 3);
    ASSERT_EQ(code, 0);
    ASSERT_EQ(decoded.substr(0, length), theirs.substr(0, bytes.size()));
    ASSERT_EQ(decoded.substr(0, length), bytes);
  });
}

TEST(Encoders, Base64FunctionsDoNotAllocate) {
  char text[9];
  unsigned size = sizeof(text);
  unsigned char decoded[6];
  EXPECT_EQ(allocations_of([&] {
              base64_encode(text, &size, octets("abcdef"), 6);
              unsigned room = sizeof(decoded);
              base64_decode(decoded, &room, text, size);
            }),
            0U);
  EXPECT_EQ(std::string(decoded, decoded + 6), "abcdef");
}

TEST(Encoders, Base64EncodeAnswersCodes) {
  EXPECT_EQ(encode64("abc", 4), (Answer{-16, 5, "####"}));
  EXPECT_EQ(encode64("abc", 6), (Answer{0, 4, "YWJj\0#"s}));
  EXPECT_EQ(encode64("", 9), (Answer{-16, 9, "#########"}));
  unsigned length = 9;
  char destination[9];
  EXPECT_EQ(base64_encode(destination, &length, nullptr, 3), -16);
  EXPECT_EQ(length, 9U);
  // The room that is needed does not fit in the length: nothing is read.
  EXPECT_EQ(base64_encode(destination, &length, octets("a"), 0xFFFFFFFF), -16);
  EXPECT_EQ(length, 0xFFFFFFFF);
  length = 9;
  EXPECT_EQ(base64_encode(destination, &length, octets("a"), 0x80000000), -16);
  EXPECT_EQ(length, 0xAAAAAAADU);
}

// The slow, obvious decoder.
Answer decode64_slowly(const std::string& source, unsigned room) {
  Answer invalid = {-18, room, std::string(room, '#')};
  if (source.empty()) return invalid;
  const std::string alphabet = kBase64Alphabet;
  std::string digits;
  for (std::size_t i = 0; i < source.size(); ++i) {
    const bool feeds = source.compare(i, 2, "\r\n") == 0;
    if (feeds || source[i] == '\n') continue;
    const bool digit = alphabet.find(source[i]) != std::string::npos;
    if (!digit && source[i] != '=') return invalid;
    if (digit && digits.find('=') != std::string::npos) return invalid;
    digits += source[i];
  }
  if (std::count(digits.begin(), digits.end(), '=') > 2) return invalid;
  std::string destination(room, '#');
  if (digits.empty()) return {0, room, destination};
  const auto needed = static_cast<unsigned>((6 * digits.size() + 7) / 8);
  if (needed > room) return {-16, needed, destination};
  std::string bytes;
  for (std::size_t i = 0; i + 4 <= digits.size(); i += 4) {
    std::size_t bits = 0;
    std::size_t count = 3;
    for (const char digit : digits.substr(i, 4)) {
      if (digit == '=') --count;
      bits = bits * 64 + (digit == '=' ? 0 : alphabet.find(digit));
    }
    const char group[] = {static_cast<char>(bits >> 16 & 255),
                          static_cast<char>(bits >> 8 & 255),
                          static_cast<char>(bits & 255)};
    bytes.append(group, count);
  }
  destination.replace(0, bytes.size(), bytes);
  return {0, static_cast<unsigned>(bytes.size()), destination};
}

TEST(Encoders, Base64DecodeAgreesWithTheObviousDecoderOnEveryShortText) {
  const std::string units = "Az+=\r\n";
  for (std::size_t length = 0; length <= 7; ++length) {
    std::vector<std::size_t> at(length, 0);
    for (;;) {
      std::string text;
      for (const std::size_t i : at) text += units[i];
      for (const unsigned room : {2U, 3U, 6U}) {
        ASSERT_EQ(decode64(text, room), decode64_slowly(text, room))
            << testing::PrintToString(text);
      }
      std::size_t i = 0;
      while (i < length && ++at[i] == units.size()) at[i++] = 0;
      if (i == length) break;
    }
  }
}

TEST(Encoders, Base64DecodeAgreesWithTheObviousDecoderOnEveryUnitAndPlace) {
  // Longer than the blocks that are checked at once.
  for (unsigned code = 0; code < 256; ++code) {
    for (std::size_t place = 0; place < 72; ++place) {
      std::string text(72, 'k');
      text[place] = static_cast<char>(code);
      ASSERT_EQ(decode64(text, 60), decode64_slowly(text, 60)) << code;
    }
  }
  for (std::size_t length = 1; length <= 80; ++length) {
    for (const char* insert : {"\n", "\r\n", "\r", "=", "==", "===", "=\n="}) {
      std::string text(length, 'Q');
      ASSERT_EQ(decode64(text + insert, 66),
                decode64_slowly(text + insert, 66));
      text.insert(length / 2, insert);
      ASSERT_EQ(decode64(text, 66), decode64_slowly(text, 66)) << text;
    }
  }
}

TEST(Encoders, Base64DecodeTakesNoNull) {
  unsigned length = 9;
  unsigned char destination[9];
  EXPECT_EQ(base64_decode(destination, &length, nullptr, 4), -18);
  EXPECT_EQ(length, 9U);
}

}  // namespace
