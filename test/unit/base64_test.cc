#include <korvane/korvane_host.h>
#include "table.h"

TEST(base64, EncodesWithPaddingAndInPlace) {
  const Table row = [](std::string bytes, const std::string& want) {
    qk::crypto::base64::encode(bytes, bytes);
    EXPECT_EQ(bytes, want);
  };
  row("", "");
  row("f", "Zg==");
  row("fo", "Zm8=");
  row("\xFB\xEF\xBE\xFF\xFE\xFD", "++++//79");
}
