// ed2k links: the class against the C function, printed and read back.
#include <algorithm>
#include <cstring>
#include <cwchar>
#include <memory>

#include <korvane/ed2k_file_link.h>
#include <korvane/korvane_links.h>
#include <korvane/string_utility.h>
#include "fuzz.h"
#include "unit/exact_copy.h"

namespace {

using fuzz::require;
using fuzz::require_equal;

void check_record(const std::wstring& text, bool is_link,
                  const ed2k_file_link& link) {
  const ExactCopy copy{std::wstring_view(text)};
  const auto info = std::make_unique<ed2k_url_info_u>();
  std::memset(info.get(), 0xA5, sizeof *info);
  const auto want = std::make_unique<ed2k_url_info_u>(*info);
  require_equal(is_link ? 0 : URL_E_UNSUPPORTED,
                parse_ed2k_url_u(copy.data(), copy.size(), info.get()),
                "the answer");
  if (is_link) {
    std::memset(want.get(), 0, sizeof *want);
    want->size = static_cast<double>(link.get_file_size());
    const std::wstring name = link.get_file_name().c_str();
    name.copy(want->name, ED2K_NAME_CAPACITY - 1);
    std::copy_n(link.get_file_hash().octets.begin(), ED2K_HASH_SIZE,
                want->hash);
  }
  require_equal(std::wstring_view(want->name, ED2K_NAME_CAPACITY),
                std::wstring_view(info->name, ED2K_NAME_CAPACITY), "the name");
  require(std::memcmp(want.get(), info.get(), sizeof *want) == 0, "the record");
}

bool holds(std::wstring_view text, std::wstring_view key) {
  return qk::text::find_nocase(text, key) != std::wstring_view::npos;
}

// What of a link reads back: not an address that looks like another field.
unsigned long printable(const ed2k_file_link& link) {
  unsigned long flags = ed2k_file_link::kPrintRootHash;
  if (!link.get_part_hash().empty()) flags |= ed2k_file_link::kPrintPartHashes;
  const std::wstring& url = link.get_http_url();
  if (!holds(url, L"h=") && !holds(url, L"p=")) {
    flags |= ed2k_file_link::kPrintHttpUrl;
  }
  return flags | ed2k_file_link::kPrintSources;
}

void require_same_name(const std::wstring& want, const std::wstring& got) {
  // Escapes that were decoded once are decoded again.
  if (want.find(L'%') == std::wstring::npos) require_equal(want, got, "name");
}

void require_same_sources(const ed2k_file_link& want,
                          const ed2k_file_link& got) {
  const auto& sources = want.get_source_list();
  require(std::equal(sources.begin(), sources.end(),
                     got.get_source_list().begin(), got.get_source_list().end(),
                     [](const auto& a, const auto& b) {
                       return a.host == b.host && a.port == b.port;
                     }),
          "the sources read back");
}

void check_printed(const ed2k_file_link& link) {
  const unsigned long flags = printable(link);
  std::wstring wide;
  require(link.get_ed2k_url(wide, flags), "printed");
  ed2k_file_link again(L"", 0, {});
  require(again.create_from_ed2k_url(wide), "reads back");
  require_same_name(link.get_file_name(), again.get_file_name());
  require(link.get_file_size() == again.get_file_size(), "the size");
  require(link.get_file_hash() == again.get_file_hash(), "the hash");
  require(link.get_root_hash() == again.get_root_hash(), "the root hash");
  require(link.get_part_hash() == again.get_part_hash(), "the part hashes");
  if ((flags & ed2k_file_link::kPrintHttpUrl) != 0) {
    require_equal(link.get_http_url(), again.get_http_url(), "the address");
  }
  require_same_sources(link, again);
}

void check_replacing(const std::wstring& text, const std::wstring& from) {
  std::wstring want;
  for (std::size_t i = 0; i < text.size();) {
    const bool found = !from.empty() && text.compare(i, from.size(), from) == 0;
    want += found ? L"%7C" : text.substr(i, 1);
    i += found ? from.size() : 1;
  }
  std::wstring got = text;
  if (!from.empty()) ed2k_file_link::string_replace(got, from, L"%7C");
  require_equal(want, got, "every one is replaced");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = fuzz::Input(data, size).text();
  ed2k_file_link link(L"nil", 0, {});
  const bool is_link = link.create_from_ed2k_url(text);
  check_record(text, is_link, link);
  if (is_link) check_printed(link);
  check_replacing(text, L"|");
  check_replacing(text, text.substr(text.size() / 2, 3));
  return 0;
}
