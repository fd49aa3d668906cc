#include <glib.h>
#include <openssl/crypto.h>

#include <libtorrent/add_torrent_params.hpp>
#include <libtorrent/magnet_uri.hpp>

#include "contest.h"
#include "peers.h"

bool peers::libtorrent_magnet(const std::string& link) {
  lt::error_code fault;
  bench::keep(lt::parse_magnet_uri(link, fault));
  return !fault;
}

bool peers::glib_ed2k(const std::string& link) {
  char** pieces = g_strsplit(link.c_str(), "|", -1);
  const bool whole = g_strv_length(pieces) >= 5;
  if (whole) {
    char* name = g_uri_unescape_string(pieces[2], nullptr);
    bench::keep(g_ascii_strtoull(pieces[3], nullptr, 10));
    unsigned char hash[16];
    std::size_t size = 0;
    OPENSSL_hexstr2buf_ex(hash, sizeof hash, &size, pieces[4], '\0');
    bench::keep(hash);
    g_free(name);
  }
  g_strfreev(pieces);
  return whole;
}
