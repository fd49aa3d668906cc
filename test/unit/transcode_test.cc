#include <korvane/transcode.h>

#include "text/iconv_conversion.h"
#include "text/utf8.h"
#include "unit_test.h"

using qk::text::transcode;

// What a function makes of exactly the text, over a string that holds another.
template <typename Out, typename In>
static std::basic_string<Out> with(void (*convert)(const In*, unsigned,
                                                   std::basic_string<Out>&),
                                   const std::basic_string<In>& text) {
  const ExactCopy copy(text);
  std::basic_string<Out> out(3, Out('!'));
  convert(copy.data(), copy.size(), out);
  return out;
}

const auto narrow = with<char, char>;
const auto narrowed = with<char, wchar_t>;
const auto widened = with<wchar_t, char>;
const auto wide = with<wchar_t, wchar_t>;

// By way of the string type of programs, which is GBK, ANSI or wide.
TEST(transcode, ConvertsUpToWhatItCannot) {
  EXPECT_EQ(narrow(transcode::UTF8_to_tstring, "中😀c"), "\xD6\xD0");
  EXPECT_EQ(narrow(transcode::tstring_to_UTF8, "a\xD6\xD0\0a"s), "a中");
  EXPECT_EQ(widened(transcode::UTF8_to_tstring, "ab"), L"ab");
  EXPECT_EQ(widened(transcode::GBK_to_tstring, "ab"), L"ab");
  EXPECT_EQ(widened(transcode::tstring_to_Unicode, "\xE9\x80\x81"), L"é€");
  EXPECT_EQ(widened(transcode::ANSI_to_tstring, "\xE9"), L"é");
  EXPECT_EQ(narrowed(transcode::tstring_to_UTF8, L"😀"), "😀");
  EXPECT_EQ(narrowed(transcode::tstring_to_GBK, L"中中"), "\xD6\xD0\xD6\xD0");
  EXPECT_EQ(narrowed(transcode::Unicode_to_tstring, L"a€"), "a\x80");
  EXPECT_EQ(narrowed(transcode::tstring_to_ANSI, L"a€中"), "a\x80");
  // Copies are whole.
  const Bytes bytes = "a\0\xFF"s;
  EXPECT_EQ(narrow(transcode::tstring_to_GBK, bytes), bytes);
  EXPECT_EQ(narrow(transcode::GBK_to_tstring, bytes), bytes);
  EXPECT_EQ(narrow(transcode::tstring_to_ANSI, bytes), bytes);
  EXPECT_EQ(narrow(transcode::ANSI_to_tstring, bytes), bytes);
  EXPECT_EQ(wide(transcode::tstring_to_Unicode, L"a\0\xD800"s), L"a\0\xD800"s);
  EXPECT_EQ(wide(transcode::Unicode_to_tstring, L"a\0\xD800"s), L"a\0\xD800"s);
}

TEST(transcode, BuffersFitAlmostAllText) {
  const Bytes many(5000, 'n');
  EXPECT_EQ(narrow(transcode::UTF8_to_GBK, many), many);
  Bytes text = "old";
  transcode::UTF8_to_GBK(nullptr, 1, text);
  EXPECT_EQ(text, "");
  // Quirk: longer than the buffers for them.
  EXPECT_EQ(narrow(transcode::GBK_to_UTF8, "\x80"), "");
  EXPECT_EQ(narrowed(transcode::Unicode_to_UTF8, L"😀😀😀😀"), "😀😀😀");
}

TEST(utf8, HasTheCharactersUpTo10FFFF) {
  const Text text = L"\0\x7F\x80\x7FF\x800\xD7FF\xE000\xFFFF\x10000\x10FFFF"s;
  const Bytes want =
      "\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"
      "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s;
  Bytes utf8 = "old";
  EXPECT_TRUE(qk::text::encode_utf8(text, utf8));
  EXPECT_EQ(utf8, want);
  Text decoded = L"old";
  EXPECT_TRUE(qk::text::decode_utf8(want, decoded));
  EXPECT_EQ(decoded, text);
  for (const wchar_t bad : L"\xD800\xDFFF\x110000\x80000000"s) {
    EXPECT_FALSE(qk::text::encode_utf8(Text{L'a', bad}, utf8)) << bad;
    EXPECT_EQ(utf8, "a");
  }
  for (const Bytes bad :
       {"\x80\x80", "\xC1\xBF", "\xC3", "\xC3\xC0", "\xDF\x7F", "\xE0\x9F\xBF",
        "\xE4\xB8", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF",
        "\xF0\x90\x80", "\xF4\x90\x80\x80", "\xF8\x88\x88\x88\x80", "\xFF"}) {
    EXPECT_FALSE(qk::text::decode_utf8("a" + bad, decoded));
    EXPECT_EQ(decoded, L"a") << testing::PrintToString(bad);
  }
}

TEST(iconv_conversion, AnUnknownCharacterSetConvertsNothing) {
  Bytes out = "old";
  EXPECT_FALSE(qk::text::convert("UTF-8", "no such set", "a", 1, 9, out));
  EXPECT_EQ(out, "");
}
