// The percent-coders of all classes.
#include "url/percent_coding.h"

#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/url_object.h>
#include "unit_test.h"

TEST(character_classes, AreAscii) {
  using Classes = std::vector<bool>;
  const auto classes_of = [](auto unit) {
    return Classes{url_object::need_escape(unit), url_object::is_reserved(unit),
                   url_object::is_alpha(unit), url_object::is_digit(unit)};
  };
  const auto wanted = [](unsigned code) {
    const auto is_in = [code](const Text& units) {
      return units.find(wchar_t(code)) != Text::npos;
    };
    return Classes{
        code < 32 || is_in(L" \x7F\"#%<>[\\]^`{|}~"), is_in(L"$&+,/:;=?@"),
        (code | 32) >= 'a' && (code | 32) <= 'z', code >= '0' && code <= '9'};
  };
  for (unsigned code = 0; code < 0x200; ++code) {
    EXPECT_EQ(classes_of(char(code)), wanted(code % 256)) << code;
    EXPECT_EQ(classes_of(wchar_t(code)), wanted(code)) << code;
    EXPECT_EQ(classes_of(wchar_t(code + 0x80000000)), Classes(4)) << code;
  }
}

TEST(percent_coding, DecodeKeepsWhatIsNoEscape) {
  const auto decoded = [](const Bytes& text) {
    const ExactCopy copy(text);
    Bytes out = "old";
    EXPECT_TRUE(decode_url(copy.data(), copy.size(), out));
    EXPECT_EQ(url_object::decode(text), out);
    EXPECT_EQ(url_object::decode_ex(text), out);
    return out;
  };
  EXPECT_EQ(decoded("a%20b+%4a%4A%7e%2541"), "a b+JJ~%41");
  EXPECT_EQ(decoded("%%41%4g%g4%4%41%"), "%A%4g%g4%4A%");
  EXPECT_EQ(decoded("\xE9%ff%00%4"), "\xE9\xFF\0%4"s);
  EXPECT_EQ(url_object::decode_ex(L"😀%2F%ff\xD800%4"), L"😀/\xFF\xD800%4");
  // The wide decode leaves escapes of reserved characters.
  EXPECT_EQ(url_object::decode(L"%23%24%26%2B%2C%2f%3A%3B%3D%3F%40%41%4"),
            L"#%24%26%2B%2C%2f%3A%3B%3D%3F%40A%4");
}

TEST(percent_coding, EscapesAreBytesInACodePage) {
  const auto decoded = [](const Text& text, unsigned code_page) {
    Text name = url_object::file_name_for(text, code_page);
    EXPECT_EQ(url_object::decode_ex(text, code_page), name);
    return name;
  };
  EXPECT_EQ(decoded(L"caf%C3%A9", ~0U), L"café");
  EXPECT_EQ(decoded(L"caf%E9%E9", 1251), L"cafйй");
  EXPECT_EQ(decoded(L"\x80000041\0%20"s, 65001), L"\x80000041\0%20"s);
  EXPECT_EQ(decoded(L"%41%00%E9", 1252), L"A");
  unsigned code_page = 936;
  url_object::detect_codepage("%E4", &code_page);
  EXPECT_EQ(code_page + url_object::get_code_page("\xE4"), 0U);
}

TEST(percent_coding, EncodeEscapesSpecialAndReservedCharacters) {
  EXPECT_EQ(url_object::encode_ex(L"-._!'()* /\x7F"), L"-._!'()*%20%2F%7F");
  EXPECT_EQ(url_object::encode_ex(L"%41%2f%%41%4%zz%中\x80000020%\x131\x31%"),
            L"%41%2f%25%41%254%25zz%25中\x80000020%25\x131\x31%25");
  EXPECT_EQ(utf8_2_hexstr("a b%|\0\x7F\x80\xFF"s), "a b%|\0\x7F%80%FF"s);
}

TEST(percent_coding, TrimPreSpaceRemovesSpacesAndTabs) {
  Bytes text = "\t \v x ";
  url_object::trim_pre_space(text);
  EXPECT_EQ(text, "\v x ");
}
