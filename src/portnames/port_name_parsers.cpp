// Each constructor runs its checks in a fixed order and stops at the first one that fails; the
// check that meets the port number stores it at once. The caller's words come from outside, so
// none of them is taken to be non-empty.
#include <touchstone2/portnames/port_name_parsers.h>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <system_error>

namespace touchstone2 {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool isDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

// 0 when the text is anything but digits, or too great a number.
std::size_t toPortNumber(std::string_view text) {
  if (!isDigits(text)) return 0;
  std::size_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  return result.ec == std::errc() ? number : 0;
}

// What stands between `prefix` and `suffix`; nothing when `text` lacks either.
std::string_view textBetween(std::string_view prefix, std::string_view text,
                             std::string_view suffix) {
  if (text.size() < prefix.size() + suffix.size()) return {};
  if (!text.starts_with(prefix) || !text.ends_with(suffix)) return {};
  return text.substr(prefix.size(), text.size() - prefix.size() - suffix.size());
}

std::string joinTokens(const std::vector<std::string>& tokens, std::size_t first) {
  std::string joined;
  for (std::size_t i = first; i < tokens.size(); ++i) {
    if (i > first) joined += '_';
    joined += tokens[i];
  }
  return joined;
}

}  // namespace

PortNameParser::PortNameParser(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : tokens_(&tokens), numberOfPorts_(numberOfPorts) {}

PortNameParser::PortNameParser(const PortNameParser& other) = default;
PortNameParser& PortNameParser::operator=(const PortNameParser& other) = default;
PortNameParser::~PortNameParser() = default;

const std::string& PortNameParser::portName() const { return portName_; }

std::size_t PortNameParser::portNumber() const { return portNumber_; }

bool PortNameParser::isValidPortName() const { return valid_ && portNumberIsValid(); }

bool PortNameParser::portNumberIsValid() const {
  return portNumber_ != 0 && (numberOfPorts_ == 0 || portNumber_ <= numberOfPorts_);
}

PortNameParser1::PortNameParser1(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : PortNameParser(tokens, numberOfPorts) {
  if (tokens.size() < 3) return;
  valid_ = processFirstToken() && processSecondToken() && processThirdToken();
  if (valid_) portName_ = getNameFromTokens();
}

bool PortNameParser1::processFirstToken() const { return (*tokens_)[0] == "Port"; }

// The one convention that takes the number 0 for a port number; isValidPortName refuses it.
bool PortNameParser1::processSecondToken() {
  if (!isDigits((*tokens_)[1])) return false;
  portNumber_ = toPortNumber((*tokens_)[1]);
  return true;
}

bool PortNameParser1::processThirdToken() const { return (*tokens_)[2] == "="; }

std::string PortNameParser1::getNameFromTokens() const {
  const std::vector<std::string>& tokens = *tokens_;
  if (tokens.size() < 4) return {};
  if (tokens.size() < 5 || tokens[4].empty() || tokens[4] == tokens[3]) return tokens[3];
  return tokens[3] + "_" + tokens[4];
}

PortNameParser2::PortNameParser2(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : PortNameParser(tokens, numberOfPorts) {
  if (tokens.size() < 2) return;
  valid_ = processFirstToken() && processSecondToken();
  if (valid_) portName_ = getNameFromTokens();
}

bool PortNameParser2::processFirstToken() {
  portNumber_ = toPortNumber(textBetween("Port[", (*tokens_)[0], "]"));
  return portNumber_ != 0;
}

bool PortNameParser2::processSecondToken() const { return (*tokens_)[1] == "="; }

std::string PortNameParser2::getNameFromTokens() const { return joinTokens(*tokens_, 2); }

PortNameParser3::PortNameParser3(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : PortNameParser(tokens, numberOfPorts) {
  if (tokens.size() < 3) return;
  valid_ = processFirstToken() && processSecondToken() && processThirdToken();
  if (valid_) portName_ = getNameFromTokens();
}

bool PortNameParser3::processFirstToken() const { return (*tokens_)[0] == "PORT"; }

bool PortNameParser3::processSecondToken() {
  portNumber_ = toPortNumber(textBetween("", (*tokens_)[1], ":"));
  return portNumber_ != 0;
}

bool PortNameParser3::processThirdToken() const {
  return isDigits(textBetween("", (*tokens_)[2], ":"));
}

std::string PortNameParser3::getNameFromTokens() const {
  return tokens_->size() < 4 ? std::string() : (*tokens_)[3];
}

PortNameParser4::PortNameParser4(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : PortNameParser(tokens, numberOfPorts) {
  if (tokens.size() != 1) return;
  valid_ = processFirstToken();
  if (valid_) portName_ = getNameFromTokens();
}

bool PortNameParser4::processFirstToken() {
  const std::string_view token = (*tokens_)[0];
  const std::size_t separator = token.find("::");
  if (separator == std::string_view::npos) return false;
  const std::string_view head = token.substr(0, separator);
  const std::size_t underscore = head.find('_');
  if (underscore == std::string_view::npos) return false;
  portNumber_ = toPortNumber(textBetween("Port", head.substr(0, underscore), ""));
  return portNumber_ != 0;
}

std::string PortNameParser4::getNameFromTokens() const {
  const std::string& token = (*tokens_)[0];
  const std::size_t separator = token.find("::");
  std::string name = token.substr(0, separator);
  const std::string tail = token.substr(separator + 2);
  return tail.empty() ? name : name + "_" + tail;
}

PortNameParser5::PortNameParser5(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : PortNameParser(tokens, numberOfPorts) {
  if (tokens.size() < 2) return;
  valid_ = processFirstToken();
  if (valid_) portName_ = getNameFromTokens();
}

bool PortNameParser5::processFirstToken() {
  std::string token = (*tokens_)[0];
  std::transform(token.begin(), token.end(), token.begin(), toLower);
  portNumber_ = toPortNumber(textBetween("port", token, ":"));
  return portNumber_ != 0;
}

std::string PortNameParser5::getNameFromTokens() const { return joinTokens(*tokens_, 1); }

// The second word is looked at first.
PortNameParser6::PortNameParser6(const std::vector<std::string>& tokens, std::size_t numberOfPorts)
    : PortNameParser(tokens, numberOfPorts) {
  if (tokens.size() < 2) return;
  valid_ = processSecondToken() && processFirstToken();
  if (valid_) portName_ = getNameFromTokens();
}

bool PortNameParser6::processFirstToken() {
  portNumber_ = toPortNumber(textBetween("Port[", (*tokens_)[0], "]"));
  return portNumber_ != 0;
}

bool PortNameParser6::processSecondToken() const {
  return (*tokens_)[1].find('=') == std::string::npos;
}

std::string PortNameParser6::getNameFromTokens() const { return joinTokens(*tokens_, 1); }

}  // namespace touchstone2
