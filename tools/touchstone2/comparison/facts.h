/// What differs between two files besides their data: options, keywords, names, comments.
#ifndef TOUCHSTONE2_TOOL_FACTS_H
#define TOUCHSTONE2_TOOL_FACTS_H

#include <touchstone2/model/file.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// One thing that the files say differently.
struct FactDifference {
  std::string_view what;   ///< "unit", "port name", ...
  std::size_t number = 0;  ///< of the port or the comment line, from 1; 0: neither
  std::string a;           ///< bytes of the file: any encoding
  std::string b;
};

/// Of lists (names, references, comments) the first few; the others are counted.
struct FactDifferences {
  std::vector<FactDifference> shown;
  std::size_t not_shown = 0;

  bool empty() const { return shown.empty(); }
};

/// What makes it another network: ports, parameter, reference impedances, mixed mode, names.
/// @param tolerance  of reference impedances, relative to the greater one
FactDifferences compare_content(const touchstone2::File& a, const touchstone2::File& b,
                                double tolerance);

/// What is only another way to write the same: version, unit, format, order and so on; of Y-, Z-,
/// H- and G-parameters without noise data the reference impedance, too.
FactDifferences compare_form(const touchstone2::File& a, const touchstone2::File& b);

/// The comments at the head, line by line, each with its mark.
FactDifferences compare_comments(const touchstone2::File& a, const touchstone2::File& b);

/// Whether a cell of one file's matrices means the same as that cell of the other's.
bool have_same_cells(const touchstone2::File& a, const touchstone2::File& b);

}  // namespace tool

#endif
