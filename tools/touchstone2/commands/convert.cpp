// Version 1 has no triangles: a symmetric matrix is copied into a full one first.

#include "commands/convert.h"

#include <touchstone2/copier/file_copier.h>

#include <memory>
#include <stdexcept>

#include "terminal/console.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::FileVersion;
using touchstone2::MatrixFormat;

constexpr const char* kFooter =
    R"(Without --to the version of the input is kept. Version 1 has one reference impedance,
no mixed mode and 2-port data in the order 21_12 only; an upper or lower matrix is
written in full. What it cannot hold is refused.

)";

constexpr const char* kExamples = R"(

Examples:
  touchstone2 convert amplifier.s2p --to v2 -o amplifier.ts
  touchstone2 convert connector.s4p --to v1 --precision 6 -o -)";

FileVersion version_of(const std::string& to, const File& source) {
  if (to.empty()) return source.get_version();
  if (to == "v1") return FileVersion::V1;
  if (to == "v2") return FileVersion::V2;
  throw std::runtime_error("--to is v1 or v2");
}

}  // namespace

int convert(const ConvertOptions& options) {
  check_write_options(options.write);
  SourceFile source(options.path);
  version_of(options.to, source.file());  // complains before anything is read
  if (!read_for_writing(source)) return kRefused;
  const FileVersion version = version_of(options.to, source.file());
  if (version == FileVersion::V1 && source.file().get_matrix_format() != MatrixFormat::Full) {
    const OwnedFile full(touchstone2::copyFileWithFullMatrix(source.name(), source.file()));
    if (!full.file) throw Refusal("cannot be written with full matrices");
    return write_result(source, *full.file, version, options.write);
  }
  File result = source.file();
  return write_result(source, result, version, options.write);
}

void add_convert_command(CommandLine& line) {
  const auto options = std::make_shared<ConvertOptions>();
  Command command = line.add_command("convert", "Write a file as version 1 or version 2",
                                     std::string(kFooter) + kWritingHelp + kExamples);
  command.option("FILE", options->path, "A file, or - for standard input").is_required();
  command.option("--to", options->to, "The version to write").shows_value_as("v1|v2");
  add_write_options(command, options->write).is_required();
  command.runs([options] { return convert(*options); });
}

}  // namespace tool
