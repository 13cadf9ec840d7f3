// Runs one fuzz target over files without a fuzz engine: every file that the arguments name, and
// every file in the folders that they name. What was found once is thereby tested for ever, with
// every compiler.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "fuzz_support.h"

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> list_files(const std::vector<std::string>& names) {
  std::vector<fs::path> files;
  for (const std::string& name : names) {
    if (!fs::exists(name)) throw std::runtime_error("there is no " + name);
    if (!fs::is_directory(name)) files.emplace_back(name);
    if (!fs::is_directory(name)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(name)) {
      if (entry.is_regular_file() && entry.path().filename() != "README.md") {
        files.push_back(entry.path());
      }
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

// The bytes lie in an allocation of their very size, so that a byte too far is seen.
void run(const fs::path& file) {
  std::fprintf(stderr, "%s\n", file.string().c_str());
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  const touchstone2::fuzz::ExactBytes exact(bytes);
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(exact.text().data()),
                         exact.text().size());
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::vector<fs::path> files = list_files({argv + 1, argv + argc});
    for (const fs::path& file : files) run(file);
    std::printf("%zu files\n", files.size());
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
  }
}
