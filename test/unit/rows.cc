#include "rows.h"

#include <gtest/gtest.h>

#include <fstream>

#include "text/utf8.h"

namespace {

// Takes one field off the start of `line`.
std::wstring take_field(std::wstring_view& line) {
  const bool is_quoted = line.front() == L'"';
  if (is_quoted) line.remove_prefix(1);
  const std::size_t end = line.find(is_quoted ? L'"' : L' ');
  std::wstring_view text = line.substr(0, end);
  line.remove_prefix(text.size() + (end == std::wstring_view::npos ? 0 : 1));
  line.remove_prefix(std::min(line.find_first_not_of(L' '), line.size()));
  std::wstring field;
  for (std::size_t escape; (escape = text.find(L"\\x")) < text.size();) {
    const std::size_t semicolon = text.find(L';', escape);
    const std::wstring code(text.substr(escape + 2, semicolon - escape - 2));
    field += text.substr(0, escape);
    field += static_cast<wchar_t>(std::stoul(code, nullptr, 16));
    text.remove_prefix(semicolon + 1);
  }
  return field.append(text);
}

Row row_of(const std::string& line) {
  std::wstring wide;
  EXPECT_TRUE(qk::text::decode_utf8(line, wide)) << line;
  Row row;
  for (std::wstring_view rest = wide; !rest.empty();) {
    row.push_back(take_field(rest));
  }
  return row;
}

}  // namespace

std::vector<Row> rows_of(std::string_view table) {
  std::vector<Row> rows;
  for (const char* file : {"/text.txt", "/url.txt"}) {
    std::ifstream lines(std::string(TEST_ROWS) + file);
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
