#include <gtest/gtest.h>

#include "host/korvane_host.h"
#include "rows.h"

TEST(HostBase64, EncodesWithPadding) {
  for (const Row& row : rows_of("base64")) {
    std::string out = "old";
    qk::crypto::base64::encode(bytes(row[0]), out);
    EXPECT_EQ(out, bytes(row[1])) << row[0];
  }
}

TEST(HostBase64, EncodesInPlace) {
  std::string text = "foobar";
  qk::crypto::base64::encode(text, text);
  EXPECT_EQ(text, "Zm9vYmFy");
}
