/// Folders as a walk sees them. One implementation for each kind of system: the runtime
/// libraries of some compilers for Windows cannot list a folder whose path is long.
#ifndef TOUCHSTONE2_TOOL_FOLDER_H
#define TOUCHSTONE2_TOOL_FOLDER_H

#include <filesystem>
#include <system_error>
#include <vector>

namespace tool {

struct FolderEntries {
  std::vector<std::filesystem::path> files;    ///< everything that is no folder
  std::vector<std::filesystem::path> folders;  ///< without links to folders
  std::error_code failure;                     ///< set when not everything could be listed
};

/// Names without the folder's own, in no order.
FolderEntries list_folder(const std::filesystem::path& folder);

/// Links are followed. False also for what cannot be looked at.
bool is_folder(const std::filesystem::path& path);

}  // namespace tool

#endif
