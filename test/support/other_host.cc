// A host's own text library: its base64 says who encoded.
#include <korvane/korvane_host.h>

void qk::crypto::base64::encode(const std::string& in, std::string& out) {
  out = "by the other host: " + in;
}
