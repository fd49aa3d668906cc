#include <korvane/bt_magnet_url_parser.h>

#include <gtest/gtest.h>

#include <string>

#include <korvane/encoders.h>
#include "rows.h"

namespace {

// Whether it is a link, and its fields other than the rows' info hash.
Row fields_of(const std::wstring& url) {
  bt_magnet_url_parser link(url);
  const bool is_link = link.parse_magnet_url();
  EXPECT_EQ(link.get_url(), url);
  Row fields = {is_link                ? L"yes"
                : link.has_info_hash() ? L"no, but a hash"
                                       : L"no"};
  const std::string& bytes = link.get_info_hash();
  const std::string hash = encode_base16(bytes.data(), bytes.size());
  if (hash != "0123456789ABCDEF0123456789ABCDEF01234567") {
    fields.push_back(L"hash=" + units(hash));
  }
  const std::wstring& name = link.get_display_name();
  if (!name.empty()) fields.push_back(L"name=" + name);
  for (const auto& tracker : link.get_trackers()) {
    fields.push_back(L"tr=" + tracker);
  }
  return fields;
}

TEST(MagnetLink, ReadsWhatEachRowWants) {
  check<std::wstring>("magnet links", fields_of);
}

TEST(MagnetLink, DividesWithoutAnEmptyLastItem) {
  check<std::wstring, std::wstring>(
      "divided", [](const std::wstring& text, const std::wstring& separator) {
        Row items = {L"old"};
        bt_magnet_url_parser::divide_string(text, separator[0], items);
        return items;
      });
}

}  // namespace
