// Holds comment lines against the six conventions. A line whose port number is out of range
// for one convention is still offered to the next one.
#include <touchstone2/portnames/comment_processor.h>
#include <touchstone2/portnames/port_name_parsers.h>
#include <touchstone2/portnames/string_tokenizer.h>

#include <algorithm>
#include <set>
#include <utility>

namespace touchstone2 {

CommentProcessor::CommentProcessor(const std::vector<std::string>& comments,
                                   std::size_t number_of_ports)
    : comments_(&comments), numberOfPorts_(number_of_ports), portNames_(number_of_ports) {
  for (const std::string& line : *comments_) processComment(line);
}

CommentProcessor::CommentProcessor(const CommentProcessor& other) = default;
CommentProcessor& CommentProcessor::operator=(const CommentProcessor& other) = default;
CommentProcessor::~CommentProcessor() = default;

std::vector<std::string> CommentProcessor::takePortNames() { return std::exchange(portNames_, {}); }

void CommentProcessor::processComment(const std::string& line) {
  const std::vector<std::string> tokens = tokenize(line);
  // || ends the line at the first convention that succeeds.
  static_cast<void>(processPossibleComment(PortNameParser1(tokens, numberOfPorts_)) ||
                    processPossibleComment(PortNameParser2(tokens, numberOfPorts_)) ||
                    processPossibleComment(PortNameParser3(tokens, numberOfPorts_)) ||
                    processPossibleComment(PortNameParser4(tokens, numberOfPorts_)) ||
                    processPossibleComment(PortNameParser5(tokens, numberOfPorts_)) ||
                    processPossibleComment(PortNameParser6(tokens, numberOfPorts_)));
}

bool CommentProcessor::processPossibleComment(const PortNameParser& parser) {
  if (!parser.isValidPortName()) return false;
  addPortName(parser);
  return true;
}

void CommentProcessor::addPortName(const PortNameParser& parser) {
  // 0 ports set no limit to the parsers, but there is no entry to store into.
  if (numberOfPorts_ == 0) return;
  portNames_[parser.portNumber() - 1] = parser.portName();
}

bool stringsAreUnique(const std::vector<std::string>& strings) {
  std::set<std::string> seen;
  return std::all_of(strings.begin(), strings.end(),
                     [&seen](const std::string& entry) { return seen.insert(entry).second; });
}

bool stringsAreAllNotEmpty(const std::vector<std::string>& strings) {
  return std::none_of(strings.begin(), strings.end(),
                      [](const std::string& entry) { return entry.empty(); });
}

}  // namespace touchstone2
