// Tables of inputs and wanted answers, kept as text beside the tests.
//
//   # a comment
//   $name text          "$name" stands for that text in the rows below
//   [table]             what follows, in test/data, until the next such line
//   > a@c               where the first fields of rows stand: "b" as "abc"
//   field "a field" ; field field
//                       rows; ";" divides those of one line
//   input input => want one row for each input, with what is wanted for all;
//                       "$in" is the input
//
// "\x{1F600}" is a unit by its number, "\*{40}" means 40 of the unit behind it.
#ifndef KORVANE_TEST_UNIT_ROWS_H_
#define KORVANE_TEST_UNIT_ROWS_H_

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

using Row = std::vector<std::wstring>;

// The rows of the table of that name; none is a failure of the running test.
std::vector<Row> rows_of(std::string_view name);

// The number in a field; negative ones wrap, "nowhere" is npos.
unsigned long number(const std::wstring& field);

// A field that stands for bytes, or for text of either type.
std::string bytes(const std::wstring& field);

// Bytes as units of the same numbers.
std::wstring units(std::string_view bytes);

// A field as a value: bytes, text, a number, or whether it is "yes".
template <typename Value>
Value read(const std::wstring& field) {
  if constexpr (std::is_same_v<Value, bool>) {
    return field == L"yes";
  } else if constexpr (std::is_same_v<Value, double>) {
    return std::stod(field);
  } else if constexpr (std::is_integral_v<Value> || std::is_enum_v<Value>) {
    return static_cast<Value>(number(field));
  } else if constexpr (std::is_constructible_v<Value, std::string>) {
    return Value(bytes(field));
  } else {
    return Value(field);
  }
}

// The first of several values that must be the same.
template <typename Value, typename... Values>
Value agreed(const Value& first, const Values&... others) {
  const auto expect = [&](const auto& other) { EXPECT_EQ(first, other); };
  (expect(others), ...);
  return first;
}

// Compares an answer with the fields of a row from `place` on.
template <typename Answer>
void expect_answer(const Row& row, std::size_t place, const Answer& answer) {
  EXPECT_EQ(read<Answer>(row.at(place)), answer);
}
inline void expect_answer(const Row& row, std::size_t place,
                          const Row& answer) {
  EXPECT_EQ(Row(row.begin() + static_cast<std::ptrdiff_t>(place), row.end()),
            answer);
}
template <typename... Answers>
void expect_answer(const Row& row, std::size_t place,
                   const std::tuple<Answers...>& answers) {
  const auto expect_next = [&](const auto& answer) {
    expect_answer(row, place++, answer);
  };
  std::apply([&](const auto&... each) { (expect_next(each), ...); }, answers);
}

template <typename... Fields, typename Function, std::size_t... kPlaces>
void check_row(const Row& row, Function function,
               std::index_sequence<kPlaces...> /*places*/) {
  SCOPED_TRACE(testing::PrintToString(row));
  expect_answer(row, sizeof...(Fields),
                function(read<Fields>(row.at(kPlaces))...));
}

// Whether a function, given the first fields of each row of a table, answers
// what stands in the others.
template <typename... Fields, typename Function>
void check(std::string_view table, Function function) {
  for (const Row& row : rows_of(table)) {
    check_row<Fields...>(row, function, std::index_sequence_for<Fields...>());
  }
}

#endif  // KORVANE_TEST_UNIT_ROWS_H_
