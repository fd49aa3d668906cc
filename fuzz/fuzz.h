// What the fuzz targets share. Inputs are files that people can read: for some
// targets a choice as one character, then text.
#ifndef KORVANE_FUZZ_FUZZ_H_
#define KORVANE_FUZZ_FUZZ_H_

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "unit/exact_copy.h"

using namespace std::string_literals;
using Bytes = std::string;
using Text = std::wstring;

// Checks the properties of one format, and may change the input; each target
// defines it.
void check(Bytes& input);

inline Bytes current_input;

// An input that breaks a property terminates the program.
inline void require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "\nbroken: %s\nby ", property);
  for (const unsigned char byte : current_input.substr(0, 4096)) {
    std::fprintf(stderr, byte < ' ' || byte > '~' ? "\\x%02X" : "%c", byte);
  }
  std::abort();
}

// Takes the first character of the input as a choice: "0" is the first.
template <typename Choice, std::size_t kCount>
Choice choose(Bytes& input, const Choice (&choices)[kCount]) {
  const char first = input.empty() ? '0' : input[0];
  input.erase(0, 1);
  return choices[static_cast<unsigned char>(first ^ '0') % kCount];
}

// UTF-8 as wide text; other bytes are code units of the same value, and F8 to
// FF are some that are no characters.
Text widen(std::string_view bytes);

#endif  // KORVANE_FUZZ_FUZZ_H_
