// Comments are counted in the text itself: the library keeps the leading ones and, of version 1,
// those between the records, but none of those at line ends or between keywords.

#include "outputs/losses.h"

#include <touchstone2/portnames/comment_processor.h>

#include <algorithm>
#include <istream>
#include <string>
#include <string_view>

#include "terminal/console.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::FileCopier;
using touchstone2::MixedModeDescriptor;
using touchstone2::MixedModeKind;

// The comments that name the columns and the noise data, as the writers write them.
constexpr std::string_view kColumnNames = "! freq              ";
constexpr std::string_view kMoreColumnNames = "!                   ";
constexpr std::string_view kNoiseTitle = "! NOISE PARAMETERS";

bool is_made_anew(std::string_view line) {
  return line.starts_with(kColumnNames) || line.starts_with(kMoreColumnNames) ||
         line == kNoiseTitle;
}

char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// True when the line begins with the keyword, which is given in lower case.
bool is_keyword(std::string_view line, std::string_view keyword) {
  line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
  return line.size() >= keyword.size() &&
         std::equal(keyword.begin(), keyword.end(), line.begin(),
                    [](char of_keyword, char c) { return of_keyword == to_lower(c); });
}

// Lines with a comment that the writers would have to keep, leading ones included. What is inside
// an information section is none.
std::size_t count_comments(std::istream& text) {
  std::size_t count = 0;
  bool in_section = false;
  for (std::string line; std::getline(text, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (is_keyword(line, "[begin information]")) in_section = true;
    if (is_keyword(line, "[end information]")) in_section = false;
    if (!in_section && line.find('!') != std::string::npos && !is_made_anew(line)) ++count;
  }
  return count;
}

std::size_t count_unwritten_comments(const SourceFile& source) {
  const std::vector<std::string> leading = source.file().get_leading_comments();
  const auto kept = static_cast<std::size_t>(
      std::count_if(leading.begin(), leading.end(),
                    [](const std::string& line) { return !is_made_anew("!" + line); }));
  const std::size_t all = count_comments(*source.open_text());
  return all > kept ? all - kept : 0;
}

bool is_empty(const std::string& text) { return text.empty(); }

// Names that the comments have and the file does not: two comments name one port differently.
bool has_contradicting_names(const File& file) {
  const std::vector<std::string>& names = file.get_port_names();
  if (!std::all_of(names.begin(), names.end(), is_empty)) return false;
  const std::vector<std::string> leading =
      touchstone2::CommentProcessor(file.get_leading_comments(), file.get_number_of_ports())
          .takePortNames();
  return !std::all_of(leading.begin(), leading.end(), is_empty);
}

bool is_mapped(const FileCopier& copier, std::size_t port) {
  return port != 0 && copier.sourceIndexIsMapped(port - 1);
}

void note_lost_partner(const FileCopier& copier, const MixedModeDescriptor& pair) {
  if (pair.kind != MixedModeKind::Differential) return;
  const bool has_first = is_mapped(copier, pair.first_port);
  if (has_first == is_mapped(copier, pair.second_port)) return;
  const std::size_t stays = has_first ? pair.first_port : pair.second_port;
  const std::size_t goes = has_first ? pair.second_port : pair.first_port;
  note("port " + std::to_string(stays) + " loses its differential partner, port " +
       std::to_string(goes) + ", and becomes single-ended");
}

bool keeps_order(const FileCopier& copier) {
  for (std::size_t d = 0; d < copier.numDestPorts(); ++d) {
    if (copier.destIndexToSourceIndex(d) != d) return false;
  }
  return copier.numDestPorts() == copier.numSourcePorts();
}

}  // namespace

void note_unwritten(const SourceFile& source) {
  const std::size_t comments = count_unwritten_comments(source);
  if (comments != 0) {
    note(count_text(comments, "comment below the head is", "comments below the head are") +
         " not written");
  }
  if (source.file().has_information_section()) note("the information section is not written");
  if (has_contradicting_names(source.file())) {
    note("no port name is written, because comments name one port differently");
  }
}

void note_changes_by_ports(const FileCopier& copier, const File& source) {
  if (keeps_order(copier)) return;
  if (source.uses_mixed_mode()) {
    for (const MixedModeDescriptor& each : source.get_mixed_mode_descriptors()) {
      note_lost_partner(copier, each);
    }
    note("mixed mode: rows are chosen by their number, descriptors by their ports");
  }
  const auto* noise = source.get_noise_params();
  if (noise == nullptr || noise->freq_points() == 0) return;
  note(copier.numDestPorts() == copier.numSourcePorts()
           ? "the noise data are written as they stand, though port 1 is another"
           : "the noise data are not written");
}

}  // namespace tool
