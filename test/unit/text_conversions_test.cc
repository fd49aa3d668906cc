#include <gtest/gtest.h>

#include <string>

#include <korvane/korvane_host.h>
#include "rows.h"

namespace {

TEST(HostText, WideToNarrowIsUtf8) {
  check<std::wstring>("narrowed", [](const std::wstring& text) {
    return agreed(wstring_2_utf8(text), wstring_2_string(text));
  });
}

TEST(HostText, DefaultEncodingLosesNoName) {
  check<std::string>("widened", [](const std::string& text) {
    for (const int code_page : {0, -1, 1, 65000, 28590, 28602, 28607, 1259}) {
      EXPECT_EQ(string_to_wstring_with_code_page(text, code_page),
                string_2_wstring(text))
          << code_page;
    }
    return string_2_wstring(text);
  });
}

TEST(HostText, CodePages) {
  check<int, std::string>(
      "bytes in code pages", [](int code_page, const std::string& text) {
        return string_to_wstring_with_code_page(text, code_page);
      });
}

}  // namespace
