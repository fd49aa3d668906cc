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
#include <iterator>
#include <libtorrent/add_torrent_params.hpp>
#include <libtorrent/magnet_uri.hpp>
#include <map>
#include <memory>
#include <sstream>
#include <utility>

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
using Readers = std::vector<Reader>;

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

bool libcurl_url(const Text& url) {
  constexpr std::pair<CURLUPart, unsigned> kParts[] = {
      {CURLUPART_SCHEME, 0},
      {CURLUPART_USER, CURLU_URLDECODE},
      {CURLUPART_PASSWORD, CURLU_URLDECODE},
      {CURLUPART_HOST, 0},
      {CURLUPART_PORT, CURLU_DEFAULT_PORT},
      {CURLUPART_PATH, 0},
      {CURLUPART_QUERY, 0}};
  static CURLU* const handle = curl_url();
  if (curl_url_set(handle, CURLUPART_URL, url.narrow.c_str(), 0) != CURLUE_OK) {
    return false;
  }
  for (const auto& [part, flags] : kParts) {
    char* text = nullptr;
    if (curl_url_get(handle, part, &text, flags) == CURLUE_OK) curl_free(text);
  }
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
  const char* text = url.narrow.c_str();
  const std::size_t end = std::strcspn(text, "?#");
  const void* slash = memrchr(text, '/', end);
  if (slash == nullptr) return false;
  const char* begin = static_cast<const char*>(slash) + 1;
  return libcurl_decode(begin, static_cast<std::size_t>(text + end - begin));
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

// One pass over the lines that all readers accept: the work is equal.
void measure_list(const std::string& row, const Texts& lines,
                  const Readers& readers) {
  if (!is_wanted(row)) return;
  const auto accepted = std::make_shared<Texts>();
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(*accepted),
               [&readers](const Text& line) {
                 return std::all_of(readers.begin(), readers.end(),
                                    [&line](const Reader& reader) {
                                      return reader.read(line);
                                    });
               });
  if (const std::size_t refused = lines.size() - accepted->size()) {
    std::fprintf(stderr, "%s: %zu of %zu lines left out\n", row.c_str(),
                 refused, lines.size());
  }
  if (accepted->empty()) return;  // nothing to measure
  for (const Reader& reader : readers) {
    // One pass a turn: after a few in a row every branch would be foreseen.
    measure(row, reader.name,
            [accepted, read = reader.read] {
              return std::count_if(accepted->begin(), accepted->end(), read);
            })
        ->Iterations(1)
        ->Repetitions(101);
  }
}

void measure_urls(const std::string& list, const Texts& urls) {
  measure_list("parse_url_u/" + list, urls,
               {{"ours", parse_url},
                {"http-parser", http_parser_split},
                {"uriparser", uriparser_url},
                {"libcurl", libcurl_url},
                {"GLib", glib_url}});
  measure_list(
      "parse_filename_u/" + list, urls,
      {{"ours", parse_file_name}, {"curl_easy_unescape", libcurl_file_name}});
}

void measure_magnets(const std::string& list, const Texts& links) {
  measure_list("parse_magnet_url_u/" + list, links,
               {{"ours", parse_magnet}, {"libtorrent", libtorrent_magnet}});
  measure_list(
      "bt_magnet_url_parser/" + list, links,
      {{"ours", parse_magnet_fields}, {"libtorrent", libtorrent_magnet}});
}

void measure_ed2k(const std::string& list, const Texts& links) {
  measure_list("parse_ed2k_url_u/" + list, links,
               {{"ours", parse_ed2k}, {"GLib and OpenSSL", glib_ed2k}});
}

// A text of `begin`, then `filling` over and over, then `end`: by length if
// `counted` is 1, by the number of fillings if it is their size.
struct Growth {
  std::string begin, filling, end;
  std::size_t counted;
  bool (*read)(const Text&);
};

void measure_growth(const std::string& row, const Growth& growth) {
  if (!is_wanted(row)) return;
  const auto run = [growth](benchmark::State& state) {
    const auto size = static_cast<std::size_t>(state.range(0));
    const Text text =
        make_text(growth.begin +
                  repeated(growth.filling, size * growth.counted) + growth.end);
    for (auto _ : state) DoNotOptimize(growth.read(text));
  };
  benchmark::RegisterBenchmark(row.c_str(), run)
      ->RangeMultiplier(10)
      ->Range(100, 100'000);
}

}  // namespace

void register_links() {
  const std::string made = "build/bench/made/";
  const Texts downloads = read_lines("bench/data/downloads.txt");
  measure_urls("pages", read_lines("bench/data/pages.txt"));
  measure_urls("downloads", downloads);
  measure_urls("user", read_lines(made + "user.txt"));
  measure_list("decode_url/downloads", downloads,
               {{"ours", decode_percent}, {"libcurl", libcurl_decode}});
  measure_magnets("made", read_lines(made + "magnet.txt"));
  measure_ed2k("made", read_lines(made + "ed2k.txt"));
}

void register_file(const std::string& path) {
  const Texts lines = read_lines(path);
  measure_urls("file", lines);
  measure_magnets("file", lines);
  measure_ed2k("file", lines);
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
    std::istringstream fields(line.narrow);
    std::string workload, list;
    Growth growth;
    for (std::string* field :
         {&workload, &list, &growth.begin, &growth.filling, &growth.end}) {
      std::getline(fields, *field, '\t');
    }
    growth.counted = list == "length" ? 1 : growth.filling.size();
    growth.read = readers.at(workload);
    measure_growth(workload + "/by " + list, growth);
  }
}

}  // namespace bench
