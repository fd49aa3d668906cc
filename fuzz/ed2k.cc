// ed2k links: the C function equals the class, and what is printed reads back.
#include <korvane/ed2k_file_link.h>
#include <korvane/korvane_links.h>

#include <algorithm>
#include <memory>

#include "fuzz.h"

void check(Bytes& input) {
  const Text text = widen(input);
  ed2k_file_link link(L"-", 0, {});
  const bool is_link = link.create_from_ed2k_url(text);
  const ExactCopy copy(text);
  const auto info = std::make_unique<ed2k_url_info_u>();
  require(parse_ed2k_url_u(copy.data(), copy.size(), info.get()) ==
              (is_link ? 0 : URL_E_UNSUPPORTED),
          "the C function's result");
  if (!is_link) return;
  require(link.get_file_name().rfind(info->name, 0) == 0, "the name");
  require(info->size == static_cast<double>(link.get_file_size()), "the size");
  const auto& hash = link.get_file_hash().octets;
  require(std::equal(hash.begin(), hash.end(), info->hash), "the hash");
  // What reads back: no escape, which is decoded once more, no address that
  // looks like another field, and part hashes if there are any.
  if (link.get_file_name().find(L'%') != Text::npos) return;
  if (link.get_http_url().find(L'=') != Text::npos) link.set_http_url(L"u");
  const unsigned long flags = link.get_part_hash().empty() ? 13 : 15;
  Text printed;
  link.get_ed2k_url(printed, flags);
  ed2k_file_link again(L"", 0, {});
  require(again.create_from_ed2k_url(printed), "reads back");
  Text twice;
  again.get_ed2k_url(twice, flags);
  require(twice == printed, "all that is printed reads back");
}
