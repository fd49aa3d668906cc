// What the fuzz targets share.
#ifndef KORVANE_FUZZ_FUZZ_H_
#define KORVANE_FUZZ_FUZZ_H_

#include "unit/exact_copy.h"

// Checks properties; each target defines it.
void check(const Bytes& input);

// An input that breaks a property terminates the program.
void require(bool holds, const char* property);

// UTF-8 as wide text; bytes that are not UTF-8 as code units, some of which are
// no characters.
Text widen(const Bytes& bytes);

#endif  // KORVANE_FUZZ_FUZZ_H_
