// A number of fixed width, as hashes are.
#ifndef KORVANE_UINTX_H_
#define KORVANE_UINTX_H_

#include <korvane/needs_cpp17.h>

#include <array>

// Its bytes in the order in which a link writes them; zero when new.
template <unsigned bits, unsigned bytes>
struct uintx {
  static_assert(bits == 8 * bytes, "a byte has 8 bits");

  std::array<unsigned char, bytes> octets{};

  friend bool operator==(const uintx& a, const uintx& b) {
    return a.octets == b.octets;
  }
  friend bool operator!=(const uintx& a, const uintx& b) { return !(a == b); }
};

static_assert(sizeof(uintx<128, 16>) == 16, "nothing but the bytes");
static_assert(sizeof(uintx<160, 20>) == 20, "nothing but the bytes");

#endif  // KORVANE_UINTX_H_
