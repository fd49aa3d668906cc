#include "url/percent_coding.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>
#include <tuple>

#include <korvane/url_object.h>
#include "rows.h"

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
