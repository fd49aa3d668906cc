// The base64 functions with C linkage.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include <korvane/korvane_links.h>
#include "text/base64_encoding.h"
#include "text/digit_tables.h"

namespace {

using namespace qk::text;

constexpr DigitValues kValues = make_digit_values(kBase64Alphabet);

constexpr std::size_t kGroupBytes = 3;
constexpr std::size_t kGroupDigits = 4;
constexpr unsigned kMostPadding = 2;

// What a digit adds to the 24 bits of its group, by its place in it; more than
// 24 bits for an invalid character. Decodes a third faster than one table of
// values that are shifted and tested.
constexpr std::uint32_t kNoGroup = 1U << 24;
using PlacedValues = std::array<std::uint32_t, 256>;

constexpr std::array<PlacedValues, kGroupDigits> make_placed_values() {
  std::array<PlacedValues, kGroupDigits> placed{};
  for (unsigned place = 0; place < kGroupDigits; ++place) {
    for (std::size_t i = 0; i < kValues.size(); ++i) {
      const std::uint32_t value = kValues[i];
      placed[place][i] =
          is_digit_value(value) ? value << (18 - 6 * place) : kNoGroup;
    }
  }
  return placed;
}

constexpr std::array<PlacedValues, kGroupDigits> kPlaced = make_placed_values();

unsigned char octet(char unit) { return static_cast<unsigned char>(unit); }

// The 24 bits of four digits; more if one is invalid.
std::uint32_t group_bits(const char* digits) {
  return kPlaced[0][octet(digits[0])] | kPlaced[1][octet(digits[1])] |
         kPlaced[2][octet(digits[2])] | kPlaced[3][octet(digits[3])];
}

// Whether `size` fits in `*capacity`; if not, `*capacity` becomes `size`.
bool fits(std::uint64_t size, unsigned* capacity) {
  if (size <= *capacity) return true;
  constexpr std::uint64_t kMost = std::numeric_limits<unsigned>::max();
  *capacity = static_cast<unsigned>(std::min(size, kMost));
  return false;
}

bool is_line_break(char unit) { return unit == '\r' || unit == '\n'; }

// The size of the line break at the start of `text`: a line feed, with or
// without a carriage return before it; 0 if there is none.
std::size_t line_break_size(std::string_view text) {
  if (text[0] == '\n') return 1;
  return text.substr(0, 2) == "\r\n" ? 2 : 0;
}

// The length of the run of digits at the start of `text`.
std::size_t digit_run(std::string_view text) {
  std::size_t size = 0;
  while (text.size() - size >= kGroupDigits &&
         group_bits(text.data() + size) < kNoGroup) {
    size += kGroupDigits;
  }
  while (size < text.size() && is_digit_value(value_of(kValues, text[size]))) {
    ++size;
  }
  return size;
}

// The number of digits and padding. None if anything else than line breaks is
// among them, if there is more padding than a group can have, or a digit behind
// it.
std::optional<std::uint64_t> count_significant(std::string_view text) {
  unsigned padding = 0;
  std::uint64_t count = 0;
  while (!text.empty()) {
    std::size_t size = digit_run(text);
    if (size != 0) {
      if (padding != 0) return std::nullopt;
      count += size;
    } else if (text[0] == '=') {
      if (++padding > kMostPadding) return std::nullopt;
      size = 1;
    } else {
      size = line_break_size(text);
      if (size == 0) return std::nullopt;
    }
    text.remove_prefix(size);
  }
  return count + padding;
}

// Gathers the next group past line breaks; the bits of padding are not among
// its bytes. Returns how many digits and padding there are, 4 unless the text
// ends.
std::size_t read_group(std::string_view text, std::size_t& position,
                       unsigned& bits, std::size_t& padding) {
  std::size_t count = 0;
  for (; position < text.size() && count < kGroupDigits; ++position) {
    const char unit = text[position];
    if (is_line_break(unit)) continue;
    if (unit == '=') ++padding;
    bits = bits << 6 | value_of(kValues, unit);
    ++count;
  }
  return count;
}

void write_bytes(unsigned bits, std::size_t count, unsigned char* bytes) {
  for (std::size_t i = 0; i < count; ++i) {
    bytes[i] = static_cast<unsigned char>(bits >> (16 - 8 * i) & 0xFF);
  }
}

// Decodes groups of four digits that stand together; returns how many.
std::size_t decode_groups(std::string_view text, unsigned char* bytes) {
  const std::size_t groups = text.size() / kGroupDigits;
  for (std::size_t i = 0; i < groups; ++i) {
    const std::uint32_t bits = group_bits(text.data() + kGroupDigits * i);
    if (bits >= kNoGroup) return i;
    bytes[0] = static_cast<unsigned char>(bits >> 16);
    bytes[1] = static_cast<unsigned char>(bits >> 8 & 0xFF);
    bytes[2] = static_cast<unsigned char>(bits & 0xFF);
    bytes += kGroupBytes;
  }
  return groups;
}

// Decodes valid text; a last group of fewer than four digits is dropped.
std::size_t decode(std::string_view text, unsigned char* bytes) {
  std::size_t written = 0;
  std::size_t position = 0;
  for (;;) {
    const std::size_t groups =
        decode_groups(text.substr(position), bytes + written);
    written += kGroupBytes * groups;
    position += kGroupDigits * groups;
    unsigned bits = 0;
    std::size_t padding = 0;
    if (read_group(text, position, bits, padding) < kGroupDigits) {
      return written;
    }
    write_bytes(bits, kGroupBytes - padding, bytes + written);
    written += kGroupBytes - padding;
  }
}

}  // namespace

int base64_encode(char* destination, unsigned* destination_length,
                  const unsigned char* source, unsigned source_length) {
  if (source == nullptr || source_length == 0) return BASE64_E_BUFFER;
  const std::uint64_t length = base64_size(source_length);
  if (!fits(length + 1, destination_length)) return BASE64_E_BUFFER;
  encode_base64(source, source_length, destination);
  destination[length] = '\0';
  *destination_length = static_cast<unsigned>(length);
  return 0;
}

int base64_decode(unsigned char* destination, unsigned* destination_length,
                  const char* source, unsigned source_length) {
  if (source == nullptr || source_length == 0) return BASE64_E_CHARACTER;
  const std::string_view text(source, source_length);
  const std::optional<std::uint64_t> significant = count_significant(text);
  if (!significant) return BASE64_E_CHARACTER;
  if (*significant == 0) return 0;
  if (!fits((6 * *significant + 7) / 8, destination_length)) {
    return BASE64_E_BUFFER;
  }
  *destination_length = static_cast<unsigned>(decode(text, destination));
  return 0;
}
