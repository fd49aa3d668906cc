#include <thread>

#include <korvane/korvane_host.h>
#include "unit_test.h"

static Text decoded(const Bytes& bytes, int code_page) {
  return string_to_wstring_with_code_page(bytes, code_page);
}

TEST(text_conversions, NarrowTextIsUtf8UpToAZero) {
  EXPECT_EQ(wstring_2_utf8(L"café😀😀\0é"s), "café😀😀");
  EXPECT_EQ(wstring_2_string(L"\x80"), "\xC2\x80");
  EXPECT_EQ(string_2_wstring("\0"s), L"");
}

// UTF-8, otherwise GBK, otherwise Western.
TEST(text_conversions, TheDefaultEncodingReadsAnyName) {
  for (const int number : {0, -1, 65001, 1, 28590, 28602, 28607, 1259}) {
    EXPECT_EQ(decoded("\xE4\xB8\xAD\0\xFF"s, number), L"\x4E2D");
    EXPECT_EQ(decoded("\xD6\xD0.txt", number), L"\x4E2D.txt");
    EXPECT_EQ(decoded("caf\xE9", number), L"caf\xE9");
  }
  // Western leaves five bytes undefined.
  Bytes western = "\xFF";
  for (int byte = 0x80; byte <= 0xA0; ++byte)
    western += static_cast<char>(byte);
  EXPECT_EQ(string_2_wstring(western),
            L"ÿ€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8DŽ\x8F\x90‘’“”•–—˜™š›œ\x9DžŸ\xA0");
}

TEST(text_conversions, CodePages) {
  EXPECT_EQ(decoded("\xE4\xB8\xAD\x61", 936), L"\x6D93\x74A6");
  EXPECT_EQ(decoded("\x94\x39\xFC\x36", 54936), L"\x1F600");
  EXPECT_EQ(decoded("\x93\xFA", 932), L"\x65E5");
  EXPECT_EQ(decoded("\x81\x41", 949), L"\xAC02");
  EXPECT_EQ(decoded("\xA4\xA4\xF9\xD6", 950), L"\x4E2D\x7881");
  EXPECT_EQ(decoded("\x80\xF0", 866), L"\x410\x401");
  EXPECT_EQ(decoded("\x80\xA1", 874), L"\x20AC\x0E01");
  EXPECT_EQ(decoded("\xE1\xA4", 20866), L"\x410\x2553");
  EXPECT_EQ(decoded("\xA4\xAE", 21866), L"\x454\x255D");
  EXPECT_EQ(decoded("\xE0", 1255), L"\x5D0");  // held back at first
  // Bytes that differ within a family and from Western.
  const auto decoded_by_each = [](char byte, int first, const Text& want) {
    for (const wchar_t unit : want) {
      EXPECT_EQ(decoded({byte}, first++), Text{unit}) << first;
    }
  };
  decoded_by_each('\xFE', 1250, L"ţюþώş\x200F\x200Fž₫");
  decoded_by_each('\xF2', 28591, L"òňòōђ\x652ς\x5E2òō๒");
  decoded_by_each('\xFE', 28593, L"ŝ");
  decoded_by_each('\xFE', 28599, L"ş");
  decoded_by_each('\xFE', 28603, L"žŷþț");
  EXPECT_EQ(decoded("\xA4", 28605), L"€");
}

TEST(base64, EncodesInPlace) {
  Bytes bytes = "\xFB\xEF\xBE\xFF\xFE";
  qk::crypto::base64::encode(bytes, bytes);
  EXPECT_EQ(bytes, "++++//4=");
}

TEST(last_error, EachThreadHasItsOwn) {
  qk::set_last_error(20100001);
  unsigned seen = 1;
  std::thread([&seen] { seen = qk::get_last_error(); }).join();
  EXPECT_EQ(seen, 0U);
}
