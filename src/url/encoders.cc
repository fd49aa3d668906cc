#include <korvane/encoders.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "text/digit_tables.h"
#include "text/hex_digits.h"
#include "url/base_decoding.h"
#include "url/percent_coding.h"

namespace {

using namespace qk::text;
using namespace qk::url;

// Written two at a time, digits take less than half the time.
constexpr DigitPairs<16> kBase16Pairs = make_digit_pairs<16>(kUpperHexDigits);
constexpr DigitPairs<32> kBase32Pairs = make_digit_pairs<32>(kBase32Alphabet);

constexpr std::size_t kPairSize = 2;

std::string_view bytes_of(const void* bytes, unsigned long length) {
  return {static_cast<const char*>(bytes), length};
}

void encode_base32_group(const unsigned char* bytes, char* digits) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < kBase32GroupBytes; ++i)
    bits = bits << 8 | bytes[i];
  for (unsigned shift = 40; shift != 0; digits += kPairSize) {
    shift -= 10;
    std::memcpy(digits, kBase32Pairs[bits >> shift & 1023].data(), kPairSize);
  }
}

char inverted_digit(unsigned half) {
  return static_cast<char>(half < 10 ? 'A' + half : '0' + half);
}

// Decodes the digits of the last, incomplete group, or of one with an invalid
// digit. Adds the bytes written to `written`; returns whether all are digits.
bool decode_base32_rest(const char* digits, std::size_t count, char* bytes,
                        std::size_t& written) {
  std::uint64_t bits = 0;
  unsigned pending = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned value = value_of(kBase32Values, digits[i]);
    if (!is_digit_value(value)) return false;
    bits = bits << 5 | value;
    pending += 5;
    if (pending < 8) continue;
    pending -= 8;
    bytes[written++] = static_cast<char>(bits >> pending & 0xFF);
  }
  return true;
}

}  // namespace

// Too short a text to run out of memory over.
const std::string DefaultBase32Map(kBase32Alphabet);  // NOLINT(cert-err58-cpp)

std::string encode_base16(const void* bytes, unsigned long length) {
  std::string text(kPairSize * length, '\0');
  char* digits = text.data();
  for (const char byte : bytes_of(bytes, length)) {
    std::memcpy(digits, kBase16Pairs[code_of(byte)].data(), kPairSize);
    digits += kPairSize;
  }
  return text;
}

bool decode_base16(const char* text, unsigned long length, std::string& out) {
  const std::size_t pairs = length / 2;
  out.resize(pairs);
  const std::size_t written =
      decode_base16_pairs(kBase16Values, text, pairs, out.data());
  if (written == pairs) {
    return length % 2 == 0 ||
           is_digit_value(value_of(kBase16Values, text[length - 1]));
  }
  const unsigned high = value_of(kBase16Values, text[2 * written]);
  if (is_digit_value(high)) out[written] = static_cast<char>(high << 4);
  return false;
}

std::string encode_base32(const void* bytes, unsigned long length) {
  const auto* in = static_cast<const unsigned char*>(bytes);
  const unsigned long groups = length / kBase32GroupBytes;
  const unsigned long rest = length % kBase32GroupBytes;
  std::string text(kBase32GroupDigits * (groups + 1), '\0');
  char* digits = text.data();
  for (unsigned long i = 0; i < groups; ++i) {
    encode_base32_group(in, digits);
    in += kBase32GroupBytes;
    digits += kBase32GroupDigits;
  }
  unsigned char last[kBase32GroupBytes] = {};
  std::copy_n(in, rest, last);
  encode_base32_group(last, digits);
  text.resize(kBase32GroupDigits * groups + (8 * rest + 4) / 5);
  return text;
}

bool decode_base32(const char* text, unsigned long length, std::string& out) {
  const unsigned long whole = length / kBase32GroupDigits;
  out.resize(length * 5 / 8);
  const std::size_t groups =
      decode_base32_groups(kBase32Values, text, whole, out.data());
  std::size_t written = kBase32GroupBytes * groups;
  const std::size_t read = kBase32GroupDigits * groups;
  const bool valid =
      decode_base32_rest(text + read, length - read, out.data(), written);
  out.resize(written);
  return valid;
}

std::string encode_url(const void* bytes, unsigned long length) {
  std::string text;
  for (const char byte : bytes_of(bytes, length)) {
    const std::uint32_t code = code_of(byte);
    if (std::isalpha(static_cast<int>(code)) != 0) {
      text += byte;
    } else {
      text += {'%', inverted_digit(code >> 4), inverted_digit(code & 15)};
    }
  }
  text += '\0';
  return text;
}

bool decode_url(const char* text, unsigned long length, std::string& out) {
  out.resize(length);
  const char* end = percent_decode(std::string_view(text, length), out.data());
  out.resize(static_cast<std::size_t>(end - out.data()));
  return true;
}
