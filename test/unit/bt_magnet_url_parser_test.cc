#include "url/bt_magnet_url_parser.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "rows.h"
#include "url/encoders.h"

namespace {

// Whether it is a link, and its fields other than the rows' info hash.
std::wstring description(const std::wstring& url) {
  bt_magnet_url_parser link(url);
  std::wostringstream out;
  const bool is_link = link.parse_magnet_url();
  EXPECT_EQ(link.get_url(), url);
  out << (is_link ? "yes" : link.has_info_hash() ? "no, but a hash" : "no");
  const std::string& bytes = link.get_info_hash();
  const std::string hash = encode_base16(bytes.data(), bytes.size());
  if (hash != "0123456789ABCDEF0123456789ABCDEF01234567") {
    out << " hash=" << hash.c_str();
  }
  const std::wstring& name = link.get_display_name();
  if (!name.empty()) out << " name=" << name;
  for (const auto& tracker : link.get_trackers()) out << " tr=" << tracker;
  return out.str();
}

TEST(MagnetLink, ReadsWhatEachRowWants) {
  for (const Row& row : rows_of("magnet links")) {
    EXPECT_EQ(description(row[0]), wanted(row)) << row[0];
  }
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
