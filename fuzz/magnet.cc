// Magnet links: the C function equals the class.
#include <korvane/bt_magnet_url_parser.h>
#include <korvane/korvane_links.h>

#include "fuzz.h"

void check(Bytes& input) {
  const Text text = widen(input);
  bt_magnet_url_parser link(text);
  const bool is_link = link.parse_magnet_url();
  const ExactCopy copy(text);
  Bytes hash(MAGNET_HASH_SIZE, '\0');
  require(parse_magnet_url_u(copy.data(), copy.size(),
                             reinterpret_cast<unsigned char*>(hash.data())) ==
              (is_link ? 0 : URL_E_UNSUPPORTED),
          "the C function's result");
  require(!is_link || hash == link.get_info_hash(), "the C function's hash");
}
