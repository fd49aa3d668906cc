// Included first by every C++ header of the library.
#ifndef KORVANE_NEEDS_CPP17_H_
#define KORVANE_NEEDS_CPP17_H_

#if __cplusplus < 201703L
#error "korvane needs C++17"
#endif

#endif  // KORVANE_NEEDS_CPP17_H_
