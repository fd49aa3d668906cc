// A hash of fixed size.
#ifndef KORVANE_UINTX_H_
#define KORVANE_UINTX_H_

#include <korvane/needs_cpp17.h>

#include <array>

// The bytes are in the order of their digits in a link; initially zero.
template <unsigned bits, unsigned bytes>
struct uintx {
  static_assert(bits == 8 * bytes, "bits is 8 x bytes");

  std::array<unsigned char, bytes> octets{};

  friend bool operator==(const uintx& a, const uintx& b) {
    return a.octets == b.octets;
  }
  friend bool operator!=(const uintx& a, const uintx& b) { return !(a == b); }
};

static_assert(sizeof(uintx<128, 16>) == 16, "no padding");
static_assert(sizeof(uintx<160, 20>) == 20, "no padding");

#endif  // KORVANE_UINTX_H_
