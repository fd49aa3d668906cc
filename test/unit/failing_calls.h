// Counts the calls that ask for memory or for a conversion, and makes one of
// them fail. Linking failing_calls.cc replaces the program's operator new and
// delete; the linker has to wrap iconv_open, iconv and iconv_close. All numbers
// are those of the calling thread.
#ifndef KORVANE_TEST_UNIT_FAILING_CALLS_H_
#define KORVANE_TEST_UNIT_FAILING_CALLS_H_

#include <cstddef>
#include <optional>

enum class Call { kNew, kIconvOpen, kIconv };

// Counts while it lives; only one may live at a time.
class CallCounter {
 public:
  // Lets the `failing`-th call of this kind from now on fail; 0: none.
  explicit CallCounter(Call kind, std::size_t failing = 0);
  ~CallCounter();
  CallCounter(const CallCounter&) = delete;
  CallCounter& operator=(const CallCounter&) = delete;

  // How many of this kind there were, the failed one included.
  static std::size_t count();
};

// How many more blocks of memory and converters this thread took than it gave
// back; another thread may do either.
std::ptrdiff_t held();

template <typename Function>
std::size_t allocations_of(Function function) {
  const CallCounter counter(Call::kNew);
  function();
  return counter.count();
}

// Runs `function` with its first call of `kind` failing, then with its second,
// and so on until none fails; `check` sees the answer of each run in which one
// did, and what more was held after it. Returns how many those were.
template <typename Function, typename Check>
std::size_t fail_each(Call kind, Function function, Check check) {
  for (std::size_t failing = 1;; ++failing) {
    std::optional<decltype(function())> answer;
    std::size_t asked_for = 0;
    const std::ptrdiff_t held_before = held();
    {
      const CallCounter counter(kind, failing);
      answer = function();
      asked_for = counter.count();
    }
    if (asked_for < failing) return failing - 1;
    check(*answer, held() - held_before);
  }
}

#endif  // KORVANE_TEST_UNIT_FAILING_CALLS_H_
