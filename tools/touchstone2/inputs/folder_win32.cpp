// Win32 implementation of the folders.

#include <windows.h>

#include "inputs/folder.h"
#include "inputs/path_text.h"

namespace tool {

namespace fs = std::filesystem;

namespace {

std::error_code last_error() {
  return {static_cast<int>(::GetLastError()), std::system_category()};
}

void add(const WIN32_FIND_DATAW& found, FolderEntries& entries) {
  const fs::path name = found.cFileName;
  if (name == L"." || name == L"..") return;
  const bool is_directory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  const bool is_link = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                       (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK ||
                        found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
  if (!is_directory) {
    entries.files.push_back(name);
  } else if (!is_link) {
    entries.folders.push_back(name);
  }
}

}  // namespace

FolderEntries list_folder(const fs::path& folder) {
  FolderEntries entries;
  WIN32_FIND_DATAW found;
  const HANDLE search = ::FindFirstFileW(openable(folder / L"*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    entries.failure = last_error();
    return entries;
  }
  do {
    add(found, entries);
  } while (::FindNextFileW(search, &found) != 0);
  if (::GetLastError() != ERROR_NO_MORE_FILES) entries.failure = last_error();
  ::FindClose(search);
  return entries;
}

bool is_folder(const fs::path& path) {
  const DWORD attributes = ::GetFileAttributesW(openable(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace tool
