// What is measured: one way to read or write one input.
#ifndef TOUCHSTONE2_BENCH_TASKS_H
#define TOUCHSTONE2_BENCH_TASKS_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "inputs.h"

namespace touchstone2::bench {

// The ways, in the order of the table's columns.
inline const std::vector<std::string> kReadWays = {"library", "L1", "L2"};
inline const std::vector<std::string> kWriteWays = {"library", "W1", "W2"};

struct Task {
  std::size_t bytes;  // read or written by one run
  std::function<void()> run;
};

// Opens and maps the files anew in each run, whatever the way.
Task make_read_task(const Input& input, const std::vector<std::string>& files,
                    const std::string& way);

// Reads the first file and keeps it; a run writes its network data, or all of it by the
// library, into a stream that drops them.
Task make_write_task(const Input& input, const std::vector<std::string>& files,
                     const std::string& way);

}  // namespace touchstone2::bench

#endif
