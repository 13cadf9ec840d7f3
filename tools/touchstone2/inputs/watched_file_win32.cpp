// Implementations of WatchedFile and PageFaultGuard for Windows, where the library keeps every
// writer out of a file that it reads: nothing can change.

#include <fstream>

#include "inputs/path_text.h"
#include "inputs/watched_file.h"

namespace tool {

struct WatchedFile::System {
  std::string name;
};

WatchedFile::WatchedFile(const std::string& name) : system_(std::make_unique<System>()) {
  system_->name = name;
}

WatchedFile::~WatchedFile() = default;

bool WatchedFile::has_changed() const { return false; }

std::string WatchedFile::read_at(std::uint64_t offset, std::size_t count) const {
  std::ifstream file(to_path(system_->name), std::ios::binary);
  file.seekg(static_cast<std::streamoff>(offset));
  std::string bytes(count, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(count));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

PageFaultGuard::PageFaultGuard(const std::string& /*name*/) {}

PageFaultGuard::~PageFaultGuard() = default;

bool PageFaultGuard::has_faulted() const { return false; }

}  // namespace tool
