// An ed2k link to a file: "ed2k://|file|NAME|SIZE|HASH|...|/".
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
    std::string host;  // an address or a name, as in the link
    std::uint16_t port = 0;
  };

  // Optional fields for get_ed2k_url.
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

  // In the order of the file's parts. Their number is not checked against the
  // file's size.
  void set_part_hash(const std::list<file_hash>& hashes) {
    part_hashes_ = hashes;
  }
  const std::list<file_hash>& get_part_hash() const { return part_hashes_; }

  // All zero if the link has none.
  void set_root_hash(const root_hash& hash) { root_hash_ = hash; }
  const root_hash& get_root_hash() const { return root_hash_; }

  // Appends without a check: the host may be empty or a duplicate.
  void add_source(const std::string& host, std::uint16_t port);
  const std::list<source>& get_source_list() const { return sources_; }

  // A web address of the same file; empty if the link has none.
  void set_http_url(const std::wstring& url) { http_url_ = url; }
  const std::wstring& get_http_url() const { return http_url_; }

  // Parses `url` into this object; returns whether it is valid. On false, the
  // object holds what was read before the error. Part hashes and sources are
  // appended to those that the object has; other members are replaced if the
  // link has them.
  //
  // Quirks:
  // - Only the low 32 bits of the size are read; the high ones are not changed.
  // - "< > : \" / \ | ? *" become "_" in an ASCII name with a "%"; they stay in
  //   others.
  // - The key of an optional field counts anywhere in the field, in the order
  //   "h=", "p=", "s=", "sources,".
  bool create_from_ed2k_url(const std::wstring& url);

  // Replace `out` with the link, as UTF-8 or wide. `flags` selects the optional
  // fields; a selected field is printed even if it is empty. Names are not
  // escaped: a link with "|" or "%" in its name may not read back. Return true.
  bool get_ed2k_url(std::string& out, unsigned long flags) const;
  bool get_ed2k_url(std::wstring& out, unsigned long flags) const;

  // Replace every `from` in `text` with `to`, from left to right; inserted text
  // is not searched again. An empty `from` inserts `to` before each character
  // and at the end.
  static void string_replace(std::string& text, const std::string& from,
                             const std::string& to);
  static void string_replace(std::wstring& text, const std::wstring& from,
                             const std::wstring& to);

 private:
  std::wstring file_name_;
  unsigned long file_size_;
  file_hash file_hash_;
  [[maybe_unused]] unsigned char spare_ = 0;
  root_hash root_hash_;
  std::list<file_hash> part_hashes_;
  std::list<source> sources_;
  std::wstring http_url_;
};

// Two upper-case hexadecimal digits: "E4".
std::string char2hex(unsigned char byte);

// Percent-encodes the bytes from 0x80 on; all others, "%" included, stay.
std::string utf8_2_hexstr(const std::string& utf8);

#endif  // KORVANE_ED2K_FILE_LINK_H_
