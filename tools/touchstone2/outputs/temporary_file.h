/// A file that stands beside its target until it is complete, and then takes its place.
///
/// One implementation for each kind of system; nothing else in the tool that writes files
/// knows which.
#ifndef TOUCHSTONE2_TOOL_TEMPORARY_FILE_H
#define TOUCHSTONE2_TOOL_TEMPORARY_FILE_H

#include <string>
#include <string_view>

namespace tool {

/// What becomes of a target that exists when the temporary file is to take its place.
enum class Existing { keep, replace };

/// At most one at a time. A signal that ends the process (interrupt, terminate, hang-up, quit)
/// removes it first.
class TemporaryFile {
 public:
  /// Creates an empty file of a name of its own in the folder of `target`. It has the
  /// permissions of the target if that exists, else those of any new file.
  /// @throws std::runtime_error  the reason that the system gives
  explicit TemporaryFile(const std::string& target);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// Removes the file unless it has taken the target's place.
  ~TemporaryFile();

  /// Writes the bytes to the medium, not just to the system, and closes the file.
  /// @throws std::runtime_error
  void write(std::string_view bytes);

  /// Takes the target's place in one step: whoever looks finds the old file or the new one.
  /// @throws std::runtime_error  also for a target that exists and is to be kept
  void take_place(Existing existing);

 private:
  void close();
  void discard();

  std::string target_;
  std::string name_;
#ifdef _WIN32
  void* handle_ = nullptr;
#else
  int descriptor_ = -1;
#endif
};

}  // namespace tool

#endif
