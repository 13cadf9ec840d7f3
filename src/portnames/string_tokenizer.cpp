// Only blank, tab and the terminating zero end a word; every other character, line ends
// included, belongs to one.
#include <touchstone2/portnames/string_tokenizer.h>

#include <utility>

namespace touchstone2 {

StringTokenizer::StringTokenizer(const std::string& text) : text_(text.c_str()) { tokenize(); }

StringTokenizer::StringTokenizer(const StringTokenizer& other) = default;
StringTokenizer::StringTokenizer(StringTokenizer&& other) noexcept = default;
StringTokenizer& StringTokenizer::operator=(const StringTokenizer& other) = default;
StringTokenizer& StringTokenizer::operator=(StringTokenizer&& other) noexcept = default;
StringTokenizer::~StringTokenizer() = default;

std::vector<std::string> StringTokenizer::takeTokens() { return std::exchange(tokens_, {}); }

void StringTokenizer::tokenize() {
  while (!atEndOfString()) getNextToken();
}

void StringTokenizer::getNextToken() {
  skipDelimiters();
  if (atEndOfString()) return;
  tokenStart_ = position_;
  while (!atEndOfToken()) ++position_;
  tokens_.push_back(currentToken());
}

void StringTokenizer::skipDelimiters() {
  while (atDelimiter()) ++position_;
}

std::string StringTokenizer::currentToken() const {
  return std::string(text_ + tokenStart_, position_ - tokenStart_);
}

bool StringTokenizer::atDelimiter() const {
  return text_[position_] == ' ' || text_[position_] == '\t';
}

bool StringTokenizer::atEndOfString() const { return text_[position_] == '\0'; }

bool StringTokenizer::atEndOfToken() const { return atDelimiter() || atEndOfString(); }

std::vector<std::string> tokenize(const std::string& text) {
  return StringTokenizer(text).takeTokens();
}

}  // namespace touchstone2
