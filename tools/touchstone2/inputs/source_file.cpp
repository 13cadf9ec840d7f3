// Reading one input. Standard input is read to its end first, because a pipe can not be
// mapped; a named file is left to the library.

#include "inputs/source_file.h"

#include <touchstone2/reader/parser.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "inputs/path_text.h"
#include "terminal/console.h"

namespace tool {

namespace {

bool run(touchstone2::Parser& parser, Extent extent) {
  return extent == Extent::header ? parser.read_file_header() : parser.read_file();
}

}  // namespace

SourceFile::SourceFile(const std::string& path)
    : path_(path), is_standard_input_(path == "-"), file_(is_standard_input_ ? "<stdin>" : path) {}

// A File never deletes its noise data; this object has had them made. A refused file may
// have some, too.
SourceFile::~SourceFile() { delete file_.get_noise_params(); }

bool SourceFile::read(touchstone2::MessageHandler& handler, Extent extent) {
  if (!is_standard_input_) {
    touchstone2::Parser parser(file_, handler);
    return run(parser, extent);
  }
  bytes_ = read_standard_input();
  touchstone2::Parser parser(file_, handler, bytes_);
  return run(parser, extent);
}

std::unique_ptr<std::istream> SourceFile::open_text() const {
  if (is_standard_input_) return std::make_unique<std::istringstream>(bytes_);
  auto text = std::make_unique<std::ifstream>(openable(to_path(path_)), std::ios::binary);
  if (!*text) throw std::runtime_error("cannot read '" + path_ + "' again");
  return text;
}

}  // namespace tool
