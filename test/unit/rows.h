// Tables of inputs and wanted answers, kept as text beside the tests.
//
// A table is what follows the line "[name]" in one of the files of rows/. Each
// further line is a row of fields: bare words, or "quoted" UTF-8 text in which
// \xHEX; stands for a unit by its number. "#" opens a comment line.
#ifndef KORVANE_TEST_UNIT_ROWS_H_
#define KORVANE_TEST_UNIT_ROWS_H_

#include <string>
#include <string_view>
#include <vector>

using Row = std::vector<std::wstring>;

// The rows of a table; none is a failure of the running test.
std::vector<Row> rows_of(std::string_view table);

// The number in a field; negative ones wrap.
unsigned long number(const std::wstring& field);

// A field that stands for bytes.
std::string bytes(const std::wstring& field);

#endif  // KORVANE_TEST_UNIT_ROWS_H_
