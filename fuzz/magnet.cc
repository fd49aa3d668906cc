// Magnet links: the C function equals the class, and the fields of a link read
// back from a link that is made of them.
#include <korvane/bt_magnet_url_parser.h>

#include <cstring>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "fuzz.h"

static Text link_to(const bt_magnet_url_parser& link) {
  const Bytes& hash = link.get_info_hash();
  Text url = L"magnet:?xt.1=urn:btih:" +
             string_2_wstring(encode_base16(hash.data(), hash.size())) +
             L"&dn=" + url_object::encode_ex(link.get_display_name());
  for (const Text& tracker : link.get_trackers()) {
    url += L"&tr=" + url_object::encode_ex(tracker);
  }
  return url;
}

void check(Bytes& input) {
  const Text text = widen(input);
  bt_magnet_url_parser link(text);
  const bool is_link = link.parse_magnet_url();
  const ExactCopy<wchar_t> copy(text);
  unsigned char hash[MAGNET_HASH_SIZE] = {};
  require(parse_magnet_url_u(copy.data(), copy.size(), hash) ==
              (is_link ? 0 : URL_E_UNSUPPORTED),
          "the C function's result");
  if (!is_link) return;
  require(Bytes(hash, hash + MAGNET_HASH_SIZE) == link.get_info_hash(), "hash");
  const Text url = link_to(link);
  bt_magnet_url_parser again(url);
  require(again.parse_magnet_url(), "reads back");
  require(again.get_info_hash() == link.get_info_hash(), "the info hash");
  Text fields = link.get_display_name();
  for (const Text& tracker : link.get_trackers()) fields += tracker;
  if (fields.find(L'%') != Text::npos) return;  // and so decoded once more
  require(again.get_display_name() == link.get_display_name(), "the name");
  require(again.get_trackers() == link.get_trackers(), "the trackers");
}
