#include "url/url_file_name.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "rows.h"
#include "url/url_object.h"

namespace {

constexpr std::size_t kNowhere = std::wstring::npos;

TEST(FileName, IsTheCleanedLastSegment) {
  for (const Row& row : rows_of("file names")) {
    for (const unsigned code_page : {0U, 0xFFFFFFFFU, 65001U}) {
      EXPECT_EQ(url_object::file_name_for(row[0], code_page), row[1]) << row[0];
    }
  }
}

TEST(FileName, ReadsEscapesInTheCodePage) {
  for (const Row& row : rows_of("code pages")) {
    EXPECT_EQ(url_object::file_name_for(row[0],
                                        static_cast<unsigned>(number(row[1]))),
              row[2])
        << row[0] << ", code page " << row[1];
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

TEST(FileName, IsNeverShortened) {
  const std::wstring name(5000, L'n');
  EXPECT_EQ(url_object::file_name_for(L"h/" + name, 0), name);
  EXPECT_EQ(url_object::file_name_for(L"h/%41:" + name, 0), L"A_" + name);
}

TEST(FilePosition, IsTheSeparatorBeforeTheQuery) {
  for (const Row& row : rows_of("file positions")) {
    EXPECT_EQ(url_object::get_file_pos(row[0]),
              row[1] == L"nowhere" ? kNowhere : number(row[1]))
        << row[0];
  }
}

TEST(WordWithExtension, IsTheFirstKnownFileInTheText) {
  for (const Row& row : rows_of("words")) {
    EXPECT_EQ(qk::url::word_with_extension(row[0]), row[1]) << row[0];
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
