// Files that a test leaves nothing of.
#ifndef TOUCHSTONE2_TESTS_SUPPORT_TEMP_FILE_H
#define TOUCHSTONE2_TESTS_SUPPORT_TEMP_FILE_H

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace touchstone2::test {

// Names are UTF-8 in the tests as in the library; these two work in C++17 and C++20 alike.
inline std::filesystem::path to_path(const std::string& utf8) {
#ifdef __cpp_char8_t
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
#else
  return std::filesystem::u8path(utf8);
#endif
}

inline std::string to_utf8(const std::filesystem::path& path) {
  const auto text = path.u8string();
  return std::string(text.begin(), text.end());
}

// A fresh folder, removed with everything in it.
class TempFolder {
 public:
  TempFolder() : path_(std::filesystem::temp_directory_path() / unique_name()) {
    std::filesystem::create_directories(path_);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }

  // Writes a file into the folder and returns its path in UTF-8.
  std::string write(const std::string& name, std::string_view bytes) const {
    const std::filesystem::path path = path_ / to_path(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return to_utf8(path);
  }

 private:
  static std::string unique_name() {
    static std::atomic<unsigned> count{0};
    return "touchstone2-test-" + std::to_string(std::random_device{}()) + "-" +
           std::to_string(count++);
  }

  std::filesystem::path path_;
};

// One file in a folder of its own.
class TempFile {
 public:
  explicit TempFile(std::string_view bytes, const std::string& name = "test.s2p")
      : name_(folder_.write(name, bytes)) {}

  const std::string& name() const { return name_; }

 private:
  TempFolder folder_;
  std::string name_;
};

}  // namespace touchstone2::test

#endif
