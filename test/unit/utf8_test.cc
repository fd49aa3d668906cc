#include "text/utf8.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "exact_copy.h"
#include "rows.h"
#include "text/iconv_conversion.h"

namespace {

using qk::text::convert;
using qk::text::decode_utf8;
using qk::text::encode_utf8;

// Decodes with the coder and with iconv, which must agree up to U+10FFFF;
// there our text ends, while iconv goes on.
void expect_same_decoding(const std::string& bytes) {
  const ExactCopy<char> copy{std::string_view(bytes)};
  std::wstring ours = L"old";
  std::wstring theirs;
  const bool whole = decode_utf8({copy.data(), copy.size()}, ours);
  bool their_whole = convert("WCHAR_T", "UTF-8", copy.data(), copy.size(),
                             bytes.size() + 1, theirs);
  for (std::size_t i = 0; i < theirs.size(); ++i) {
    if (static_cast<std::uint32_t>(theirs[i]) <= 0x10FFFF) continue;
    theirs.resize(i);
    their_whole = false;
  }
  ASSERT_EQ(ours, theirs) << testing::PrintToString(bytes);
  ASSERT_EQ(whole, their_whole) << testing::PrintToString(bytes);
}

TEST(Utf8, DecodesShortTextsAsIconvDoes) {
  // Bytes at every boundary of the coding, in all combinations of up to four.
  const std::string kBytes =
      "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xED\xEF\xF0\xF1"
      "\xF4\xF5\xF8\xFF";
  for (const char first : kBytes) {
    expect_same_decoding({first});
    for (const char second : kBytes) {
      expect_same_decoding({first, second});
      for (const char third : kBytes) {
        expect_same_decoding({first, second, third});
        if (static_cast<unsigned char>(first) < 0xE0) continue;
        for (const char fourth : kBytes) {
          expect_same_decoding({first, second, third, fourth});
          expect_same_decoding({'b', first, second, third, fourth});
        }
      }
    }
  }
}

TEST(Utf8, EncodesCharactersOnly) {
  for (const Row& row : rows_of("utf8")) {
    const std::wstring text = L'a' + row[0] + L'b';
    const ExactCopy<wchar_t> copy{std::wstring_view(text)};
    std::string utf8 = "old";
    const bool is_character = row[1] != L"none";
    EXPECT_EQ(encode_utf8({copy.data(), copy.size()}, utf8), is_character);
    EXPECT_EQ(utf8, is_character ? "a" + bytes(row[1]) + "b" : "a")
        << testing::PrintToString(text);
  }
}

TEST(Utf8, KeepsZeroUnits) {
  std::wstring wide;
  EXPECT_TRUE(decode_utf8({"a\0b", 3}, wide));
  EXPECT_EQ(wide, std::wstring(L"a\0b", 3));
  std::string utf8;
  EXPECT_TRUE(encode_utf8(wide, utf8));
  EXPECT_EQ(utf8, std::string("a\0b", 3));
}

}  // namespace
