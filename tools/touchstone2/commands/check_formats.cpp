// Every form is written file by file, as early as can be. A JSON object needs the verdict first,
// so its diagnostics are kept till then.

#include "commands/check_formats.h"

#include <nlohmann/json.hpp>

#include "json/json_report.h"
#include "json/sarif_report.h"
#include "text/cells.h"
#include "text/value_text.h"

namespace tool {

namespace {

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

// Diagnostics to standard error, verdicts and a total to standard output.
class TextReport : public CheckReport {
 public:
  explicit TextReport(bool quiet) : quiet_(quiet) {}

  Verdict tell(const SourceFile& source, const Read& read, const Write& write) const override {
    PrintingHandler handler(source, [&](const std::string& text) { write(Stream::error, text); });
    Verdict verdict = read(handler);
    handler.finish();
    if (!quiet_) write(Stream::output, verdict_line(source.name(), verdict));
    return verdict;
  }

  std::string end(const Total& total, int /*exit_code*/) const override {
    return quiet_ || total.files == 0 ? "" : total_line(total);
  }

 private:
  bool quiet_;
};

// As compilers print them, so that editors find the places.
class GccReport : public CheckReport {
 public:
  Verdict tell(const SourceFile& source, const Read& read, const Write& write) const override {
    ForwardingHandler handler([&](const Diagnostic& diagnostic) {
      write(Stream::output, visible(place_text(source.name(), diagnostic)) + " " +
                                severity_text(diagnostic.severity) + ": " +
                                message_line(diagnostic) + " [" + code_text(diagnostic) + "]\n");
    });
    return read(handler);
  }

  std::string end(const Total& /*total*/, int /*exit_code*/) const override { return ""; }
};

// One object a line.
class JsonReport : public CheckReport {
 public:
  Verdict tell(const SourceFile& source, const Read& read, const Write& write) const override {
    CollectingHandler handler;
    Verdict verdict = read(handler);
    if (!verdict.done) return verdict;
    Json object = versioned_object();
    add_verdict(object, source.name(), verdict.valid, handler.diagnostics(), verdict.failure);
    write(Stream::output, json_line(object));
    return verdict;
  }

  std::string end(const Total& /*total*/, int /*exit_code*/) const override { return ""; }
};

// The column counted in characters. Without its line, which is then not to be had, it stays
// counted in bytes.
std::size_t character_column(const SourceFile& source, const Diagnostic& diagnostic) {
  if (diagnostic.column <= 1) return diagnostic.column;
  const auto line = source.find_line(diagnostic.line, diagnostic.column);
  if (!line) return diagnostic.column;
  const std::size_t begin = diagnostic.column - line->first_column;
  std::size_t characters = begin < line->bytes.size() ? 0 : 1;  // the line end counts as one
  for (const Glyph& glyph : to_glyphs(line->bytes)) {
    if (glyph.begin <= begin) ++characters;
  }
  return line->first_column - 1 + characters;
}

class SarifReport : public CheckReport {
 public:
  std::string begin() const override { return sarif_begin(); }

  Verdict tell(const SourceFile& source, const Read& read, const Write& write) const override {
    std::map<std::string, int> rules;
    ForwardingHandler handler([&](const Diagnostic& diagnostic) {
      rules.emplace(code_text(diagnostic), diagnostic.code);
      write(Stream::output,
            sarif_result(source.name(), diagnostic, character_column(source, diagnostic)));
    });
    Verdict verdict = read(handler);
    verdict.rules = std::move(rules);
    return verdict;
  }

  std::string separator() const override { return ","; }

  std::string end(const Total& total, int exit_code) const override {
    return sarif_end({total.rules, total.problems, total.done, exit_code});
  }
};

}  // namespace

std::unique_ptr<CheckReport> make_check_report(CheckFormat format, bool quiet) {
  switch (format) {
    case CheckFormat::text:
      return std::make_unique<TextReport>(quiet);
    case CheckFormat::gcc:
      return std::make_unique<GccReport>();
    case CheckFormat::json:
      return std::make_unique<JsonReport>();
    case CheckFormat::sarif:
      return std::make_unique<SarifReport>();
  }
  return nullptr;
}

}  // namespace tool
