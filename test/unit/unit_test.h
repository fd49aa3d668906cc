// What the unit tests share.
#ifndef KORVANE_TEST_UNIT_UNIT_TEST_H_
#define KORVANE_TEST_UNIT_UNIT_TEST_H_

#include <gtest/gtest.h>

#include "exact_copy.h"

using namespace std::string_literals;

#endif  // KORVANE_TEST_UNIT_UNIT_TEST_H_
