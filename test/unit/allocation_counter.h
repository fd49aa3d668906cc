// Counts the allocations of a stretch of code and makes one of them fail.
// Linking allocation_counter.cc replaces the program's operator new and delete;
// counts are those of the calling thread.
#ifndef KORVANE_TEST_UNIT_ALLOCATION_COUNTER_H_
#define KORVANE_TEST_UNIT_ALLOCATION_COUNTER_H_

#include <cstddef>

// Counts while it lives; only one may live at a time.
class AllocationCounter {
 public:
  // Lets the `failing`-th allocation from now on throw std::bad_alloc; 0: none.
  explicit AllocationCounter(std::size_t failing = 0);
  ~AllocationCounter();
  AllocationCounter(const AllocationCounter&) = delete;
  AllocationCounter& operator=(const AllocationCounter&) = delete;

  // How many allocations were asked for, the failed one included.
  static std::size_t count();
};

template <typename Call>
std::size_t allocations_of(Call call) {
  const AllocationCounter counter;
  call();
  return counter.count();
}

// Runs `call` with its first allocation failing, then with its second, and so
// on until none fails; `check` sees the answer of each run that ran out of
// memory. Returns how many those were.
template <typename Call, typename Check>
std::size_t fail_each_allocation(Call call, Check check) {
  for (std::size_t failing = 1;; ++failing) {
    decltype(call()) answer{};
    std::size_t asked_for = 0;
    {
      const AllocationCounter counter(failing);
      answer = call();
      asked_for = counter.count();
    }
    if (asked_for < failing) return failing - 1;
    check(answer);
  }
}

#endif  // KORVANE_TEST_UNIT_ALLOCATION_COUNTER_H_
