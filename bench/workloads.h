// What is measured, by area.
#ifndef KORVANE_BENCH_WORKLOADS_H_
#define KORVANE_BENCH_WORKLOADS_H_

#include "contest.h"
#include "inputs.h"

namespace bench {

void run_urls(const Table& table);
void run_links(const Table& table);
void run_codecs(const Table& table);
void run_conversions(const Table& table);
void run_growth(const Table& table);

// The lines of a list: URLs, magnet links and ed2k links, each against the
// peers of its kind and the mildest goal of its kind. Lines that one of them
// does not take are left out of all of them, and counted on standard error.
void run_list(const Table& table, const Texts& lines);

}  // namespace bench

#endif  // KORVANE_BENCH_WORKLOADS_H_
