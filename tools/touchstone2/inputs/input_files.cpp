// Folder walks: one folder that cannot be read must not end the walk.

#include "inputs/input_files.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "inputs/folder.h"
#include "inputs/path_text.h"

namespace tool {

namespace {

namespace fs = std::filesystem;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::vector<fs::path> list_tree(const fs::path& top, std::vector<std::string>& problems) {
  std::vector<fs::path> files;
  std::vector<fs::path> folders{top};
  while (!folders.empty()) {
    const fs::path folder = std::move(folders.back());
    folders.pop_back();
    const FolderEntries entries = list_folder(folder);
    for (const fs::path& name : entries.folders) folders.push_back(folder / name);
    for (const fs::path& name : entries.files) {
      if (has_touchstone_ending(to_text(name))) files.push_back(folder / name);
    }
    if (entries.failure) {
      problems.push_back("cannot read folder '" + to_text(folder) +
                         "': " + entries.failure.message());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

void expand_folder(const std::string& argument, InputList& list) {
  const std::size_t problems_before = list.problems.size();
  const std::vector<fs::path> files = list_tree(to_path(argument), list.problems);
  for (const fs::path& file : files) list.paths.push_back(to_text(file));
  if (files.empty() && list.problems.size() == problems_before) {
    list.problems.push_back("no Touchstone files in folder '" + argument + "'");
  }
}

}  // namespace

InputList expand_paths(const std::vector<std::string>& arguments) {
  InputList list;
  for (const std::string& argument : arguments) {
    if (argument != "-" && is_folder(to_path(argument))) {
      expand_folder(argument, list);
    } else {
      list.paths.push_back(argument);
    }
  }
  return list;
}

bool has_touchstone_ending(std::string_view file_name) {
  const std::size_t dot = file_name.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return false;
  std::string ending(file_name.substr(dot + 1));
  std::transform(ending.begin(), ending.end(), ending.begin(), to_lower);
  if (ending == "ts") return true;
  return ending.size() >= 3 && ending.front() == 's' && ending.back() == 'p' &&
         std::all_of(ending.begin() + 1, ending.end() - 1, is_digit);
}

}  // namespace tool
