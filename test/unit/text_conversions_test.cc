#include <korvane/korvane_host.h>
#include <korvane/transcode.h>
#include "table.h"
#include "text/utf8.h"

namespace {

Text decoded(const Bytes& bytes, int code_page) {
  return string_to_wstring_with_code_page(bytes, code_page);
}

TEST(text_conversions, Utf8HasTheCharactersUpTo10FFFF) {
  const Table row = [](const Text& text, const Bytes& want) {
    EXPECT_EQ(wstring_2_utf8(text), want);
    EXPECT_EQ(wstring_2_string(text), want);
    EXPECT_EQ(string_2_wstring(want), text);
  };
  row(L"", "");
  row(L"plain\x7F", "plain\x7F");
  row(L"\x80", "\xC2\x80");
  row(L"\x7FF", "\xDF\xBF");
  row(L"\x800", "\xE0\xA0\x80");
  row(L"\xD7FF", "\xED\x9F\xBF");
  row(L"\xE000", "\xEE\x80\x80");
  row(L"\xFFFF", "\xEF\xBF\xBF");
  row(L"\x10000", "\xF0\x90\x80\x80");
  row(L"\x10FFFF\x10FFFF", "\xF4\x8F\xBF\xBF\xF4\x8F\xBF\xBF");
}

TEST(text_conversions, EncodingEndsAtWhatIsNoCharacter) {
  for (const wchar_t bad : L"\xD800\xDFFF\x110000\x80000000\xFFFFFFFF"s) {
    EXPECT_EQ(wstring_2_utf8({L'a', bad, L'\xE9'}), "a") << std::hex << bad;
  }
  EXPECT_EQ(wstring_2_utf8(L"a\0\xE9"s), "a");
}

TEST(utf8, DecodingEndsAtWhatIsNoCharacter) {
  for (const Bytes bad :
       {"\x80", "\xC1\xBF", "\xC3", "\xC3\xC0", "\xDF\x7F", "\xE0\x9F\xBF",
        "\xE4\xB8", "\xE4\xB8\xC0", "\xED\xA0\x80", "\xED\xBF\xBF",
        "\xF0\x8F\xBF\xBF", "\xF0\x90\x80", "\xF4\x90\x80\x80",
        "\xF8\x88\x88\x88\x80", "\xFF"}) {
    Text text = L"old";
    EXPECT_FALSE(qk::text::decode_utf8("a" + bad, text)) << bad;
    EXPECT_EQ(text, L"a") << testing::PrintToString(bad);
  }
}

// UTF-8, otherwise GBK, otherwise Western.
TEST(text_conversions, TheDefaultEncodingReadsAnyName) {
  const Table row = [](const Bytes& bytes, const Text& want) {
    EXPECT_EQ(string_2_wstring(bytes), want);
    for (const int number : {0, -1, 1, 28590, 28602, 28607, 1259}) {
      EXPECT_EQ(decoded(bytes, number), want) << number;
    }
  };
  row("\xE4\xB8\xAD.txt", L"\x4E2D.txt");
  row("\xD6\xD0.txt", L"\x4E2D.txt");
  row("caf\xE9\xE9", L"caf\x6B9A");
  row("caf\xE9", L"caf\xE9");
  row("\xE9 \xD6\xD0", L"\xE9 \xD6\xD0");
  row("\xC3\xA9\0\xFF"s, L"\xE9");
  row("a\0b"s, L"a");
  for (int byte = 0x80; byte < 0x100; ++byte) {
    const char bytes[] = {' ', static_cast<char>(byte), ' '};
    Text want;
    qk::text::transcode::ANSI_to_Unicode(bytes, 3, want);
    // Western leaves five bytes undefined.
    row({bytes, 3}, want == L" " ? Text{L' ', wchar_t(byte), L' '} : want);
  }
}

TEST(text_conversions, CodePages) {
  const Table row = [](int code_page, const Bytes& bytes, const Text& want) {
    EXPECT_EQ(decoded(bytes, code_page), want);
  };
  // What a page cannot read, the default encoding does.
  row(65001, "caf\xE9.zip", L"caf\xE9.zip");
  row(936, "\xD6\xD0\xFF", L"\xD6\xD0\xFF");
  row(936, "\xE4\xB8\xAD\x61", L"\x6D93\x74A6");
  row(54936, "\x94\x39\xFC\x36", L"\x1F600");
  row(932, "\x93\xFA", L"\x65E5");
  row(949, "\x81\x41", L"\xAC02");
  row(950, "\xA4\xA4\xF9\xD6", L"\x4E2D\x7881");
  row(866, "\x80\xF0", L"\x410\x401");
  row(874, "\x80\xA1", L"\x20AC\x0E01");
  row(20866, "\xE1\xA4", L"\x410\x2553");
  row(21866, "\xA4\xAE", L"\x454\x255D");
  // 1255 holds a letter back, 1258 makes one character of two.
  row(1255, "\xE0", L"\x5D0");
  row(1258, "\xC2\xEC", L"\x1EA4");
}

// Two bytes that nearly every page of a family reads otherwise.
TEST(text_conversions, FamiliesOfCodePages) {
  const auto expect_each = [](int first, const Bytes& bytes, const Text& want) {
    for (int i = 0; i < int(want.size() / 2); ++i) {
      EXPECT_EQ(decoded(bytes, first + i), want.substr(2U * unsigned(i), 2))
          << first + i;
    }
  };
  expect_each(1250, "\xF7\xFE",
              L"\xF7\x163\x447\x44E\xF7\xFE\x3C7\x3CE\xF7\x15F\x5E7\x200F\xF7"
              L"\x200F\xF7\x17E\xF7\x20AB");
  expect_each(28591, "\xF2\xAC",
              L"\xF2\xAC\x148\x179\xF2\x134\x14D\x166\x452\x40C\x652\x60C\x3C2"
              L"\xAC\x5E2\xAC\xF2\xAC\x14D\x17D\xE52\xE0C");
  expect_each(28603, "\xF2\xAC", L"\x146\xAC\xF2\x1EF2\xF2\xAC\xF2\x179");
}

}  // namespace
