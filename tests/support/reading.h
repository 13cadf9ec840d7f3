// Reading a text in one line, and saying what is expected of it.
#ifndef TOUCHSTONE2_TESTS_SUPPORT_READING_H
#define TOUCHSTONE2_TESTS_SUPPORT_READING_H

#include <touchstone2/touchstone2.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/recording_handler.h"

namespace touchstone2::test {

enum class Extent { whole, header };

// What a read left behind. Owns the noise object, which no File does.
struct ReadResult {
  File file;
  bool ok;
  std::vector<Diagnostic> diagnostics;
  std::unique_ptr<const NoiseParams> noise;

  // "E2007 12:5 'foo'" each, in order.
  std::vector<std::string> brief_diagnostics() const {
    std::vector<std::string> lines;
    for (const Diagnostic& diagnostic : diagnostics) lines.push_back(brief(diagnostic));
    return lines;
  }

  const NetworkParams& params() const { return *file.get_network_params(); }

  // The pair of one cell as stored; indices from 0.
  std::pair<double, double> cell(std::size_t point, std::size_t row, std::size_t col) const {
    return params().cell(point, row, col).as_format(params().format());
  }
};

inline ReadResult read_text(std::string_view text, Extent extent = Extent::whole,
                            const std::string& name = "test.s2p") {
  ReadResult result{File(name), false, {}, nullptr};
  RecordingHandler handler;
  Parser parser(result.file, handler, text);
  result.ok = extent == Extent::whole ? parser.read_file() : parser.read_file_header();
  result.diagnostics = handler.diagnostics;
  result.noise.reset(result.file.get_noise_params());
  return result;
}

// A row of a table of texts: what reading it reports, in the form of brief_diagnostics.
struct TextCase {
  const char* name;
  std::string text;
  std::vector<std::string> expected;
};

inline void expect_diagnostics(const TextCase& row, Extent extent = Extent::whole) {
  SCOPED_TRACE(row.name);
  const ReadResult result = read_text(row.text, extent);
  EXPECT_EQ(result.brief_diagnostics(), row.expected) << row.text;
  const bool refused = !row.expected.empty() && row.expected.back()[0] == 'E';
  EXPECT_EQ(result.ok, !refused) << row.text;
}

}  // namespace touchstone2::test

#endif
