// Reading one input. Standard input is read to its end first, because a pipe can not be
// mapped; a named file is left to the library and watched meanwhile.

#include "inputs/source_file.h"

#include <touchstone2/reader/parser.h>

#include <algorithm>
#include <exception>
#include <fstream>
#include <new>
#include <sstream>
#include <stdexcept>

#include "inputs/path_text.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::ParserError;
using touchstone2::ParserWarning;

constexpr std::size_t kBlock = 65536;
// A diagnostic may stand at the begin of the record that is being read, and a record of a
// thousand ports has some ten million bytes.
constexpr std::uint64_t kFarthestBack = std::uint64_t{1} << 26;
// Of a line, to both sides of a column: more than any terminal shows.
constexpr std::size_t kReach = 4096;

bool run(touchstone2::Parser& parser, Extent extent) {
  return extent == Extent::header ? parser.read_file_header() : parser.read_file();
}

}  // namespace

// Stands between the library and the handler: what is found in a file that does not stay what it
// was is not told. To look whether a page was missing is cheap and done for every diagnostic. The
// file's times are looked at for the last one, the error, for which a changed file is the likelier
// reason than a bad one.
class SourceFile::SteadyHandler : public touchstone2::MessageHandler {
 public:
  SteadyHandler(const SourceFile& source, const PageFaultGuard& guard,
                touchstone2::MessageHandler& handler)
      : source_(source), guard_(guard), handler_(handler) {}

  void report_error(const File& file, const ParserError& error) override {
    if (guard_.has_faulted() || source_.watched_->has_changed()) source_.refuse_unsteady();
    handler_.report_error(file, error);
  }

  void report_warning(const File& file, const ParserWarning& warning) override {
    if (guard_.has_faulted()) source_.refuse_unsteady();
    handler_.report_warning(file, warning);
  }

 private:
  const SourceFile& source_;
  const PageFaultGuard& guard_;
  touchstone2::MessageHandler& handler_;
};

SourceFile::SourceFile(const std::string& path)
    : path_(path), is_standard_input_(path == "-"), file_(is_standard_input_ ? "<stdin>" : path) {}

// A File never deletes its noise data; this object has had them made. A refused file may
// have some, too.
SourceFile::~SourceFile() { delete file_.get_noise_params(); }

bool SourceFile::read(touchstone2::MessageHandler& handler, Extent extent) {
  if (!is_standard_input_) return read_named(handler, extent);
  bytes_ = read_standard_input();
  touchstone2::Parser parser(file_, handler, bytes_);
  parser.set_progress(&progress_);
  return run(parser, extent);
}

Attempt SourceFile::try_read(touchstone2::MessageHandler& handler, Extent extent) {
  try {
    return {read(handler, extent) ? Outcome::valid : Outcome::refused, ""};
  } catch (const UnsteadyFile& unsteady) {
    return {Outcome::refused, unsteady.reason()};
  } catch (const std::bad_alloc&) {
    return {Outcome::failed, "out of memory"};
  } catch (const std::exception& failure) {
    return {Outcome::failed, failure.what()};
  }
}

bool SourceFile::read_named(touchstone2::MessageHandler& handler, Extent extent) {
  watched_.emplace(path_);
  const PageFaultGuard guard(path_);
  SteadyHandler steady(*this, guard, handler);
  touchstone2::Parser parser(file_, steady);
  parser.set_progress(&progress_);
  const bool valid = run(parser, extent);
  if (guard.has_faulted() || watched_->has_changed()) refuse_unsteady();
  return valid;
}

void SourceFile::refuse_unsteady() const {
  throw UnsteadyFile(name(), watched_->has_changed() ? "the file was changed while it was read"
                                                     : "a part of the file cannot be read");
}

std::unique_ptr<std::istream> SourceFile::open_text() const {
  if (is_standard_input_) return std::make_unique<std::istringstream>(bytes_);
  auto text = std::make_unique<std::ifstream>(openable(to_path(path_)), std::ios::binary);
  if (!*text) throw std::runtime_error("cannot read '" + path_ + "' again");
  return text;
}

std::string SourceFile::read_at(std::uint64_t offset, std::size_t count) const {
  if (watched_) return watched_->read_at(offset, count);
  if (offset > bytes_.size()) return {};
  return bytes_.substr(static_cast<std::size_t>(offset), count);
}

// Goes back from the line that the reader has got to. "\r\n" ends one line, as "\r" and "\n" do.
std::optional<std::uint64_t> SourceFile::find_line_offset(std::size_t line) const {
  if (line == 0 || line > progress_.line) return std::nullopt;
  // The begin of a line is the end of the one before it, so one more end has to be found.
  std::size_t ends_left = progress_.line - line + 1;
  std::uint64_t position = progress_.line_offset;
  char behind = '\0';  // the byte behind the one that is looked at
  while (position > 0 && progress_.line_offset - position < kFarthestBack) {
    const std::uint64_t begin = position - std::min<std::uint64_t>(position, kBlock);
    const std::string block = read_at(begin, static_cast<std::size_t>(position - begin));
    if (block.size() != position - begin) return std::nullopt;
    for (std::size_t i = block.size(); i-- > 0;) {
      const bool ends_line = block[i] == '\n' || (block[i] == '\r' && behind != '\n');
      if (ends_line && --ends_left == 0) return begin + i + 1;
      behind = block[i];
    }
    position = begin;
  }
  if (position == 0 && ends_left == 1) return 0;
  return std::nullopt;
}

std::optional<SourceLine> SourceFile::find_line(std::size_t line, std::size_t column) const {
  if (column == 0 || (watched_ && watched_->has_changed())) return std::nullopt;
  const std::optional<std::uint64_t> offset = find_line_offset(line);
  if (!offset) return std::nullopt;
  const std::size_t left_out = column - 1 - std::min(column - 1, kReach);
  SourceLine found{read_at(*offset + left_out, 2 * kReach), left_out + 1};
  found.bytes.resize(std::min(found.bytes.find_first_of("\r\n"), found.bytes.size()));
  return found;
}

}  // namespace tool
