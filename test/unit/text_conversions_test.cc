#include <gtest/gtest.h>

#include <string>

#include "host/korvane_host.h"
#include "rows.h"

namespace {

TEST(HostText, WideToNarrowIsUtf8) {
  for (const Row& row : rows_of("narrowed")) {
    EXPECT_EQ(wstring_2_utf8(row[0]), bytes(row[1])) << row[0];
    EXPECT_EQ(wstring_2_string(row[0]), bytes(row[1])) << row[0];
  }
}

TEST(HostText, DefaultEncodingLosesNoName) {
  for (const Row& row : rows_of("widened")) {
    EXPECT_EQ(string_2_wstring(bytes(row[0])), row[1]) << row[0];
    for (const int code_page : {0, -1, 1, 65000, 28590, 28602, 28607, 1259}) {
      EXPECT_EQ(string_to_wstring_with_code_page(bytes(row[0]), code_page),
                row[1])
          << code_page;
    }
  }
}

TEST(HostText, CodePages) {
  for (const Row& row : rows_of("bytes in code pages")) {
    EXPECT_EQ(string_to_wstring_with_code_page(
                  bytes(row[1]), static_cast<int>(number(row[0]))),
              row[2])
        << row[0];
  }
}

}  // namespace
