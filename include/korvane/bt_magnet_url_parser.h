// The info hash, the name and the trackers of a magnet link.
#ifndef KORVANE_BT_MAGNET_URL_PARSER_H_
#define KORVANE_BT_MAGNET_URL_PARSER_H_

#include <korvane/needs_cpp17.h>

#include <string>
#include <vector>

class bt_magnet_url_parser {
 public:
  explicit bt_magnet_url_parser(std::wstring url);

  // Reads the link into the other fields; returns whether it has an info hash.
  // On false they hold what was read before the fault.
  //
  // Kept: callers rely on all of these.
  // - One "xt" that is no "urn:btih:" with 32 or 40 characters fails the link;
  //   keys that are not known are skipped.
  // - A bad character within the hash only ends it: base32 leaves the bytes of
  //   its group as they were, base16 zeros.
  // - Base32 is read in upper case alone.
  bool parse_magnet_url();

  // Replaces `out` with the parts of `text` between separators. Empty text has
  // none; a separator at the end is not followed by an empty one.
  static void divide_string(const std::wstring& text, wchar_t separator,
                            std::vector<std::wstring>& out);

  const std::wstring& get_url() const { return url_; }
  // 20 bytes once an info hash was read, none before.
  const std::string& get_info_hash() const { return info_hash_; }
  // Each escape is one code point: those of UTF-8 are not joined.
  const std::wstring& get_display_name() const { return display_name_; }
  // In the order of the link, duplicates included.
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
