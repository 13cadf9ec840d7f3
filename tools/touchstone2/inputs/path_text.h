/// Paths are UTF-8 text in the tool and std::filesystem paths where files are looked for. Where
/// a path is any bytes, the bytes pass unchanged.
#ifndef TOUCHSTONE2_TOOL_PATH_TEXT_H
#define TOUCHSTONE2_TOOL_PATH_TEXT_H

#include <filesystem>
#include <string>

namespace tool {

std::filesystem::path to_path(const std::string& text);
std::string to_text(const std::filesystem::path& path);

/// The same file by a name that the system takes at any length. On Windows a long path has to
/// be absolute and marked; everything else stays as it is. For the system only: names that are
/// shown stay as they were given.
std::filesystem::path openable(const std::filesystem::path& path);

}  // namespace tool

#endif
