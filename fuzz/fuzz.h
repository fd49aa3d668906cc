// What the fuzz targets share.
#ifndef KORVANE_FUZZ_FUZZ_H_
#define KORVANE_FUZZ_FUZZ_H_

#include "unit/exact_copy.h"

// Checks properties; each target defines it.
void check(const Bytes& input);

// An input that breaks a property terminates the program.
void require(bool holds, const char* property);

// UTF-8 as wide text. If it is not UTF-8, bytes are code units of the same
// value, and F8 to FF are some that are no characters.
Text widen(const Bytes& bytes);

#endif  // KORVANE_FUZZ_FUZZ_H_
