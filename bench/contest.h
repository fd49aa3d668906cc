// Contenders that do the same work, measured in turns.
#ifndef KORVANE_BENCH_CONTEST_H_
#define KORVANE_BENCH_CONTEST_H_

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// Makes the compiler compute `value` and forget what it knows of memory.
template <typename Value>
void keep(const Value& value) {
  asm volatile("" : : "r"(&value) : "memory");
}

// One pass over all inputs, and the number of operations in it: a time is told
// for one operation.
struct Contender {
  std::string name;
  std::size_t operations;
  std::function<void()> pass;
};

// One input: run several times in a pass, so that what calls the pass counts
// for nothing.
template <typename Run>
Contender repeating(const std::string& name, Run run) {
  constexpr std::size_t kTimes = 16;
  return {name, kTimes, [run] {
            for (std::size_t i = 0; i < kTimes; ++i) keep(run());
          }};
}

struct Rival {
  Contender contender;
  double goal;  // ours divided by this one, at the most
};

class Table {
 public:
  // Only workloads that `filter` is a part of are run; all if it is empty.
  explicit Table(std::string filter) : filter_(std::move(filter)) {}

  // Prints a row for each rival: what ours takes, divided by what it takes.
  void compare(const std::string& workload, const Contender& ours,
               const std::vector<Rival>& rivals) const;

  // Prints one row: the worst of `growing`, divided by the first of them.
  void compare_growth(const std::string& workload,
                      const std::vector<Contender>& growing, double goal) const;

 private:
  bool leaves_out(const std::string& workload) const;

  std::string filter_;
};

}  // namespace bench

#endif  // KORVANE_BENCH_CONTEST_H_
