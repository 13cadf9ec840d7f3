/// Cuts one line of text into its words.
///
///     touchstone2::tokenize("  Port 1 =\tInput ")   // "Port", "1", "=", "Input"
///
/// Words are separated by blanks and tabs and by nothing else: "Port[1]=Input" is one word,
/// and a carriage return at the end of a line stays on the last word. The text ends at its
/// first zero character.
#ifndef TOUCHSTONE2_PORTNAMES_STRING_TOKENIZER_H
#define TOUCHSTONE2_PORTNAMES_STRING_TOKENIZER_H

#include <touchstone2/export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace touchstone2 {

/// Does its work in the constructor; takeTokens hands the result over. tokenize is the short
/// form.
class StringTokenizer {
 public:
  /// @param text  not copied: it must stay as it is, and alive, as long as the tokenizer and
  ///              its copies
  TOUCHSTONE2_EXPORT explicit StringTokenizer(const std::string& text);

  /// @{
  /// A copy refers to the same text.
  TOUCHSTONE2_EXPORT StringTokenizer(const StringTokenizer& other);
  TOUCHSTONE2_EXPORT StringTokenizer(StringTokenizer&& other) noexcept;
  TOUCHSTONE2_EXPORT StringTokenizer& operator=(const StringTokenizer& other);
  TOUCHSTONE2_EXPORT StringTokenizer& operator=(StringTokenizer&& other) noexcept;
  /// @}

  TOUCHSTONE2_EXPORT ~StringTokenizer();

  /// The words in the order of the text, none of them empty. They are moved out: a second
  /// call gives an empty list.
  TOUCHSTONE2_EXPORT std::vector<std::string> takeTokens();

 private:
  bool atDelimiter() const;
  bool atEndOfString() const;
  bool atEndOfToken() const;
  void skipDelimiters();
  std::string currentToken() const;
  void getNextToken();
  void tokenize();

  const char* text_;            // the caller's characters, terminated by a zero
  std::size_t position_ = 0;    // of the character being looked at
  std::size_t tokenStart_ = 0;  // of the first character of the word being collected
  std::vector<std::string> tokens_;
};

/// The words of `text`, see the top of this header.
TOUCHSTONE2_EXPORT std::vector<std::string> tokenize(const std::string& text);

}  // namespace touchstone2

#endif
