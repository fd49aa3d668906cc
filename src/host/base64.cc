#include <utility>

#include <korvane/korvane_host.h>
#include "text/base64_encoding.h"

void qk::crypto::base64::encode(const std::string& in, std::string& out) {
  std::string text(qk::text::base64_size(in.size()), '\0');
  qk::text::encode_base64(reinterpret_cast<const unsigned char*>(in.data()),
                          in.size(), text.data());
  out = std::move(text);
}
