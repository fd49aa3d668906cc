#include <korvane/korvane_url.h>

#include <korvane/korvane_host.h>
#include "unit_test.h"

TEST(korvane_url, EncodesBetweenMarkersAndDecodesNothing) {
  using Narrow = korvane_url_t<char>;
  using Wide = korvane_url_t<wchar_t>;
  EXPECT_EQ(Wide::encode("\xE4\xFF"), L"korvane://QUHk/1pa");
  EXPECT_EQ(Wide::decode(L"korvane://QUHk/1pa"), "");
  // Only the narrow form records empty input.
  qk::set_last_error(7);
  EXPECT_EQ(Wide::encode("") + Wide::encode(nullptr), L"");
  EXPECT_EQ(qk::get_last_error(), 7U);
  EXPECT_EQ(Narrow::encode(nullptr), "");
  EXPECT_EQ(qk::get_last_error(), 20100001U);
}
