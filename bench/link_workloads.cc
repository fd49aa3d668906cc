#include <openssl/crypto.h>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/korvane_links.h>
#include "peers/peers.h"
#include "readers.h"
#include "workloads.h"

namespace bench {
namespace {

bool parse_magnet(const Text& text) {
  unsigned char hash[MAGNET_HASH_SIZE];
  const long code =
      parse_magnet_url_u(text.wide.data(), text.wide.size(), hash);
  keep(hash);
  return code == 0;
}

bool parse_magnet_fields(const Text& text) {
  bt_magnet_url_parser parser(text.wide);
  const bool parsed = parser.parse_magnet_url();
  keep(parser);
  return parsed;
}

bool parse_ed2k(const Text& text) {
  static ed2k_url_info_u info;
  const long code = parse_ed2k_url_u(text.wide.data(), text.wide.size(), &info);
  keep(info);
  return code == 0;
}

bool libtorrent(const Text& text) {
  return peers::libtorrent_magnet(text.narrow);
}

bool glib(const Text& text) { return peers::glib_ed2k(text.narrow); }

}  // namespace

std::vector<Reader> magnet_readers() {
  return {{"parse_magnet_url_u", parse_magnet},
          {"libtorrent", libtorrent, 0.15}};
}

std::vector<Reader> magnet_class_readers() {
  return {{"bt_magnet_url_parser", parse_magnet_fields},
          {"libtorrent", libtorrent, 0.45}};
}

std::vector<Reader> ed2k_readers() {
  return {{"parse_ed2k_url_u", parse_ed2k}, {"GLib and OpenSSL", glib, 0.55}};
}

void run_links(const Table& table) {
  const Texts magnets = magnet_links();
  compare_readers(table, "parse_magnet_url_u", magnets, magnet_readers());
  compare_readers(table, "bt_magnet_url_parser", magnets,
                  magnet_class_readers());
  compare_readers(table, "parse_ed2k_url_u", ed2k_links(), ed2k_readers());
}

}  // namespace bench
