// The members of File that know how comment lines name ports and pairs of ports. They are
// declared in model/file.h, because the data is the model's, and defined here, because the
// knowledge of the conventions is not.
#include <touchstone2/model/file.h>
#include <touchstone2/portnames/comment_processor.h>
#include <touchstone2/portnames/port_name_parsers.h>
#include <touchstone2/portnames/string_tokenizer.h>

#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace touchstone2 {

namespace {

constexpr std::string_view kPairingMark = "MIXED";
constexpr std::size_t kNoPortLimit = 0;

// After a read of the header alone the port count is what the file claims. One record of this
// many ports would take terabytes, so a greater count is no fact and gets no list of names.
constexpr std::size_t kMostPorts = std::size_t{1} << 20;

// Unlike discovery this knows no greatest port number: a line for a port that the file does
// not have is a port-name line all the same.
bool isPortNameLine(const std::string& line) {
  const std::vector<std::string> tokens = tokenize(line);
  return PortNameParser1(tokens, kNoPortLimit).isValidPortName() ||
         PortNameParser2(tokens, kNoPortLimit).isValidPortName() ||
         PortNameParser3(tokens, kNoPortLimit).isValidPortName() ||
         PortNameParser4(tokens, kNoPortLimit).isValidPortName() ||
         PortNameParser5(tokens, kNoPortLimit).isValidPortName() ||
         PortNameParser6(tokens, kNoPortLimit).isValidPortName();
}

std::vector<std::string> portNameLines(const std::vector<std::string>& names) {
  std::vector<std::string> lines;
  lines.reserve(names.size());
  for (std::size_t k = 0; k < names.size(); ++k) {
    lines.push_back(" Port[" + std::to_string(k + 1) + "] = " + names[k]);
  }
  return lines;
}

bool isPairingLine(const std::string& line) { return line.find(kPairingMark) != std::string::npos; }

// The names of two sources put together; all empty when they name one port differently.
std::vector<std::string> mergedNames(std::vector<std::string> names,
                                     const std::vector<std::string>& others) {
  for (std::size_t k = 0; k < names.size(); ++k) {
    if (names[k].empty()) {
      names[k] = others[k];
    } else if (!others[k].empty() && names[k] != others[k]) {
      return std::vector<std::string>(names.size());
    }
  }
  return names;
}

}  // namespace

const std::vector<std::string>& File::get_port_names() const {
  if (port_names_.empty()) initialize_port_names_from_comments();
  return port_names_;
}

void File::initialize_port_names_from_comments() const {
  if (number_of_ports_ > kMostPorts) throw std::length_error("touchstone2: too many ports");
  port_names_ = mergedNames(CommentProcessor(leading_comments_, number_of_ports_).takePortNames(),
                            CommentProcessor(other_comments_, number_of_ports_).takePortNames());
}

void File::set_port_name(std::size_t index, const std::string& name) {
  if (index >= get_port_names().size()) throw std::out_of_range("index");
  if (port_names_[index] == name) return;
  port_names_[index] = name;
  port_names_modified_ = true;
}

void File::set_port_names(const std::vector<std::string>& names) {
  if (port_names_ == names) return;
  port_names_ = names;
  port_names_modified_ = true;
}

void File::update_leading_comments() {
  std::vector<std::string> names = portNameLines(get_port_names());
  std::vector<std::string> kept;
  bool found = false;
  std::size_t position = 0;  // of the first port-name line
  for (const std::string& line : leading_comments_) {
    if (!isPortNameLine(line)) {
      kept.push_back(line);
    } else if (!found) {
      found = true;
      position = kept.size();
    }
  }

  // Lines at the very end are set off by an empty comment line.
  const bool at_end = !found || position >= kept.size();
  if (at_end) names.emplace_back();
  const auto where = at_end ? kept.end() : kept.begin() + static_cast<std::ptrdiff_t>(position);
  kept.insert(where, std::make_move_iterator(names.begin()), std::make_move_iterator(names.end()));
  leading_comments_ = std::move(kept);
  port_names_modified_ = false;
}

const std::string& File::get_pairing_info() {
  pairing_info_.clear();
  for (const std::string& line : leading_comments_) {
    if (isPairingLine(line)) pairing_info_ = line;
  }
  return pairing_info_;
}

void File::set_pairing_info(const std::string& text) {
  std::size_t last = 0;
  for (std::size_t i = 0; i < leading_comments_.size(); ++i) {
    if (isPairingLine(leading_comments_[i])) last = i;
  }
  // 0 stands for "none" as well, so a pairing line in the very first place stays.
  if (last != 0) {
    leading_comments_.erase(leading_comments_.begin() + static_cast<std::ptrdiff_t>(last));
  }
  if (!text.empty()) leading_comments_.push_back(text);
}

}  // namespace touchstone2
