#include <korvane/url_object.h>

#include <korvane/korvane_links.h>
#include "unit_test.h"

// The type and the port of a scheme, and whether files are loaded by it.
static Bytes traits(const Text& schema) {
  url_object url;
  url.schema = schema;
  const Bytes narrow(schema.begin(), schema.end());
  unsigned supported = 2;
  EXPECT_EQ(is_support_schema(narrow.data(), narrow.size(), &supported), 0);
  return std::to_string(url.schema_type()) + " " +
         std::to_string(url.default_port()) + " " + std::to_string(supported);
}

TEST(schemes, AreWholeAndInAnyCase) {
  EXPECT_EQ(traits(L"http://"), "0 80 1");
  EXPECT_EQ(traits(L"FTP://"), "1 21 1");
  EXPECT_EQ(traits(L"mms://"), "2 1755 1");
  EXPECT_EQ(traits(L"HttpS://"), "3 443 1");
  EXPECT_EQ(traits(L"mmst://"), "4 1755 1");
  EXPECT_EQ(traits(L"peer://"), "5 3077 0");
  EXPECT_EQ(traits(L"rtsp://"), "6 554 1");
  EXPECT_EQ(traits(L"rtspt://"), "7 554 1");
  EXPECT_EQ(traits(L"ftps://"), "8 21 1");
  for (const Text& other :
       {L""s, L"http:/"s, L"http://x"s, L" http://"s, L"@TTP://"s,
        L"HTTP\x1A//"s, L"http://\0"s, L"\xE8ttp://"s}) {
    EXPECT_EQ(traits(other), "10 80 0");
  }
  EXPECT_EQ(url_object::schema_type_for(L"\x168ttp://"), 10U);
}

// Whether `text` is a URL, and the members after it was parsed over others.
static Text parsed(const Text& text) {
  url_object url = {L"S", L"U", L"P", L"H", 9, L"A", L"E"};
  const bool is_url = url_object::parse_url(text, 65001, url);
  return (is_url ? L"" : L"no ") + url.schema + L" " + url.user + L" " +
         url.password + L" " + url.host + L" " + std::to_wstring(url.port) +
         L" " + url.path + L" " + url.extra;
}

TEST(url_object, ParseUrlSetsWhatItFinds) {
  EXPECT_EQ(parsed(L" \t foo://h/x "), L"foo://   h 80 /x  E");
  EXPECT_EQ(parsed(L"a:b//://\0:/\0?:@"s), L"a:b//://   \0 0 /\0?:@ E"s);
  EXPECT_EQ(parsed(L"HTTP://"), L"HTTP://    80 / E");
  EXPECT_EQ(parsed(L"peer://?x#f"), L"peer://   ?x#f 3077 / E");
  // The last "@" and the first ":" count.
  EXPECT_EQ(parsed(L"ftp://u@:p:@h/"), L"ftp:// u@ p: h 21 / E");
  EXPECT_EQ(parsed(L"f://u:p@:4294967306"), L"f:// u p  10 / E");
  // User and password are decoded, host and path are not.
  EXPECT_EQ(parsed(L"f://%41:%2F@%43/%44#f#g"), L"f:// A / %43 80 /%44 E");
  EXPECT_EQ(parsed(L"f://\x80%41:%C3%A9@h/?q#f"), L"f:// \x80%41 é h 80 /?q E");
  EXPECT_EQ(parsed(L""), L"    0  ");
}

TEST(url_object, ParseUrlKeepsTheMembersAfterAFault) {
  for (const Text none : {L"   ", L"http:/x", L"\t://x"}) {
    EXPECT_EQ(parsed(none), L"no S U P H 9 A E");
  }
  EXPECT_EQ(parsed(L"http:///x"), L"no http:// U P H 9 A E");
  for (const Text port : {L"8a", L"1:2", L" 80", L"\x80000031"}) {
    EXPECT_EQ(parsed(L"f://%41:@h:" + port), L"no f:// A  H 9 A E");
  }
}

TEST(url_object, ToStringPrintsWhatItHolds) {
  url_object url = {L"http://", L"u", L"p", L"h", 0, L"/x", L"E"};
  EXPECT_EQ(url.to_string(), L"");
  url = {L"https://", L"", L"p", L"h", ~0U, L"", L"E"};
  EXPECT_EQ(url.to_string(), L"https://:p@h:4294967295");
  url = {L"F://", L"a ü", L"", L"h i", 80, L"/j k", L""};
  EXPECT_EQ(url.to_string(), L"F://a%20ü:@h i/j k");
}
