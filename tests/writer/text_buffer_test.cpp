#include "writer/text_buffer.h"

#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>

#include <gtest/gtest.h>

namespace touchstone2::detail {
namespace {

std::string by_stream(double value, std::streamsize precision, int width) {
  std::ostringstream os;
  os << std::left << std::setw(width);
  os.precision(precision);
  os << value;
  return os.str();
}

TEST(TextBuffer, NumbersAndFieldsAsAStreamWritesThem) {
  for (const double value : {0.0, -0.0, 1.0, -12.5, 1.0 / 3.0, 1e-300, 1.5e300, 123456789.125}) {
    for (const std::streamsize precision : {-5, -1, 0, 1, 6, 14, 17, 18, 40, 800, 100'000}) {
      std::ostringstream os;
      TextBuffer text(os);
      text.append_number(value, precision);
      text.append("|");
      text.append_field(value, precision);
      text.append("|");
      text.flush();
      EXPECT_EQ(os.str(),
                by_stream(value, precision, 0) + "|" + by_stream(value, precision, 20) + "|")
          << value << " " << precision;
    }
  }
}

// At 14 digits of 20, 21 and 22 characters, and shorter ones beside them.
TEST(TextBuffer, PairsAsAStreamWritesThem) {
  const double values[] = {0.5, -0.00012345678901234, -1.2345678901234e-10, -1.2345678901234e-100};
  for (const double a : values) {
    for (const double b : values) {
      for (const std::streamsize precision : {-1, 0, 6, 14, 17, 40, 800}) {
        std::ostringstream os;
        TextBuffer text(os);
        text.append_pair(a, b, precision);
        text.append("|");
        text.flush();
        EXPECT_EQ(os.str(),
                  "  " + by_stream(a, precision, 20) + " " + by_stream(b, precision, 20) + "|")
            << a << " " << b << " " << precision;
      }
    }
  }
}

TEST(TextBuffer, FieldsOfText) {
  std::ostringstream os;
  TextBuffer text(os);
  text.append_field("S11mag");
  text.append_field("exactly twenty chars");
  text.append_field("more than twenty characters");
  text.flush();
  EXPECT_EQ(os.str(), "S11mag              exactly twenty charsmore than twenty characters");
}

TEST(TextBuffer, KeepsTheOrderOverManyPieces) {
  std::ostringstream os;
  std::string expected;
  {
    TextBuffer text(os);
    for (int k = 0; k < 20'000; ++k) {
      text.append_field(k / 8.0, 14);
      expected += by_stream(k / 8.0, 14, 20);
    }
    const std::string large(200'000, 'x');
    text.append(large);
    expected += large;
    // Every length meets the end of a piece, the longest included.
    for (int k = 0; k < 5'000; ++k) {
      const std::streamsize precision = k % 7 == 0 ? 800 : 14;
      text.append_pair(k / 7.0, -1e-300 / (k + 3), precision);
      expected += "  " + by_stream(k / 7.0, precision, 20) + " " +
                  by_stream(-1e-300 / (k + 3), precision, 20);
      text.append_number(k / 9.0, precision);
      expected += by_stream(k / 9.0, precision, 0);
    }
  }  // flushed when destroyed
  EXPECT_TRUE(os.str() == expected);
}

TEST(TextBuffer, ASingleByteIsHandedOver) {
  std::ostringstream os;
  TextBuffer text(os);
  text.append("x");
  text.flush();
  EXPECT_EQ(os.str(), "x");
}

class ThrowingBuffer : public std::streambuf {
  int_type overflow(int_type) override { throw std::runtime_error("disk"); }
  std::streamsize xsputn(const char*, std::streamsize) override {
    throw std::runtime_error("disk");
  }
};

TEST(TextBuffer, DestructionLetsNoExceptionOut) {
  ThrowingBuffer buffer;
  std::ostream os(&buffer);
  os.exceptions(std::ios_base::badbit);
  {
    TextBuffer text(os);
    text.append("lost");
  }
  EXPECT_TRUE(os.bad());
  os.clear();
  TextBuffer text(os);
  text.append("told of");
  EXPECT_THROW(text.flush(), std::runtime_error);
}

}  // namespace
}  // namespace touchstone2::detail
