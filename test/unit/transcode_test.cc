#include "text/transcode.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <cwchar>
#include <map>
#include <string>
#include <vector>

#include "exact_copy.h"
#include "rows.h"
#include "text/iconv_conversion.h"

namespace {

using qk::text::transcode;

// --- Slow references, independent of iconv

constexpr std::uint32_t kLast = 0x10FFFF;

// The character to try after `code`: every one, except that a sanitized build,
// much slower here, takes samples beyond the basic plane.
std::uint32_t next(std::uint32_t code) {
#ifdef KORVANE_SANITIZED
  if (code >= 0x10000) return code + 37;
#endif
  return code + 1;
}

bool is_surrogate(std::uint32_t code) { return code >> 11 == 0x1B; }

std::string utf8_of(std::uint32_t code) {
  const auto byte = [](std::uint32_t value) {
    return static_cast<char>(static_cast<unsigned char>(value));
  };
  if (code < 0x80) return {byte(code)};
  if (code < 0x800) return {byte(0xC0 + code / 64), byte(0x80 + code % 64)};
  if (code < 0x10000) {
    return {byte(0xE0 + code / 4096), byte(0x80 + code / 64 % 64),
            byte(0x80 + code % 64)};
  }
  return {byte(0xF0 + code / 262144), byte(0x80 + code / 4096 % 64),
          byte(0x80 + code / 64 % 64), byte(0x80 + code % 64)};
}

// Western (1252): Latin-1 but for these; 0 is a byte without a character.
constexpr std::uint32_t kWestern[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

std::uint32_t western_character(unsigned byte) {
  return byte >> 5 == 4 ? kWestern[byte - 0x80] : byte;
}

std::string western_of(std::uint32_t code) {
  for (unsigned byte = 1; byte < 256; ++byte) {
    if (western_character(byte) == code) return {static_cast<char>(byte)};
  }
  return {};
}

// The C library's own GBK, one character at a time, through a locale.
class GbkLocale {
 public:
  GbkLocale() : previous_(std::setlocale(LC_CTYPE, nullptr)) {
    EXPECT_NE(std::setlocale(LC_CTYPE, "zh_CN.GBK"), nullptr);
  }
  ~GbkLocale() { std::setlocale(LC_CTYPE, previous_.c_str()); }
  GbkLocale(const GbkLocale&) = delete;
  GbkLocale& operator=(const GbkLocale&) = delete;

  static std::string encode(std::uint32_t code) {
    char bytes[16];
    std::mbstate_t state{};
    const std::size_t size =
        std::wcrtomb(bytes, static_cast<wchar_t>(code), &state);
    return size == static_cast<std::size_t>(-1) ? "" : std::string(bytes, size);
  }

  // 0 for bytes that are no character.
  static std::uint32_t decode(const std::string& bytes) {
    wchar_t character = 0;
    std::mbstate_t state{};
    const std::size_t size =
        std::mbrtowc(&character, bytes.data(), bytes.size(), &state);
    return size == bytes.size() ? static_cast<std::uint32_t>(character) : 0;
  }

 private:
  std::string previous_;
};

// --- One converter, called on text of exactly its size

template <typename Out, typename In>
using Function = void (*)(const In*, unsigned, std::basic_string<Out>&);

template <typename Out, typename In>
std::basic_string<Out> run(Function<Out, In> function,
                           const std::basic_string<In>& text) {
  const ExactCopy<In> copy{std::basic_string_view<In>(text)};
  std::basic_string<Out> out(3, Out('!'));
  function(copy.data(), static_cast<unsigned>(copy.size()), out);
  return out;
}

std::wstring wide(std::uint32_t code) {
  return std::wstring(1, static_cast<wchar_t>(code));
}

TEST(Transcode, EveryCharacterToAndFromUtf8) {
  for (std::uint32_t code = 1; code <= kLast; code = next(code)) {
    if (is_surrogate(code)) continue;
    const std::string utf8 = utf8_of(code);
    ASSERT_EQ(run(&transcode::Unicode_to_UTF8, wide(code)), utf8) << code;
    ASSERT_EQ(run(&transcode::UTF8_to_Unicode, utf8), wide(code)) << code;
  }
}

TEST(Transcode, EveryCharacterToGbkAndAnsi) {
  const GbkLocale locale;
  for (std::uint32_t code = 1; code <= kLast; code = next(code)) {
    if (is_surrogate(code)) continue;
    const std::string gbk = GbkLocale::encode(code);
    ASSERT_EQ(run(&transcode::Unicode_to_GBK, wide(code)), gbk) << code;
    ASSERT_EQ(run(&transcode::UTF8_to_GBK, utf8_of(code)), gbk) << code;
    ASSERT_EQ(run(&transcode::Unicode_to_ANSI, wide(code)),
              code <= 0x2122 ? western_of(code) : "")
        << code;
  }
}

TEST(Transcode, EveryGbkAndAnsiSequence) {
  const GbkLocale locale;
  for (unsigned first = 1; first < 256; ++first) {
    const std::string byte(1, static_cast<char>(first));
    const std::uint32_t western = western_character(first);
    ASSERT_EQ(run(&transcode::ANSI_to_Unicode, byte),
              western == 0 ? L"" : wide(western));
    for (unsigned second = 1; second < 256; ++second) {
      const std::string pair = byte + static_cast<char>(second);
      if (GbkLocale::decode(byte) != 0) continue;
      const std::uint32_t code = GbkLocale::decode(pair);
      ASSERT_EQ(run(&transcode::GBK_to_Unicode, pair),
                code == 0 ? L"" : wide(code));
      ASSERT_EQ(run(&transcode::GBK_to_UTF8, pair),
                code == 0 ? "" : utf8_of(code));
    }
  }
}

// --- Rules that hold for single texts

// The function of a row's name that takes and gives such text; null for none.
template <typename Out, typename In>
Function<Out, In> function_named(const std::wstring& name);

template <>
Function<char, char> function_named(const std::wstring& name) {
  static const std::map<std::wstring, Function<char, char>> kFunctions = {
      {L"GBK_to_UTF8", &transcode::GBK_to_UTF8},
      {L"UTF8_to_GBK", &transcode::UTF8_to_GBK},
      {L"UTF8_to_tstring", &transcode::UTF8_to_tstring},
      {L"tstring_to_UTF8", &transcode::tstring_to_UTF8},
      {L"tstring_to_GBK", &transcode::tstring_to_GBK},
      {L"GBK_to_tstring", &transcode::GBK_to_tstring},
      {L"tstring_to_ANSI", &transcode::tstring_to_ANSI},
      {L"ANSI_to_tstring", &transcode::ANSI_to_tstring}};
  return kFunctions.at(name);
}

template <>
Function<wchar_t, char> function_named(const std::wstring& name) {
  static const std::map<std::wstring, Function<wchar_t, char>> kFunctions = {
      {L"UTF8_to_Unicode", &transcode::UTF8_to_Unicode},
      {L"GBK_to_Unicode", &transcode::GBK_to_Unicode},
      {L"ANSI_to_Unicode", &transcode::ANSI_to_Unicode},
      {L"UTF8_to_tstring", &transcode::UTF8_to_tstring},
      {L"GBK_to_tstring", &transcode::GBK_to_tstring},
      {L"tstring_to_Unicode", &transcode::tstring_to_Unicode},
      {L"ANSI_to_tstring", &transcode::ANSI_to_tstring}};
  return kFunctions.at(name);
}

template <>
Function<char, wchar_t> function_named(const std::wstring& name) {
  static const std::map<std::wstring, Function<char, wchar_t>> kFunctions = {
      {L"Unicode_to_UTF8", &transcode::Unicode_to_UTF8},
      {L"Unicode_to_GBK", &transcode::Unicode_to_GBK},
      {L"Unicode_to_ANSI", &transcode::Unicode_to_ANSI},
      {L"tstring_to_UTF8", &transcode::tstring_to_UTF8},
      {L"tstring_to_GBK", &transcode::tstring_to_GBK},
      {L"Unicode_to_tstring", &transcode::Unicode_to_tstring},
      {L"tstring_to_ANSI", &transcode::tstring_to_ANSI}};
  return kFunctions.at(name);
}

template <typename Out, typename In>
void check_rows(const char* table) {
  for (const Row& row : rows_of(table)) {
    const auto function = function_named<Out, In>(row[1]);
    const std::basic_string<In> text(row[0].begin(), row[0].end());
    const std::basic_string<Out> want(row[2].begin(), row[2].end());
    EXPECT_EQ(run(function, text), want) << row[0] << " " << row[1];
  }
}

TEST(Transcode, ConvertsSingleTexts) {
  check_rows<char, char>("narrow to narrow");
  check_rows<wchar_t, char>("narrow to wide");
  check_rows<char, wchar_t>("wide to narrow");
}

TEST(Transcode, WideCopiesKeepEveryUnit) {
  const std::wstring text = {L'A', L'\0', wchar_t(0xD800), wchar_t(0xFFFFFFFF)};
  EXPECT_EQ((run<wchar_t, wchar_t>(&transcode::tstring_to_Unicode, text)),
            text);
  EXPECT_EQ((run<wchar_t, wchar_t>(&transcode::Unicode_to_tstring, text)),
            text);
}

template <typename Out, typename In>
void expect_nothing_of_no_text(std::vector<Function<Out, In>> functions) {
  const In unit = 'a';
  for (const auto function : functions) {
    std::basic_string<Out> out(3, Out('!'));
    function(nullptr, 1, out);
    EXPECT_TRUE(out.empty());
    out.assign(3, Out('!'));
    function(&unit, 0, out);
    EXPECT_TRUE(out.empty());
  }
}

TEST(Transcode, NoTextEmptiesTheOutput) {
  expect_nothing_of_no_text<char, char>(
      {&transcode::GBK_to_UTF8, &transcode::UTF8_to_GBK});
  expect_nothing_of_no_text<wchar_t, char>({&transcode::UTF8_to_Unicode,
                                            &transcode::GBK_to_Unicode,
                                            &transcode::ANSI_to_Unicode});
  expect_nothing_of_no_text<char, wchar_t>({&transcode::Unicode_to_UTF8,
                                            &transcode::Unicode_to_GBK,
                                            &transcode::Unicode_to_ANSI});
}

TEST(Transcode, AnUnknownCharacterSetGivesNothing) {
  std::string out = "old";
  EXPECT_FALSE(qk::text::convert("UTF-8", "no such set", "a", 1, 9, out));
  EXPECT_EQ(out, "");
}

TEST(Transcode, LongTextsAndTextInsideTheOutput) {
  const std::string utf8(100000, 'x');
  EXPECT_EQ(run<char>(&transcode::UTF8_to_GBK, utf8), utf8);
  std::string text =
      "\xE4\xB8\xAD"
      "abc";
  transcode::UTF8_to_GBK(text.data(), 6, text);
  EXPECT_EQ(text,
            "\xD6\xD0"
            "abc");
}

}  // namespace
