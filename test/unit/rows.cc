#include "rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "text/utf8.h"

namespace {

// Reads what stands in braces at `position` and moves past it.
unsigned long take_braced(const std::wstring& text, std::size_t& position,
                          int base) {
  const unsigned long braced =
      std::stoul(text.substr(position + 1), nullptr, base);
  position = text.find(L'}', position) + 1;
  return braced;
}

// Takes one field off the start of `line`.
std::wstring take_field(std::string_view& line) {
  const bool is_quoted = line.front() == '"';
  if (is_quoted) line.remove_prefix(1);
  const std::string_view field =
      line.substr(0, line.find(is_quoted ? '"' : ' '));
  line.remove_prefix(std::min(field.size() + 1, line.size()));
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  return units_of(std::string(field));
}

Row row_of(std::string_view line) {
  Row row;
  while (!line.empty()) row.push_back(take_field(line));
  return row;
}

}  // namespace

std::wstring units_of(const std::string& text) {
  std::wstring source;
  EXPECT_TRUE(qk::text::decode_utf8(text, source)) << text;
  std::wstring units;
  unsigned long times = 1;
  for (std::size_t i = 0; i < source.size();) {
    if (source.compare(i, 3, L"\\*{") == 0) {
      times = take_braced(source, i += 2, 10);
      continue;
    }
    const bool coded = source.compare(i, 3, L"\\x{") == 0;
    units.append(times,
                 coded ? static_cast<wchar_t>(take_braced(source, i += 2, 16))
                       : source[i++]);
    times = 1;
  }
  return units;
}

std::vector<Row> rows_of(std::string_view table) {
  std::vector<Row> rows;
  for (const char* file : {"/text_rows.txt", "/url_rows.txt"}) {
    std::ifstream lines(std::string(TEST_DATA) + file);
    bool is_inside = false;
    for (std::string line; std::getline(lines, line);) {
      if (line.empty() || line.front() == '#') continue;
      if (line.front() != '[') {
        if (is_inside) rows.push_back(row_of(line));
      } else {
        is_inside = line.substr(1, line.size() - 2) == table;
      }
    }
  }
  EXPECT_FALSE(rows.empty()) << table;
  return rows;
}

unsigned long number(const std::wstring& field) {
  return std::stoul(field, nullptr, 0);
}

std::string bytes(const std::wstring& field) {
  std::string narrow;
  for (const wchar_t unit : field) narrow += static_cast<char>(unit);
  return narrow;
}
