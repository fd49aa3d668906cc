#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Without the locale that the environment names there is nothing to test.
  return std::setlocale(LC_ALL, "") != nullptr ? RUN_ALL_TESTS() : 2;
}
