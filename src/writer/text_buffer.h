// Text on its way into a stream, handed over in large pieces.
#ifndef TOUCHSTONE2_SRC_WRITER_TEXT_BUFFER_H
#define TOUCHSTONE2_SRC_WRITER_TEXT_BUFFER_H

#include <cstddef>
#include <ios>
#include <iosfwd>
#include <memory>
#include <string_view>

namespace touchstone2::detail {

// Gives the same bytes as operator<< on a stream under a PlainNumbers, several times faster.
// Nothing else may write to the stream meanwhile. What was appended is in the stream when the
// buffer is flushed or destroyed.
class TextBuffer {
 public:
  explicit TextBuffer(std::ostream& os);
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;
  ~TextBuffer();

  void append(std::string_view text);

  // With `precision` significant digits, as a stream of that precision writes it: a negative
  // one stands for 6, and 0 for 1.
  void append_number(double value, std::streamsize precision);

  // The same in a column of data: left-aligned, padded to 20 characters, never cut.
  void append_field(double value, std::streamsize precision);
  void append_field(std::string_view text);

  // Two such columns with the blanks in front of each: two, then one.
  void append_pair(double a, double b, std::streamsize precision);

  // Hands everything over to the stream; does not flush the stream itself.
  void flush();

 private:
  char* room_for(std::size_t bytes);

  std::ostream& os_;
  std::unique_ptr<char[]> bytes_;
  std::size_t size_ = 0;
};

}  // namespace touchstone2::detail

#endif
