// Contenders that read one text at a time.
#ifndef KORVANE_BENCH_READERS_H_
#define KORVANE_BENCH_READERS_H_

#include <string>
#include <vector>

#include "contest.h"
#include "inputs.h"

namespace bench {

struct Reader {
  std::string name;
  bool (*read)(const Text&);  // whether it took the text
  double goal = 0;            // of a rival
};

Texts taken_by_all(const Texts& texts, const std::vector<Reader>& readers);

// The first reader is ours. Ends the program if one of them does not take one
// of the texts: the contest would not be equal.
void compare_readers(const Table& table, const std::string& workload,
                     const Texts& texts, const std::vector<Reader>& readers);

// All readers of URLs, of their file names and of links, ours first.
std::vector<Reader> url_readers(double http_parser_goal);
std::vector<Reader> file_name_readers(double boost_goal);
std::vector<Reader> magnet_readers();
std::vector<Reader> magnet_class_readers();
std::vector<Reader> ed2k_readers();

}  // namespace bench

#endif  // KORVANE_BENCH_READERS_H_
