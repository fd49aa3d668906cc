// What is measured. Every benchmark is named WORKLOAD/LIST/CONTENDER.
#ifndef KORVANE_BENCH_BENCH_H_
#define KORVANE_BENCH_BENCH_H_

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
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

template <typename Unit>
std::basic_string<Unit> repeated(const std::basic_string<Unit>& text,
                                 std::size_t times) {
  std::basic_string<Unit> result;
  while (times-- != 0) result += text;
  return result;
}

template <typename Run>
benchmark::internal::Benchmark* measure(const std::string& row,
                                        const std::string& contender, Run run) {
  return benchmark::RegisterBenchmark((row + "/" + contender).c_str(),
                                      [run](benchmark::State& state) mutable {
                                        for (auto _ : state)
                                          benchmark::DoNotOptimize(run());
                                      });
}

// Lists of links: the user's file, or the built-in ones if there is none.
void register_links(const std::string& file);
void register_growth();
void register_codecs();

}  // namespace bench

#endif  // KORVANE_BENCH_BENCH_H_
