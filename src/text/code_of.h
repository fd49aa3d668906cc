// Code units as unsigned numbers: char and wchar_t are signed on some
// platforms.
#ifndef KORVANE_TEXT_CODE_OF_H_
#define KORVANE_TEXT_CODE_OF_H_

#include <cstdint>

namespace qk::text {

constexpr std::uint32_t code_of(char unit) {
  return static_cast<unsigned char>(unit);
}
constexpr std::uint32_t code_of(wchar_t unit) {
  return static_cast<char32_t>(unit);
}

}  // namespace qk::text

#endif  // KORVANE_TEXT_CODE_OF_H_
