/// Everything that two files differ in, as data.
#ifndef TOUCHSTONE2_TOOL_COMPARISON_H
#define TOUCHSTONE2_TOOL_COMPARISON_H

#include <touchstone2/model/file.h>

#include "comparison/data.h"
#include "comparison/facts.h"
#include "comparison/numbers.h"

namespace tool {

struct Comparison {
  FactDifferences content;
  FactDifferences form;
  FactDifferences comments;
  DataDifferences network;
  DataDifferences noise;

  bool same_content() const { return content.empty() && network.empty() && noise.empty(); }
  bool same_form() const { return form.empty() && comments.empty(); }
};

/// Compares two valid files: in time that grows with their sizes, without copies of the data.
Comparison compare(const touchstone2::File& a, const touchstone2::File& b,
                   const Tolerance& tolerance);

}  // namespace tool

#endif
