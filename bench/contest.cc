#include "contest.h"

#include <time.h>

#include <algorithm>
#include <cstdio>

namespace bench {
namespace {

constexpr int kRounds = 15;
constexpr double kTurn = 4e6;  // nanoseconds
constexpr std::size_t kMostPasses = 1'000'000;

// This thread's time on the processor: what else the machine does counts less.
double nanoseconds_used() {
  timespec used{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) * 1e9 +
         static_cast<double>(used.tv_nsec);
}

double time_of(const Contender& contender, std::size_t passes) {
  const double begin = nanoseconds_used();
  for (std::size_t i = 0; i < passes; ++i) contender.pass();
  return nanoseconds_used() - begin;
}

// How many passes fill a turn; warms the contender up.
std::size_t passes_in_turn(const Contender& contender) {
  std::size_t passes = 1;
  while (passes < kMostPasses && time_of(contender, passes) < kTurn / 2) {
    passes *= 2;
  }
  return passes;
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// Nanoseconds for one operation, by contender and round. Every second round
// runs backwards, so that nobody always follows the same neighbour.
using Times = std::vector<std::vector<double>>;

Times take_turns(const std::vector<Contender>& contenders) {
  std::vector<std::size_t> passes;
  passes.reserve(contenders.size());
  for (const Contender& contender : contenders) {
    passes.push_back(passes_in_turn(contender));
  }
  Times times(contenders.size(), std::vector<double>(kRounds));
  for (std::size_t round = 0; round < kRounds; ++round) {
    for (std::size_t turn = 0; turn < contenders.size(); ++turn) {
      const std::size_t i =
          round % 2 == 0 ? turn : contenders.size() - 1 - turn;
      const auto operations =
          static_cast<double>(passes[i] * contenders[i].operations);
      times[i][round] = time_of(contenders[i], passes[i]) / operations;
    }
  }
  return times;
}

std::vector<double> ratios(const std::vector<double>& ours,
                           const std::vector<double>& theirs) {
  std::vector<double> result(ours.size());
  std::transform(ours.begin(), ours.end(), theirs.begin(), result.begin(),
                 [](double our, double their) { return our / their; });
  return result;
}

void print_row(const std::string& workload, double ours,
               const std::string& rival, double theirs, double ratio,
               double goal) {
  std::printf("%s\t%.2f\t%s\t%.2f\t%.3f\t%.2f\n", workload.c_str(), ours,
              rival.c_str(), theirs, ratio, goal);
  std::fflush(stdout);
}

}  // namespace

bool Table::leaves_out(const std::string& workload) const {
  return workload.find(filter_) == std::string::npos;
}

void Table::compare(const std::string& workload, const Contender& ours,
                    const std::vector<Rival>& rivals) const {
  if (leaves_out(workload)) return;
  std::vector<Contender> contenders = {ours};
  for (const Rival& rival : rivals) contenders.push_back(rival.contender);
  const Times times = take_turns(contenders);
  for (std::size_t i = 0; i < rivals.size(); ++i) {
    print_row(workload, median(times[0]), rivals[i].contender.name,
              median(times[i + 1]), median(ratios(times[0], times[i + 1])),
              rivals[i].goal);
  }
}

void Table::compare_growth(const std::string& workload,
                           const std::vector<Contender>& growing,
                           double goal) const {
  if (leaves_out(workload)) return;
  const Times times = take_turns(growing);
  std::size_t worst = 1;
  double worst_ratio = 0;
  for (std::size_t i = 1; i < growing.size(); ++i) {
    const double ratio = median(ratios(times[i], times[0]));
    if (ratio <= worst_ratio) continue;
    worst = i;
    worst_ratio = ratio;
  }
  print_row(workload + ", " + growing[worst].name, median(times[worst]),
            growing[0].name, median(times[0]), worst_ratio, goal);
}

}  // namespace bench
