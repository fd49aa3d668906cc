// Measures ours and its peers in one process, in random order:
//
//   link_bench [--urls FILE] [NAME] [--benchmark_...]
//
// NAME is a part of WORKLOAD/LIST.
#include <malloc.h>

#include <clocale>
#include <fstream>

#include <korvane/korvane_host.h>
#include "bench.h"

namespace {

std::string wanted;

// Freed memory stays in the process, as in a host that has run for a while:
// otherwise large texts pay for pages that the kernel clears.
void keep_memory() {
  constexpr int kMost = 1 << 30;
  mallopt(M_MMAP_THRESHOLD, kMost);
  mallopt(M_TRIM_THRESHOLD, kMost);
}

}  // namespace

bool bench::is_wanted(const std::string& row) {
  return row.find(wanted) != std::string::npos;
}

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

std::string bench::repeated(std::string_view text, std::size_t size) {
  std::string result;
  while (result.size() < size) result += text;
  result.resize(size);
  return result;
}

int main(int count, char** arguments) {
  std::setlocale(LC_ALL, "C.UTF-8");
  keep_memory();
  benchmark::Initialize(&count, arguments);
  const char* list = nullptr;
  for (int i = 1; i < count; ++i) {
    if (std::string_view(arguments[i]) == "--urls" && i + 1 < count) {
      list = arguments[++i];
    } else {
      wanted = arguments[i];
    }
  }
  if (list != nullptr) {
    bench::register_file(list);
  } else {
    bench::register_links();
    bench::register_codecs();
    bench::register_growth();
  }
  benchmark::RunSpecifiedBenchmarks();
}
