#include <korvane/transcode.h>

#include "table.h"
#include "text/iconv_conversion.h"

namespace {

using qk::text::transcode;

template <typename In, typename Out>
using Function = void (*)(const In*, unsigned, std::basic_string<Out>&);

// Calls a function on exactly the text, over a string that holds another.
template <typename In, typename Out>
std::basic_string<Out> run(Function<In, Out> function,
                           const std::basic_string<In>& text) {
  const ExactCopy<In> copy(text);
  std::basic_string<Out> out(3, Out('!'));
  function(copy.data(), static_cast<unsigned>(copy.size()), out);
  return out;
}

constexpr char kSmile[] = "\xF0\x9F\x98\x80";

TEST(transcode, NarrowToNarrow) {
  const Table row = [](Function<char, char> function, const Bytes& text,
                       const Bytes& want) {
    EXPECT_EQ(run(function, text), want);
  };
  row(transcode::GBK_to_UTF8, "", "");
  row(transcode::GBK_to_UTF8, "a\xD6\xD0", "a\xE4\xB8\xAD");
  row(transcode::GBK_to_UTF8, "a\0b"s, "a");
  row(transcode::GBK_to_UTF8, "a\xFF\x62", "a");
  row(transcode::GBK_to_UTF8, "a\xD6", "a");
  // The sign of the euro is longer than the buffer for it.
  row(transcode::GBK_to_UTF8, "\x80", "");
  row(transcode::UTF8_to_GBK, "\xE4\xB8\xAD\x61", "\xD6\xD0\x61");
  row(transcode::UTF8_to_GBK, "a\xED\xA0\x80", "a");
  row(transcode::UTF8_to_GBK, "ab"s + kSmile + "c", "ab");
  row(transcode::UTF8_to_tstring, "\xE4\xB8\xAD", "\xD6\xD0");
  row(transcode::tstring_to_UTF8, "\xD6\xD0", "\xE4\xB8\xAD");
  row(transcode::tstring_to_GBK, "a\0\xFF"s, "a\0\xFF"s);
  row(transcode::GBK_to_tstring, "a\0\xFF"s, "a\0\xFF"s);
  row(transcode::tstring_to_ANSI, "a\0\xFF"s, "a\0\xFF"s);
  row(transcode::ANSI_to_tstring, "a\0\xFF"s, "a\0\xFF"s);
}

TEST(transcode, NarrowToWide) {
  const Table row = [](Function<char, wchar_t> function, const Bytes& text,
                       const Text& want) {
    EXPECT_EQ(run(function, text), want);
  };
  row(transcode::UTF8_to_Unicode, kSmile + "a"s, L"\x1F600\x61");
  row(transcode::GBK_to_Unicode, "\xD6\xD0\xB9\xFA", L"\x4E2D\x56FD");
  row(transcode::ANSI_to_Unicode, "caf\xE9\x80", L"caf\xE9\x20AC");
  row(transcode::ANSI_to_Unicode, "a\x81\x62", L"a");
  row(transcode::UTF8_to_tstring, "\xC3\xA9", L"\xE9");
  row(transcode::GBK_to_tstring, "\xD6\xD0", L"\x4E2D");
  row(transcode::tstring_to_Unicode, "\xE9", L"\xE9");
  row(transcode::ANSI_to_tstring, "\xE9", L"\xE9");
}

TEST(transcode, WideToNarrow) {
  const Table row = [](Function<wchar_t, char> function, const Text& text,
                       const Bytes& want) {
    EXPECT_EQ(run(function, text), want);
  };
  row(transcode::Unicode_to_UTF8, L"\x1F600", kSmile);
  // Three bytes for each and one: four smiles do not fit.
  row(transcode::Unicode_to_UTF8, Text(4, L'\x1F600'),
      Bytes(kSmile) + kSmile + kSmile);
  row(transcode::Unicode_to_UTF8, L"a\xD800\x62", "a");
  row(transcode::Unicode_to_GBK, L"\x4E2D\x4E2D\x1F600", "\xD6\xD0\xD6\xD0");
  row(transcode::Unicode_to_ANSI, L"a\x20AC\x4E2D", "a\x80");
  row(transcode::tstring_to_UTF8, L"\xE9", "\xC3\xA9");
  row(transcode::tstring_to_GBK, L"\x4E2D", "\xD6\xD0");
  row(transcode::Unicode_to_tstring, L"\xE9", "\xE9");
  row(transcode::tstring_to_ANSI, L"\xE9", "\xE9");
}

TEST(transcode, WideToWideCopies) {
  const Text text = {L'a', L'\0', L'\xD800', L'\xFFFFFFFF'};
  EXPECT_EQ((run<wchar_t, wchar_t>(transcode::tstring_to_Unicode, text)), text);
  EXPECT_EQ((run<wchar_t, wchar_t>(transcode::Unicode_to_tstring, text)), text);
}

TEST(transcode, ReadsNoNullTextAndFromItsOutput) {
  Bytes text = "\xE4\xB8\xAD\x61";
  transcode::UTF8_to_GBK(text.data(), 4, text);
  EXPECT_EQ(text, "\xD6\xD0\x61");
  transcode::UTF8_to_GBK(nullptr, 1, text);
  EXPECT_EQ(text, "");
}

TEST(transcode, ConvertsLongTexts) {
  const Bytes text(5000, 'n');
  EXPECT_EQ((run<char, char>(transcode::UTF8_to_GBK, text)), text);
}

TEST(iconv_conversion, AnUnknownCharacterSetConvertsNothing) {
  Bytes out = "old";
  EXPECT_FALSE(qk::text::convert("UTF-8", "no such set", "a", 1, 9, out));
  EXPECT_EQ(out, "");
}

}  // namespace
