#include "url/korvane_url.h"

#include <gtest/gtest.h>

#include <string>

#include "host/korvane_host.h"
#include "rows.h"

namespace {

constexpr unsigned kNoError = 7;

TEST(KorvaneUrl, EncodesBetweenMarkersInBothForms) {
  for (const Row& row : rows_of("private links")) {
    const std::string url = bytes(row[0]);
    qk::set_last_error(kNoError);
    EXPECT_EQ(korvane_url_t<char>::encode(url.c_str()), bytes(row[1]));
    EXPECT_EQ(korvane_url_t<wchar_t>::encode(url.c_str()), row[1]);
    EXPECT_EQ(qk::get_last_error(), kNoError);
  }
  EXPECT_STREQ(korvane_url_t<char>::s_schema, "korvane://");
}

TEST(KorvaneUrl, OnlyTheNarrowFormRecordsEmptyInput) {
  for (const char* url : {"", static_cast<const char*>(nullptr)}) {
    qk::set_last_error(kNoError);
    EXPECT_EQ(korvane_url_t<wchar_t>::encode(url), L"");
    EXPECT_EQ(qk::get_last_error(), kNoError);
    EXPECT_EQ(korvane_url_t<char>::encode(url), "");
    EXPECT_EQ(qk::get_last_error(), 20100001U);
  }
}

TEST(KorvaneUrl, DecodesEverythingToNothing) {
  qk::set_last_error(kNoError);
  EXPECT_EQ(korvane_url_t<char>::decode(nullptr), "");
  EXPECT_EQ(korvane_url_t<wchar_t>::decode(nullptr), "");
  for (const std::string link :
       {"", "korvane://", "korvane://QUFodHRwOi8vYS9iWlo=", "x", "\xFF"}) {
    const std::wstring wide(link.begin(), link.end());
    EXPECT_EQ(korvane_url_t<char>::decode(link.c_str()), "");
    EXPECT_EQ(korvane_url_t<wchar_t>::decode(wide.c_str()), "");
  }
  EXPECT_EQ(qk::get_last_error(), kNoError);
}

}  // namespace
