#include <korvane/transcode.h>

#include <gtest/gtest.h>

#include <clocale>
#include <cstdint>
#include <cwchar>
#include <map>
#include <string>

#include "exact_copy.h"
#include "rows.h"
#include "text/iconv_conversion.h"
#include "text/utf8.h"

namespace {

using qk::text::transcode;

template <typename Out, typename In>
using Function = void (*)(const In*, unsigned, std::basic_string<Out>&);

// A function called on text of exactly its size, over text that was there.
template <typename Out, typename In>
std::basic_string<Out> run(Function<Out, In> function,
                           const std::basic_string<In>& text) {
  const ExactCopy<In> copy{std::basic_string_view<In>(text)};
  std::basic_string<Out> out(3, Out('!'));
  function(copy.data(), static_cast<unsigned>(copy.size()), out);
  return out;
}

// A sanitized build, much slower here, takes samples beyond the basic plane.
std::uint32_t next(std::uint32_t code) {
#ifdef KORVANE_SANITIZED
  if (code >= 0x10000) return code + 37;
#endif
  return code + 1;
}

// The character in the coding of the locale; empty if it has none.
std::string coded(wchar_t character) {
  char bytes[16];
  std::mbstate_t state{};
  const std::size_t size = std::wcrtomb(bytes, character, &state);
  return size > sizeof bytes ? "" : std::string(bytes, size);
}

TEST(Transcode, EveryCharacterAsTheCLibraryHasIt) {
  const struct {
    const char* locale;
    Function<char, wchar_t> encode;
    Function<wchar_t, char> decode;
  } cases[] = {
      {"en_US.UTF-8",
       [](const wchar_t* text, unsigned size, std::string& out) {
         qk::text::encode_utf8({text, size}, out);
       },
       [](const char* text, unsigned size, std::wstring& out) {
         qk::text::decode_utf8({text, size}, out);
       }},
      {"en_US.UTF-8", transcode::Unicode_to_UTF8, transcode::UTF8_to_Unicode},
      {"zh_CN.GBK", transcode::Unicode_to_GBK, transcode::GBK_to_Unicode},
      {"en_US.CP1252", transcode::Unicode_to_ANSI, transcode::ANSI_to_Unicode}};
  const std::string previous = std::setlocale(LC_CTYPE, nullptr);
  for (const auto& row : cases) {
    ASSERT_NE(std::setlocale(LC_CTYPE, row.locale), nullptr) << row.locale;
    for (std::uint32_t code = 1; code <= 0x10FFFF; code = next(code)) {
      const std::wstring character(1, static_cast<wchar_t>(code));
      const std::string bytes = coded(character[0]);
      ASSERT_EQ(run(row.encode, character), bytes) << row.locale << code;
      ASSERT_EQ(run(row.decode, bytes), bytes.empty() ? L"" : character);
    }
  }
  std::setlocale(LC_CTYPE, previous.c_str());
}

// --- Rules that hold for single texts

template <typename Out, typename In>
void check_functions(
    const char* table,
    const std::map<std::wstring, Function<Out, In>>& functions) {
  for (const auto& [name, function] : functions) {
    EXPECT_TRUE(run(function, {}).empty()) << name;
    // Text strings are copied without looking.
    if (name.find(L"tstring") != std::wstring::npos) continue;
    std::basic_string<Out> out(3, Out('!'));
    function(nullptr, 1, out);
    EXPECT_TRUE(out.empty()) << name;
  }
  check<std::basic_string<In>, std::wstring>(
      table, [&](const std::basic_string<In>& text, const std::wstring& name) {
        return run(functions.at(name), text);
      });
}

TEST(Transcode, ConvertsSingleTexts) {
  check_functions<char, char>(
      "narrow to narrow", {{L"GBK_to_UTF8", transcode::GBK_to_UTF8},
                           {L"UTF8_to_GBK", transcode::UTF8_to_GBK},
                           {L"UTF8_to_tstring", transcode::UTF8_to_tstring},
                           {L"tstring_to_UTF8", transcode::tstring_to_UTF8},
                           {L"tstring_to_GBK", transcode::tstring_to_GBK},
                           {L"GBK_to_tstring", transcode::GBK_to_tstring},
                           {L"tstring_to_ANSI", transcode::tstring_to_ANSI},
                           {L"ANSI_to_tstring", transcode::ANSI_to_tstring}});
  check_functions<wchar_t, char>(
      "narrow to wide", {{L"UTF8_to_Unicode", transcode::UTF8_to_Unicode},
                         {L"GBK_to_Unicode", transcode::GBK_to_Unicode},
                         {L"ANSI_to_Unicode", transcode::ANSI_to_Unicode},
                         {L"UTF8_to_tstring", transcode::UTF8_to_tstring},
                         {L"GBK_to_tstring", transcode::GBK_to_tstring},
                         {L"tstring_to_Unicode", transcode::tstring_to_Unicode},
                         {L"ANSI_to_tstring", transcode::ANSI_to_tstring}});
  check_functions<char, wchar_t>(
      "wide to narrow", {{L"Unicode_to_UTF8", transcode::Unicode_to_UTF8},
                         {L"Unicode_to_GBK", transcode::Unicode_to_GBK},
                         {L"Unicode_to_ANSI", transcode::Unicode_to_ANSI},
                         {L"tstring_to_UTF8", transcode::tstring_to_UTF8},
                         {L"tstring_to_GBK", transcode::tstring_to_GBK},
                         {L"Unicode_to_tstring", transcode::Unicode_to_tstring},
                         {L"tstring_to_ANSI", transcode::tstring_to_ANSI}});
  check_functions<wchar_t, wchar_t>(
      "wide to wide", {{L"tstring_to_Unicode", transcode::tstring_to_Unicode},
                       {L"Unicode_to_tstring", transcode::Unicode_to_tstring}});
}

TEST(Transcode, AnUnknownCharacterSetGivesNothing) {
  std::string out = "old";
  EXPECT_FALSE(qk::text::convert("UTF-8", "no such set", "a", 1, 9, out));
  EXPECT_EQ(out, "");
}

TEST(Transcode, TakesTextInsideTheOutput) {
  std::string text =
      "\xE4\xB8\xAD"
      "abc";
  transcode::UTF8_to_GBK(text.data(), 6, text);
  EXPECT_EQ(text,
            "\xD6\xD0"
            "abc");
}

}  // namespace
