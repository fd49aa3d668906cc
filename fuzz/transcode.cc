// The transcoders and the host's conversions, there and back.
#include <korvane/korvane_host.h>
#include <korvane/transcode.h>

#include "fuzz.h"
#include "text/utf8.h"

using qk::text::transcode;

// What comes back is the input up to a byte that could not be converted.
static void check_round_trip(void (*widen)(const char*, unsigned, Text&),
                             void (*narrow)(const wchar_t*, unsigned, Bytes&),
                             const Bytes& input) {
  const ExactCopy copy(input);
  Text wide;
  widen(copy.data(), copy.size(), wide);
  const ExactCopy wide_copy(wide);
  Bytes back;
  narrow(wide_copy.data(), wide_copy.size(), back);
  require(input.compare(0, back.size(), back) == 0, "there and back");
}

void check(Bytes& input) {
  check_round_trip(transcode::GBK_to_Unicode, transcode::Unicode_to_GBK, input);
  check_round_trip(transcode::ANSI_to_Unicode, transcode::Unicode_to_ANSI,
                   input);
  check_round_trip(transcode::UTF8_to_Unicode, transcode::Unicode_to_UTF8,
                   input);
  Bytes utf8;
  for (const int code_page : {0, 936, 950, 1258}) {
    const Text read = string_to_wstring_with_code_page(input, code_page);
    require(qk::text::encode_utf8(read, utf8), "characters alone");
    require(read.size() <= input.size(), "a character for some bytes");
  }
}
