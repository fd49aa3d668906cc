#include "readers.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>

#include "workloads.h"

namespace bench {
namespace {

bool all_take(const Text& text, const std::vector<Reader>& readers) {
  return std::all_of(
      readers.begin(), readers.end(),
      [&text](const Reader& reader) { return reader.read(text); });
}

Contender contender(const Reader& reader, const Texts& texts) {
  return {reader.name, texts.size(), [&texts, read = reader.read] {
            for (const Text& text : texts) keep(read(text));
          }};
}

Texts beginning_with(const Texts& texts, const std::string& prefix) {
  Texts found;
  std::copy_if(texts.begin(), texts.end(), std::back_inserter(found),
               [&prefix](const Text& text) {
                 return text.narrow.compare(0, prefix.size(), prefix) == 0;
               });
  return found;
}

void compare_list(const Table& table, const std::string& workload,
                  const Texts& lines, const std::vector<Reader>& readers) {
  const Texts taken = taken_by_all(lines, readers);
  std::fprintf(stderr, "%s: %zu of %zu lines are taken by all\n",
               workload.c_str(), taken.size(), lines.size());
  if (!taken.empty()) compare_readers(table, workload, taken, readers);
}

}  // namespace

Texts taken_by_all(const Texts& texts, const std::vector<Reader>& readers) {
  Texts taken;
  std::copy_if(
      texts.begin(), texts.end(), std::back_inserter(taken),
      [&readers](const Text& text) { return all_take(text, readers); });
  return taken;
}

void compare_readers(const Table& table, const std::string& workload,
                     const Texts& texts, const std::vector<Reader>& readers) {
  if (taken_by_all(texts, readers).size() != texts.size()) {
    std::fprintf(stderr, "%s: not every text is taken\n", workload.c_str());
    std::exit(1);
  }
  std::vector<Rival> rivals;
  for (std::size_t i = 1; i < readers.size(); ++i) {
    rivals.push_back({contender(readers[i], texts), readers[i].goal});
  }
  table.compare(workload, contender(readers[0], texts), rivals);
}

void run_list(const Table& table, const Texts& lines) {
  const Texts magnets = beginning_with(lines, "magnet:");
  const Texts ed2k = beginning_with(lines, "ed2k:");
  Texts urls;
  std::copy_if(lines.begin(), lines.end(), std::back_inserter(urls),
               [](const Text& line) {
                 return line.narrow.find("://") != std::string::npos &&
                        line.narrow.compare(0, 5, "ed2k:") != 0;
               });
  const std::string list = ", the list";
  compare_list(table, "parse_url_u" + list, urls, url_readers(0.50));
  compare_list(table, "parse_filename_u" + list, urls, file_name_readers(0.22));
  if (!magnets.empty()) {
    compare_list(table, "parse_magnet_url_u" + list, magnets, magnet_readers());
    compare_list(table, "bt_magnet_url_parser" + list, magnets,
                 magnet_class_readers());
  }
  if (!ed2k.empty()) {
    compare_list(table, "parse_ed2k_url_u" + list, ed2k, ed2k_readers());
  }
}

}  // namespace bench
