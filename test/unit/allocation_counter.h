// Counts the allocations of a stretch of code and makes one of them fail.
// Linking allocation_counter.cc replaces the program's operator new and delete.
#ifndef KORVANE_TEST_UNIT_ALLOCATION_COUNTER_H_
#define KORVANE_TEST_UNIT_ALLOCATION_COUNTER_H_

#include <cstddef>

// Of the calling thread: how many there were, the failed one included, and
// which throws std::bad_alloc; 0: none.
extern thread_local std::size_t allocations;
extern thread_local std::size_t failing_allocation;

template <typename Call>
std::size_t allocations_of(Call call) {
  allocations = 0;
  call();
  return allocations;
}

// Runs `call` with its first allocation failing, then with its second, and so
// on until none fails; `check` sees the answer of each run that ran out of
// memory. Returns how many those were.
template <typename Call, typename Check>
std::size_t fail_each_allocation(Call call, Check check) {
  for (std::size_t failing = 1;; ++failing) {
    failing_allocation = failing;
    decltype(call()) answer{};
    const std::size_t asked_for = allocations_of([&] { answer = call(); });
    failing_allocation = 0;
    if (asked_for < failing) return failing - 1;
    check(answer);
  }
}

#endif  // KORVANE_TEST_UNIT_ALLOCATION_COUNTER_H_
