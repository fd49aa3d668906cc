#include <thread>

#include <korvane/korvane_host.h>
#include <korvane/transcode.h>
#include "table.h"

const Table decoded = [](const Bytes& bytes, int code_page, const Text& want) {
  EXPECT_EQ(string_to_wstring_with_code_page(bytes, code_page), want);
};

TEST(text_conversions, NarrowTextIsUtf8UpToAZero) {
  for (const Text& text :
       {L"caf\xE9\x1F600\x1F600\0\xE9"s, L"plain\0"s, L""s}) {
    const Text ended = text.substr(0, text.find(L'\0'));
    EXPECT_EQ(string_2_wstring(wstring_2_utf8(text)), ended);
    EXPECT_EQ(string_2_wstring(wstring_2_string(text)), ended);
  }
}

// UTF-8, otherwise GBK, otherwise Western.
TEST(text_conversions, TheDefaultEncodingReadsAnyName) {
  for (const int number : {0, -1, 1, 28590, 28602, 28607, 1259}) {
    decoded("\xE4\xB8\xAD\0\xFF"s, number, L"\x4E2D");
    decoded("\xD6\xD0.txt", number, L"\x4E2D.txt");
    decoded("caf\xE9", number, L"caf\xE9");
  }
  // What a page cannot read, the default encoding does.
  decoded("caf\xE9.zip", 65001, L"caf\xE9.zip");
  decoded("\xD6\xD0\xFF", 936, L"\xD6\xD0\xFF");
  for (int byte = 0x80; byte < 0x100; ++byte) {
    const Bytes bytes = {static_cast<char>(byte), '\xFF'};
    Text want;
    qk::text::transcode::ANSI_to_Unicode(bytes.data(), 2, want);
    // Western leaves five bytes undefined.
    if (want.empty()) want = {wchar_t(byte), L'\xFF'};
    EXPECT_EQ(string_2_wstring(bytes), want) << byte;
  }
}

TEST(text_conversions, CodePages) {
  decoded("\xE4\xB8\xAD\x61", 936, L"\x6D93\x74A6");
  decoded("\x94\x39\xFC\x36", 54936, L"\x1F600");
  decoded("\x93\xFA", 932, L"\x65E5");
  decoded("\x81\x41", 949, L"\xAC02");
  decoded("\xA4\xA4\xF9\xD6", 950, L"\x4E2D\x7881");
  decoded("\x80\xF0", 866, L"\x410\x401");
  decoded("\x80\xA1", 874, L"\x20AC\x0E01");
  decoded("\xE1\xA4", 20866, L"\x410\x2553");
  decoded("\xA4\xAE", 21866, L"\x454\x255D");
  // 1255 holds a letter back, 1258 makes one character of two.
  decoded("\xE0", 1255, L"\x5D0");
  decoded("\xC2\xEC", 1258, L"\x1EA4");
  // Two bytes that nearly every page of a family reads otherwise.
  const auto decoded_by_each = [](const Bytes& bytes, int first,
                                  const Text& want) {
    for (int i = 0; i < int(want.size() / 2); ++i) {
      decoded(bytes, first + i, want.substr(std::size_t(2) * unsigned(i), 2));
    }
  };
  decoded_by_each("\xF7\xFE", 1250,
                  L"\xF7\x163\x447\x44E\xF7\xFE\x3C7\x3CE\xF7\x15F\x5E7\x200F"
                  L"\xF7\x200F\xF7\x17E\xF7\x20AB");
  decoded_by_each("\xF2\xAC", 28591,
                  L"\xF2\xAC\x148\x179\xF2\x134\x14D\x166\x452\x40C\x652\x60C"
                  L"\x3C2\xAC\x5E2\xAC\xF2\xAC\x14D\x17D\xE52\xE0C");
  decoded_by_each("\xF2\xAC", 28603, L"\x146\xAC\xF2\x1EF2\xF2\xAC\xF2\x179");
}

TEST(base64, EncodesWithPaddingAndInPlace) {
  const Table row = [](Bytes bytes, const Bytes& want) {
    qk::crypto::base64::encode(bytes, bytes);
    EXPECT_EQ(bytes, want);
  };
  row("", "");
  row("f", "Zg==");
  row("fo", "Zm8=");
  row("\xFB\xEF\xBE\xFF\xFE\xFD", "++++//79");
}

TEST(last_error, EachThreadHasItsOwn) {
  qk::set_last_error(20100001);
  unsigned seen = 1;
  std::thread([&seen] { seen = qk::get_last_error(); }).join();
  EXPECT_EQ(seen, 0U);
  EXPECT_EQ(qk::get_last_error(), 20100001U);
}
