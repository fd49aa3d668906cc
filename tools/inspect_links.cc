// inspect_links: shows what links hold. `inspect_links --help` says how.
#include <korvane/bt_magnet_url_parser.h>
#include <korvane/ed2k_file_link.h>
#include <korvane/korvane_host.h>
#include <korvane/korvane_links.h>
#include <korvane/korvane_url.h>
#include <korvane/url_object.h>
#include <korvane/xstringutil.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cwctype>
#include <exception>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Json = nlohmann::ordered_json;

// Decoded names may hold anything; what is no character becomes U+FFFD.
std::string utf8(const std::wstring& text) {
  std::string result;
  for (const wchar_t unit : text) {
    const std::string character = wstring_2_utf8({unit});
    if (unit == L'\0') {
      result += '\0';
    } else {
      result += character.empty() ? "\uFFFD" : character;
    }
  }
  return result;
}

template <typename Hash>
std::string hexadecimal(const Hash& bytes) {
  return xstringutil::DataToHexString(
      reinterpret_cast<const char*>(bytes.data()),
      static_cast<int>(bytes.size()), "");
}

std::string file_name(const std::wstring& url) {
  // No name is longer than its URL but "index.html".
  std::wstring name(url.size() + 16, L'\0');
  std::size_t length = name.size();
  parse_filename_u(name.data(), &length, url.data(), url.size(), 0);
  return utf8(name.substr(0, length));
}

Json inspect_url(const std::wstring& link) {
  url_object url;
  if (!url_object::parse_url(link, 0, url) || url.schema.empty()) {
    return {{"error", "no link"}};
  }
  if (url.schema_type() == SCHEMA_UNKNOWN) return {{"error", "unknown scheme"}};
  Json report = {
      {"kind", "URL"}, {"name", file_name(link)}, {"scheme", utf8(url.schema)}};
  if (!url.user.empty()) report["user"] = utf8(url.user);
  if (!url.password.empty()) report["password"] = utf8(url.password);
  report["host"] = utf8(url.host);
  report["port"] = url.port;
  report["path"] = utf8(url.path);
  report["printed"] = utf8(url.to_string());
  return report;
}

// The class gives one character for each escaped byte; people want them joined.
std::wstring joined(const std::wstring& name) {
  const auto is_byte = [](wchar_t unit) {
    return static_cast<char32_t>(unit) < 0x100;
  };
  if (!std::all_of(name.begin(), name.end(), is_byte)) return name;
  std::string bytes;
  for (const wchar_t unit : name) bytes += static_cast<char>(unit);
  return string_2_wstring(bytes);
}

Json inspect_magnet(const std::wstring& link) {
  bt_magnet_url_parser magnet(link);
  if (!magnet.parse_magnet_url()) {
    return {{"error", "no magnet link with an info hash"}};
  }
  Json report = {{"kind", "magnet link"},
                 {"infoHash", hexadecimal(magnet.get_info_hash())}};
  if (!magnet.get_display_name().empty()) {
    report["name"] = utf8(joined(magnet.get_display_name()));
  }
  for (const std::wstring& tracker : magnet.get_trackers()) {
    report["trackers"].push_back(utf8(tracker));
  }
  return report;
}

Json inspect_ed2k(const std::wstring& link) {
  ed2k_file_link file({}, 0, {});
  if (!file.create_from_ed2k_url(link)) {
    return {{"error", "no ed2k link to a file"}};
  }
  Json report = {{"kind", "ed2k link"},
                 {"name", utf8(file.get_file_name())},
                 {"size", file.get_file_size()},
                 {"hash", hexadecimal(file.get_file_hash().octets)}};
  if (file.get_root_hash() != ed2k_file_link::root_hash{}) {
    report["rootHash"] = hexadecimal(file.get_root_hash().octets);
  }
  for (const auto& hash : file.get_part_hash()) {
    report["partHashes"].push_back(hexadecimal(hash.octets));
  }
  for (const auto& source : file.get_source_list()) {
    report["sources"].push_back(source.host + ':' +
                                std::to_string(source.port));
  }
  if (!file.get_http_url().empty()) {
    report["webAddress"] = utf8(file.get_http_url());
  }
  return report;
}

bool starts_with(const std::wstring& text, std::wstring_view prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

Json inspect(const std::wstring& link) {
  const std::wstring folded = make_upper(link.substr(0, 16));
  if (starts_with(folded, L"MAGNET:")) return inspect_magnet(link);
  if (starts_with(folded, L"ED2K://")) return inspect_ed2k(link);
  if (starts_with(folded, L"KORVANE://")) {
    return {{"kind", "private link, which is made here but not read"}};
  }
  return inspect_url(link);
}

// A terminal obeys control characters: they are shown, not sent.
std::string shown(const std::string& text) {
  std::string result;
  for (const wchar_t unit : string_2_wstring(text)) {
    if (std::iswprint(static_cast<std::wint_t>(unit)) != 0) {
      result += wstring_2_utf8({unit});
    } else {
      char escape[16];
      std::snprintf(escape, sizeof(escape), "\\u%04X",
                    static_cast<unsigned>(unit));
      result += escape;
    }
  }
  return result;
}

class Inspector {
 public:
  explicit Inspector(bool as_json) : as_json_(as_json) {
    const char* no_color = std::getenv("NO_COLOR");
    has_color_ = isatty(STDOUT_FILENO) != 0 &&
                 (no_color == nullptr || *no_color == '\0');
  }

  void show(const std::string& link) {
    const Json report = inspect(string_2_wstring(link));
    ++count_;
    const bool is_link = !report.contains("error");
    all_links_ = all_links_ && is_link;
    if (as_json_) {
      Json line = {{"link", utf8(string_2_wstring(link))}};
      line.update(report);
      std::cout << line.dump() << '\n';
    } else if (is_link) {
      show_table(link, report);
    } else {
      std::cerr << "inspect_links: " << report["error"].get<std::string>()
                << ": " << shown(link) << '\n';
    }
  }

  // A line a link, as many as there are; memory stays flat.
  void show_lines(std::istream& in) {
    const bool has_progress =
        isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
    std::string line;
    while (std::cout && std::getline(in, line)) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (line.find_first_not_of(" \t") == std::string::npos) continue;
      show(line);
      if (has_progress && count_ % 1000 == 0) {
        std::cerr << '\r' << count_ << " links" << std::flush;
      }
    }
    if (has_progress && count_ >= 1000) std::cerr << '\n';
  }

  bool all_links() const { return all_links_; }

 private:
  void show_table(const std::string& link, const Json& report) const {
    std::cout << colored("1", shown(link)) << '\n';
    for (const auto& [key, value] : report.items()) {
      if (!value.is_array()) {
        show_row(key, value);
        continue;
      }
      for (const Json& item : value) show_row(key, item);
    }
  }

  void show_row(std::string key, const Json& value) const {
    key.resize(12, ' ');
    std::cout << "  " << colored("36", key)
              << (value.is_string() ? shown(value.get<std::string>())
                                    : value.dump())
              << '\n';
  }

  std::string colored(const char* color, const std::string& text) const {
    if (!has_color_) return text;
    return std::string("\033[") + color + 'm' + text + "\033[0m";
  }

  bool as_json_;
  bool has_color_;
  bool all_links_ = true;
  unsigned long count_ = 0;
};

int run(int count, char** values) {
  CLI::App app(
      "Shows what URLs, ed2k, magnet and private links hold.\n"
      "Without LINK it reads links from standard input, one a line.\n"
      "Ends with 1 if a text is no link.");
  app.footer("Example: inspect_links 'magnet:?xt=urn:btih:...&dn=a.iso'");
  std::vector<std::string> links;
  bool as_json = false;
  app.add_option("LINK", links, "a link, in UTF-8");
  app.add_flag("--json", as_json, "print one JSON object a line");
  try {
    app.parse(count, values);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : 2;
  }
  if (links.empty() && isatty(STDIN_FILENO) != 0) {
    std::cerr << "inspect_links: no link; see inspect_links --help\n";
    return 2;
  }
  Inspector inspector(as_json);
  for (const std::string& link : links) inspector.show(link);
  if (links.empty()) inspector.show_lines(std::cin);
  if (!std::cout.flush()) {
    std::cerr << "inspect_links: standard output cannot be written\n";
    return 2;
  }
  return inspector.all_links() ? 0 : 1;
}

}  // namespace

int main(int count, char** values) {
  std::setlocale(LC_CTYPE, "C.UTF-8");
  std::ios::sync_with_stdio(false);
  try {
    return run(count, values);
  } catch (const std::exception& error) {
    std::cerr << "inspect_links: " << error.what() << '\n';
    return 2;
  }
}
