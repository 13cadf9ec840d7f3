// A short text composed without allocating and without the locale, for what() of diagnostics.
#ifndef TOUCHSTONE2_SRC_READER_MESSAGE_TEXT_H
#define TOUCHSTONE2_SRC_READER_MESSAGE_TEXT_H

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <string_view>

namespace touchstone2::detail {

// A fixed-capacity string: appending never throws and never moves the characters, so a pointer
// to them stays good however often the text is composed anew. What does not fit is dropped;
// the longest message, KeywordOrderingError with 127 characters of keyword, takes 153.
class MessageText {
 public:
  void clear() { end_ = characters_; }

  MessageText& operator<<(std::string_view text) {
    end_ = std::copy_n(text.data(), std::min(text.size(), room()), end_);
    return *this;
  }

  MessageText& operator<<(char c) { return *this << std::string_view(&c, 1); }

  MessageText& operator<<(std::unsigned_integral auto count) {
    end_ = std::to_chars(end_, end_ + room(), count).ptr;
    return *this;
  }

  // As a stream writes a double by default: six significant digits, general notation.
  MessageText& operator<<(double value) {
    end_ = std::to_chars(end_, end_ + room(), value, std::chars_format::general, 6).ptr;
    return *this;
  }

  const char* c_str() {
    *end_ = '\0';
    return characters_;
  }

 private:
  static constexpr std::size_t kCapacity = 511;

  std::size_t room() const { return static_cast<std::size_t>(characters_ + kCapacity - end_); }

  char characters_[kCapacity + 1];
  char* end_ = characters_;
};

}  // namespace touchstone2::detail

#endif
