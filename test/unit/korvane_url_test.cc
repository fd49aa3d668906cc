#include <korvane/korvane_url.h>

#include <gtest/gtest.h>

#include <string>

#include <korvane/korvane_host.h>
#include "rows.h"

namespace {

using Narrow = korvane_url_t<char>;
using Wide = korvane_url_t<wchar_t>;

TEST(KorvaneUrl, EncodesBetweenMarkersInBothForms) {
  qk::set_last_error(7);
  check<std::string>("private links", [](const std::string& url) {
    const std::wstring link = Wide::encode(url.c_str());
    EXPECT_EQ(Narrow::decode(bytes(link).c_str()), "");
    EXPECT_EQ(Wide::decode(link.c_str()), "");
    return agreed(link, units(Narrow::encode(url.c_str())));
  });
  EXPECT_EQ(qk::get_last_error(), 7U);
  EXPECT_STREQ(Narrow::s_schema, "korvane://");
}

TEST(KorvaneUrl, OnlyTheNarrowFormRecordsEmptyInput) {
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
