/// One input of the tool: a named file or standard input, and what was read from it.
#ifndef TOUCHSTONE2_TOOL_SOURCE_FILE_H
#define TOUCHSTONE2_TOOL_SOURCE_FILE_H

#include <touchstone2/model/file.h>
#include <touchstone2/reader/message_handler.h>
#include <touchstone2/reader/read_progress.h>

#include <cstddef>
#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "inputs/watched_file.h"
#include "terminal/console.h"

namespace tool {

enum class Extent { whole, header };

/// What a read has come to; `failed` is an attempt that could not be made.
enum class Outcome { valid, refused, failed };

struct Attempt {
  Outcome outcome = Outcome::failed;
  std::string failure;  ///< why the file could not be read to its end; empty if it could
};

/// Thrown when a file did not stay what it was while it was read; what() names it.
class UnsteadyFile : public Refusal {
 public:
  UnsteadyFile(const std::string& name, const std::string& reason)
      : Refusal(name + ": " + reason), reason_(reason) {}

  const std::string& reason() const { return reason_; }

 private:
  std::string reason_;
};

/// Some bytes of a line around a column, without the end of the line.
struct SourceLine {
  std::string bytes;
  std::size_t first_column;  ///< of the first of the bytes; greater than 1 when some are left out
};

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
  /// @throws UnsteadyFile    the file was changed, or a part of it could not be read any more
  /// @throws std::exception  when the attempt itself fails: no memory, no standard input
  bool read(touchstone2::MessageHandler& handler, Extent extent);

  /// The same for one input of several. A file that did not stay what it was is refused.
  Attempt try_read(touchstone2::MessageHandler& handler, Extent extent);

  const touchstone2::File& file() const { return file_; }

  /// The text that was read, once more.
  /// @throws std::runtime_error
  std::unique_ptr<std::istream> open_text() const;

  /// The line of a diagnostic: in a handler's call, or when the read has returned. Looks at a few
  /// blocks of the file however long it is. None when the file has changed, or when the line is
  /// too far back from where the reader has got to.
  std::optional<SourceLine> find_line(std::size_t line, std::size_t column) const;

  /// Of the read; its bytes may be looked at from other threads.
  const touchstone2::ReadProgress& progress() const { return progress_; }

  /// The name as diagnostics show it.
  const std::string& name() const { return file_.get_filename(); }

 private:
  class SteadyHandler;

  bool read_named(touchstone2::MessageHandler& handler, Extent extent);
  [[noreturn]] void refuse_unsteady() const;
  std::string read_at(std::uint64_t offset, std::size_t count) const;
  std::optional<std::uint64_t> find_line_offset(std::size_t line) const;

  std::string path_;
  bool is_standard_input_;
  std::string bytes_;  // of standard input
  touchstone2::File file_;
  touchstone2::ReadProgress progress_;
  std::optional<WatchedFile> watched_;  // a named file that is being read or was
};

}  // namespace tool

#endif
