#include <cstddef>
#include <utility>

#include <korvane/korvane_host.h>

namespace {

constexpr char kAlphabet[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

unsigned octet(const std::string& bytes, std::size_t index) {
  return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0;
}

}  // namespace

void qk::crypto::base64::encode(const std::string& in, std::string& out) {
  std::string text((in.size() + 2) / 3 * 4, '=');
  std::size_t written = 0;
  for (std::size_t i = 0; i < in.size(); i += 3) {
    const unsigned group =
        octet(in, i) << 16 | octet(in, i + 1) << 8 | octet(in, i + 2);
    text[written++] = kAlphabet[group >> 18];
    text[written++] = kAlphabet[group >> 12 & 63];
    if (i + 1 < in.size()) text[written++] = kAlphabet[group >> 6 & 63];
    if (i + 2 < in.size()) text[written++] = kAlphabet[group & 63];
  }
  out = std::move(text);
}
