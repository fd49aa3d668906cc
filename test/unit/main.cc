#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (std::setlocale(LC_ALL, "") == nullptr) {
    std::fprintf(stderr, "no locale %s\n", std::getenv("LC_ALL"));
    return 1;
  }
  return RUN_ALL_TESTS();
}
