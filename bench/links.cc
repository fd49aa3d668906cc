// URLs and links: lists of them, and how cost grows with their length and with
// the number of everything in them.
#include <curl/curl.h>
#include <glib.h>
#include <http_parser.h>
#include <openssl/crypto.h>
#include <uriparser/Uri.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <libtorrent/add_torrent_params.hpp>
#include <libtorrent/magnet_uri.hpp>
#include <map>
#include <memory>
#include <sstream>
#include <string_view>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "bench.h"

namespace bench {
namespace {

using benchmark::DoNotOptimize;

struct Reader {
  const char* name;
  bool (*read)(const Text&);  // whether it accepts the text
};

bool parse_url(const Text& text) {
  static url_info_u info;
  return parse_url_u(text.wide.data(), text.wide.size(), 0, &info) == 0;
}

bool parse_url_object(const Text& text) {
  url_object url;
  return url_object::parse_url(text.wide, 0, url);
}

bool parse_file_name(const Text& text) {
  static std::array<wchar_t, 300'000> name;
  std::size_t size = name.size();
  return parse_filename_u(name.data(), &size, text.wide.data(),
                          text.wide.size(), 0) == 0;
}

bool file_name_for(const Text& text) {
  DoNotOptimize(url_object::file_name_for(text.wide, 0));
  return true;
}

bool parse_magnet(const Text& text) {
  static unsigned char hash[MAGNET_HASH_SIZE];
  return parse_magnet_url_u(text.wide.data(), text.wide.size(), hash) == 0;
}

bool parse_magnet_fields(const Text& text) {
  bt_magnet_url_parser parser(text.wide);
  return parser.parse_magnet_url();
}

bool parse_ed2k(const Text& text) {
  static ed2k_url_info_u info;
  return parse_ed2k_url_u(text.wide.data(), text.wide.size(), &info) == 0;
}

bool parse_ed2k_fields(const Text& text) {
  ed2k_file_link link(L"", 0, {});
  return link.create_from_ed2k_url(text.wide);
}

bool replace_escaped_bars(const Text& text) {
  std::wstring replaced = text.wide;
  ed2k_file_link::string_replace(replaced, L"%7C", L"|");
  DoNotOptimize(replaced);
  return true;
}

bool decode_percent(const Text& text) {
  static std::string out;
  return decode_url(text.narrow.data(), text.narrow.size(), out);
}

bool decode_base64(const Text& text) {
  static std::array<unsigned char, 100'000> out;
  auto size = static_cast<unsigned>(out.size());
  return base64_decode(out.data(), &size, text.narrow.data(),
                       static_cast<unsigned>(text.narrow.size())) == 0;
}

bool http_parser_split(const Text& url) {
  http_parser_url parts;
  http_parser_url_init(&parts);
  const int fault =
      http_parser_parse_url(url.narrow.data(), url.narrow.size(), 0, &parts);
  DoNotOptimize(parts);
  return fault == 0;
}

bool uriparser_url(const Text& url) {
  UriUriW parts;
  const wchar_t* fault = nullptr;
  if (uriParseSingleUriExW(&parts, url.wide.data(),
                           url.wide.data() + url.wide.size(),
                           &fault) != URI_SUCCESS) {
    return false;
  }
  DoNotOptimize(parts);
  uriFreeUriMembersW(&parts);
  return true;
}

bool glib_url(const Text& url) {
  constexpr auto kFlags = static_cast<GUriFlags>(
      G_URI_FLAGS_HAS_PASSWORD | G_URI_FLAGS_ENCODED_PATH |
      G_URI_FLAGS_ENCODED_QUERY | G_URI_FLAGS_ENCODED_FRAGMENT);
  char* texts[6] = {};
  int port = 0;
  const gboolean accepted = g_uri_split_with_user(
      url.narrow.c_str(), kFlags, &texts[0], &texts[1], &texts[2], nullptr,
      &texts[3], &port, &texts[4], &texts[5], nullptr, nullptr);
  for (char* text : texts) g_free(text);
  return accepted != 0;
}

bool libcurl_decode(const char* text, std::size_t size) {
  if (size == 0) return true;  // means all up to a zero there
  int decoded_size = 0;
  char* decoded =
      curl_easy_unescape(nullptr, text, static_cast<int>(size), &decoded_size);
  curl_free(decoded);
  return decoded != nullptr;
}

bool libcurl_file_name(const Text& url) {
  const std::string_view text = url.narrow;
  const std::size_t end =
      std::min({text.find('?'), text.find('#'), text.size()});
  const auto* slash = static_cast<const char*>(memrchr(text.data(), '/', end));
  if (slash == nullptr) return false;
  return libcurl_decode(
      slash + 1, static_cast<std::size_t>(text.data() + end - slash - 1));
}

bool libcurl_decode(const Text& text) {
  return libcurl_decode(text.narrow.data(), text.narrow.size());
}

bool libtorrent_magnet(const Text& link) {
  lt::error_code fault;
  DoNotOptimize(lt::parse_magnet_uri(link.narrow, fault));
  return !fault;
}

bool glib_ed2k(const Text& link) {
  char** pieces = g_strsplit(link.narrow.c_str(), "|", -1);
  const bool whole = g_strv_length(pieces) >= 5;
  if (whole) {
    char* name = g_uri_unescape_string(pieces[2], nullptr);
    DoNotOptimize(g_ascii_strtoull(pieces[3], nullptr, 10));
    unsigned char hash[16];
    std::size_t size = 0;
    OPENSSL_hexstr2buf_ex(hash, sizeof hash, &size, pieces[4], '\0');
    DoNotOptimize(hash);
    g_free(name);
  }
  g_strfreev(pieces);
  return whole;
}

struct Workload {
  std::string name;
  std::vector<std::string> lists;
  std::vector<Reader> readers;
};

const Workload kWorkloads[] = {
    {"parse_url_u",
     {"pages", "downloads", "user"},
     {{"ours", parse_url},
      {"http-parser", http_parser_split},
      {"uriparser", uriparser_url},
      {"GLib", glib_url}}},
    {"parse_filename_u",
     {"pages", "downloads", "user"},
     {{"ours", parse_file_name}, {"curl_easy_unescape", libcurl_file_name}}},
    {"decode_url",
     {"downloads"},
     {{"ours", decode_percent}, {"libcurl", libcurl_decode}}},
    {"parse_magnet_url_u",
     {"magnet"},
     {{"ours", parse_magnet}, {"libtorrent", libtorrent_magnet}}},
    {"bt_magnet_url_parser",
     {"magnet"},
     {{"ours", parse_magnet_fields}, {"libtorrent", libtorrent_magnet}}},
    {"parse_ed2k_url_u",
     {"ed2k"},
     {{"ours", parse_ed2k}, {"GLib and OpenSSL", glib_ed2k}}}};

// The lines that all readers accept: the work is equal. Each form lies in one
// piece of memory, as if the other did not exist.
std::shared_ptr<Texts> accepted_by_all(const std::vector<Reader>& readers,
                                       Texts lines) {
  const auto refused = [&readers](const Text& line) {
    return !std::all_of(readers.begin(), readers.end(),
                        [&](auto& reader) { return reader.read(line); });
  };
  lines.erase(std::remove_if(lines.begin(), lines.end(), refused), lines.end());
  auto result = std::make_shared<Texts>(lines.size());
  auto to = result->begin();
  for (const Text& line : lines) (to++)->narrow = line.narrow;
  to = result->begin();
  for (const Text& line : lines) (to++)->wide = line.wide;
  return result;
}

void measure_list(const Workload& workload, const std::string& list,
                  const std::string& path) {
  const std::string row = workload.name + "/" + list;
  const Texts lines = read_lines(path);
  const auto accepted = accepted_by_all(workload.readers, lines);
  if (const std::size_t refused = lines.size() - accepted->size()) {
    std::fprintf(stderr, "%s: %zu of %zu lines left out\n", row.c_str(),
                 refused, lines.size());
  }
  if (accepted->empty()) return;
  for (const Reader& reader : workload.readers) {
    // One pass a turn: after a few in a row every branch would be foreseen. A
    // short list is repeated, or the clock would count more than the reading.
    const auto pass = [accepted, read = reader.read] {
      for (auto left = 200 / accepted->size() + 1; left != 0; --left) {
        DoNotOptimize(std::count_if(accepted->begin(), accepted->end(), read));
      }
      return true;
    };
    measure(row, reader.name, pass)->Iterations(1)->Repetitions(101);
  }
}

}  // namespace

void register_links(const std::string& file) {
  for (const Workload& workload : kWorkloads) {
    if (!file.empty()) {
      measure_list(workload, "file", file);
      continue;
    }
    for (const std::string& list : workload.lists) {
      measure_list(workload, list, "build/bench/lists/" + list + ".txt");
    }
  }
}

void register_growth() {
  const std::map<std::string, bool (*)(const Text&)> readers = {
      {"url_object::parse_url", parse_url_object},
      {"parse_url_u", parse_url},
      {"parse_filename_u", parse_file_name},
      {"file_name_for", file_name_for},
      {"parse_magnet_url_u", parse_magnet},
      {"bt_magnet_url_parser", parse_magnet_fields},
      {"parse_ed2k_url_u", parse_ed2k},
      {"ed2k_file_link", parse_ed2k_fields},
      {"string_replace", replace_escaped_bars},
      {"decode_url", decode_percent},
      {"base64_decode", decode_base64}};
  for (const Text& line : read_lines("bench/data/growth.tsv")) {
    std::istringstream rest(line.narrow);
    std::array<std::string, 5> fields;  // workload, list, begin, filling, end
    for (std::string& field : fields) std::getline(rest, field, '\t');
    const std::string row = fields[0] + "/by " + fields[1];
    const auto run = [fields, read = readers.at(fields[0])](auto& state) {
      const auto& [workload, list, begin, filling, end] = fields;
      auto times = static_cast<std::size_t>(state.range(0));
      if (list == "length") times /= filling.size();
      const Text text = make_text(begin + repeated(filling, times).append(end));
      for (auto _ : state) DoNotOptimize(read(text));
    };
    benchmark::RegisterBenchmark(row.c_str(), run)
        ->RangeMultiplier(10)
        ->Range(100, 100'000);
  }
}

}  // namespace bench
