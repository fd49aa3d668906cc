// What the C functions share.
#ifndef KORVANE_URL_ENTRY_POINT_H_
#define KORVANE_URL_ENTRY_POINT_H_

#include <cstddef>
#include <limits>

namespace qk::url {

// Such text is an error.
constexpr bool is_too_long(std::size_t length) {
  return length > std::numeric_limits<unsigned>::max();
}

// The result of `body`, or `failure` if that runs out of memory: no exception
// may reach a C caller.
template <typename Body>
long without_exceptions(long failure, Body body) noexcept {
  try {
    return body();
  } catch (...) {
    return failure;
  }
}

}  // namespace qk::url

#endif  // KORVANE_URL_ENTRY_POINT_H_
