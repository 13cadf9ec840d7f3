// Lines of text as the comments of a file. The first byte gives the number of ports; lines up to
// the first empty one are leading comments, those behind it stand between two records.
//
// Bringing the port-name lines up to date twice is the same as once, and what is written names
// the ports as before.
#include <algorithm>

#include "fuzz_support.h"

namespace {

using touchstone2::File;
using touchstone2::fuzz::Reading;

std::string record(std::size_t ports, const char* frequency) {
  std::string text = frequency;
  for (std::size_t cell = 0; cell < ports * ports; ++cell) text += " 0 0";
  return text + "\n";
}

// A version 1 file with these comments.
std::string file_text(std::string_view lines, std::size_t ports) {
  std::string leading;
  std::string other;
  bool is_leading = true;
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    const std::string_view line = lines.substr(0, end);
    if (line.empty()) is_leading = false;
    const bool has_mark = !line.empty() && line[0] == '!';
    std::string& comments = is_leading ? leading : other;
    comments += (has_mark ? "" : "!") + std::string(line) + "\n";
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  std::string text = leading + "# MHz S RI\n";
  if (ports != 0) text += record(ports, "1") + other + record(ports, "2");
  return text;
}

void check_names(const std::vector<std::string>& names, std::size_t ports) {
  TOUCHSTONE2_FUZZ_CHECK(names.size() == ports);
  for (const std::string& name : names) {
    TOUCHSTONE2_FUZZ_CHECK(name.find_first_of(" \t\n\r") == std::string::npos);
  }
}

// The comments of a file as a new file, which therefore has to look for the names again.
std::vector<std::string> names_found_in(const std::vector<std::string>& comments,
                                        std::size_t ports) {
  std::string text;
  for (const std::string& line : comments) text += "!" + line + "\n";
  text += "[Version] 2.0\n#\n[Number of Ports] " + std::to_string(ports) + "\n";
  const Reading reading = touchstone2::fuzz::read(text, touchstone2::fuzz::Extent::header);
  TOUCHSTONE2_FUZZ_CHECK(reading.ok);
  return reading.file.get_port_names();
}

void check_pairing(File& file) {
  const std::string before = file.get_pairing_info();
  TOUCHSTONE2_FUZZ_CHECK(before.empty() || before.find("MIXED") != std::string::npos);
  file.set_pairing_info(" MIXED 1 2");
  TOUCHSTONE2_FUZZ_CHECK(file.get_pairing_info() == " MIXED 1 2");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t ports = data[0] % 16;
  std::string lines(touchstone2::fuzz::as_text(data + 1, size - 1));
  // A lone carriage return would end the comment in the middle.
  std::replace(lines.begin(), lines.end(), '\r', ' ');

  Reading reading = touchstone2::fuzz::read(file_text(lines, ports));
  TOUCHSTONE2_FUZZ_CHECK(reading.ok);
  File& file = reading.file;
  const std::vector<std::string> names = file.get_port_names();
  check_names(names, ports);

  file.update_leading_comments();
  const std::vector<std::string> once = file.get_leading_comments();
  file.update_leading_comments();
  if (ports != 0) {
    TOUCHSTONE2_FUZZ_CHECK(file.get_leading_comments() == once);
    TOUCHSTONE2_FUZZ_CHECK(names_found_in(once, ports) == names);
  }
  TOUCHSTONE2_FUZZ_CHECK(file.get_port_names() == names);
  check_pairing(file);
  return 0;
}
