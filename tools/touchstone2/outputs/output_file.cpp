// Everything about output files but what the systems do differently.

#include "outputs/output_file.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "inputs/path_text.h"
#include "terminal/console.h"

namespace tool {

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;

// The file at the end of a chain of symbolic links. It need not exist.
fs::path resolved(const std::string& path) {
  fs::path target = to_path(path);
  std::error_code failure;
  for (int links = 0; fs::is_symlink(fs::symlink_status(openable(target), failure)); ++links) {
    if (links == kMostLinks) throw std::runtime_error("'" + path + "' is a loop of links");
    const fs::path next = fs::read_symlink(openable(target), failure);
    if (failure) throw std::runtime_error("cannot read '" + path + "': " + failure.message());
    target = target.parent_path() / next;  // an absolute one stands alone
  }
  return target;
}

}  // namespace

void check_output(const std::string& path, Existing existing) {
  if (path == "-") return;
  if (path.empty()) throw std::runtime_error("the output has no name");
  std::error_code ignored;
  const fs::file_status status = fs::status(openable(resolved(path)), ignored);
  if (!fs::exists(status)) return;
  if (!fs::is_regular_file(status)) {
    throw std::runtime_error("'" + path + "' is not an ordinary file");
  }
  if (existing == Existing::keep) {
    throw std::runtime_error("'" + path + "' exists; --force replaces it");
  }
}

void put_output(const std::string& path, std::string_view bytes, Existing existing) {
  if (path == "-") return write_output(bytes);
  check_output(path, existing);
  TemporaryFile file(to_text(resolved(path)));
  file.write(bytes);
  file.take_place(existing);
}

}  // namespace tool
