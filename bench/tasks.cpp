#include "tasks.h"

#include <touchstone2/touchstone2.h>

#include <filesystem>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <streambuf>

#include "limits.h"
#include "reader/mapped_file.h"

namespace touchstone2::bench {

namespace {

// Takes everything and keeps nothing but the count.
class CountingBuffer : public std::streambuf {
 public:
  std::size_t count() const { return count_; }

 private:
  int_type overflow(int_type c) override {
    ++count_;
    return c;
  }
  std::streamsize xsputn(const char*, std::streamsize size) override {
    count_ += static_cast<std::size_t>(size);
    return size;
  }

  std::size_t count_ = 0;
};

void read_by_library(const std::string& name) {
  File file(name);
  StandardMessageHandler handler;
  if (!Parser(file, handler).read_file()) throw std::runtime_error(name + " is refused");
}

void write(const Input& input, File& file, const std::string& way, std::ostream& os) {
  if (way == "W1") return write_limit_1(input, file, os);
  if (way == "W2") return write_limit_2(input, file, os);
  if (input.version_2) return V2_Writer(file).write_file(os);
  V1_Writer(file).write_file(os);
}

}  // namespace

Task make_read_task(const Input& input, const std::vector<std::string>& files,
                    const std::string& way) {
  std::size_t bytes = 0;
  for (const std::string& name : files) bytes += std::filesystem::file_size(name);
  const auto run = [input, files, way] {
    for (const std::string& name : files) {
      if (way == "library") {
        read_by_library(name);
        continue;
      }
      const MappedFile mapping(name);
      const auto points =
          way == "L1" ? read_limit_1(input, mapping.bytes()) : read_limit_2(input, mapping.bytes());
      if (points != input.points) throw std::runtime_error("wrong number of points");
    }
  };
  return {bytes, run};
}

Task make_write_task(const Input& input, const std::vector<std::string>& files,
                     const std::string& way) {
  const auto file = std::make_shared<File>(files.front());
  StandardMessageHandler handler;
  if (!Parser(*file, handler).read_file()) throw std::runtime_error("the input is refused");
  const auto run = [input, file, way] {
    CountingBuffer buffer;
    std::ostream os(&buffer);
    write(input, *file, way, os);
    return buffer.count();
  };
  return {run(), [run] { run(); }};
}

}  // namespace touchstone2::bench
