#include "url/url_file_name.h"

#include <korvane/url_object.h>
#include "table.h"

namespace {

constexpr std::size_t kNowhere = Text::npos;

TEST(url_file_name, IsTheCleanedLastSegment) {
  const Table row = [](const Text& text, const Text& want) {
    EXPECT_EQ(url_object::file_name_for(text, 0), want);
    EXPECT_EQ(url_object::file_name_for(text, 0xFFFFFFFF), want);
  };
  row(L"http://h/dir/My%20File.zip", L"My File.zip");
  row(L"C:\\dir/a%2Fb%5Cc.txt", L"c.txt");
  row(L"%41%4", L"A%4");
  row(L"%E4%B8%AD%F0%9F%98%80.txt", L"中😀.txt");
  row(L"", L"index.html");
  row(L"http://h/dir/ \t", L"index.html");
  row(L"x/:*|", L"index.html");
  row(L" a b%20%09", L" a b");
  row(L"a\v ", L"a\v");
  // The last "?" stays, and what is behind it goes.
  row(L"http://h/dir/f.zip?x=1&y=2", L"f.zip_");
  row(L"f.zip%3Fx=1", L"f.zip_");
  row(L"h/f?a?b", L"f_a_");
  row(L"?", L"index.html");
  // In a query "&" ends a name that has a separator before it.
  row(L"a&b/f&g&h?x", L"f");
  row(L"f&g?x", L"f&g_");
  row(L"h/f&g.zip", L"f&g.zip");
  // Separators after the first "?" count for an address alone.
  row(L"h/f.zip?x=/y/z?w", L"f.zip_x=_y_z_");
  row(L"f?a/b?", L"f_a_b_");
  row(L"h/f?url=http://i/g.zip?w", L"g.zip_");
  row(L"h/f?URL=a/g?w", L"f_URL=a_g_");
  row(L"f?a/url=b?w", L"url=b_");
  // Illegal characters go at the front, and become "_" elsewhere.
  row(L":\"<na>me|", L"na_me_");
  row(L"%0D%0Aa%0Db%0Ac%09d*e:f", L"a_b_c_d_e_f");
  row(L"a;b,c=d'e .-b\x01\x7F", L"a;b,c=d'e .-b\x01\x7F");
  // Text beyond ASCII counts as decoded, other text ends at a zero.
  row(L"h/ü:%3A", L"ü_%3A");
  row(L"\x8000003A%41", L"\x8000003A%41");
  row(L"中\0c"s, L"中\0c"s);
  row(L"h/ab%00c.zip", L"ab");
  row(L"h/%41:" + Text(5000, L'n'), L"A_" + Text(5000, L'n'));
}

TEST(url_file_name, GetFilePosIsTheSeparatorBeforeTheQuery) {
  const Table row = [](const Text& text, std::size_t want) {
    EXPECT_EQ(url_object::get_file_pos(text), want);
  };
  row(L"name", kNowhere);
  row(L"a?b/c", kNowhere);
  row(L"/0123456789", 0);
  row(L"a/b\\0123456789", 3);
  row(L"a/b?c?d/", 1);
  row(L"a/b?url=c/d", 9);
  row(L"a/url=/b?c/d", 10);
}

TEST(url_file_name, WordWithExtension) {
  const Table row = [](const Text& text, const Text& want) {
    EXPECT_EQ(qk::url::word_with_extension(text), want);
  };
  row(L"get setup.exe, now", L"setup.exe");
  row(L"get setup.exe\tnow", L"setup.exe");
  row(L"get SETUP.EXE", L"SETUP.EXE");
  for (const Text none :
       {L"", L"zip", L"a.html", L"get setup.Exe", L"get a.exe;",
        L"get a.exe\x120", L"a .zip", L"x_.zip", L".zip", L"a.exex b.exe",
        L"A.EXE b.exex"}) {
    row(none, L"");
  }
  row(L"x a-b$9Z.zip", L"a-b$9Z.zip");
  row(L"x yéz.zip", L"z.zip");
  // Quirk: the first character belongs to the word, whatever it is.
  row(L"_y.zip", L"_y.zip");
  row(L" .msi b.avi", L" .msi");
  row(L"  .msi b.avi", L"b.avi");
  // In the order of the extensions, lower case first.
  row(L"A.EXE b.exe", L"b.exe");
  row(L"a.zip b.wmv c.wmp d.msi", L"d.msi");
  for (const Text extension :
       {L"asf", L"avi", L"iso", L"mp3", L"mpeg", L"mpg", L"mpga", L"ra", L"rar",
        L"rm", L"rmvb", L"tar", L"wma", L"wmp", L"wmv"}) {
    row(L"a n." + extension, L"n." + extension);
  }
}

TEST(url_file_name, MakeUpperRaisesAsciiLetters) {
  EXPECT_EQ(make_upper(L"az`{AZé\x80000061"), L"AZ`{AZé\x80000061");
}

}  // namespace
