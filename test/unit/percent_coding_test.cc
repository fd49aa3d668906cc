#include "url/percent_coding.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>

#include "exact_copy.h"
#include "rows.h"
#include "url/url_object.h"
#include "widen.h"

namespace {

wchar_t unit(unsigned code) { return static_cast<wchar_t>(code); }

std::wstring escape(unsigned value, std::wstring_view digits) {
  return {L'%', digits[value / 16], digits[value % 16]};
}
constexpr std::wstring_view kUpper = L"0123456789ABCDEF";
constexpr std::wstring_view kLower = L"0123456789abcdef";

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
    std::string want;
    const auto is_in = [code](std::wstring_view characters) {
      return characters.find(unit(code)) != std::wstring_view::npos;
    };
    if (code < 32 || is_in(L" \x7F\"#%<>[\\]^`{|}~")) want += "escaped ";
    if (is_in(L"$&+,/:;=?@")) want += "reserved ";
    if (is_in(L"0123456789")) want += "digit ";
    if (code < 128 && std::isalpha(static_cast<int>(code)) != 0)
      want += "letter ";
    EXPECT_EQ(classes_of(unit(code)), want) << code;
    EXPECT_EQ(classes_of(unit(code | 0x80000000)), "") << code;
    if (code < 256) {
      EXPECT_EQ(classes_of(static_cast<char>(code)), want) << code;
    }
  }
}

TEST(Decode, UndoesEscapesOfEveryValueInBothCases) {
  for (unsigned value = 0; value < 256; ++value) {
    for (const std::wstring& text :
         {escape(value, kUpper), escape(value, kLower)}) {
      SCOPED_TRACE(testing::PrintToString(text));
      const std::string narrow(text.begin(), text.end());
      const std::string byte(1, static_cast<char>(value));
      const std::wstring point(1, unit(value));
      EXPECT_EQ(url_object::decode(narrow), byte);
      EXPECT_EQ(url_object::decode_ex(narrow), byte);
      EXPECT_EQ(url_object::decode_ex(text), point);
      EXPECT_EQ(url_object::decode(text),
                url_object::is_reserved(point[0]) ? text : point);
    }
  }
}

TEST(Decode, KeepsWhatIsNoEscape) {
  for (const Row& row : rows_of("decoded")) {
    EXPECT_EQ(url_object::decode(bytes(row[0])), bytes(row[1])) << row[0];
    EXPECT_EQ(url_object::decode_ex(bytes(row[0])), bytes(row[1])) << row[0];
    EXPECT_EQ(url_object::decode_ex(row[0]), row[1]) << row[0];
    EXPECT_EQ(url_object::decode(row[0]), row.back()) << row[0];
  }
}

// Every unit as first and as second digit: only hexadecimal ones make an
// escape, and no unit is mistaken for its low byte.
TEST(Decode, TakesHexadecimalDigitsOnly) {
  for (const unsigned high : {0U, 0x100U, 0x1F600U, 0x80000000U}) {
    for (unsigned low = 0; low < 256; ++low) {
      const unsigned code = high | low;
      const bool digit =
          code < 128 && std::isxdigit(static_cast<int>(code)) != 0;
      for (const std::wstring& text : {std::wstring{L'%', unit(code), L'7'},
                                       std::wstring{L'%', L'7', unit(code)}}) {
        EXPECT_EQ(url_object::decode_ex(text).size(), digit ? 1U : 3U) << code;
        EXPECT_EQ(url_object::encode_ex(text).substr(0, 3) == L"%25", !digit)
            << code;
        if (high != 0) continue;
        const std::string narrow = {'%', static_cast<char>(text[1]),
                                    static_cast<char>(text[2])};
        EXPECT_EQ(url_object::decode(narrow).size(), digit ? 1U : 3U) << code;
      }
    }
  }
}

TEST(PercentDecode, WorksInPlaceAndNarrows) {
  std::wstring text = L"%41b%2Fc%";
  const wchar_t* end =
      qk::url::percent_decode(std::wstring_view(text), text.data());
  EXPECT_EQ(text.substr(0, static_cast<std::size_t>(end - text.data())),
            L"Ab/c%");
  char bytes[4];
  const ExactCopy source{std::wstring_view(L"a%E4%2")};
  EXPECT_EQ(qk::url::percent_decode(
                std::wstring_view(source.data(), source.size()), bytes),
            bytes + 4);
  EXPECT_EQ(std::string(bytes, 4), "a\xE4%2");
}

TEST(DecodeWithCodePage, ReadsEscapesAsBytes) {
  for (const Row& row : rows_of("code pages")) {
    EXPECT_EQ(
        url_object::decode_ex(row[0], static_cast<unsigned>(number(row[1]))),
        row[2])
        << row[0] << ", code page " << row[1];
  }
}

TEST(DecodeWithCodePage, TakesTextOfEveryLength) {
  for (std::size_t length = 250; length < 260; ++length) {
    const std::wstring text(length - 3, L'a');
    EXPECT_EQ(url_object::decode_ex(text + L"%41", 0), text + L"A");
    EXPECT_EQ(url_object::decode_ex(text + L"%E9", 1252), text + L"\u00E9");
  }
}

TEST(Encode, EscapesSpecialAndReservedCharacters) {
  for (const Row& row : rows_of("encoded")) {
    EXPECT_EQ(url_object::encode_ex(row[0]), row[1]) << row[0];
  }
  for (unsigned code = 0; code < 0x180; ++code) {
    if (code == '%') continue;
    const wchar_t point = unit(code);
    const bool escaped =
        url_object::need_escape(point) || url_object::is_reserved(point);
    EXPECT_EQ(url_object::encode_ex(std::wstring(1, point)),
              escaped ? escape(code, kUpper) : std::wstring(1, point))
        << code;
  }
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

template <typename Unit>
class TrimPreSpace : public testing::Test {};
TYPED_TEST_SUITE(TrimPreSpace, BothCharacterTypes, CharacterTypeName);

TYPED_TEST(TrimPreSpace, RemovesLeadingSpacesAndTabsOnly) {
  using String = std::basic_string<TypeParam>;
  for (const Row& row : rows_of("trimmed")) {
    String text(row[0].begin(), row[0].end());
    url_object::trim_pre_space(text);
    EXPECT_EQ(text, String(row[1].begin(), row[1].end())) << row[0];
  }
}

}  // namespace
