// Generated inputs, the same bytes for the same seed. None of them is committed.
#ifndef TOUCHSTONE2_BENCH_INPUTS_H
#define TOUCHSTONE2_BENCH_INPUTS_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace touchstone2::bench {

// One kind of file.
struct Input {
  const char* name;  // as on the command line and in the table
  const char* description;
  bool version_2;
  bool upper;          // [Matrix Format] Upper
  const char* format;  // MA or RI
  std::size_t ports;
  std::size_t points;
  int digits;         // significant digits of every value
  std::size_t files;  // how many of them are read in one go

  std::size_t pairs() const { return upper ? ports * (ports + 1) / 2 : ports * ports; }
};

const std::vector<Input>& inputs();

// Null for an unknown name.
const Input* find_input(const std::string& name);

std::string make_text(const Input& input, unsigned seed);

// The input's files below `folder`, made if they are not there.
std::vector<std::string> make_files(const Input& input, const std::filesystem::path& folder);

}  // namespace touchstone2::bench

#endif
