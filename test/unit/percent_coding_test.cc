// The percent-coders of all classes.
#include "url/percent_coding.h"

#include <cctype>
#include <string_view>

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

static int last_code_page = 0;

std::wstring read_by_host(const std::string& bytes, int code_page) {
  last_code_page = code_page;
  return bytes == "\x1B$B" ? L"7-bit" : read_by_own_host(bytes, code_page);
}

namespace {

template <typename Unit>
void expect_classes(Unit unit, bool escaped, bool reserved, bool letter) {
  EXPECT_EQ(url_object::need_escape(unit), escaped) << unit;
  EXPECT_EQ(url_object::is_reserved(unit), reserved) << unit;
  EXPECT_EQ(url_object::is_alpha(unit), letter) << unit;
  EXPECT_EQ(url_object::is_digit(unit), unit >= '0' && unit <= '9') << unit;
}

TEST(character_classes, AreAscii) {
  const auto is_in = [](std::string_view characters, char unit) {
    return characters.find(unit) != std::string_view::npos;
  };
  for (int code = 0; code < 128; ++code) {
    const auto unit = static_cast<char>(code);
    const bool escaped = code < 32 || is_in(" \x7F\"#%<>[\\]^`{|}~", unit);
    const bool reserved = is_in("$&+,/:;=?@", unit);
    const bool letter = (code | 32) >= 'a' && (code | 32) <= 'z';
    expect_classes(unit, escaped, reserved, letter);
    expect_classes(wchar_t(unit), escaped, reserved, letter);
    expect_classes(static_cast<char>(code + 128), false, false, false);
    expect_classes(wchar_t(code + 256), false, false, false);
    expect_classes(wchar_t(0x80000000U + unsigned(code)), false, false, false);
  }
}

TEST(percent_coding, DecodeKeepsWhatIsNoEscape) {
  // The wide decode leaves escapes of reserved characters.
  const Table row = [](const Bytes& text, const Bytes& want, const Text& wide) {
    EXPECT_EQ(url_object::decode(text), want);
    EXPECT_EQ(url_object::decode_ex(text), want);
    Bytes out = "old";
    EXPECT_TRUE(decode_url(text.data(), text.size(), out));
    EXPECT_EQ(out, want);
    const Text wide_text = {text.begin(), text.end()};
    EXPECT_EQ(url_object::decode(wide_text), wide);
    EXPECT_EQ(url_object::decode_ex(wide_text), Text(want.begin(), want.end()));
  };
  row("", "", L"");
  row("a%20b+%4a%4A%7e", "a b+JJ~", L"a b+JJ~");
  row("%%41%4g%g4%4%41%2541", "%A%4g%g4%4A%41", L"%A%4g%g4%4A%41");
  row("%", "%", L"%");
  row("%4", "%4", L"%4");
  row("%24%26%2B%2C%2f%3A", "$&+,/:", L"%24%26%2B%2C%2f%3A");
  row("%3B%3D%3F%40%23%00", ";=?@#\0"s, L"%3B%3D%3F%40#\0"s);
  EXPECT_EQ(url_object::decode("\xE9%ff"), "\xE9\xFF");
  EXPECT_EQ(url_object::decode_ex(L"😀%ff\xD800\xFFFFFFFF"),
            L"😀\xFF\xD800\xFFFFFFFF");
}

TEST(percent_coding, EscapesAreBytesInACodePage) {
  const Table row = [](const Text& text, unsigned code_page, const Text& want) {
    EXPECT_EQ(url_object::decode_ex(text, code_page), want);
    EXPECT_EQ(url_object::file_name_for(text, code_page), want);
  };
  row(L"plain", 65001, L"plain");
  row(L"caf%C3%A9", 65001, L"café");
  row(L"caf%C3%A9", 0xFFFFFFFF, L"café");
  row(L"caf%E9%E9", 1251, L"cafйй");
  row(L"%D6%D0.txt", 936, L"中.txt");
  row(L"café%20x", 65001, L"café%20x");
  row(L"\x80%20", 0, L"\x80%20");
  row(L"\x80000041%20", 0, L"\x80000041%20");
  row(L"é\0%20"s, 0, L"é\0%20"s);
  row(L"%41%00%E9", 1252, L"A");
  row(L"%41\0%E9"s, 0, L"A");
  row(Text(300, L'a') + L"%41%", 0, Text(300, L'a') + L"A%");
}

TEST(percent_coding, AsksTheHostAndNoHook) {
  EXPECT_EQ(url_object::decode_ex(L"%1B%24B", 50220), L"7-bit");
  url_object::decode_ex(L"%E9", 0xFFFFFFFF);
  EXPECT_EQ(last_code_page, -1);
  url_object::file_name_for(L"%E9", 0xFFFFFFFF);
  EXPECT_EQ(last_code_page, 0);
  for (const Bytes text : {"abc", "%E4", "\xE4"}) {
    unsigned code_page = 936;
    url_object::detect_codepage(text, &code_page);
    EXPECT_EQ(code_page, 0U) << text;
    EXPECT_EQ(url_object::get_code_page(text), 0U) << text;
  }
}

TEST(percent_coding, EncodeEscapesSpecialAndReservedCharacters) {
  const Table row = [](const Text& text, const Text& want) {
    EXPECT_EQ(url_object::encode_ex(text), want);
  };
  row(L"AZaz09-._!'()*", L"AZaz09-._!'()*");
  row(L"a b/\x7F", L"a%20b%2F%7F");
  row(L"%41%2f%%41%4%zz%", L"%41%2f%25%41%254%25zz%25");
  row(L"ü中😀\xD800\x80000020", L"ü中😀\xD800\x80000020");
  row(L"%\x131\x31%1\x80000031", L"%25\x131\x31%251\x80000031");
  EXPECT_EQ(utf8_2_hexstr("a b%|\0\x7F\x80\xFF"s), "a b%|\0\x7F%80%FF"s);
}

TEST(percent_coding, TrimPreSpaceRemovesSpacesAndTabs) {
  const Table row = [](Bytes text, const Bytes& want) {
    Text wide(text.begin(), text.end());
    url_object::trim_pre_space(wide);
    EXPECT_EQ(wide, Text(want.begin(), want.end()));
    url_object::trim_pre_space(text);
    EXPECT_EQ(text, want);
  };
  row("\t  x y ", "x y ");
  row(" \t", "");
  row(" \v x", "\v x");
}

}  // namespace
