/// One input of the tool: a named file or standard input, and what was read from it.
#ifndef TOUCHSTONE2_TOOL_SOURCE_FILE_H
#define TOUCHSTONE2_TOOL_SOURCE_FILE_H

#include <touchstone2/model/file.h>
#include <touchstone2/reader/message_handler.h>

#include <istream>
#include <memory>
#include <string>

namespace tool {

enum class Extent { whole, header };

/// Owns the noise data that its File points to. Read once.
class SourceFile {
 public:
  /// @param path  "-" for standard input; diagnostics then name it "<stdin>"
  explicit SourceFile(const std::string& path);
  SourceFile(const SourceFile&) = delete;
  SourceFile& operator=(const SourceFile&) = delete;
  ~SourceFile();

  /// Reads and tells `handler` what it finds.
  /// @return false when the library refuses the file
  /// @throws std::exception  when the attempt itself fails: no memory, no standard input
  bool read(touchstone2::MessageHandler& handler, Extent extent);

  const touchstone2::File& file() const { return file_; }

  /// The text that was read, once more.
  /// @throws std::runtime_error
  std::unique_ptr<std::istream> open_text() const;

  /// The name as diagnostics show it.
  const std::string& name() const { return file_.get_filename(); }

 private:
  std::string path_;
  bool is_standard_input_;
  std::string bytes_;  // of standard input
  touchstone2::File file_;
};

}  // namespace tool

#endif
