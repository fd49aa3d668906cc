#include "case_file.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "rows.h"

namespace {

void replace_all(std::string& text, const std::string& from,
                 const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

}  // namespace

std::vector<Case> read_cases(const std::string& file, const CaseNames& names) {
  std::ifstream in(TEST_DATA "/" + file);
  if (!in) throw std::runtime_error("cannot read " + file);
  std::vector<Case> cases;
  std::string rule;
  std::string frame = "@";
  for (std::string line; std::getline(in, line);) {
    const std::size_t arrow = line.find(" => ");
    if (line.rfind('[', 0) == 0) {
      rule = line + ' ';
    } else if (line.rfind("> ", 0) == 0) {
      frame = line.substr(2);
    } else if (arrow != std::string::npos) {
      std::string input = frame;
      replace_all(input, "@", line.substr(0, arrow));
      for (const auto& [name, text] : names) replace_all(input, name, text);
      cases.push_back({rule + line, units_of(input), line.substr(arrow + 4)});
    }
  }
  return cases;
}

std::string as_in_case(std::wstring_view text, const CaseNames& names) {
  constexpr std::size_t kShortestRun = 8;
  std::ostringstream out;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t end =
        std::min(text.find_first_not_of(text[i], i), text.size());
    const bool run = end - i >= kShortestRun;
    if (run) out << "\\*{" << std::dec << end - i << "}";
    const auto code = static_cast<unsigned>(static_cast<char32_t>(text[i]));
    if (code >= ' ' && code < 0x7F) {
      out << static_cast<char>(code);
    } else {
      out << "\\x{" << std::hex << std::uppercase << code << "}";
    }
    i = run ? end : i + 1;
  }
  std::string row = out.str();
  for (const auto& [name, known] : names) replace_all(row, known, name);
  return row;
}
