#include <gtest/gtest.h>

#include <string>

#include <korvane/korvane_host.h>
#include "rows.h"

TEST(HostBase64, EncodesWithPaddingAndInPlace) {
  check<std::string>("base64", [](std::string text) {
    qk::crypto::base64::encode(text, text);
    return text;
  });
}
