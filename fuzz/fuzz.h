// What the fuzz targets share: reading their input and saying what is wrong.
//
// Inputs are files that people can read: an option or two as single
// characters, then text.
#ifndef KORVANE_FUZZ_FUZZ_H_
#define KORVANE_FUZZ_FUZZ_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "text/code_of.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size);

namespace fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  // The next character as a choice of 0 to `choices` - 1: "0" is 0.
  std::size_t choose(std::size_t choices) {
    if (rest_.empty()) return 0;
    const auto choice = static_cast<unsigned char>(rest_[0] ^ '0');
    rest_.remove_prefix(1);
    return choice % choices;
  }

  // The text up to the next `end` or the end of the input.
  std::string bytes_until(char end) {
    const std::size_t size = rest_.find(end);
    const std::string text(rest_.substr(0, size));
    rest_.remove_prefix(size < rest_.size() ? size + 1 : rest_.size());
    return text;
  }

  std::string bytes() const { return std::string(rest_); }

  // Wide text: UTF-8 where it is, bytes that are no part of it as units of
  // their own value. F8 makes a unit of the four bytes behind it.
  std::wstring text() const {
    std::wstring text;
    for (std::string_view rest = rest_; !rest.empty();) {
      text += next_unit(rest);
    }
    return text;
  }

 private:
  static wchar_t next_unit(std::string_view& rest) {
    const unsigned lead = qk::text::code_of(rest[0]);
    std::size_t size = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    unsigned unit = lead < 0xC2 ? lead : lead & (0xFFU >> (size + 1));
    if (lead >= 0xF8) size = lead == 0xF8 ? 5 : 1;
    for (std::size_t i = 1; i < size; ++i) {
      if (i == rest.size()) size = 1;
      if (size == 1) break;
      const unsigned byte = qk::text::code_of(rest[i]);
      if (size < 5 && byte >> 6 != 2) size = 1;
      unit =
          size < 5 ? unit << 6 | (byte & 0x3F) : (unit & 0xFFFFFF) << 8 | byte;
    }
    rest.remove_prefix(size);
    return static_cast<wchar_t>(size == 1 ? lead : unit);
  }

  std::string_view rest_;
};

template <typename Unit>
void print(std::basic_string_view<Unit> text) {
  for (const Unit unit : text) {
    const std::uint32_t code = qk::text::code_of(unit);
    std::fprintf(stderr, code >= 0x20 && code < 0x7F ? "%c" : "\\x{%X}", code);
  }
}

inline void print(long long number) { std::fprintf(stderr, "%lld", number); }

// Ends the program, which makes the input a finding.
[[noreturn]] inline void fail(const char* rule) {
  std::fprintf(stderr, "\nbroken: %s\n", rule);
  std::abort();
}

inline void require(bool holds, const char* rule) {
  if (!holds) fail(rule);
}

template <typename Value>
void print_both(const Value& want, const Value& got) {
  std::fprintf(stderr, "wanted: ");
  print(want);
  std::fprintf(stderr, "\ngot:    ");
  print(got);
}

inline void require_equal(std::string_view want, std::string_view got,
                          const char* rule) {
  if (want == got) return;
  print_both(want, got);
  fail(rule);
}

inline void require_equal(std::wstring_view want, std::wstring_view got,
                          const char* rule) {
  if (want == got) return;
  print_both(want, got);
  fail(rule);
}

inline void require_equal(long long want, long long got, const char* rule) {
  if (want == got) return;
  print_both(want, got);
  fail(rule);
}

}  // namespace fuzz

#endif  // KORVANE_FUZZ_FUZZ_H_
