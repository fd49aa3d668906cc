#include <gtest/gtest.h>

#include <thread>

#include <korvane/korvane_host.h>

TEST(last_error, EachThreadHasItsOwn) {
  qk::set_last_error(20100001);
  unsigned seen = 1;
  std::thread([&seen] { seen = qk::get_last_error(); }).join();
  EXPECT_EQ(seen, 0U);
  EXPECT_EQ(qk::get_last_error(), 20100001U);
  qk::set_last_error(0);
  EXPECT_EQ(qk::get_last_error(), 0U);
}
