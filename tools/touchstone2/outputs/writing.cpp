// The text is complete and compared before the output is touched.

#include "outputs/writing.h"

#include <touchstone2/copier/file_copier.h>
#include <touchstone2/reader/diagnostics.h>

#include <charconv>
#include <stdexcept>

#include "diagnostics/report.h"
#include "outputs/losses.h"
#include "outputs/output_file.h"
#include "outputs/rendering.h"
#include "terminal/console.h"
#include "terminal/display.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::ParameterType;

Existing existing_of(const WriteOptions& options) {
  return options.force ? Existing::replace : Existing::keep;
}

// None for "auto".
std::optional<int> digits_of(const std::string& precision) {
  if (precision == "auto") return std::nullopt;
  const char* const end = precision.data() + precision.size();
  int digits = 0;
  const auto result = std::from_chars(precision.data(), end, digits);
  if (result.ec == std::errc() && result.ptr == end && digits >= 1 && digits <= kMostDigits) {
    return digits;
  }
  throw std::runtime_error("--precision is 'auto' or a number of digits from 1 to " +
                           std::to_string(kMostDigits));
}

// An H- or G-parameter of swapped ports is no other H- or G-parameter of the same network.
void refuse_swapped_hybrids(const touchstone2::FileCopier& copier, ParameterType type) {
  if (type != ParameterType::H && type != ParameterType::G) return;
  if (copier.destIndexToSourceIndex(0) == 0) return;
  throw Refusal(std::string(parameter_text(type)) + "-parameters cannot change the order of ports");
}

}  // namespace

const char* const kWritingHelp =
    R"(Output: the text is read back and compared before it gets into OUT: options, ports,
names and every number, to the digits that are written. A difference is an error and
leaves OUT as it was. OUT is written beside its place and renamed when complete, so it
may be the input itself; an existing OUT needs --force and keeps its permissions. "-"
is standard output.

Precision: "auto" takes the fewest digits from 14 to 17 with which every number reads
back to the same bits, so that short numbers stay short. Version 1 holds Y-, Z-, H- and G-parameters and
noise resistances relative to the reference impedance; if the multiplication costs
some of them their last bit even at 17 digits, a note says how many.

Port names and the comments at the head are written; other comments and information
sections are not, which a note on standard error says.

Exit code: 0 the output is written; 1 the input was refused, or the output could not
say the same; 2 wrong usage, or an output that exists or cannot be written; 141 the
reader of standard output has gone away.)";

Option add_write_options(Command& command, WriteOptions& options) {
  Option path =
      command.option("-o,--output", options.path, "The file to write, or - for standard output")
          .shows_value_as("OUT");
  command.flag("--force", options.force, "Replace OUT if it exists");
  command
      .option("--precision", options.precision,
              "Significant digits: auto, or a number from 1 to 17")
      .shows_value_as("auto|DIGITS");
  return path;
}

void check_write_options(const WriteOptions& options) {
  digits_of(options.precision);
  check_output(options.path, existing_of(options));
}

bool read_for_writing(SourceFile& source) { return read_and_print(source, Extent::whole); }

OwnedFile copy_of_ports(const touchstone2::File& source,
                        const std::vector<std::pair<std::size_t, std::string>>& ports) {
  source.get_port_names();  // a copier looks for names only where they are stored
  try {
    touchstone2::FileCopier copier(source.get_filename(), source, ports);
    refuse_swapped_hybrids(copier, source.get_parameter_type());
    note_changes_by_ports(copier, source);
    return OwnedFile(copier.takeResult());
  } catch (const touchstone2::ParserError& error) {
    throw Refusal(error.what());
  }
}

int write_result(const SourceFile& source, touchstone2::File& result,
                 touchstone2::FileVersion version, const WriteOptions& options) {
  const Rendering rendering = render(result, version, digits_of(options.precision));
  note_unwritten(source);
  if (rendering.changed_numbers != 0 && options.precision == "auto") {
    note(count_text(rendering.changed_numbers, "number differs", "numbers differ") +
         " in the last bits, being relative to the reference impedance in version 1");
  }
  put_output(options.path, rendering.text, existing_of(options));
  return kDone;
}

}  // namespace tool
