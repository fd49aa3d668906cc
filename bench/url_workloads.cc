#include <korvane/korvane_links.h>
#include "peers/peers.h"
#include "readers.h"
#include "workloads.h"

namespace bench {
namespace {

bool parse_url(const Text& text) {
  static url_info_u info;
  const long code = parse_url_u(text.wide.data(), text.wide.size(), 0, &info);
  keep(info);
  return code == 0;
}

bool parse_file_name(const Text& text) {
  static wchar_t name[1024];
  std::size_t size = std::size(name);
  const long code =
      parse_filename_u(name, &size, text.wide.data(), text.wide.size(), 0);
  keep(name);
  return code == 0;
}

template <bool (*read)(const std::string&)>
bool narrow(const Text& text) {
  return read(text.narrow);
}

bool wide_uriparser(const Text& text) {
  return peers::uriparser_ranges(text.wide);
}

}  // namespace

std::vector<Reader> url_readers(double http_parser_goal) {
  constexpr double kGoal = 0.30;
  return {{"parse_url_u", parse_url},
          {"http-parser", narrow<peers::http_parser_offsets>, http_parser_goal},
          {"Boost.URL", narrow<peers::boost_url>, kGoal},
          {"uriparser", wide_uriparser, kGoal},
          {"libcurl", narrow<peers::curl_parts>, kGoal},
          {"GLib", narrow<peers::glib_parts>, kGoal}};
}

std::vector<Reader> file_name_readers(double boost_goal) {
  return {{"parse_filename_u", parse_file_name},
          {"Boost.URL", narrow<peers::boost_file_name>, boost_goal},
          {"curl_easy_unescape", narrow<peers::curl_file_name>, 1.20}};
}

void run_urls(const Table& table) {
  const Texts plain = plain_pages();
  const Texts download = downloads();
  compare_readers(table, "parse_url_u, plain", plain, url_readers(0.50));
  compare_readers(table, "parse_url_u, download", download, url_readers(0.33));
  compare_readers(table, "parse_url_u, user", urls_with_user(),
                  url_readers(0.45));
  compare_readers(table, "parse_filename_u, plain", plain,
                  file_name_readers(0.15));
  compare_readers(table, "parse_filename_u, download", download,
                  file_name_readers(0.22));
}

}  // namespace bench
