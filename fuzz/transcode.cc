// The transcoders and the host's conversions, there and back.
#include <korvane/transcode.h>

#include <korvane/korvane_host.h>
#include "fuzz.h"
#include "text/utf8.h"

using qk::text::transcode;

template <typename In, typename Out>
static std::basic_string<Out> run(void (*convert)(const In*, unsigned,
                                                  std::basic_string<Out>&),
                                  const std::basic_string<In>& text) {
  const ExactCopy<In> copy(text);
  std::basic_string<Out> out(3, Out('x'));
  convert(copy.data(), static_cast<unsigned>(copy.size()), out);
  return out;
}

template <typename Unit>
static bool begins(const std::basic_string<Unit>& text,
                   const std::basic_string<Unit>& prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

static void check_utf8(const Bytes& bytes, const Text& text) {
  Bytes utf8;
  Text wide;
  const bool is_text = qk::text::encode_utf8(text, utf8);
  require(qk::text::decode_utf8(utf8, wide), "what was encoded is UTF-8");
  require(is_text ? wide == text : begins(text, wide), "encoded and decoded");
  const bool is_utf8 = qk::text::decode_utf8(bytes, wide);
  require(qk::text::encode_utf8(wide, utf8), "what was decoded is characters");
  require(is_utf8 ? utf8 == bytes : begins(bytes, utf8), "decoded and encoded");
}

void check(Bytes& input) {
  choose(input, {0, 1});
  const Text text = widen(input);
  check_utf8(input, text);
  const Text gbk = run(transcode::GBK_to_Unicode, input);
  require(begins(input, run(transcode::Unicode_to_GBK, gbk)), "GBK and back");
  const Text ansi = run(transcode::ANSI_to_Unicode, input);
  require(begins(input, run(transcode::Unicode_to_ANSI, ansi)),
          "ANSI and back");
  const Text utf8 = run(transcode::UTF8_to_Unicode, input);
  require(begins(input, run(transcode::Unicode_to_UTF8, utf8)),
          "UTF-8 and back");
  require(run(transcode::UTF8_to_GBK, input) ==
              run(transcode::Unicode_to_GBK, utf8),
          "UTF-8 to GBK");
  require(begins(wstring_2_utf8(gbk), run(transcode::GBK_to_UTF8, input)),
          "GBK to UTF-8");
  const Text usual = string_2_wstring(input);
  for (const int code_page : {0, 936, 950, 1258}) {
    const Text read = string_to_wstring_with_code_page(input, code_page);
    Bytes back;
    require(qk::text::encode_utf8(read, back), "characters alone");
    require(read.size() <= input.size() && read.empty() == usual.empty(),
            "a character for some bytes");
  }
}
