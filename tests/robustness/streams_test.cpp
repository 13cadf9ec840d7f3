// Output streams that fail: the writers look at no error, so the stream's own state has to tell,
// and nothing else may happen. A stream that is told to throw gets its exception through.
#include <touchstone2/touchstone2.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ios>
#include <locale>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2::test {
namespace {

// Takes so many bytes and no more.
class BoundedBuffer : public std::streambuf {
 public:
  explicit BoundedBuffer(std::size_t room) : room_(room) {}
  const std::string& text() const { return text_; }
  std::size_t calls_when_full() const { return calls_when_full_; }

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    const auto wanted = static_cast<std::size_t>(count);
    const std::size_t taken = std::min(wanted, room_ - text_.size());
    text_.append(bytes, taken);
    if (taken < wanted) full();
    return static_cast<std::streamsize>(taken);
  }
  int_type overflow(int_type c) override {
    if (text_.size() == room_) {
      full();
      return traits_type::eof();
    }
    text_ += traits_type::to_char_type(c);
    return traits_type::not_eof(c);
  }
  int sync() override { return text_.size() == room_ ? -1 : 0; }
  virtual void full() { ++calls_when_full_; }

 private:
  std::size_t room_;
  std::string text_;
  std::size_t calls_when_full_ = 0;
};

class ThrowingBuffer : public BoundedBuffer {
 public:
  using BoundedBuffer::BoundedBuffer;

 private:
  void full() override { throw std::domain_error("no room"); }
};

struct Comma : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
};

std::string source_text(int points) {
  std::string text = "! remark\n# GHz S RI R 50\n";
  for (int i = 1; i <= points; ++i) {
    text += std::to_string(i) + " 0.25 1 2 3 4 5 6 7\n";
  }
  return text + "1 1 0.5 20 0.25\n2 1 0.5 20 0.25\n";
}

template <typename Writer>
std::string whole_text(File& file) {
  std::ostringstream stream;
  Writer(file).write_file(stream);
  return stream.str();
}

// A stream's settings are its own again, however the write ended.
void dress(std::ostream& stream) {
  stream.imbue(std::locale(std::locale::classic(), new Comma));
  stream.fill('*');
  stream.setf(std::ios_base::hex, std::ios_base::basefield);
  stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
}

void expect_dressed(const std::ostream& stream) {
  EXPECT_EQ(std::use_facet<std::numpunct<char>>(stream.getloc()).decimal_point(), ',');
  EXPECT_EQ(stream.fill(), '*');
  EXPECT_EQ(stream.flags() & std::ios_base::basefield, std::ios_base::hex);
  EXPECT_EQ(stream.flags() & std::ios_base::floatfield, std::ios_base::fixed);
}

template <typename Writer>
void write_into_too_little_room(int points) {
  ReadResult source = read_text(source_text(points));
  ASSERT_TRUE(source.ok);
  const std::string whole = whole_text<Writer>(source.file);
  std::vector<std::size_t> rooms = {0, 1, 3, whole.size() / 2, whole.size() - 1};
  for (std::size_t room = 5; room < std::min(whole.size(), std::size_t{600}); room += 7) {
    rooms.push_back(room);
  }
  for (const std::size_t room : rooms) {
    SCOPED_TRACE(room);
    {
      BoundedBuffer buffer(room);
      std::ostream stream(&buffer);
      dress(stream);
      EXPECT_NO_THROW(Writer(source.file).write_file(stream));
      EXPECT_FALSE(stream.good());
      EXPECT_TRUE(stream.bad());
      EXPECT_EQ(buffer.text(), whole.substr(0, room));
      EXPECT_EQ(buffer.calls_when_full(), 1U);  // nobody hammers on a full disk
      expect_dressed(stream);
    }
    {
      BoundedBuffer buffer(room);
      std::ostream stream(&buffer);
      dress(stream);
      stream.exceptions(std::ios_base::badbit | std::ios_base::failbit);
      EXPECT_THROW(Writer(source.file).write_file(stream), std::ios_base::failure);
      EXPECT_EQ(buffer.text(), whole.substr(0, room));
      expect_dressed(stream);
    }
    {
      ThrowingBuffer buffer(room);
      std::ostream stream(&buffer);
      dress(stream);
      EXPECT_NO_THROW(Writer(source.file).write_file(stream));  // the stream keeps it
      EXPECT_TRUE(stream.bad());
      EXPECT_EQ(buffer.text(), whole.substr(0, room));
      expect_dressed(stream);
    }
    {
      ThrowingBuffer buffer(room);
      std::ostream stream(&buffer);
      dress(stream);
      stream.exceptions(std::ios_base::badbit);
      EXPECT_THROW(Writer(source.file).write_file(stream), std::domain_error);
      EXPECT_EQ(buffer.text(), whole.substr(0, room));
      expect_dressed(stream);
    }
  }
  EXPECT_EQ(whole_text<Writer>(source.file), whole);
}

TEST(Streams, ThatFailAreLeftAsTheyFailed) {
  write_into_too_little_room<V1_Writer>(3);
  write_into_too_little_room<V2_Writer>(3);
}

TEST(Streams, ThatFailFarInsideTheData) {
  write_into_too_little_room<V1_Writer>(3000);
  write_into_too_little_room<V2_Writer>(3000);
}

TEST(Streams, ThatHaveFailedBeforeGetNothing) {
  ReadResult source = read_text(source_text(3));
  for (const auto state : {std::ios_base::failbit, std::ios_base::badbit, std::ios_base::eofbit}) {
    BoundedBuffer buffer(1'000'000);
    std::ostream stream(&buffer);
    stream.setstate(state);
    V2_Writer(source.file).write_file(stream);
    EXPECT_EQ(buffer.text(), "");
    EXPECT_FALSE(stream.good());
  }
}

TEST(Streams, WithoutABuffer) {
  ReadResult source = read_text(source_text(3));
  std::ostream stream(nullptr);
  EXPECT_NO_THROW(V1_Writer(source.file).write_file(stream));
  EXPECT_TRUE(stream.bad());
}

#ifndef _WIN32
TEST(Streams, FullDevice) {
  const char* const device = "/dev/full";
  if (!std::filesystem::exists(device)) GTEST_SKIP() << "there is no " << device;
  ReadResult source = read_text(source_text(3));
  ReadResult large = read_text(source_text(5000));
  for (File* file : {&source.file, &large.file}) {
    std::ofstream stream(device, std::ios::binary);
    ASSERT_TRUE(stream.is_open());
    EXPECT_NO_THROW(V2_Writer(*file).write_file(stream));
    EXPECT_FALSE(stream.good());
  }
}
#endif

TEST(Streams, ClosedFile) {
  ReadResult source = read_text(source_text(3));
  std::ofstream stream;
  EXPECT_NO_THROW(V2_Writer(source.file).write_file(stream));
  EXPECT_FALSE(stream.good());
}

}  // namespace
}  // namespace touchstone2::test
