#include "url/url_file_name.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "url/url_object.h"

namespace {

constexpr std::size_t kNowhere = std::wstring::npos;

TEST(FileName, IsTheCleanedLastSegment) {
  const struct {
    std::wstring text, want;
  } rows[] = {
      // The last segment, decoded.
      {L"http://h/dir/My%20File.zip", L"My File.zip"},
      {L"C:\\dir\\file.txt", L"file.txt"},
      {L"a/b\\c", L"c"},
      {L"a\\b/c", L"c"},
      {L"f.zip", L"f.zip"},
      {L"a%2Fb%5Cc.txt", L"c.txt"},
      {L"%41%4", L"A%4"},
      // Nothing left.
      {L"", L"index.html"},
      {L"   ", L"index.html"},
      {L"http://h/dir/", L"index.html"},
      {L"http://h/dir\\", L"index.html"},
      {L"http://h/dir/ \t", L"index.html"},
      {L"x/:*|", L"index.html"},
      // Trailing spaces and tabs go, leading ones stay.
      {L" a b \t ", L" a b"},
      {L"a%20%09", L"a"},
      {L"a\v ", L"a\v"},
      // The last "?" stays and becomes "_".
      {L"http://h/dir/f.zip?x=1&y=2", L"f.zip_"},
      {L"http://h/f?a?b", L"f_a_"},
      {L"f.zip?", L"f.zip_"},
      {L"?", L"index.html"},
      {L"f.zip%3Fx=1", L"f.zip_"},
      // Names before a query end at "&"; a "?" is needed for that.
      {L"http://h/f&g.zip?x", L"f"},
      {L"http://h/&g.zip?x", L"index.html"},
      {L"a&b/f&g&h?x", L"f"},
      {L"http://h/f&g.zip", L"f&g.zip"},
      {L"f&g?x", L"f"},
      // Separators behind the first "?" do not count ...
      {L"http://h/f.zip?x=/y/z?w", L"f.zip_x=_y_z_"},
      {L"f?a/b?", L"f_a_b_"},
      // ... unless the query carries an address.
      {L"http://h/f?url=http://i/g.zip?w", L"g.zip_"},
      {L"http://h/f?url=a/g&b?w", L"g"},
      {L"http://h/f?URL=a/g?w", L"f_URL=a_g_"},
      {L"http://h/f?ur=l/g?w", L"f_ur=l_g_"},
      {L"http://h/f?a/url=b?w", L"url=b_"},
      // Illegal characters go in front, are replaced elsewhere.
      {L"a:b*c", L"a_b_c"},
      {L"::name", L"name"},
      {L"\"<na>me|", L"na_me_"},
      {L"%0D%0Aa%0Db%0Ac%09d", L"a_b_c_d"},
      {L"a;b,c=d'e", L"a;b,c=d'e"},
      // A text that holds a character above 127 is not decoded.
      {L"\u4E2D%20\u6587", L"\u4E2D%20\u6587"},
      {L"h/\u00FC:%3A", L"\u00FC_%3A"},
      {L"\U0001F600/%41\U0001F600.txt", L"%41\U0001F600.txt"},
      {L"\x7F%41",
       L"\x7F"
       L"A"},
      {std::wstring(1, static_cast<wchar_t>(0xD800)) + L"%41",
       std::wstring(1, static_cast<wchar_t>(0xD800)) + L"%41"},
      {std::wstring(1, static_cast<wchar_t>(0x8000003A)) + L"%41",
       std::wstring(1, static_cast<wchar_t>(0x8000003A)) + L"%41"},
      // Zeros end text that is decoded.
      {std::wstring(L"ab\0c.zip", 8), L"ab"},
      {L"h/ab%00c.zip", L"ab"},
      {std::wstring(L"\u4E2D\0c", 3), std::wstring(L"\u4E2D\0c", 3)},
      // Names without a "." stay as they are.
      {L"h/setupexe", L"setupexe"},
  };
  for (const auto& row : rows) {
    for (const unsigned code_page : {0U, 0xFFFFFFFFU, 65001U}) {
      EXPECT_EQ(url_object::file_name_for(row.text, code_page), row.want)
          << row.text;
    }
  }
}

TEST(FileName, HoldsNoIllegalCharacter) {
  constexpr std::wstring_view illegal = L"\\/:*?\"<>|\t\r\n";
  for (unsigned code = 1; code < 0x180; ++code) {
    if (code == '/' || code == '\\' || code == '?') continue;
    const auto unit = static_cast<wchar_t>(code);
    const bool is_illegal = illegal.find(unit) != kNowhere;
    const std::wstring text = {L'a', unit, L'b'};
    EXPECT_EQ(url_object::file_name_for(text, 0), is_illegal ? L"a_b" : text)
        << code;
    EXPECT_EQ(url_object::file_name_for(text.substr(1), 0),
              is_illegal ? L"b" : text.substr(1))
        << code;
  }
}

TEST(FileName, ReadsEscapesInTheCodePage) {
  const struct {
    const wchar_t* text;
    unsigned code_page;
    const wchar_t* want;
  } rows[] = {
      {L"%E4%B8%AD.txt", 0, L"\u4E2D.txt"},
      {L"%E4%B8%AD.txt", 0xFFFFFFFF, L"\u4E2D.txt"},
      {L"%E4%B8%AD.txt", 65001, L"\u4E2D.txt"},
      {L"%E4%B8%AD.txt", 28591, L"\u00E4\u00B8\u00AD.txt"},
      {L"%D6%D0.txt", 0, L"\u4E2D.txt"},
      {L"%D6%D0.txt", 936, L"\u4E2D.txt"},
      {L"caf%E9", 0, L"caf\u00E9"},
      {L"caf%E9", 1252, L"caf\u00E9"},
      {L"%E9%3A%E9%20", 1252, L"\u00E9_\u00E9"},
      {L"%F0%9F%98%80%F0%9F%98%80.txt", 0, L"\U0001F600\U0001F600.txt"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(url_object::file_name_for(row.text, row.code_page), row.want)
        << row.text << ", code page " << row.code_page;
  }
}

TEST(FileName, IsNeverShortened) {
  for (const std::size_t length : {255U, 256U, 257U, 1023U, 1024U, 5000U}) {
    const std::wstring name(length, L'n');
    EXPECT_EQ(url_object::file_name_for(L"h/" + name, 0), name);
    EXPECT_EQ(url_object::file_name_for(L"h/%41:" + name, 0), L"A_" + name);
  }
}

TEST(FilePosition, IsTheSeparatorBeforeTheQuery) {
  const struct {
    const wchar_t* text;
    std::size_t want;
  } rows[] = {{L"", kNowhere},       {L"name", kNowhere}, {L"/name", 0},
              {L"a/b\\c", 3},        {L"a\\b/c", 3},      {L"a/b?c/d", 1},
              {L"a?b/c", kNowhere},  {L"a/b?url=c/d", 9}, {L"a/b?c/url=d", 5},
              {L"a/url=/b?c/d", 10}, {L"a/b?urL=c/d", 1}, {L"a/?", 1},
              {L"?/", kNowhere},     {L"a/b?c?d/", 1}};
  for (const auto& row : rows) {
    EXPECT_EQ(url_object::get_file_pos(row.text), row.want) << row.text;
  }
}

TEST(WordWithExtension, IsTheFirstKnownFileInTheText) {
  const struct {
    const wchar_t* text;
    const wchar_t* want;
  } rows[] = {
      {L"get setup.exe, now", L"setup.exe"},
      {L"get setup.exe now", L"setup.exe"},
      {L"get setup.exe\tnow", L"setup.exe"},
      {L"get setup.exe", L"setup.exe"},
      {L"get SETUP.EXE", L"SETUP.EXE"},
      {L"get setup.Exe", L""},
      {L"get setup.exe;", L""},
      {L"get setup.exe.", L""},
      {L"get setup.exe\u0100", L""},
      {L"get setup.exe\u0120", L""},
      {L"a-b$9Z.zip", L"a-b$9Z.zip"},
      {L"x_y.zip", L"y.zip"},
      {L"x y\u00E9z.zip", L"z.zip"},
      // The first character is part of the word untested.
      {L"_y.zip", L"_y.zip"},
      {L"_.zip", L"_.zip"},
      {L"__.zip", L""},
      {L"x_.zip", L""},
      {L".zip", L""},
      {L"a .zip", L""},
      // Precedence is that of the extensions, not of the text.
      {L"a.zip b.msi", L"b.msi"},
      {L"a.wmv b.wmp", L"b.wmp"},
      {L"a.rmvb", L"a.rmvb"},
      {L"a.rar", L"a.rar"},
      {L"a.mpga", L"a.mpga"},
      {L"a.mpeg", L"a.mpeg"},
      // Each extension is looked for once, its lower case first.
      {L"a.exex b.exe", L""},
      {L"A.EXEX B.EXE", L""},
      {L"A.EXE b.exe", L"b.exe"},
      {L"A.EXE b.exex", L""},
      {L"a.msi. b.asf", L"b.asf"},
      {L" .msi b.avi", L" .msi"},
      {L"  .msi b.avi", L"b.avi"},
      {L"zip", L""},
      {L"a.html", L""},
      {L"", L""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(qk::url::word_with_extension(row.text), row.want) << row.text;
  }
  for (const wchar_t* extension :
       {L"msi", L"asf", L"avi", L"exe", L"iso", L"mp3", L"mpeg", L"mpg",
        L"mpga", L"ra", L"rar", L"rm", L"rmvb", L"tar", L"wma", L"wmp", L"wmv",
        L"zip"}) {
    const std::wstring name = std::wstring(L"name.") + extension;
    EXPECT_EQ(qk::url::word_with_extension(L"a " + name), name);
    EXPECT_EQ(qk::url::word_with_extension(make_upper(L"a " + name)),
              make_upper(name));
  }
}

TEST(MakeUpper, RaisesAsciiLettersOnly) {
  EXPECT_EQ(make_upper(L""), L"");
  for (unsigned code = 0; code < 0x180; ++code) {
    const bool is_lower = code >= 'a' && code <= 'z';
    EXPECT_EQ(
        make_upper(std::wstring(1, static_cast<wchar_t>(code))),
        std::wstring(1, static_cast<wchar_t>(is_lower ? code - 32 : code)))
        << code;
  }
}

}  // namespace
