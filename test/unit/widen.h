// ASCII text as text of either character type, so that one table serves both.
#ifndef KORVANE_TEST_UNIT_WIDEN_H_
#define KORVANE_TEST_UNIT_WIDEN_H_

#include <gtest/gtest.h>

#include <string>
#include <string_view>

template <typename Unit>
std::basic_string<Unit> as(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

using BothCharacterTypes = testing::Types<char, wchar_t>;

struct CharacterTypeName {
  template <typename Unit>
  static std::string GetName(int /*index*/) {
    return sizeof(Unit) == 1 ? "char" : "wchar_t";
  }
};

#endif  // KORVANE_TEST_UNIT_WIDEN_H_
