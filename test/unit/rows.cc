#include "rows.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <map>
#include <sstream>

#include "text/utf8.h"

namespace {

struct Table {
  std::vector<Row> rows;
  std::map<std::string, std::string> names;
  std::string frame = "@";
};

std::string replaced(std::string text, const std::string& from,
                     const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

// Reads what stands in braces at `position` and moves past it.
unsigned long take_braced(const std::wstring& text, std::size_t& position,
                          int base) {
  const unsigned long braced =
      std::stoul(text.substr(position + 3), nullptr, base);
  position = text.find(L'}', position) + 1;
  return braced;
}

std::wstring units_of(std::string text, const Table& table) {
  for (const auto& [name, known] : table.names) {
    text = replaced(text, name, known);
  }
  std::wstring source;
  EXPECT_TRUE(qk::text::decode_utf8(text, source)) << text;
  std::wstring units;
  for (std::size_t i = 0; i < source.size();) {
    const bool many = source.compare(i, 3, L"\\*{") == 0;
    const unsigned long times = many ? take_braced(source, i, 10) : 1;
    const bool coded = source.compare(i, 3, L"\\x{") == 0;
    units.append(times, coded ? static_cast<wchar_t>(take_braced(source, i, 16))
                              : source[i++]);
  }
  return units;
}

// Adds the rows of a line: one for each input where there is a "=>".
void add_rows(Table& table, const std::string& line) {
  std::istringstream words(line + " ;");
  std::vector<std::string> inputs;
  std::vector<std::string> fields;
  for (std::string word; words >> std::quoted(word, '"', '\0');) {
    if (word == "=>") {
      inputs.swap(fields);
      continue;
    }
    if (word != ";") {
      fields.push_back(word);
      continue;
    }
    if (inputs.empty()) {
      inputs.push_back(fields.front());
      fields.erase(fields.begin());
    }
    for (const std::string& input : inputs) {
      Row row = {units_of(replaced(table.frame, "@", input), table)};
      for (const std::string& field : fields) {
        row.push_back(units_of(replaced(field, "$in", input), table));
      }
      table.rows.push_back(row);
    }
    inputs.clear();
    fields.clear();
  }
}

void read_file(Table& table, std::string_view name, const std::string& path) {
  std::ifstream lines(TEST_DATA + path);
  table.names.clear();
  bool is_inside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line.front() == '#') continue;
    if (line.front() == '[') {
      is_inside = line.substr(1, line.size() - 2) == name;
    } else if (line.front() == '$') {
      const std::size_t blank = line.find(' ');
      table.names[line.substr(0, blank)] = line.substr(blank + 1);
    } else if (is_inside && line.compare(0, 2, "> ") == 0) {
      table.frame = line.substr(2);
    } else if (is_inside) {
      add_rows(table, line);
    }
  }
}

}  // namespace

std::vector<Row> rows_of(std::string_view name) {
  Table table;
  for (const char* file :
       {"/url_rows.txt", "/ed2k_links.txt", "/magnet_links.txt"}) {
    read_file(table, name, file);
  }
  EXPECT_FALSE(table.rows.empty()) << name;
  return table.rows;
}

unsigned long number(const std::wstring& field) {
  return field == L"nowhere" ? std::wstring::npos
                             : std::stoul(field, nullptr, 0);
}

std::string bytes(const std::wstring& field) {
  std::string narrow;
  for (const wchar_t unit : field) narrow += static_cast<char>(unit);
  return narrow;
}

std::wstring units(std::string_view bytes) {
  std::wstring wide;
  for (const char byte : bytes) wide += static_cast<unsigned char>(byte);
  return wide;
}
