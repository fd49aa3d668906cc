// The percent-coders of all classes.
#include "url/percent_coding.h"

#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/url_object.h>
#include "table.h"

// Another host's text library: it also knows a code page whose bytes are all
// 7-bit. The linker replaces calls of ours by calls of this one.
std::wstring read_by_own_host(const std::string& bytes, int code_page) asm(
    "__real__Z32string_to_wstring_with_code_pageRKNSt7__cxx1112basic_stringIcSt"
    "11char_traitsIcESaIcEEEi");
std::wstring read_by_host(const std::string& bytes, int code_page) asm(
    "__wrap__Z32string_to_wstring_with_code_pageRKNSt7__cxx1112basic_stringIcSt"
    "11char_traitsIcESaIcEEEi");

static thread_local int last_code_page = 0;

std::wstring read_by_host(const std::string& bytes, int code_page) {
  last_code_page = code_page;
  return bytes == "\x1B$B" ? L"7-bit" : read_by_own_host(bytes, code_page);
}

template <typename Unit>
static void expect_classes(Unit unit, bool escaped, bool reserved,
                           bool letter) {
  EXPECT_EQ(url_object::need_escape(unit), escaped) << unit;
  EXPECT_EQ(url_object::is_reserved(unit), reserved) << unit;
  EXPECT_EQ(url_object::is_alpha(unit), letter) << unit;
  EXPECT_EQ(url_object::is_digit(unit), unit >= '0' && unit <= '9') << unit;
}

TEST(character_classes, AreAscii) {
  for (unsigned code = 0; code < 0x200; ++code) {
    const auto is_in = [code](const Text& units) {
      return units.find(wchar_t(code)) != Text::npos;
    };
    const bool escaped = code < 32 || is_in(L" \x7F\"#%<>[\\]^`{|}~");
    const bool reserved = is_in(L"$&+,/:;=?@");
    const bool letter = code < 128 && (code | 32) >= 'a' && (code | 32) <= 'z';
    expect_classes(wchar_t(code), escaped, reserved, letter);
    expect_classes(wchar_t(code + 0x80000000), false, false, false);
    if (code > 255) continue;
    expect_classes(static_cast<char>(code), escaped, reserved, letter);
  }
}

TEST(percent_coding, DecodeKeepsWhatIsNoEscape) {
  // The wide decode leaves escapes of reserved characters.
  const Table row = [](const Bytes& text, const Bytes& want, const Text& wide) {
    const ExactCopy copy(text);
    Bytes out = "old";
    EXPECT_TRUE(decode_url(copy.data(), copy.size(), out));
    EXPECT_EQ(out, want);
    EXPECT_EQ(url_object::decode(text), want);
    EXPECT_EQ(url_object::decode_ex(text), want);
    const Text wide_text = {text.begin(), text.end()};
    EXPECT_EQ(url_object::decode(wide_text), wide);
    EXPECT_EQ(url_object::decode_ex(wide_text), Text(want.begin(), want.end()));
  };
  row("a%20b+%4a%4A%7e%2541", "a b+JJ~%41", L"a b+JJ~%41");
  row("%%41%4g%g4%4%41%", "%A%4g%g4%4A%", L"%A%4g%g4%4A%");
  row("%00%4", "\0%4"s, L"\0%4"s);
  row("%24%26%2B%2C%2f%3A", "$&+,/:", L"%24%26%2B%2C%2f%3A");
  row("%3B%3D%3F%40%23", ";=?@#", L"%3B%3D%3F%40#");
  EXPECT_EQ(url_object::decode("\xE9%ff"), "\xE9\xFF");
  EXPECT_EQ(url_object::decode_ex(L"😀%ff\xD800\xFFFFFFFF"),
            L"😀\xFF\xD800\xFFFFFFFF");
}

TEST(percent_coding, EscapesAreBytesInACodePage) {
  const Table row = [](const Text& text, unsigned code_page, const Text& want) {
    EXPECT_EQ(url_object::decode_ex(text, code_page), want);
    EXPECT_EQ(url_object::file_name_for(text, code_page), want);
  };
  row(L"caf%C3%A9", ~0U, L"café");
  row(L"caf%E9%E9", 1251, L"cafйй");
  row(L"café%20x", 65001, L"café%20x");
  row(L"\x80\0%20"s, 0, L"\x80\0%20"s);
  row(L"\x80000041%20", 0, L"\x80000041%20");
  row(L"%41%00%E9", 1252, L"A");
  row(Text(300, L'a') + L"%41%", 0, Text(300, L'a') + L"A%");
}

TEST(percent_coding, AsksTheHostAndNoHook) {
  EXPECT_EQ(url_object::decode_ex(L"%1B%24B", 50220), L"7-bit");
  url_object::decode_ex(L"%E9", ~0U);
  EXPECT_EQ(last_code_page, -1);
  url_object::file_name_for(L"%E9", ~0U);
  EXPECT_EQ(last_code_page, 0);
  unsigned code_page = 936;
  url_object::detect_codepage("%E4", &code_page);
  EXPECT_EQ(code_page + url_object::get_code_page("\xE4"), 0U);
}

TEST(percent_coding, EncodeEscapesSpecialAndReservedCharacters) {
  EXPECT_EQ(url_object::encode_ex(L"Az09-._!'()* /\x7F"),
            L"Az09-._!'()*%20%2F%7F");
  EXPECT_EQ(url_object::encode_ex(L"%41%2f%%41%4%zz%"),
            L"%41%2f%25%41%254%25zz%25");
  EXPECT_EQ(url_object::encode_ex(L"中\xD800\x80000020%\x131\x31%1\x80000031"),
            L"中\xD800\x80000020%25\x131\x31%251\x80000031");
  EXPECT_EQ(utf8_2_hexstr("a b%|\0\x7F\x80\xFF"s), "a b%|\0\x7F%80%FF"s);
}

TEST(percent_coding, TrimPreSpaceRemovesSpacesAndTabs) {
  Bytes text = "\t \v x ";
  url_object::trim_pre_space(text);
  EXPECT_EQ(text, "\v x ");
  Text wide = L" \t";
  url_object::trim_pre_space(wide);
  EXPECT_EQ(wide, L"");
}
