// The command line of check. A file that can not be read at all (no memory for it, say) is told of
// and does not keep the others from being checked.

#include "commands/check.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <thread>

#include "commands/check_formats.h"
#include "commands/check_run.h"
#include "diagnostics/report.h"
#include "inputs/input_files.h"
#include "terminal/console.h"
#include "terminal/display.h"

namespace tool {

namespace {

constexpr const char* kFooter =
    R"(Every file is read whole. Its errors and warnings go to standard error, a verdict
for each file and a total to standard output.

A PATH may be a file with any name, a folder, or "-" for standard input (write
"./-" for a file of that name). Of a folder and its subfolders, the files named
*.ts and *.sNp (s, digits, p; in upper or lower case) are read, sorted by path;
links to folders are followed only when they are a PATH themselves.

JSON: one object a line with schema_version, path, valid and diagnostics (severity,
code, line, column, token, message); failure says why a file could not be read to its
end. Bytes that are not UTF-8 become U+FFFD.

FORMAT: "text" is what is said above. "gcc" prints the diagnostics to standard output as
compilers do, "FILE:LINE:COLUMN: error: SENTENCE [E2311]", for the lists of editors.
"json" is --json. "sarif" is one SARIF 2.1.0 document for all files; its columns count
characters, all others count bytes.

At a terminal every diagnostic comes with its line of the file, and of warnings with one
code in one file only the first 5; a long run shows how far it is. Anywhere else, and
with --plain, each diagnostic is one line. COLUMNS is the width of the terminal if it
does not tell. NO_COLOR=1 and TERM=dumb take the colours away.

As many files are read at the same time as the machine has cores, or N with --jobs. What
is printed is the same for every N, in the order of the files. A file that another
program changes while it is read is refused.

Exit code: 0 all files are valid; 1 a file was refused; 2 something could not be
checked: wrong usage, a folder that cannot be read or holds no such files, no
memory, output that cannot be written; 141 the reader of standard output has gone
away before all was written. A file that does not exist is a refused one.

Examples:
  touchstone2 check amplifier.s2p
  touchstone2 check --werror measurements/
  touchstone2 check --json measurements/ > report.jsonl
  touchstone2 check --format sarif measurements/ > report.sarif
  unzip -p archive.zip filter.s2p | touchstone2 check -)";

CheckFormat format_of(const CheckOptions& options) {
  if (options.json || options.format == "json") return CheckFormat::json;
  if (options.format == "text") return CheckFormat::text;
  if (options.format == "gcc") return CheckFormat::gcc;
  if (options.format == "sarif") return CheckFormat::sarif;
  throw std::runtime_error("--format is text, gcc, json or sarif");
}

std::size_t jobs_of(const CheckOptions& options) {
  return options.jobs != 0 ? options.jobs
                           : std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

int exit_code_of(const Total& total) {
  if (!total.done) return kNotDone;
  return total.refused > 0 ? kRefused : kAllValid;
}

}  // namespace

int check(const CheckOptions& options) {
  const CheckFormat format = format_of(options);
  if (options.quiet && format != CheckFormat::text) {
    throw std::runtime_error("--quiet is for the format text");
  }
  const InputList inputs = expand_paths(options.paths);
  for (const std::string& problem : inputs.problems) complain(problem);
  const std::unique_ptr<CheckReport> report = make_check_report(format, options.quiet);
  const CheckRunOptions run_options{
      jobs_of(options), options.header_only ? Extent::header : Extent::whole, options.werror};

  write_output(report->begin());
  Total total = CheckRun(inputs.paths, *report, run_options).run();
  if (!inputs.problems.empty()) total.done = false;
  total.problems.insert(total.problems.begin(), inputs.problems.begin(), inputs.problems.end());
  const int exit_code = exit_code_of(total);
  write_output(report->end(total, exit_code));
  if (format == CheckFormat::text) write_error(explain_hint(total.error_code));
  return exit_code;
}

void add_check_command(CommandLine& line) {
  const auto options = std::make_shared<CheckOptions>();
  Command command =
      line.add_command("check", "Say which files are valid and why others are not", kFooter);
  command.option("PATH", options->paths, "Files, folders, or - for standard input").is_required();
  const Option quiet = command.flag("-q,--quiet", options->quiet,
                                    "Print diagnostics only, no verdicts and no total");
  command.flag("--header-only", options->header_only,
               "Read only up to the number of ports, which leaves the data unchecked");
  command.flag("--werror", options->werror, "Count a file with warnings as refused");
  const Option json = command
                          .flag("--json", options->json,
                                "Print JSON Lines instead, and no diagnostics to standard error")
                          .excludes(quiet);
  command.option("--format", options->format, "The form of the output: text, gcc, json or sarif")
      .shows_value_as("FORMAT")
      .excludes(json);
  command.option("-j,--jobs", options->jobs, "Files to read at the same time")
      .shows_value_as("N")
      .is_between(1, 1024);
  command.runs([options] { return check(*options); });
}

}  // namespace tool
