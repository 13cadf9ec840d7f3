// POSIX implementation of the folders, with std::filesystem and error codes only: what cannot
// be looked at is told and not thrown.

#include "inputs/folder.h"

namespace tool {

namespace fs = std::filesystem;

FolderEntries list_folder(const fs::path& folder) {
  FolderEntries entries;
  fs::directory_iterator entry(folder, entries.failure);
  for (; !entries.failure && entry != fs::directory_iterator(); entry.increment(entries.failure)) {
    std::error_code ignored;
    if (fs::is_directory(entry->symlink_status(ignored))) {
      entries.folders.push_back(entry->path().filename());
    } else if (!entry->is_directory(ignored)) {
      entries.files.push_back(entry->path().filename());
    }
  }
  return entries;
}

bool is_folder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

}  // namespace tool
