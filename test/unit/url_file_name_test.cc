#include "url/url_file_name.h"

#include <korvane/url_object.h>
#include "unit_test.h"

using qk::url::word_with_extension;

static Text name(const Text& url) { return url_object::file_name_for(url, 0); }

TEST(url_file_name, IsTheCleanedLastSegment) {
  EXPECT_EQ(name(L"C:\\dir/a%2Fb%5Cc.txt"), L"c.txt");
  EXPECT_EQ(name(L"%E4%B8%AD%F0%9F%98%80.txt%4"), L"中😀.txt%4");
  EXPECT_EQ(name(L" a b\v%20%09%09"), L" a b\v");
  for (const Text none : {L"", L"http://h/dir/ \t", L"x/:*|"}) {
    EXPECT_EQ(name(none), L"index.html");
  }
  // The last "?" stays, and what is behind it goes.
  EXPECT_EQ(name(L"h/f%3Fa?b") + name(L"a&b?c"), L"f_a_a&b_");
  // In a query "&" ends a name that has a separator before it.
  EXPECT_EQ(name(L"a&b/f&g&h?x=1&y=2"), L"f");
  EXPECT_EQ(name(L"h/f&g.zip"), L"f&g.zip");
  // Separators after the first "?" count for an address alone.
  EXPECT_EQ(name(L"h/f.zip?x=/y/z?w"), L"f.zip_x=_y_z_");
  EXPECT_EQ(name(L"h/f?url=http://i/g.zip?w"), L"g.zip_");
  // Illegal characters go at the front, and become "_" elsewhere.
  EXPECT_EQ(name(L":\"<na>me|%0Db%0Ac%09d*e:f"), L"na_me__b_c_d_e_f");
  // Text beyond ASCII counts as decoded, other text ends at a zero.
  EXPECT_EQ(name(L"h/ü:%3A\0c"s), L"ü_%3A\0c"s);
  EXPECT_EQ(name(L"h/ab%00c.zip"), L"ab");
  EXPECT_EQ(name(L"h/%41:" + Text(5000, L'n')), L"A_" + Text(5000, L'n'));
}

TEST(url_file_name, GetFilePosIsTheSeparatorBeforeTheQuery) {
  EXPECT_EQ(url_object::get_file_pos(L"/0123456789?c?d/"), 0U);
  EXPECT_EQ(url_object::get_file_pos(L"a/url=/b?c/d"), 10U);
}

TEST(url_file_name, WordWithExtension) {
  EXPECT_EQ(word_with_extension(L"get setup.exe, now"), L"setup.exe");
  EXPECT_EQ(word_with_extension(L"x yéa-b$9Z.ZIP"), L"a-b$9Z.ZIP");
  for (const Text none :
       {L"", L"a.html", L"get setup.Exe", L"get a.exe;", L"get a.exe\x100",
        L"a .zip", L".zip", L"a.exex b.exe", L"A.EXE b.exex"}) {
    EXPECT_EQ(word_with_extension(none), L"");
  }
  // Quirk: the first character belongs to the word, whatever it is.
  EXPECT_EQ(word_with_extension(L"_yz.zip"), L"_yz.zip");
  // In the order of the extensions, lower case first.
  EXPECT_EQ(word_with_extension(L"A.EXE b.exe"), L"b.exe");
  EXPECT_EQ(make_upper(L"az`{AZé\x80000061"), L"AZ`{AZé\x80000061");
}
