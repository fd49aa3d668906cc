// Cost grows with the length of the input and with the number of everything in
// it, not faster.
#include <array>
#include <functional>

#include <korvane/bt_magnet_url_parser.h>
#include <korvane/ed2k_file_link.h>
#include <korvane/encoders.h>
#include <korvane/korvane_links.h>
#include <korvane/url_object.h>
#include "readers.h"
#include "workloads.h"

namespace bench {
namespace {

constexpr std::array<std::size_t, 4> kSizes = {100, 1'000, 10'000, 100'000};
constexpr double kGoal = 1.5;

using Read = void (*)(const Text&);

void parse_url(const Text& text) {
  url_object url;
  keep(url_object::parse_url(text.wide, 0, url));
}

void parse_url_into_record(const Text& text) {
  static url_info_u info;
  keep(parse_url_u(text.wide.data(), text.wide.size(), 0, &info));
}

void parse_file_name(const Text& text) {
  static std::array<wchar_t, 200'000> name;
  std::size_t size = name.size();
  keep(parse_filename_u(name.data(), &size, text.wide.data(), text.wide.size(),
                        0));
}

void file_name_for(const Text& text) {
  keep(url_object::file_name_for(text.wide, 0));
}

void parse_magnet(const Text& text) {
  unsigned char hash[MAGNET_HASH_SIZE];
  keep(parse_magnet_url_u(text.wide.data(), text.wide.size(), hash));
}

void parse_magnet_fields(const Text& text) {
  bt_magnet_url_parser parser(text.wide);
  keep(parser.parse_magnet_url());
}

void parse_ed2k(const Text& text) {
  static ed2k_url_info_u info;
  keep(parse_ed2k_url_u(text.wide.data(), text.wide.size(), &info));
}

void parse_ed2k_fields(const Text& text) {
  ed2k_file_link link(L"", 0, {});
  keep(link.create_from_ed2k_url(text.wide));
}

void decode_percent(const Text& text) {
  static std::string out;
  keep(decode_url(text.narrow.data(), text.narrow.size(), out));
}

void decode_base64(const Text& text) {
  static std::array<unsigned char, 100'000> out;
  auto size = static_cast<unsigned>(out.size());
  keep(base64_decode(out.data(), &size, text.narrow.data(),
                     static_cast<unsigned>(text.narrow.size())));
}

void replace_escaped_bars(const Text& text) {
  std::wstring replaced = text.wide;
  ed2k_file_link::string_replace(replaced, L"%7C", L"|");
  keep(replaced);
}

// `begin`, then `filling` over and over, then `end`.
struct Shape {
  std::string begin;
  std::string filling;
  std::string end;
};

std::string shaped(const Shape& shape, std::size_t filling_size) {
  return shape.begin + repeated(shape.filling, filling_size) + shape.end;
}

Contender growing(std::string name, std::size_t operations, Read read,
                  std::string text) {
  return {std::move(name), operations,
          [read, made = make_text(std::move(text))] { read(made); }};
}

void grow_length(const Table& table, const std::string& workload,
                 const Shape& shape, Read read) {
  std::vector<Contender> lengths;
  lengths.reserve(kSizes.size());
  for (const std::size_t size : kSizes) {
    const std::size_t fixed = shape.begin.size() + shape.end.size();
    lengths.push_back(growing(std::to_string(size) + " characters", size, read,
                              shaped(shape, size - fixed)));
  }
  table.compare_growth(workload + ", a character", lengths, kGoal);
}

void grow_count(const Table& table, const std::string& workload,
                const Shape& shape, Read read) {
  std::vector<Contender> counts;
  counts.reserve(kSizes.size());
  for (const std::size_t count : kSizes) {
    counts.push_back(growing(std::to_string(count) + " of them", count, read,
                             shaped(shape, count * shape.filling.size())));
  }
  table.compare_growth(workload, counts, kGoal);
}

const std::string kHash = "0123456789abcdef0123456789abcdef";
const std::string kFile = "ed2k://|file|a.bin|100|" + kHash + "|";
const std::string kMagnet = "magnet:?xt=urn:btih:" + kHash + "01234567";

void run_lengths(const Table& table) {
  const Shape url = {"http://host/", "folder/file.zip", ""};
  grow_length(table, "url_object::parse_url", url, parse_url);
  grow_length(table, "parse_url_u", url, parse_url_into_record);
  grow_length(table, "parse_filename_u", {"http://host/", "name%20of", ".zip"},
              parse_file_name);
  grow_length(table, "url_object::file_name_for", {"", "name%20of", ".zip"},
              file_name_for);
  const Shape magnet = {kMagnet + "&dn=", "name%20of", ""};
  grow_length(table, "parse_magnet_url_u", magnet, parse_magnet);
  grow_length(table, "bt_magnet_url_parser", magnet, parse_magnet_fields);
  const Shape ed2k = {"ed2k://|file|", "name%20of", "|1|" + kHash + "|/"};
  grow_length(table, "parse_ed2k_url_u", ed2k, parse_ed2k);
  grow_length(table, "ed2k_file_link", ed2k, parse_ed2k_fields);
  grow_length(table, "decode_url", {"", "name%20of", ""}, decode_percent);
  grow_length(table, "base64_decode", {"", "QUJD", ""}, decode_base64);
}

void run_counts(const Table& table) {
  grow_count(table, "parse_url, separators \"/\"", {"http://h/", "/", "x"},
             parse_url);
  grow_count(table, "parse_url, separators \"@\"", {"http://", "@", "h/"},
             parse_url);
  grow_count(table, "parse_url, separators \":\"", {"http://u", ":", "@h/"},
             parse_url);
  grow_count(table, "parse_url, escapes", {"http://", "%41", "@h/"}, parse_url);
  grow_count(table, "parse_filename_u, separators", {"http://h", "/", "x"},
             parse_file_name);
  grow_count(table, "parse_filename_u, escapes", {"http://h/", "%41", ""},
             parse_file_name);
  grow_count(table, "parse_filename_u, escapes beyond ASCII",
             {"http://h/", "%C3%A9", ""}, parse_file_name);
  grow_count(table, "file_name_for, separators", {"", "/", "x?y"},
             file_name_for);
  grow_count(table, "file_name_for, \"?\"", {"x/", "?", "url"}, file_name_for);
  grow_count(table, "parse_magnet_url_u, \"&\"", {kMagnet, "&", ""},
             parse_magnet);
  grow_count(table, "bt_magnet_url_parser, \"&\"", {kMagnet, "&", ""},
             parse_magnet_fields);
  grow_count(table, "bt_magnet_url_parser, escapes",
             {kMagnet + "&dn=", "%41", ""}, parse_magnet_fields);
  grow_count(table, "bt_magnet_url_parser, trackers",
             {kMagnet, "&tr=udp%3A%2F%2Ftracker.example.org%3A80", ""},
             parse_magnet_fields);
  grow_count(table, "parse_ed2k_url_u, \"|\"", {kFile, "|", "/"}, parse_ed2k);
  grow_count(table, "ed2k_file_link, \"|\"", {kFile, "|", "/"},
             parse_ed2k_fields);
  const std::string escaped_file = "ed2k://%7Cfile%7Ca%7C1%7C" + kHash;
  grow_count(table, "parse_ed2k_url_u, \"%7C\"", {escaped_file, "%7C", "/"},
             parse_ed2k);
  grow_count(table, "ed2k_file_link, \"%7C\"", {escaped_file, "%7C", "/"},
             parse_ed2k_fields);
  grow_count(table, "string_replace, \"%7C\"", {"", "%7C", ""},
             replace_escaped_bars);
  grow_count(table, "parse_ed2k_url_u, escapes",
             {"ed2k://|file|", "%41", "|1|" + kHash + "|"}, parse_ed2k);
  grow_count(table, "parse_ed2k_url_u, fields", {kFile, "x=y|", "/"},
             parse_ed2k);
  grow_count(table, "parse_ed2k_url_u, sources",
             {kFile + "sources", ",1.2.3.4:4662", "|/"}, parse_ed2k);
  grow_count(table, "ed2k_file_link, sources",
             {kFile + "sources", ",1.2.3.4:4662", "|/"}, parse_ed2k_fields);
  const Shape hashes = {kFile + "p=" + kHash, ":" + kHash, "|/"};
  grow_count(table, "parse_ed2k_url_u, part hashes", hashes, parse_ed2k);
  grow_count(table, "ed2k_file_link, part hashes", hashes, parse_ed2k_fields);
  grow_count(table, "decode_url, escapes", {"", "%41", ""}, decode_percent);
}

}  // namespace

void run_growth(const Table& table) {
  run_lengths(table);
  run_counts(table);
}

}  // namespace bench
