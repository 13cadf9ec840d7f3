/// Paths are UTF-8 text in the tool and std::filesystem paths where files are looked for. Where
/// a path is any bytes, the bytes pass unchanged.
#ifndef TOUCHSTONE2_TOOL_PATH_TEXT_H
#define TOUCHSTONE2_TOOL_PATH_TEXT_H

#include <filesystem>
#include <string>

namespace tool {

inline std::filesystem::path to_path(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

inline std::string to_text(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace tool

#endif
