// Tables of inputs and wanted answers, kept as text beside the tests.
//
// A table is what follows the line "[name]" in test/data/*_rows.txt. Each
// further line is a row of fields: bare words, or "quoted" text as units_of
// reads it. "#" opens a comment line.
#ifndef KORVANE_TEST_UNIT_ROWS_H_
#define KORVANE_TEST_UNIT_ROWS_H_

#include <string>
#include <string_view>
#include <vector>

using Row = std::vector<std::wstring>;

// What UTF-8 text stands for: "\x{1F600}" is a unit by its number, "\*{40}"
// means 40 of the unit behind it.
std::wstring units_of(const std::string& text);

// The rows of a table; none is a failure of the running test.
std::vector<Row> rows_of(std::string_view table);

// The number in a field; negative ones wrap.
unsigned long number(const std::wstring& field);

// A field that stands for bytes.
std::string bytes(const std::wstring& field);

#endif  // KORVANE_TEST_UNIT_ROWS_H_
