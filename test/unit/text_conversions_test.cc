#include <gtest/gtest.h>

#include <string>

#include "host/korvane_host.h"

namespace {

const std::wstring kChina = L"\u4E2D";

TEST(HostText, WideToNarrowIsUtf8) {
  const struct {
    std::wstring text;
    std::string want;
  } kCases[] = {
      {L"", ""},
      {L"plain", "plain"},
      {L"caf\u00E9 " + kChina, "caf\xC3\xA9 \xE4\xB8\xAD"},
      // Room for four bytes a character: no name of emoji is cut.
      {L"\U0001F600\U0001F601\U0010FFFF",
       "\xF0\x9F\x98\x80\xF0\x9F\x98\x81\xF4\x8F\xBF\xBF"},
      {std::wstring(L"a\0b", 3), "a"},
      {{L'a', wchar_t(0xDC00), L'b'}, "a"},
      {{L'a', wchar_t(0x80000000), L'b'}, "a"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(wstring_2_utf8(test.text), test.want);
    EXPECT_EQ(wstring_2_string(test.text), test.want);
  }
}

TEST(HostText, DefaultEncodingLosesNoName) {
  const struct {
    std::string bytes;
    std::wstring want;
  } kCases[] = {
      {"", L""},
      {"plain", L"plain"},
      {"\xE4\xB8\xAD.txt", kChina + L".txt"},
      {"\xD6\xD0.txt", kChina + L".txt"},
      {"caf\xE9", L"caf\u00E9"},
      {"caf\xE9\xE9", L"caf\u6B9A"},  // also GBK, which goes first
      {"\xE9 \xD6\xD0", L"\u00E9 \u00D6\u00D0"},
      {"\xF0\x9F\x98\x80", L"\U0001F600"},
      {"a\x81", L"a"},  // no encoding takes it: what stands before it
      {std::string("\xE4\xB8\xAD\0\xFF", 5), kChina},
      {std::string("a\0b", 3), L"a"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(string_2_wstring(test.bytes), test.want);
    for (const int code_page : {0, -1, 1, 65000, 28590, 28602, 28607, 1259}) {
      EXPECT_EQ(string_to_wstring_with_code_page(test.bytes, code_page),
                test.want)
          << code_page;
    }
  }
}

TEST(HostText, CodePages) {
  const struct {
    int code_page;
    const char* bytes;
    std::wstring want;
  } kCases[] = {
      {65001, "\xE4\xB8\xAD", kChina},
      {65001, "a\xD6\xD0", L"a"},
      {936, "\xD6\xD0\xFF", kChina},
      {936, "\xE4\xB8\xAD", L"\u6D93"},
      {54936, "\x81\x30\x81\x30", L"\u0080"},
      {54936, "\x94\x39\xFC\x36", L"\U0001F600"},
      {932, "\x93\xFA\\~", L"\u65E5\\~"},
      // Bytes that neighbouring sets read otherwise or not at all.
      {949, "\x81\x41", L"\uAC02"},
      {950, "\xA4\xA4\xF9\xD6", L"\u4E2D\u7881"},
      {866, "\x80\xF0", L"\u0410\u0401"},
      {874, "\x80\xA1", L"\u20AC\u0E01"},
      {1250, "\x9A\xB9", L"\u0161\u0105"},
      {1251, "\xC0\x80", L"\u0410\u0402"},
      {1252, "\x8E\xD0\x81", L"\u017D\u00D0"},
      {1253, "\xC1\x80", L"\u0391\u20AC"},
      {1254, "\xFD\x80", L"\u0131\u20AC"},
      {1255, "\xE0\xE1\x80", L"\u05D0\u05D1\u20AC"},
      {1255, "\xE0\xFF", L"\u05D0"},  // a letter held back, then a bad byte
      {1255, "\xE0", L"\u05D0"},
      {1256, "\xC7\x81", L"\u0627\u067E"},
      {1257, "\xC0\x80", L"\u0104\u20AC"},
      {1258, "A", L"A"},
      {1258, "\xC2\xEC", L"\u1EA4"},  // one character of two
      {1258, "x\xC2", L"x\u00C2"},
      {20866, "\xE1\xA4", L"\u0410\u2553"},
      {21866, "\xA4\xAE", L"\u0454\u255D"},
      {28591, "\xE9\x80", L"\u00E9\u0080"},
      {28592, "\xB1\xA3", L"\u0105\u0141"},
      {28593, "\xB1", L"\u0127"},
      {28594, "\xA2", L"\u0138"},
      {28595, "\xB0", L"\u0410"},
      {28596, "\xC7\x81", L"\u0627\u0081"},
      {28597, "\xC1\x80", L"\u0391\u0080"},
      {28598, "\xE0\x80", L"\u05D0\u0080"},
      {28599, "\xFD\x80", L"\u0131\u0080"},
      {28600, "\xA2", L"\u0112"},
      {28601, "\x80\xA1", L"\u0080\u0E01"},
      {28603, "\xC0\x80", L"\u0104\u0080"},
      {28604, "\xA1", L"\u1E02"},
      {28605, "\xA4\xA6", L"\u20AC\u0160"},
      {28606, "\xA1", L"\u0104"},
  };
  for (const auto& test : kCases) {
    EXPECT_EQ(string_to_wstring_with_code_page(test.bytes, test.code_page),
              test.want)
        << test.code_page;
  }
}

}  // namespace
