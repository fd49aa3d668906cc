// Percent-coding: the decoders agree, and undo what the encoders do.
#include <algorithm>

#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>
#include "fuzz.h"

static void check_bytes(const Bytes& bytes) {
  const Bytes decoded = url_object::decode(bytes);
  const ExactCopy<char> copy(bytes);
  Bytes out = "old";
  decode_url(copy.data(), copy.size(), out);
  require(out == decoded && url_object::decode_ex(bytes) == decoded, "narrow");
  require(url_object::decode(utf8_2_hexstr(bytes)) == decoded, "hexstr");
  const int size = static_cast<int>(bytes.size());
  for (const Bytes& text : {xstringutil::EscapeString(copy.data(), size),
                            xstringutil::EscapePath(copy.data(), size)}) {
    require(xstringutil::UnescapeString(text) == bytes, "escaped and back");
    require(url_object::decode(text) == bytes, "escaped and decoded");
  }
}

void check(Bytes& input) {
  const int code_page = choose(input, {0, 65001, 936, 1252, -1, 950});
  check_bytes(input);
  const Text text = widen(input);
  const Text encoded = url_object::encode_ex(text);
  require(url_object::encode_ex(encoded) == encoded, "escapes stay");
  require(url_object::decode_ex(encoded) == url_object::decode_ex(text),
          "encoded and decoded");
  const bool is_ascii = std::all_of(text.begin(), text.end(), [](auto unit) {
    return unit >= 0 && unit < 128;
  });
  const Bytes bytes = url_object::decode(Bytes(input.c_str()));
  const Text want = string_to_wstring_with_code_page(bytes, code_page);
  require(url_object::decode_ex(text, static_cast<unsigned>(code_page)) ==
              (is_ascii ? want : text),
          "decode_ex with a code page");
}
