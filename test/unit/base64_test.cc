#include <gtest/gtest.h>

#include "host/korvane_host.h"

TEST(HostBase64, EncodesWithPadding) {
  const struct {
    std::string in;
    const char* want;
  } kCases[] = {
      {"", ""},
      {"f", "Zg=="},
      {"fo", "Zm8="},
      {"foo", "Zm9v"},
      {"foob", "Zm9vYg=="},
      {"AAhttp://a/bZZ", "QUFodHRwOi8vYS9iWlo="},
      {"\xFF\xFE\xFD", "//79"},
      {std::string("\0\0", 2), "AAA="},
      {"\xFB\xEF\xBE", "++++"},
  };
  for (const auto& test : kCases) {
    std::string out = "old";
    qk::crypto::base64::encode(test.in, out);
    EXPECT_EQ(out, test.want) << "in: " << test.in;
  }
}

TEST(HostBase64, EncodesInPlace) {
  std::string text = "foobar";
  qk::crypto::base64::encode(text, text);
  EXPECT_EQ(text, "Zm9vYmFy");
}
