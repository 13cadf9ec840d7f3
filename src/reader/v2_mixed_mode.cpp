// "[Mixed-Mode Order] D1,3 C1,3 S2 ...": the descriptor grammar and the rules about the list as
// a whole.
#include <touchstone2/reader/parser.h>

#include <optional>
#include <string_view>

#include "reader/ascii.h"
#include "reader/number_text.h"
#include "reader/scanner.h"

namespace touchstone2 {

namespace {

// Takes a port number off the front of text: a first digit from 1 to 9, at most 31 bits.
std::optional<std::size_t> take_port(std::string_view& text) {
  if (text.empty() || text[0] < '1' || text[0] > '9') return std::nullopt;
  std::size_t length = 1;
  while (length < text.size() && detail::is_digit(text[length])) ++length;
  const auto port = detail::parse_integer(text.substr(0, length));
  if (!port || port->clipped) return std::nullopt;
  text.remove_prefix(length);
  return static_cast<std::size_t>(port->value);
}

// "s" port, "d" port "," port or "c" port "," port, in lower case and without blanks.
std::optional<MixedModeDescriptor> parse_descriptor(std::string_view text) {
  MixedModeDescriptor descriptor;
  switch (text.empty() ? '\0' : text[0]) {
    case 's':
      descriptor.kind = MixedModeKind::SingleEnded;
      break;
    case 'd':
      descriptor.kind = MixedModeKind::Differential;
      break;
    case 'c':
      descriptor.kind = MixedModeKind::Common;
      break;
    default:
      return std::nullopt;
  }
  text.remove_prefix(1);

  const auto first_port = take_port(text);
  if (!first_port) return std::nullopt;
  descriptor.first_port = *first_port;
  if (descriptor.kind != MixedModeKind::SingleEnded) {
    if (text.empty() || text[0] != ',') return std::nullopt;
    text.remove_prefix(1);
    const auto second_port = take_port(text);
    if (!second_port) return std::nullopt;
    descriptor.second_port = *second_port;
  }
  if (!text.empty()) return std::nullopt;
  return descriptor;
}

// Which descriptors name each port. Every port needs both of its modes: one single-ended
// descriptor fills both, otherwise a differential and a common-mode one fill one each, and the
// two must name the same pair in the same order.
class PortCoverage {
 public:
  explicit PortCoverage(std::size_t number_of_ports) : ports_(number_of_ports + 1) {}

  // Throws at `token`, the descriptor's own.
  void add(const MixedModeDescriptor& descriptor, const Token& token) {
    const std::size_t p = descriptor.first_port;
    const std::size_t q = descriptor.second_port;
    if (p >= ports_.size() || q >= ports_.size()) {
      throw ParserError(ErrorType::ExpectedMixedModeDescriptor, token);
    }
    switch (descriptor.kind) {
      case MixedModeKind::SingleEnded:
        return add_single_ended(p, token);
      case MixedModeKind::Differential:
        return add_pair(p, q, &Port::differential_partner, &Port::common_partner, token);
      case MixedModeKind::Common:
        return add_pair(p, q, &Port::common_partner, &Port::differential_partner, token);
    }
  }

  // The first port that lacks a mode, from 1; 0 when there is none.
  std::size_t missed_port() const {
    for (std::size_t port = 1; port < ports_.size(); ++port) {
      if (ports_[port].differential_partner == 0 || ports_[port].common_partner == 0) return port;
    }
    return 0;
  }

 private:
  struct Port {
    std::size_t differential_partner = 0;  // 0 is "not named yet"
    std::size_t common_partner = 0;
    bool named_first = false;
    bool named_second = false;
  };

  void add_single_ended(std::size_t p, const Token& token) {
    Port& port = ports_[p];
    if (port.differential_partner != 0 || port.common_partner != 0) {
      throw MixedModeDescriptorOverlapError(p, token);
    }
    port.differential_partner = p;
    port.common_partner = p;
  }

  // `mode` is the slot that the descriptor fills, `other_mode` the one that its counterpart
  // fills. An overlap names the other port of the pair, not the one that was taken.
  void add_pair(std::size_t p, std::size_t q, std::size_t Port::*mode,
                std::size_t Port::*other_mode, const Token& token) {
    Port& first = ports_[p];
    Port& second = ports_[q];
    if (first.*mode != 0) throw MixedModeDescriptorOverlapError(q, token);
    if (second.*mode != 0) throw MixedModeDescriptorOverlapError(p, token);
    first.*mode = q;
    second.*mode = p;
    if (first.*other_mode == 0 && second.*other_mode == 0) {
      first.named_first = true;
      second.named_second = true;
      return;
    }
    if (first.*other_mode != q || !first.named_first) {
      throw Mismatched_C_D_DescriptorPortsError(q, token);
    }
    if (second.*other_mode != p || !second.named_second) {
      throw Mismatched_C_D_DescriptorPortsError(p, token);
    }
  }

  std::vector<Port> ports_;  // indexed by port number, entry 0 unused
};

}  // namespace

void Parser::read_mixed_mode_order_keyword() {
  if (file_.uses_mixed_mode()) throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  next_token();
  // Reported at the token after the keyword: the advance comes first.
  if (file_.get_parameter_type() == ParameterType::H ||
      file_.get_parameter_type() == ParameterType::G) {
    throw ParserError(ErrorType::MixedModeNeedsSYZParameters, current_token());
  }

  std::vector<MixedModeDescriptor> descriptors;
  std::vector<TokenPlace> places;
  while (next_list_item()) {
    scan_string(ErrorType::ExpectedMixedModeDescriptor);
    const auto descriptor = parse_descriptor(current_token().text);
    if (!descriptor) throw ParserError(ErrorType::ExpectedMixedModeDescriptor, current_token());
    descriptors.push_back(*descriptor);
    places.push_back(scanner_->token_place());
    next_token();
  }
  if (descriptors.empty()) {
    throw ParserError(ErrorType::ExpectedMixedModeDescriptor, current_token());
  }
  const std::size_t number_of_ports = file_.get_number_of_ports();
  if (descriptors.size() != number_of_ports) {
    throw WrongMixedModeDescriptorCountError(descriptors.size(), number_of_ports,
                                             places.back().to_token(Token::Type::string));
  }

  PortCoverage coverage(number_of_ports);
  for (std::size_t i = 0; i < descriptors.size(); ++i) {
    coverage.add(descriptors[i], places[i].to_token(Token::Type::string));
  }
  if (const std::size_t port = coverage.missed_port(); port != 0) {
    throw MixedModeDescriptorsMissedPortError(port, current_token());
  }
  file_.set_mixed_mode_descriptors(descriptors);
}

}  // namespace touchstone2
