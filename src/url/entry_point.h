// What the C functions have in common.
#ifndef KORVANE_URL_ENTRY_POINT_H_
#define KORVANE_URL_ENTRY_POINT_H_

#include <cstddef>
#include <limits>

namespace qk::url {

// Longer text is not read.
constexpr std::size_t kLongestText = std::numeric_limits<unsigned>::max();

// The answer of `body`, or `failure` if it throws: nothing but want of memory
// does, and no exception may reach a C caller.
template <typename Body>
long answer(long failure, Body body) noexcept {
  try {
    return body();
  } catch (...) {
    return failure;
  }
}

}  // namespace qk::url

#endif  // KORVANE_URL_ENTRY_POINT_H_
