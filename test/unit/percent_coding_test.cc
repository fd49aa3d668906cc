#include "url/percent_coding.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>
#include <tuple>

#include <korvane/korvane_host.h>
#include <korvane/url_object.h>
#include "rows.h"

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
std::string classes_of(Unit unit) {
  std::string classes;
  if (url_object::need_escape(unit)) classes += "escaped ";
  if (url_object::is_reserved(unit)) classes += "reserved ";
  if (url_object::is_digit(unit)) classes += "digit ";
  if (url_object::is_alpha(unit)) classes += "letter ";
  return classes;
}

TEST(CharacterClasses, TellEveryCharacter) {
  for (unsigned code = 0; code < 0x400; ++code) {
    const auto unit = static_cast<wchar_t>(code);
    std::string want;
    const auto is_in = [unit](std::wstring_view characters) {
      return characters.find(unit) != std::wstring_view::npos;
    };
    if (code < 32 || is_in(L" \x7F\"#%<>[\\]^`{|}~")) want += "escaped ";
    if (is_in(L"$&+,/:;=?@")) want += "reserved ";
    if (is_in(L"0123456789")) want += "digit ";
    if (code < 128 && std::isalpha(static_cast<int>(code)) != 0) {
      want += "letter ";
    }
    EXPECT_EQ(classes_of(unit), want) << code;
    EXPECT_EQ(classes_of(static_cast<wchar_t>(code | 0x80000000)), "") << code;
    if (code > 255) continue;
    EXPECT_EQ(classes_of(static_cast<char>(code)), want) << code;
  }
}

TEST(Decode, KeepsWhatIsNoEscape) {
  check<std::wstring>("decoded", [](const std::wstring& text) {
    return std::tuple(url_object::decode_ex(text), url_object::decode(text));
  });
  check<std::string>("decoded", [](const std::string& text) {
    return agreed(url_object::decode(text), url_object::decode_ex(text));
  });
}

TEST(DecodeWithCodePage, ReadsEscapesAsBytes) {
  check<std::wstring, unsigned>(
      "code pages", [](const std::wstring& text, unsigned code_page) {
        return url_object::decode_ex(text, code_page);
      });
}

TEST(DecodeWithCodePage, AsksTheHostAndNoHook) {
  EXPECT_EQ(url_object::decode_ex(L"%1B%24B", 50220), L"7-bit");
  url_object::decode_ex(L"%E9", 0xFFFFFFFF);
  EXPECT_EQ(last_code_page, -1);
  url_object::file_name_for(L"%E9", 0xFFFFFFFF);
  EXPECT_EQ(last_code_page, 0);
}

TEST(Encode, EscapesSpecialAndReservedCharacters) {
  check<std::wstring>("encoded", url_object::encode_ex);
}

TEST(CodePageDetection, KnowsNoParticularCodePage) {
  for (const std::string text : {"", "abc", "%E4", "\xE4"}) {
    unsigned code_page = 936;
    url_object::detect_codepage(text, &code_page);
    EXPECT_EQ(code_page, 0U) << text;
    EXPECT_EQ(url_object::get_code_page(text), 0U) << text;
    EXPECT_EQ(url_object::get_generally_codepage(text, 936), 0U) << text;
  }
}

TEST(TrimPreSpace, RemovesLeadingSpacesAndTabsOnly) {
  const auto trimmed = [](auto text) {
    url_object::trim_pre_space(text);
    return text;
  };
  check<std::string>("trimmed", trimmed);
  check<std::wstring>("trimmed", trimmed);
}

}  // namespace
