#include "url/url_file_name.h"

#include <korvane/url_object.h>
#include "table.h"

TEST(url_file_name, IsTheCleanedLastSegment) {
  const Table row = [](const Text& text, const Text& want) {
    EXPECT_EQ(url_object::file_name_for(text, 0), want);
  };
  row(L"http://h/dir/My%20File.zip", L"My File.zip");
  row(L"C:\\dir/a%2Fb%5Cc.txt", L"c.txt");
  row(L"%E4%B8%AD%F0%9F%98%80.txt%4", L"中😀.txt%4");
  row(L" a b\v%20%09", L" a b\v");
  for (const Text none : {L"", L"http://h/dir/ \t", L"x/:*|", L"?"}) {
    row(none, L"index.html");
  }
  // The last "?" stays, and what is behind it goes.
  row(L"h/f%3Fa?b", L"f_a_");
  // In a query "&" ends a name that has a separator before it.
  row(L"a&b/f&g&h?x=1&y=2", L"f");
  row(L"f&g?x", L"f&g_");
  row(L"h/f&g.zip", L"f&g.zip");
  // Separators after the first "?" count for an address alone.
  row(L"h/f.zip?x=/y/z?w", L"f.zip_x=_y_z_");
  row(L"h/f?url=http://i/g.zip?w", L"g.zip_");
  row(L"h/f?URL=a/g?w", L"f_URL=a_g_");
  row(L"f?a/url=b?w", L"url=b_");
  // Illegal characters go at the front, and become "_" elsewhere.
  row(L":\"<na>me|%0Db%0Ac%09d*e:f", L"na_me__b_c_d_e_f");
  row(L"a;b,c=d'e .-b\x01\x7F", L"a;b,c=d'e .-b\x01\x7F");
  // Text beyond ASCII counts as decoded, other text ends at a zero.
  row(L"h/ü:%3A\0c"s, L"ü_%3A\0c"s);
  row(L"\x8000003A%41", L"\x8000003A%41");
  row(L"h/ab%00c.zip", L"ab");
  row(L"h/%41:" + Text(5000, L'n'), L"A_" + Text(5000, L'n'));
}

TEST(url_file_name, GetFilePosIsTheSeparatorBeforeTheQuery) {
  EXPECT_EQ(url_object::get_file_pos(L"name"), Text::npos);
  EXPECT_EQ(url_object::get_file_pos(L"a?b/c"), Text::npos);
  EXPECT_EQ(url_object::get_file_pos(L"/0123456789?c?d/"), 0U);
  EXPECT_EQ(url_object::get_file_pos(L"a/b\\0123456789"), 3U);
  EXPECT_EQ(url_object::get_file_pos(L"a/url=/b?c/d"), 10U);
}

TEST(url_file_name, WordWithExtension) {
  const Table row = [](const Text& text, const Text& want) {
    EXPECT_EQ(qk::url::word_with_extension(text), want);
  };
  row(L"get setup.exe, now", L"setup.exe");
  row(L"x yéa-b$9Z.ZIP", L"a-b$9Z.ZIP");
  for (const Text none :
       {L"", L"zip", L"a.html", L"get setup.Exe", L"get a.exe;",
        L"get a.exe\x100", L"a .zip", L"x_.zip", L".zip", L"a.exex b.exe",
        L"A.EXE b.exex"}) {
    row(none, L"");
  }
  // Quirk: the first character belongs to the word, whatever it is.
  row(L"_yz.zip", L"_yz.zip");
  row(L" .msi b.avi", L" .msi");
  row(L"  .msi b.avi", L"b.avi");
  // In the order of the extensions, lower case first.
  row(L"A.EXE b.exe", L"b.exe");
  for (const Text extension :
       {L"asf", L"avi", L"iso", L"mp3", L"mpeg", L"mpg", L"mpga", L"ra", L"rar",
        L"rm", L"rmvb", L"tar", L"wma", L"wmp", L"wmv"}) {
    row(L"a n." + extension, L"n." + extension);
  }
  EXPECT_EQ(make_upper(L"az`{AZé\x80000061"), L"AZ`{AZé\x80000061");
}
