/// What the commands that write a file have in common: options, reading, and the last step.
#ifndef TOUCHSTONE2_TOOL_WRITING_H
#define TOUCHSTONE2_TOOL_WRITING_H

#include <touchstone2/model/file.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "command_line/command_line.h"
#include "inputs/source_file.h"

namespace tool {

struct WriteOptions {
  std::string path;  ///< "-" is standard output
  bool force = false;
  std::string precision = "auto";
};

/// The part of the help pages about outputs and exit codes.
extern const char* const kWritingHelp;

/// Adds -o, --force and --precision.
/// @return -o
Option add_write_options(Command& command, WriteOptions& options);

/// Complains about options that cannot be meant, and about an output that cannot be. Call it
/// before anything is read.
/// @throws std::runtime_error
void check_write_options(const WriteOptions& options);

/// Reads an input as check does, diagnostics included.
/// @return false when it is refused
bool read_for_writing(SourceFile& source);

/// A File that some copy function or copier has made, with its noise data.
struct OwnedFile {
  explicit OwnedFile(touchstone2::File* made)
      : file(made), noise(made == nullptr ? nullptr : made->get_noise_params()) {}

  std::unique_ptr<touchstone2::File> file;
  std::unique_ptr<const touchstone2::NoiseParams> noise;
};

/// Chosen ports of the source, each with its new name, and notes about what they lose.
/// @param ports  source port, from 0, and name of every port of the new file
/// @throws Refusal  when the parameters do not allow the choice
OwnedFile copy_of_ports(const touchstone2::File& source,
                        const std::vector<std::pair<std::size_t, std::string>>& ports);

/// Writes `result` as `version`, compares the text with it and puts the text where it belongs.
/// What of `source` is not written is noted.
/// @return the exit code
/// @throws Refusal, std::runtime_error, ClosedPipe
int write_result(const SourceFile& source, touchstone2::File& result,
                 touchstone2::FileVersion version, const WriteOptions& options);

}  // namespace tool

#endif
