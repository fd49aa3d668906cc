#include "url/url_file_name.h"

#include <gtest/gtest.h>

#include <string>

#include <korvane/url_object.h>
#include "rows.h"

namespace {

TEST(FileName, IsTheCleanedLastSegment) {
  check<std::wstring>("file names", [](const std::wstring& text) {
    return agreed(url_object::file_name_for(text, 0),
                  url_object::file_name_for(text, 0xFFFFFFFF),
                  url_object::file_name_for(text, 65001));
  });
}

TEST(FileName, ReadsEscapesInTheCodePage) {
  check<std::wstring, unsigned>("code pages", url_object::file_name_for);
}

TEST(FilePosition, IsTheSeparatorBeforeTheQuery) {
  check<std::wstring>("file positions", url_object::get_file_pos);
}

TEST(WordWithExtension, IsTheFirstKnownFileInTheText) {
  check<std::wstring>("words", [](const std::wstring& text) {
    return std::wstring(qk::url::word_with_extension(text));
  });
}

TEST(MakeUpper, RaisesAsciiLettersOnly) {
  check<std::wstring>("raised", make_upper);
}

}  // namespace
