// What the fuzz targets share. Inputs are files that people can read: for some
// targets a digit that chooses the code page, then text.
#ifndef KORVANE_FUZZ_FUZZ_H_
#define KORVANE_FUZZ_FUZZ_H_

#include <string>

#include "unit/exact_copy.h"

// Checks the properties of one format, and may change the input; each target
// defines it.
void check(Bytes& input);

// An input that breaks a property terminates the program.
void require(bool holds, const char* property);

// Takes the first character as the choice of a code page: "0" is the default.
unsigned take_code_page(Bytes& input);

// UTF-8 as wide text. If it is not UTF-8, bytes are code units of the same
// value, and F8 to FF are some that are no characters.
Text widen(const Bytes& bytes);

#endif  // KORVANE_FUZZ_FUZZ_H_
