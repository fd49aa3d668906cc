// Runs ours and its peers in turns and prints one line for each pair of them:
// workload, ours, peer, its time, ours divided by it, goal; apart by tabs.
// Times are nanoseconds for one operation, the median of all rounds.
//
//   link_bench [--urls FILE] [WORKLOAD]
//
// WORKLOAD is a part of the names of those that are run. --urls measures the
// lines of a file instead of what the benchmark makes.
#include <malloc.h>

#include <clocale>
#include <cstdio>
#include <cstring>

#include "workloads.h"

namespace {

// Memory that was given back stays in the process, as in a host that has run
// for a while; otherwise large texts pay for pages that the kernel clears.
void keep_memory() {
  constexpr int kMost = 1 << 30;
  mallopt(M_MMAP_THRESHOLD, kMost);
  mallopt(M_TRIM_THRESHOLD, kMost);
}

}  // namespace

int main(int count, char** arguments) {
  std::setlocale(LC_ALL, "C.UTF-8");
  keep_memory();
  const char* list = nullptr;
  const char* filter = "";
  for (int i = 1; i < count; ++i) {
    if (std::strcmp(arguments[i], "--urls") == 0 && i + 1 < count) {
      list = arguments[++i];
    } else {
      filter = arguments[i];
    }
  }
  const bench::Table table(filter);
  if (list != nullptr) {
    bench::run_list(table, bench::read_lines(list));
    return 0;
  }
  bench::run_urls(table);
  bench::run_links(table);
  bench::run_codecs(table);
  bench::run_conversions(table);
  bench::run_growth(table);
  return 0;
}
