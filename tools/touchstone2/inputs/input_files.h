/// From the paths on the command line to the files to read.
#ifndef TOUCHSTONE2_TOOL_INPUT_FILES_H
#define TOUCHSTONE2_TOOL_INPUT_FILES_H

#include <string>
#include <string_view>
#include <vector>

namespace tool {

struct InputList {
  std::vector<std::string> paths;     ///< in the order to read them; "-" is standard input
  std::vector<std::string> problems;  ///< sentences about what could not be looked at
};

/// Replaces every folder by the Touchstone files below it, sorted by path. Everything else
/// stays as it is, also when there is no such file: reading it says so.
///
/// A folder without Touchstone files and one that cannot be read are problems; the rest is
/// listed all the same. Links to folders are followed only when named in `arguments`, so a
/// loop of links ends.
InputList expand_paths(const std::vector<std::string>& arguments);

/// True for NAME.ts and NAME.sDIGITSp, in any case of letters.
bool has_touchstone_ending(std::string_view file_name);

}  // namespace tool

#endif
