#include "url/percent_coding.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>

#include "allocation_counter.h"
#include "exact_copy.h"
#include "url/text_decoding.h"
#include "url/url_object.h"
#include "widen.h"

namespace {

constexpr std::wstring_view kEscapedCharacters = L" \x7F\"#%<>[\\]^`{|}~";
constexpr std::wstring_view kReservedCharacters = L"$&+,/:;=?@";

wchar_t unit(unsigned code) { return static_cast<wchar_t>(code); }

std::wstring upper_escape(unsigned value) {
  constexpr std::wstring_view digits = L"0123456789ABCDEF";
  return {L'%', digits[value / 16], digits[value % 16]};
}

std::wstring lower_escape(unsigned value) {
  constexpr std::wstring_view digits = L"0123456789abcdef";
  return {L'%', digits[value / 16], digits[value % 16]};
}

TEST(CharacterClasses, TellEveryCharacter) {
  for (unsigned code = 0; code < 0x400; ++code) {
    SCOPED_TRACE(code);
    const wchar_t wide = unit(code);
    const bool escaped =
        code < 32 || kEscapedCharacters.find(wide) != std::wstring_view::npos;
    const bool reserved =
        kReservedCharacters.find(wide) != std::wstring_view::npos;
    const bool digit = wide >= L'0' && wide <= L'9';
    const bool alpha =
        (wide >= L'a' && wide <= L'z') || (wide >= L'A' && wide <= L'Z');
    EXPECT_EQ(url_object::need_escape(wide), escaped);
    EXPECT_EQ(url_object::is_reserved(wide), reserved);
    EXPECT_EQ(url_object::is_digit(wide), digit);
    EXPECT_EQ(url_object::is_alpha(wide), alpha);
    if (code > 255) continue;
    const char narrow = static_cast<char>(code);
    EXPECT_EQ(url_object::need_escape(narrow), escaped);
    EXPECT_EQ(url_object::is_reserved(narrow), reserved);
    EXPECT_EQ(url_object::is_digit(narrow), digit);
    EXPECT_EQ(url_object::is_alpha(narrow), alpha);
  }
}

TEST(CharacterClasses, TakeLargeUnitsAsLarge) {
  for (const unsigned code : {0x80000020U, 0xFFFFFFFFU, 0x80000041U}) {
    EXPECT_FALSE(url_object::need_escape(unit(code))) << code;
    EXPECT_FALSE(url_object::is_reserved(unit(code))) << code;
    EXPECT_FALSE(url_object::is_digit(unit(code))) << code;
    EXPECT_FALSE(url_object::is_alpha(unit(code))) << code;
  }
}

TEST(Decode, UndoesEscapesOfEveryValueInBothCases) {
  for (unsigned value = 0; value < 256; ++value) {
    for (const std::wstring& text :
         {upper_escape(value), lower_escape(value)}) {
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
  const struct {
    const char* text;
    const char* want;       // of every variant but
    const char* separated;  // of the wide decode
  } rows[] = {
      {"", "", ""},
      {"%", "%", "%"},
      {"%4", "%4", "%4"},
      {"%41", "A", "A"},
      {"a%20b", "a b", "a b"},
      {"100%", "100%", "100%"},
      {"%zz1", "%zz1", "%zz1"},
      {"%4a%4A", "JJ", "JJ"},
      {"%%41", "%A", "%A"},
      {"%4%41", "%4A", "%4A"},
      {"%%%", "%%%", "%%%"},
      {"%2541", "%41", "%41"},
      {"%2F%41", "/A", "%2FA"},
      {"%2f%2fx%3", "//x%3", "%2f%2fx%3"},
      {"a%2", "a%2", "a%2"},
      {"a+b", "a+b", "a+b"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(url_object::decode(std::string(row.text)), row.want);
    EXPECT_EQ(url_object::decode_ex(std::string(row.text)), row.want);
    EXPECT_EQ(url_object::decode_ex(as<wchar_t>(row.text)),
              as<wchar_t>(row.want));
    EXPECT_EQ(url_object::decode(as<wchar_t>(row.text)),
              as<wchar_t>(row.separated));
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

TEST(Decode, KeepsUnitsOfEverySizeAndZeros) {
  const std::wstring text = {
      L'%', L'4',          L'1',         L'\0',
      L'a', unit(0x1F600), unit(0xD800), unit(0xFFFFFFFF),
      L'%', L'0',          L'0'};
  const std::wstring want = {
      L'A', L'\0', L'a', unit(0x1F600), unit(0xD800), unit(0xFFFFFFFF), L'\0'};
  EXPECT_EQ(url_object::decode(text), want);
  EXPECT_EQ(url_object::decode_ex(text), want);
  EXPECT_EQ(url_object::decode(std::string("\0%00\xE4%E4", 8)),
            std::string("\0\0\xE4\xE4", 4));
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
  const struct {
    std::wstring text;
    unsigned code_page;
    std::wstring want;
  } rows[] = {
      {L"", 0, L""},
      {L"plain", 65001, L"plain"},
      {L"a%20b%2F", 1252, L"a b/"},
      {L"%", 0, L"%"},
      {L"caf%C3%A9", 65001, L"caf\u00E9"},
      {L"caf%C3%A9", 0, L"caf\u00E9"},
      {L"caf%C3%A9", 0xFFFFFFFF, L"caf\u00E9"},
      {L"caf%E9", 1252, L"caf\u00E9"},
      {L"%D6%D0", 936, L"\u4E2D"},
      {L"%D6%D0", 0, L"\u4E2D"},
      {L"%F0%9F%98%80", 65001, L"\U0001F600"},
      {L"%7F%80", 1252, L"\x7F\u20AC"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(url_object::decode_ex(row.text, row.code_page), row.want)
        << row.text << ", code page " << row.code_page;
  }
}

TEST(DecodeWithCodePage, LeavesTextThatHoldsCharactersAbove127) {
  for (const unsigned code :
       {0x80U, 0xE9U, 0x4E2DU, 0xD800U, 0x1F600U, 0x80000041U}) {
    std::wstring text = {L'a', L'\0', unit(code), L'\0'};
    text += L"%20";
    EXPECT_EQ(url_object::decode_ex(text, 65001), text) << code;
  }
  EXPECT_EQ(url_object::decode_ex(L"\x7F%20", 65001), L"\x7F ");
}

TEST(DecodeWithCodePage, EndsAsciiTextAtItsFirstZero) {
  EXPECT_EQ(url_object::decode_ex(std::wstring(L"ab\0c\0d", 6), 0), L"ab");
  EXPECT_EQ(url_object::decode_ex(std::wstring(L"%41\0%42", 7), 0), L"A");
  EXPECT_EQ(url_object::decode_ex(L"%41%00%E9", 0), L"A");
  EXPECT_EQ(url_object::decode_ex(L"%E9%00%E9", 1252), L"\u00E9");
}

TEST(DecodeWithCodePage, TakesTextOfEveryLength) {
  for (std::size_t length = 250; length < 260; ++length) {
    const std::wstring text(length - 3, L'a');
    EXPECT_EQ(url_object::decode_ex(text + L"%41", 0), text + L"A");
    EXPECT_EQ(url_object::decode_ex(text + L"%E9", 1252), text + L"\u00E9");
  }
}

TEST(DecodeWithCodePage, AllocatesOnlyForLongOrForeignText) {
  qk::url::ScratchText scratch;
  const std::wstring longest = std::wstring(253, L'a') + L"%41";
  EXPECT_EQ(allocations_of(
                [&] { qk::url::decode_with_code_page(longest, 0, scratch); }),
            0U);
}

TEST(Encode, EscapesSpecialAndReservedCharacters) {
  const struct {
    std::wstring text, want;
  } rows[] = {
      {L"", L""},
      {L"a b/%41%", L"a%20b%2F%41%25"},
      {L"%4", L"%254"},
      {L"%zz", L"%25zz"},
      {L"%%41", L"%25%41"},
      {L"%2f%2F", L"%2f%2F"},
      {L"AZaz09-._!'()*", L"AZaz09-._!'()*"},
      {L"\u00FC\u4E2D\U0001F600", L"\u00FC\u4E2D\U0001F600"},
      {std::wstring(L"\0\x1F\x7F", 3), L"%00%1F%7F"},
      {std::wstring(1, unit(0x80000020)), std::wstring(1, unit(0x80000020))},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(url_object::encode_ex(row.text), row.want) << row.text;
  }
  for (unsigned code = 0; code < 0x180; ++code) {
    if (code == '%') continue;
    const wchar_t point = unit(code);
    const bool escaped =
        url_object::need_escape(point) || url_object::is_reserved(point);
    EXPECT_EQ(url_object::encode_ex(std::wstring(1, point)),
              escaped ? upper_escape(code) : std::wstring(1, point))
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
  const struct {
    const char* text;
    const char* want;
  } rows[] = {{"", ""},         {"x", "x"},     {"\t  x y ", "x y "},
              {" \t ", ""},     {"\nx", "\nx"}, {"x \t", "x \t"},
              {" \v x", "\v x"}};
  for (const auto& row : rows) {
    auto text = as<TypeParam>(row.text);
    url_object::trim_pre_space(text);
    EXPECT_EQ(text, as<TypeParam>(row.want)) << row.text;
  }
}

}  // namespace
