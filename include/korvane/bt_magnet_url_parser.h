// Reads magnet links of BitTorrent downloads.
#ifndef KORVANE_BT_MAGNET_URL_PARSER_H_
#define KORVANE_BT_MAGNET_URL_PARSER_H_

#include <korvane/needs_cpp17.h>

#include <string>
#include <vector>

class bt_magnet_url_parser {
 public:
  explicit bt_magnet_url_parser(std::wstring url);

  // Parses the link. Returns true if it has a valid info hash. On false, the
  // getters return what was read before the error.
  //
  // Parameters: "xt" (info hash), "dn" (name) and "tr" (tracker), also numbered
  // as in "tr.1"; others are ignored. Keys are case-sensitive. Every "xt" must
  // be "urn:btih:" with 40 base16 digits, or 32 base32 digits in upper case.
  //
  // Quirk: an invalid digit in a hash of the right length is no error. The rest
  // of the hash is zero in base16, unchanged in base32.
  bool parse_magnet_url();

  // Replaces `out` with the parts of `text` between separators, empty ones
  // included. Empty text has no part, and none follows a separator at the end:
  // "a&&b&" has the parts "a", "" and "b".
  static void divide_string(const std::wstring& text, wchar_t separator,
                            std::vector<std::wstring>& out);

  const std::wstring& get_url() const { return url_; }
  // 20 bytes; empty before an info hash was read.
  const std::string& get_info_hash() const { return info_hash_; }
  // Percent-decoded. Quirk: an escape is one code point, so "%C3%A9" is two
  // characters.
  const std::wstring& get_display_name() const { return display_name_; }
  // Percent-decoded, in the order of the link, duplicates included.
  const std::vector<std::wstring>& get_trackers() const { return trackers_; }
  bool has_info_hash() const { return has_info_hash_; }

 private:
  std::wstring url_;
  std::string info_hash_;
  std::wstring display_name_;
  std::vector<std::wstring> trackers_;
  bool has_info_hash_ = false;
};

#endif  // KORVANE_BT_MAGNET_URL_PARSER_H_
