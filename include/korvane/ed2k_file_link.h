// One ed2k file link: read from its text and printed back.
#ifndef KORVANE_ED2K_FILE_LINK_H_
#define KORVANE_ED2K_FILE_LINK_H_

#include <korvane/needs_cpp17.h>

#include <cstdint>
#include <list>
#include <string>

#include <korvane/uintx.h>

class ed2k_file_link {
 public:
  using file_hash = uintx<128, 16>;
  using root_hash = uintx<160, 20>;

  // A peer that has the file.
  struct source {
    std::string host;  // as the link writes it: an address or a name
    std::uint16_t port = 0;
  };

  // The fields that get_ed2k_url prints besides name, size and file hash.
  enum : unsigned long {
    kPrintRootHash = 1,
    kPrintPartHashes = 2,
    kPrintHttpUrl = 4,
    kPrintSources = 8,
  };

  ed2k_file_link(const std::wstring& name, unsigned long size,
                 const file_hash& hash);

  void set_file_name(const std::wstring& name) { file_name_ = name; }
  const std::wstring& get_file_name() const { return file_name_; }

  // In bytes.
  void set_file_size(const unsigned long& size) { file_size_ = size; }
  unsigned long get_file_size() const { return file_size_; }

  void set_file_hash(const file_hash& hash) { file_hash_ = hash; }
  const file_hash& get_file_hash() const { return file_hash_; }

  // In the order of the file's parts; their number is not checked.
  void set_part_hash(const std::list<file_hash>& hashes) {
    part_hashes_ = hashes;
  }
  const std::list<file_hash>& get_part_hash() const { return part_hashes_; }

  // All zero when the link has none.
  void set_root_hash(const root_hash& hash) { root_hash_ = hash; }
  const root_hash& get_root_hash() const { return root_hash_; }

  // Adds at the end, unchecked: empty hosts and duplicates included.
  void add_source(const std::string& host, std::uint16_t port);
  const std::list<source>& get_source_list() const { return sources_; }

  // A web address of the same file; empty when the link has none.
  void set_http_url(const std::wstring& url) { http_url_ = url; }
  const std::wstring& get_http_url() const { return http_url_; }

  // Reads a link; returns whether `url` is one. On false the members hold what
  // was read before the fault. Lists are added to; other members are replaced
  // by what the link has.
  //
  // Kept: callers rely on all of these.
  // - Of the size, the low 32 bits are read and the high ones stay as they
  // were.
  // - A name that needs decoding is cleaned of < > : " / \ | ? *, others not.
  // - Optional fields are told by their key anywhere in them, "h=" before "p="
  //   before "s=" before "sources,".
  bool create_from_ed2k_url(const std::wstring& url);

  // Replace `out` with the link, in UTF-8 or wide; `flags` adds optional
  // fields, filled or not. Nothing is escaped: a "|" or "%" in the name does
  // not read back. Always true.
  bool get_ed2k_url(std::string& out, unsigned long flags) const;
  bool get_ed2k_url(std::wstring& out, unsigned long flags) const;

  // Replace every `from` in `text` by `to`, from left to right; what was put in
  // is not searched. An empty `from` stands before every unit and at the end;
  // with an empty `to` as well nothing changes.
  static void string_replace(std::string& text, const std::string& from,
                             const std::string& to);
  static void string_replace(std::wstring& text, const std::wstring& from,
                             const std::wstring& to);

 private:
  std::wstring file_name_;
  unsigned long file_size_;
  file_hash file_hash_;
  [[maybe_unused]] unsigned char spare_ = 0;  // holds its place, no more
  root_hash root_hash_;
  std::list<file_hash> part_hashes_;
  std::list<source> sources_;
  std::wstring http_url_;
};

// The two upper-case digits of a byte.
std::string char2hex(unsigned char byte);

// Escapes the bytes from 0x80 on as "%" and two digits; "%" itself, blanks and
// "|" stay.
std::string utf8_2_hexstr(const std::string& utf8);

#endif  // KORVANE_ED2K_FILE_LINK_H_
