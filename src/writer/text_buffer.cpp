#include "writer/text_buffer.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <ostream>

#include "writer/number_format.h"

namespace touchstone2::detail {

namespace {

constexpr std::size_t kCapacity = std::size_t{1} << 16;
constexpr std::size_t kFieldWidth = 20;

// A double has at most 767 significant digits; the zeros behind them are not written.
constexpr std::streamsize kMostDigits = 767;
constexpr std::size_t kMostLongNumberBytes = kMostDigits + 400;
constexpr std::size_t kMostFieldBytes = kMostLongNumberBytes + kFieldWidth;

// The digits that a stream of this precision writes.
int significant_digits(std::streamsize precision) {
  if (precision < 0) return 6;
  return static_cast<int>(std::clamp<std::streamsize>(precision, 1, kMostDigits));
}

char* format_any_number(char* out, double value, int digits) {
  if (digits <= 17) return format_number(out, value, digits);
  return std::to_chars(out, out + kMostLongNumberBytes, value, std::chars_format::general, digits)
      .ptr;
}

// Returns the end of the field. Nearly always it is as wide as it should be; as long as the
// padding stands in the branch, a processor foresees that and starts with the next number before
// it knows this one's length.
char* format_field(char* out, double value, int digits) {
  char* const end = format_any_number(out, value, digits);
  if (end >= out + kFieldWidth) return end;
  std::memset(end, ' ', kFieldWidth);
  return out + kFieldWidth;
}

}  // namespace

TextBuffer::TextBuffer(std::ostream& os) : os_(os), bytes_(new char[kCapacity]) {}

// The writing failed half way: what came before goes out all the same.
TextBuffer::~TextBuffer() {
  try {
    flush();
  } catch (...) {  // a stream that throws; the failure under way is the one to tell of
  }
}

void TextBuffer::append(std::string_view text) {
  while (!text.empty()) {
    const std::size_t count = std::min(text.size(), kCapacity);
    std::memcpy(room_for(count), text.data(), count);
    size_ += count;
    text.remove_prefix(count);
  }
}

void TextBuffer::append_number(double value, std::streamsize precision) {
  char* const begin = room_for(kMostLongNumberBytes);
  char* const end = format_any_number(begin, value, significant_digits(precision));
  size_ += static_cast<std::size_t>(end - begin);
}

void TextBuffer::append_field(double value, std::streamsize precision) {
  char* const begin = room_for(kMostFieldBytes);
  char* const end = format_field(begin, value, significant_digits(precision));
  size_ += static_cast<std::size_t>(end - begin);
}

void TextBuffer::append_pair(double a, double b, std::streamsize precision) {
  const int digits = significant_digits(precision);
  char* const begin = room_for(2 * kMostFieldBytes + 3);
  std::memset(begin, ' ', 2);
  char* out = format_field(begin + 2, a, digits);
  *out++ = ' ';
  out = format_field(out, b, digits);
  size_ += static_cast<std::size_t>(out - begin);
}

void TextBuffer::append_field(std::string_view text) {
  append(text);
  if (text.size() >= kFieldWidth) return;
  const std::size_t padding = kFieldWidth - text.size();
  std::memset(room_for(padding), ' ', padding);
  size_ += padding;
}

void TextBuffer::flush() {
  const std::size_t size = size_;
  size_ = 0;
  if (size != 0) os_.write(bytes_.get(), static_cast<std::streamsize>(size));
}

// Where the next bytes go, at most kCapacity of them.
char* TextBuffer::room_for(std::size_t bytes) {
  if (kCapacity - size_ < bytes) flush();
  return bytes_.get() + size_;
}

}  // namespace touchstone2::detail
