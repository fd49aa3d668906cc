// Measures ours and its peers in one process, in random order:
//
//   link_bench [--benchmark_...] [FILE]
//
// FILE holds the links to read instead of the built-in lists.
#include <malloc.h>

#include <clocale>
#include <fstream>

#include <korvane/korvane_host.h>
#include "bench.h"

namespace {

// Freed memory stays in the process, as in a host that has run for a while:
// otherwise large texts pay for pages that the kernel clears.
void keep_memory() {
  constexpr int kMost = 1 << 30;
  mallopt(M_MMAP_THRESHOLD, kMost);
  mallopt(M_TRIM_THRESHOLD, kMost);
}

}  // namespace

bench::Text bench::make_text(const std::string& narrow) {
  return {narrow, string_2_wstring(narrow)};
}

bench::Texts bench::read_lines(const std::string& path) {
  std::ifstream file(path);
  Texts texts;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!line.empty()) texts.push_back(make_text(line));
  }
  return texts;
}

int main(int count, char** arguments) {
  std::setlocale(LC_ALL, "C.UTF-8");
  keep_memory();
  benchmark::Initialize(&count, arguments);
  const std::string file = count == 2 ? arguments[1] : "";
  bench::register_links(file);
  if (file.empty()) bench::register_codecs();
  if (file.empty()) bench::register_growth();
  benchmark::RunSpecifiedBenchmarks();
}
