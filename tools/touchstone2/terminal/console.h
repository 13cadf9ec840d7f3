/// The process's own streams and exit codes. Any thread may write.
#ifndef TOUCHSTONE2_TOOL_CONSOLE_H
#define TOUCHSTONE2_TOOL_CONSOLE_H

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

enum ExitCode : int {
  kAllValid = 0,
  kDone = 0,          ///< the output is written
  kEqual = 0,         ///< two files are the same
  kDifferent = 1,     ///< and they are not
  kRefused = 1,       ///< an input is not valid, or an output would not say the same
  kNotDone = 2,       ///< usage error, nothing to check, or input or output that failed
  kClosedPipe = 141,  ///< what shells show for a program that a closed pipe has ended
};

/// Thrown when nobody reads standard output any more. Not an std::exception on purpose:
/// nothing but main may take it for an error.
struct ClosedPipe {};

/// Thrown when the wanted output cannot say what the input says: kRefused, not kNotDone.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Lets a closed pipe and a limit on file sizes show up as failed writes and makes the standard
/// streams binary. Call it first.
void prepare_streams();

/// The arguments behind the program's name; UTF-8 on Windows, the bytes as given elsewhere.
std::vector<std::string> command_line_arguments(int argc, char** argv);

/// Writes to standard output, unless there is nothing to write, and flushes it, so that readers get
/// every record at once and the order with standard error is kept.
/// @throws ClosedPipe, or std::runtime_error for any other failure
void write_output(std::string_view text);

/// Writes to standard error as the text stands; a failure is ignored.
void write_error(std::string_view text);

/// "touchstone2: TEXT" and a line end.
std::string complaint(std::string_view text);

/// Writes the complaint to standard error.
void complain(std::string_view text);

/// complain about something that is worth knowing and no failure: "touchstone2: note: TEXT".
void note(const std::string& text);

/// Shows the text, which fits on one line, on the last line of the terminal that standard error
/// is, in place of the one that was shown before; an empty text takes that away. Whatever else is
/// written stands above it. Only for a display that can erase.
void show_status(std::string_view text);

/// Everything up to the end of standard input, byte for byte.
/// @throws std::runtime_error
std::string read_standard_input();

}  // namespace tool

#endif
