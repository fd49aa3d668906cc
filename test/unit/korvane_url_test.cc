#include <korvane/korvane_url.h>

#include <gtest/gtest.h>

#include <korvane/korvane_host.h>

namespace {

using Narrow = korvane_url_t<char>;
using Wide = korvane_url_t<wchar_t>;

TEST(korvane_url, EncodesBetweenMarkersAndDecodesNothing) {
  qk::set_last_error(7);
  EXPECT_STREQ(Narrow::s_schema, "korvane://");
  EXPECT_EQ(Narrow::encode("http://a/b"), "korvane://QUFodHRwOi8vYS9iWlo=");
  EXPECT_EQ(Wide::encode("\xE4\xFF"), L"korvane://QUHk/1pa");
  EXPECT_EQ(Narrow::decode("korvane://QUFodHRwOi8vYS9iWlo="), "");
  EXPECT_EQ(Wide::decode(L"korvane://QUFodHRwOi8vYS9iWlo="), "");
  EXPECT_EQ(qk::get_last_error(), 7U);
}

TEST(korvane_url, OnlyTheNarrowFormRecordsEmptyInput) {
  for (const char* url : {"", static_cast<const char*>(nullptr)}) {
    qk::set_last_error(7);
    EXPECT_EQ(Wide::encode(url), L"");
    EXPECT_EQ(Narrow::decode(url) + Wide::decode(nullptr), "");
    EXPECT_EQ(qk::get_last_error(), 7U);
    EXPECT_EQ(Narrow::encode(url), "");
    EXPECT_EQ(qk::get_last_error(), 20100001U);
  }
}

}  // namespace
