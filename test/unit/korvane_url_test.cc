#include "url/korvane_url.h"

#include <gtest/gtest.h>

#include <string>

#include "host/korvane_host.h"

namespace {

constexpr unsigned kNoError = 7;

TEST(KorvaneUrl, EncodesBetweenMarkersInBothForms) {
  const struct {
    const char* url;
    std::string want;
  } kCases[] = {
      {"http://a/b", "korvane://QUFodHRwOi8vYS9iWlo="},
      {"a", "korvane://QUFhWlo="},
      {"AAxZZ", "korvane://QUFBQXhaWlpa"},
      {"\xE4\xB8\xAD\xFF", "korvane://QUHkuK3/Wlo="},
      {"a\0b", "korvane://QUFhWlo="},
  };
  for (const auto& test : kCases) {
    qk::set_last_error(kNoError);
    EXPECT_EQ(korvane_url_t<char>::encode(test.url), test.want);
    EXPECT_EQ(korvane_url_t<wchar_t>::encode(test.url),
              std::wstring(test.want.begin(), test.want.end()));
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

TEST(KorvaneUrl, EncodesLongText) {
  const std::string url(1'000'000, 'x');
  EXPECT_EQ(korvane_url_t<wchar_t>::encode(url.c_str()).size(),
            10 + (url.size() + 4 + 2) / 3 * 4);
}

}  // namespace
