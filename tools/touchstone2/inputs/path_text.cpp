// The library opens long paths by itself; this is for the files that the tool opens.

#include "inputs/path_text.h"

#include <system_error>

namespace tool {

namespace fs = std::filesystem;

fs::path to_path(const std::string& text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

std::string to_text(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

#ifdef _WIN32
fs::path openable(const fs::path& path) {
  // The ordinary form ends at 259 units, and for folders 12 earlier.
  constexpr std::size_t kMostUnits = 247;
  std::error_code failure;
  const std::wstring full = fs::absolute(path, failure).make_preferred().wstring();
  if (failure || full.size() <= kMostUnits) return path;
  const bool is_marked = full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)");
  if (is_marked) return full;
  if (full.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + full.substr(2);
  return LR"(\\?\)" + full;
}
#else
fs::path openable(const fs::path& path) { return path; }
#endif

}  // namespace tool
