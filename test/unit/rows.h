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

#include <string>
#include <string_view>
#include <vector>

using Row = std::vector<std::wstring>;

// The rows of the table of that name; none is a failure of the running test.
std::vector<Row> rows_of(std::string_view name);

// The fields from the second on, with a blank between them.
std::wstring wanted(const Row& row);

// The number in a field; negative ones wrap.
unsigned long number(const std::wstring& field);

// A field that stands for bytes, or for text of either type.
std::string bytes(const std::wstring& field);

#endif  // KORVANE_TEST_UNIT_ROWS_H_
