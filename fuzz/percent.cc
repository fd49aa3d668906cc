// Percent-coding: the decoders agree, and undo what the encoders do.
#include <korvane/encoders.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>

#include "fuzz.h"

void check(Bytes& input) {
  const ExactCopy copy(input);
  Bytes decoded;
  decode_url(copy.data(), copy.size(), decoded);
  require(url_object::decode(input) == decoded, "the decoders agree");
  const int size = static_cast<int>(input.size());
  for (const Bytes& text : {xstringutil::EscapeString(copy.data(), size),
                            xstringutil::EscapePath(copy.data(), size)}) {
    require(xstringutil::UnescapeString(text) == input, "escaped and back");
    require(url_object::decode(text) == input, "escaped and decoded");
  }
  const Text text = widen(input);
  const Text encoded = url_object::encode_ex(text);
  require(url_object::encode_ex(encoded) == encoded, "escapes stay");
  require(url_object::decode_ex(encoded) == url_object::decode_ex(text),
          "encoded and decoded");
}
