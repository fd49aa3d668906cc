// What is measured. Every benchmark is named WORKLOAD/LIST/CONTENDER.
#ifndef KORVANE_BENCH_BENCH_H_
#define KORVANE_BENCH_BENCH_H_

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

// A text in both forms: nobody is charged for the conversion.
struct Text {
  std::string narrow;  // UTF-8
  std::wstring wide;
};
using Texts = std::vector<Text>;

Text make_text(const std::string& narrow);

// The lines of a file, without the empty ones.
Texts read_lines(const std::string& path);

// `text` over and over, `size` characters in all.
std::string repeated(std::string_view text, std::size_t size);

// Whether WORKLOAD/LIST is run.
bool is_wanted(const std::string& row);

template <typename Run>
benchmark::internal::Benchmark* measure(const std::string& row,
                                        const std::string& contender, Run run) {
  return benchmark::RegisterBenchmark((row + "/" + contender).c_str(),
                                      [run](benchmark::State& state) mutable {
                                        for (auto _ : state)
                                          benchmark::DoNotOptimize(run());
                                      });
}

void register_links();
void register_file(const std::string& path);  // a list of the user's
void register_growth();
void register_codecs();

}  // namespace bench

#endif  // KORVANE_BENCH_BENCH_H_
