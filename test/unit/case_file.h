// Tables of inputs and what is wanted for them, read from files in test/data.
//
//   # a comment
//   [a rule]          a group of rows
//   > text@more       where the inputs below stand, until the next such line
//   input => wanted
//
// Inputs are read as units_of reads them; "$name" is a text from `names`.
#ifndef KORVANE_TEST_UNIT_CASE_FILE_H_
#define KORVANE_TEST_UNIT_CASE_FILE_H_

#include <map>
#include <string>
#include <string_view>
#include <vector>

struct Case {
  std::string row;  // as it stands in the file, after its rule
  std::wstring input;
  std::string want;
};

using CaseNames = std::map<std::string, std::string>;

std::vector<Case> read_cases(const std::string& file, const CaseNames& names);

// Text as a row holds it.
std::string as_in_case(std::wstring_view text, const CaseNames& names);

#endif  // KORVANE_TEST_UNIT_CASE_FILE_H_
