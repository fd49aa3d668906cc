#include <korvane/ed2k_file_link.h>

#include <cstddef>
#include <utility>

#include <korvane/encoders.h>
#include <korvane/korvane_host.h>
#include "text/hex_digits.h"

namespace {

template <typename Char>
using String = std::basic_string<Char>;

void append(std::string& text, const std::wstring& wide) {
  text += wstring_2_utf8(wide);
}
void append(std::wstring& text, const std::wstring& wide) { text += wide; }

void append_host(std::string& text, const std::string& host) { text += host; }
void append_host(std::wstring& text, const std::string& host) {
  text += string_2_wstring(host);
}

std::string digits_of(const ed2k_file_link::file_hash& hash) {
  return encode_base16(hash.octets.data(), hash.octets.size());
}

std::string part_digits_of(const ed2k_file_link& link) {
  std::string text;
  for (const ed2k_file_link::file_hash& hash : link.get_part_hash()) {
    if (!text.empty()) text += ':';
    text += digits_of(hash);
  }
  return text;
}

template <typename Char>
void print(const ed2k_file_link& link, unsigned long flags,
           String<Char>& text) {
  const auto append_ascii = [&text](const std::string& ascii) {
    text.append(ascii.begin(), ascii.end());
  };
  const auto& root = link.get_root_hash().octets;
  text.clear();
  append_ascii("ed2k://|file|");
  append(text, link.get_file_name());
  append_ascii("|" + std::to_string(link.get_file_size()) + "|" +
               digits_of(link.get_file_hash()) + "|");
  if ((flags & ed2k_file_link::kPrintRootHash) != 0) {
    append_ascii("h=" + encode_base32(root.data(), root.size()) + "|");
  }
  if ((flags & ed2k_file_link::kPrintPartHashes) != 0) {
    append_ascii("p=" + part_digits_of(link) + "|");
  }
  if ((flags & ed2k_file_link::kPrintHttpUrl) != 0) {
    append_ascii("s=");
    append(text, link.get_http_url());
    append_ascii("|");
  }
  if ((flags & ed2k_file_link::kPrintSources) != 0) {
    append_ascii("/|sources");
    for (const ed2k_file_link::source& source : link.get_source_list()) {
      append_ascii(",");
      append_host(text, source.host);
      append_ascii(":" + std::to_string(source.port));
    }
    append_ascii("|");
  }
  append_ascii("/");
}

// Builds a new text: many replacements in place would take quadratic time.
template <typename Char>
void replace_all(String<Char>& text, const String<Char>& from,
                 const String<Char>& to) {
  String<Char> result;
  std::size_t copied = 0;
  std::size_t found = text.find(from);
  while (found != String<Char>::npos) {
    result.append(text, copied, found - copied).append(to);
    copied = found + from.size();
    found = text.find(from, from.empty() ? found + 1 : copied);
  }
  result.append(text, copied);
  text = std::move(result);
}

}  // namespace

ed2k_file_link::ed2k_file_link(const std::wstring& name, unsigned long size,
                               const file_hash& hash)
    : file_name_(name), file_size_(size), file_hash_(hash) {}

void ed2k_file_link::add_source(const std::string& host, std::uint16_t port) {
  sources_.push_back({host, port});
}

bool ed2k_file_link::get_ed2k_url(std::string& out, unsigned long flags) const {
  print(*this, flags, out);
  return true;
}

bool ed2k_file_link::get_ed2k_url(std::wstring& out,
                                  unsigned long flags) const {
  print(*this, flags, out);
  return true;
}

void ed2k_file_link::string_replace(std::string& text, const std::string& from,
                                    const std::string& to) {
  replace_all(text, from, to);
}

void ed2k_file_link::string_replace(std::wstring& text,
                                    const std::wstring& from,
                                    const std::wstring& to) {
  replace_all(text, from, to);
}

std::string char2hex(unsigned char byte) {
  return {qk::text::kUpperHexDigits[byte >> 4U],
          qk::text::kUpperHexDigits[byte & 15U]};
}

std::string utf8_2_hexstr(const std::string& utf8) {
  std::string text;
  for (const char unit : utf8) {
    const auto byte = static_cast<unsigned char>(unit);
    text += byte < 0x80 ? std::string(1, unit) : '%' + char2hex(byte);
  }
  return text;
}
