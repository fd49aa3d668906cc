#include <korvane/transcode.h>

#include "table.h"
#include "text/iconv_conversion.h"
#include "text/utf8.h"

using qk::text::transcode;

// Calls a function on exactly the text, over a string that holds another.
template <typename In, typename Out>
static void expect_converted(void (*convert)(const In*, unsigned,
                                             std::basic_string<Out>&),
                             const std::basic_string<In>& text,
                             const std::basic_string<Out>& want) {
  const ExactCopy copy(text);
  std::basic_string<Out> out(3, Out('!'));
  convert(copy.data(), copy.size(), out);
  EXPECT_EQ(out, want);
}

const Table narrow = expect_converted<char, char>;
const Table widened = expect_converted<char, wchar_t>;
const Table narrowed = expect_converted<wchar_t, char>;
const Table wide = expect_converted<wchar_t, wchar_t>;
const Bytes kSmile = "\xF0\x9F\x98\x80";

TEST(transcode, ConvertsUpToWhatItCannot) {
  narrow(transcode::GBK_to_UTF8, "a\xD6\xD0\0a"s, "a\xE4\xB8\xAD");
  narrow(transcode::GBK_to_UTF8, "a\xFF\x62", "a");
  narrow(transcode::GBK_to_UTF8, "a\xD6", "a");
  narrow(transcode::UTF8_to_GBK, "\xE4\xB8\xAD\xED\xA0\x80", "\xD6\xD0");
  narrow(transcode::UTF8_to_GBK, "ab" + kSmile + "c", "ab");
  narrow(transcode::UTF8_to_GBK, Bytes(2047, 'n'), Bytes(2047, 'n'));
  narrow(transcode::UTF8_to_GBK, Bytes(5000, 'n'), Bytes(5000, 'n'));
  widened(transcode::UTF8_to_Unicode, kSmile + "a", L"\x1F600\x61");
  widened(transcode::GBK_to_Unicode, "\xD6\xD0\xB9\xFA", L"\x4E2D\x56FD");
  widened(transcode::ANSI_to_Unicode, "\xE9\x80\x81", L"\xE9\x20AC");
  narrowed(transcode::Unicode_to_UTF8, L"\x1F600\xD800", kSmile);
  narrowed(transcode::Unicode_to_GBK, L"\x4E2D\x4E2D\x1F600",
           "\xD6\xD0\xD6\xD0");
  narrowed(transcode::Unicode_to_ANSI, L"a\x20AC\x4E2D", "a\x80");
  // Quirk: longer than the buffers for them.
  narrow(transcode::GBK_to_UTF8, "\x80", "");
  narrowed(transcode::Unicode_to_UTF8, Text(4, L'\x1F600'),
           kSmile + kSmile + kSmile);
}

TEST(transcode, TstringsAreGbkOrAnsiOrWide) {
  narrow(transcode::UTF8_to_tstring, "\xE4\xB8\xAD", "\xD6\xD0");
  narrow(transcode::tstring_to_UTF8, "\xD6\xD0", "\xE4\xB8\xAD");
  widened(transcode::UTF8_to_tstring, "\xC3\xA9", L"\xE9");
  widened(transcode::GBK_to_tstring, "\xD6\xD0", L"\x4E2D");
  widened(transcode::tstring_to_Unicode, "\xE9", L"\xE9");
  widened(transcode::ANSI_to_tstring, "\xE9", L"\xE9");
  narrowed(transcode::tstring_to_UTF8, L"\xE9", "\xC3\xA9");
  narrowed(transcode::tstring_to_GBK, L"\x4E2D", "\xD6\xD0");
  narrowed(transcode::Unicode_to_tstring, L"\xE9", "\xE9");
  narrowed(transcode::tstring_to_ANSI, L"\xE9", "\xE9");
  // Copies are whole.
  narrow(transcode::tstring_to_GBK, "a\0\xFF"s, "a\0\xFF"s);
  narrow(transcode::GBK_to_tstring, "a\0\xFF"s, "a\0\xFF"s);
  narrow(transcode::tstring_to_ANSI, "a\0\xFF"s, "a\0\xFF"s);
  narrow(transcode::ANSI_to_tstring, "a\0\xFF"s, "a\0\xFF"s);
  wide(transcode::tstring_to_Unicode, L"a\0\xD800"s, L"a\0\xD800"s);
  wide(transcode::Unicode_to_tstring, L"a\0\xD800"s, L"a\0\xD800"s);
}

TEST(transcode, ReadsNoNullTextAndItsOutput) {
  Bytes text = "\xE4\xB8\xAD\x61";
  transcode::UTF8_to_GBK(text.data(), 4, text);
  EXPECT_EQ(text, "\xD6\xD0\x61");
  transcode::UTF8_to_GBK(nullptr, 1, text);
  EXPECT_EQ(text, "");
}

TEST(utf8, HasTheCharactersUpTo10FFFF) {
  const Table row = [](const Text& text, const Bytes& want) {
    Bytes utf8 = "old";
    EXPECT_TRUE(qk::text::encode_utf8(text, utf8));
    EXPECT_EQ(utf8, want);
    Text decoded = L"old";
    EXPECT_TRUE(qk::text::decode_utf8(want, decoded));
    EXPECT_EQ(decoded, text);
  };
  row(L"\0\x7F\x80"s, "\0\x7F\xC2\x80"s);
  row(L"\x7FF\x800", "\xDF\xBF\xE0\xA0\x80");
  row(L"\xD7FF\xE000", "\xED\x9F\xBF\xEE\x80\x80");
  row(L"\xFFFF\x10000", "\xEF\xBF\xBF\xF0\x90\x80\x80");
  row(L"\x10FFFF\x10FFFF", "\xF4\x8F\xBF\xBF\xF4\x8F\xBF\xBF");
  for (const wchar_t bad : L"\xD800\xDFFF\x110000\x80000000\xFFFFFFFF"s) {
    Bytes utf8;
    EXPECT_FALSE(qk::text::encode_utf8(Text{L'a', bad}, utf8))
        << std::hex << bad;
    EXPECT_EQ(utf8, "a");
  }
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

TEST(iconv_conversion, AnUnknownCharacterSetConvertsNothing) {
  Bytes out = "old";
  EXPECT_FALSE(qk::text::convert("UTF-8", "no such set", "a", 1, 9, out));
  EXPECT_EQ(out, "");
}
