// Links of every kind: the C functions equal the classes, and what is printed
// reads back.
#include <algorithm>
#include <memory>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/ed2k_file_link.h>
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "fuzz.h"

static void check_url(const Text& text, unsigned code_page) {
  url_object url;
  const bool is_url = url_object::parse_url(text, code_page, url);
  const Text printed = url.to_string();
  const ExactCopy copy(text);
  url_info_u info;
  const long code = parse_url_u(copy.data(), copy.size(), code_page, &info);
  require(is_url == (code != URL_E_PARSE), "the result for a URL");
  std::size_t size = printed.size();
  const std::unique_ptr<wchar_t[]> out(new wchar_t[size]);
  require(code != 0 || url_info_to_str_u(out.get(), &size, &info) == 0, "fits");
  require(code != 0 || Text(out.get(), size) == printed, "the URL");
  // "http://:80/" is printed without an authority, which is no URL, and an
  // escape is decoded once more.
  if (!is_url || url.port == 0 || printed[url.schema.size()] == L'/') return;
  if ((url.user + url.password).find(L'%') != Text::npos) return;
  require(url_object::parse_url(printed, code_page, url) &&
              url.to_string() == printed,
          "a URL reads back");
}

static void check_file_name(Text text, unsigned code_page) {
  const Text name = url_object::file_name_for(text, code_page);
  require(name.find_first_of(L"\\/:*?\"<>|\t\r\n") == Text::npos,
          "a name has what a file's name may");
  const ExactCopy copy(text);
  // A file name is the last segment before the query.
  text.resize(std::min(text.size(), text.find(L'?')));
  const std::size_t separator = text.find_last_of(L"\\/");
  if (separator != Text::npos) text.erase(0, separator + 1);
  const Text want = url_object::file_name_for(text, code_page);
  std::size_t size = want.size();
  const std::unique_ptr<wchar_t[]> out(new wchar_t[size]);
  parse_filename_u(out.get(), &size, copy.data(), copy.size(), code_page);
  require(Text(out.get(), size) == want, "the file name");
}

static void check_ed2k(const Text& text) {
  ed2k_file_link link(L"-", 0, {});
  const bool is_link = link.create_from_ed2k_url(text);
  const ExactCopy copy(text);
  ed2k_url_info_u info;
  const long code = parse_ed2k_url_u(copy.data(), copy.size(), &info);
  require(code == (is_link ? 0 : URL_E_UNSUPPORTED), "the result for ed2k");
  if (!is_link) return;
  require(link.get_file_name().rfind(info.name, 0) == 0, "the name");
  require(info.size == static_cast<double>(link.get_file_size()), "the size");
  const auto& hash = link.get_file_hash().octets;
  require(std::equal(hash.begin(), hash.end(), info.hash), "the hash");
  // What reads back: no escape, which is decoded once more, no address that
  // looks like another field, and part hashes if there are any.
  if (link.get_file_name().find(L'%') != Text::npos) return;
  if (link.get_http_url().find(L'=') != Text::npos) link.set_http_url(L"u");
  const unsigned long flags = link.get_part_hash().empty() ? 13 : 15;
  Text printed;
  link.get_ed2k_url(printed, flags);
  ed2k_file_link again(L"", 0, {});
  require(again.create_from_ed2k_url(printed), "an ed2k link reads back");
  Text twice;
  again.get_ed2k_url(twice, flags);
  require(twice == printed, "all that is printed reads back");
}

static void check_magnet(const Text& text) {
  bt_magnet_url_parser link(text);
  const bool is_link = link.parse_magnet_url();
  const ExactCopy copy(text);
  unsigned char hash[MAGNET_HASH_SIZE];
  const long code = parse_magnet_url_u(copy.data(), copy.size(), hash);
  require(code == (is_link ? 0 : URL_E_UNSUPPORTED), "the result for a magnet");
  require(
      !is_link || Bytes(hash, hash + MAGNET_HASH_SIZE) == link.get_info_hash(),
      "the info hash");
}

// A digit in front chooses the code page.
void check(const Bytes& input) {
  constexpr unsigned kCodePages[] = {0, 65001, 936, 1252, ~0U, 950, 1, 1258};
  const bool has_choice = !input.empty() && input[0] >= '0' && input[0] < '8';
  const unsigned code_page = kCodePages[has_choice ? input[0] - '0' : 0];
  const Text text = widen(input.substr(has_choice ? 1 : 0));
  check_url(text, code_page);
  check_file_name(text, code_page);
  check_ed2k(text);
  check_magnet(text);
}
