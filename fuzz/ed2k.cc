// ed2k links: the C function equals the class, and what is printed reads back.
#include <korvane/ed2k_file_link.h>

#include <algorithm>
#include <cstring>

#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include "fuzz.h"

static void check_record(const ed2k_url_info_u& info,
                         const ed2k_file_link& link) {
  Text name = link.get_file_name().c_str();
  name.resize(std::min<std::size_t>(name.size(), ED2K_NAME_CAPACITY - 1));
  name.resize(ED2K_NAME_CAPACITY);
  require(Text(info.name, ED2K_NAME_CAPACITY) == name, "the name");
  require(info.size == static_cast<double>(link.get_file_size()), "the size");
  require(std::memcmp(info.hash, link.get_file_hash().octets.data(),
                      ED2K_HASH_SIZE) == 0,
          "the hash");
}

static void check_printed(ed2k_file_link link) {
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

void check(Bytes& input) {
  const Text text = widen(input);
  ed2k_file_link link(L"-", 0, {});
  const bool is_link = link.create_from_ed2k_url(text);
  const ExactCopy<wchar_t> copy(text);
  const auto info = std::make_unique<ed2k_url_info_u>();
  require(parse_ed2k_url_u(copy.data(), copy.size(), info.get()) ==
              (is_link ? 0 : URL_E_UNSUPPORTED),
          "the C function's result");
  if (!is_link) return;
  check_record(*info, link);
  check_printed(link);
}
