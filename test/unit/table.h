// What the unit tests share: tables of cases, one row a line,
//
//   const Table row = [](const Bytes& text, std::size_t want) {
//     EXPECT_EQ(text.size(), want);
//   };
//   row("", 0);
//   row("abc", 3);
//
// A failure names the file and the line of its row, and shows the row.
#ifndef KORVANE_TEST_UNIT_TABLE_H_
#define KORVANE_TEST_UNIT_TABLE_H_

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "exact_copy.h"

using namespace std::string_literals;
using Bytes = std::string;
using Text = std::wstring;

template <typename Function>
class Table;

template <typename... Fields>
class Table<std::function<void(Fields...)>> {
 public:
  template <typename Test>
  Table(Test test, const char* file = __builtin_FILE())
      : test_(std::move(test)), file_(file) {}

  void operator()(const std::decay_t<Fields>&... fields,
                  int line = __builtin_LINE()) const {
    const std::tuple<std::decay_t<Fields>...> row(fields...);
    const testing::ScopedTrace trace(file_, line, testing::PrintToString(row));
    test_(fields...);
  }

 private:
  std::function<void(Fields...)> test_;
  const char* file_;
};

template <typename Test>
Table(Test) -> Table<decltype(std::function(std::declval<Test>()))>;

#endif  // KORVANE_TEST_UNIT_TABLE_H_
