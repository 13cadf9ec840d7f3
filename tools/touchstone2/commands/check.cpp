// Reads every input in turn. One that can not be read at all (no memory for it, say) is told
// of and does not keep the others from being checked.

#include "commands/check.h"

#include <exception>
#include <memory>
#include <new>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "diagnostics/report.h"
#include "inputs/input_files.h"
#include "inputs/source_file.h"
#include "json/json_report.h"
#include "terminal/console.h"
#include "text/value_text.h"

namespace tool {

namespace {

constexpr const char* kFooter =
    R"(Every file is read whole. Its errors and warnings go to standard error, a verdict
for each file and a total to standard output.

A PATH may be a file with any name, a folder, or "-" for standard input (write
"./-" for a file of that name). Of a folder and its subfolders, the files named
*.ts and *.sNp (s, digits, p; in upper or lower case) are read, sorted by path;
links to folders are followed only when they are a PATH themselves.

JSON: one object a line with path, valid and diagnostics (severity, code, line,
column, token, message). Bytes that are not UTF-8 become U+FFFD.

Exit code: 0 all files are valid; 1 a file was refused; 2 something could not be
checked: wrong usage, a folder that cannot be read or holds no such files, no
memory, output that cannot be written; 141 the reader of standard output has gone
away before all was written. A file that does not exist is a refused one.

Examples:
  touchstone2 check amplifier.s2p
  touchstone2 check --werror measurements/
  touchstone2 check --json measurements/ > report.jsonl
  unzip -p archive.zip filter.s2p | touchstone2 check -)";

struct Verdict {
  bool valid = false;
  bool done = true;  // false: the attempt to read has failed
  Counts counts;
};

struct Total {
  std::size_t files = 0;
  std::size_t refused = 0;
  std::size_t warnings = 0;
  bool done = true;
};

// An attempt that fails is complained about here.
Verdict read_input(SourceFile& source, CountingHandler& handler, const CheckOptions& options) {
  Verdict verdict;
  try {
    verdict.valid = source.read(handler, options.header_only ? Extent::header : Extent::whole);
  } catch (const std::bad_alloc&) {
    complain(source.name() + ": out of memory");
    verdict.done = false;
  } catch (const std::exception& failure) {
    complain(source.name() + ": " + failure.what());
    verdict.done = false;
  }
  verdict.counts = handler.counts();
  if (options.werror && verdict.counts.warnings > 0) verdict.valid = false;
  return verdict;
}

std::string verdict_line(const std::string& name, const Verdict& verdict) {
  if (!verdict.done) return name + ": not checked\n";
  std::string line = name + (verdict.valid ? ": valid" : ": refused");
  if (verdict.counts.errors > 0) {
    line += ", " + count_text(verdict.counts.errors, "error", "errors");
  }
  if (verdict.counts.warnings > 0) {
    line += ", " + count_text(verdict.counts.warnings, "warning", "warnings");
  }
  return line + "\n";
}

std::string total_line(const Total& total) {
  std::string line = count_text(total.files, "file", "files") + ": ";
  line += std::to_string(total.files - total.refused) + " valid, ";
  line += std::to_string(total.refused) + " refused";
  if (total.warnings > 0) line += ", " + count_text(total.warnings, "warning", "warnings");
  return line + "\n";
}

Verdict check_as_json(const std::string& path, const CheckOptions& options) {
  SourceFile source(path);
  CollectingHandler handler;
  const Verdict verdict = read_input(source, handler, options);
  if (verdict.done) {
    write_output(json_line(verdict_to_json(source.name(), verdict.valid, handler.diagnostics())));
  }
  return verdict;
}

Verdict check_as_text(const std::string& path, const CheckOptions& options) {
  SourceFile source(path);
  PrintingHandler handler(source, write_error);
  const Verdict verdict = read_input(source, handler, options);
  handler.finish();
  if (!options.quiet) write_output(verdict_line(source.name(), verdict));
  return verdict;
}

void add(Total& total, const Verdict& verdict) {
  if (!verdict.done) {
    total.done = false;
    return;
  }
  ++total.files;
  total.warnings += verdict.counts.warnings;
  if (!verdict.valid) ++total.refused;
}

}  // namespace

int check(const CheckOptions& options) {
  const InputList inputs = expand_paths(options.paths);
  for (const std::string& problem : inputs.problems) complain(problem);
  Total total;
  total.done = inputs.problems.empty();
  for (const std::string& path : inputs.paths) {
    add(total, options.json ? check_as_json(path, options) : check_as_text(path, options));
  }
  if (total.files > 0 && !options.quiet && !options.json) write_output(total_line(total));
  if (!total.done) return kNotDone;
  return total.refused > 0 ? kRefused : kAllValid;
}

void add_check_command(CLI::App& app, int& exit_code) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App* command =
      app.add_subcommand("check", "Say which files are valid and why others are not");
  command->footer(kFooter);
  command->add_option("PATH", options->paths, "Files, folders, or - for standard input")
      ->required();
  CLI::Option* quiet = command->add_flag("-q,--quiet", options->quiet,
                                         "Print diagnostics only, no verdicts and no total");
  command->add_flag("--header-only", options->header_only,
                    "Read only up to the number of ports, which leaves the data unchecked");
  command->add_flag("--werror", options->werror, "Count a file with warnings as refused");
  command
      ->add_flag("--json", options->json,
                 "Print JSON Lines instead, and no diagnostics to standard error")
      ->excludes(quiet);
  command->callback([options, &exit_code] { exit_code = check(*options); });
}

}  // namespace tool
