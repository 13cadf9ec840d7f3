// Every allocation fails once: what leaves the library is std::bad_alloc, nothing is lost, and
// the objects that are left can be destroyed, compared and used again.
#include <touchstone2/touchstone2.h>

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <ostream>
#include <streambuf>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "robustness/counting_new.h"

namespace touchstone2::test {
namespace {

// Allocates nothing itself.
struct CountingHandler : MessageHandler {
  void report_error(const File&, const ParserError& error) override {
    ++errors;
    static_cast<void>(error.what());
  }
  void report_warning(const File&, const ParserWarning& warning) override {
    ++warnings;
    static_cast<void>(warning.what());
  }
  std::size_t errors = 0;
  std::size_t warnings = 0;
};

// Takes bytes without allocating. (A string stream would swallow the failure itself.)
class FixedBuffer : public std::streambuf {
 public:
  FixedBuffer() { clear(); }
  void clear() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }
  std::string_view text() const { return {pbase(), static_cast<std::size_t>(pptr() - pbase())}; }

 private:
  std::array<char, 1 << 16> bytes_{};
};

// The allocation of a step that is to fail, counted from 0.
std::size_t failing_allocation = SIZE_MAX;

// True when `step` came through, false when it threw std::bad_alloc; nothing else may happen.
// Allocations outside of steps do not fail.
template <typename Step>
bool comes_through(Step step) {
  heap.reset();
  heap.failing = failing_allocation;
  bool done = true;
  try {
    step();
  } catch (const std::bad_alloc&) {
    done = false;
  }
  heap.failing = SIZE_MAX;
  return done;
}

// Some standard libraries lose what a vector has copied when one more element cannot be copied.
bool vectors_lose_nothing() {
  const std::vector<std::string> source(2, std::string(200, 'v'));
  const std::size_t blocks = heap.live_blocks;
  failing_allocation = 2;  // the last string
  std::vector<std::string> copy;
  EXPECT_FALSE(comes_through([&] { copy = std::vector<std::string>(source); }));
  EXPECT_TRUE(copy.empty());
  return heap.live_blocks == blocks;
}

// Runs `action`, which has one step, with every allocation of the step failing in its turn, until
// the step comes through. Says how many allocations there were. `action` leaves nothing behind
// and returns what comes_through has said.
template <typename Action>
std::size_t fail_every_allocation(Action action) {
  static const bool losses_are_ours = vectors_lose_nothing();
  for (failing_allocation = 0;; ++failing_allocation) {
    const std::size_t blocks = heap.live_blocks;
    const bool done = action();
    if (losses_are_ours) {
      EXPECT_EQ(heap.live_blocks, blocks) << "lost by failure " << failing_allocation;
    }
    if (done || ::testing::Test::HasFailure()) return failing_allocation;
  }
}

const std::string kLong(200, 'c');  // longer than what a string holds without allocating

std::vector<std::pair<const char*, std::string>> files() {
  std::string version_1 =
      "! " + kLong + "\n! Port[1] = " + kLong + "\n! MIXED " + kLong + "\n# GHz S MA R 50\n";
  for (int i = 1; i <= 9; ++i) {
    version_1 += std::to_string(i) + " 0.5 10 0.25 -20 0.125 30 0.5 -40 ! " + kLong + "\n";
  }
  for (int i = 10; i <= 40; ++i) version_1 += std::to_string(i) + " 1 10 1 20 1 30 1 40\n";
  version_1 += "0.5 1 0.5 20 0.25\n1.5 -1 0.5 20 1e-999\n# second options line \n";

  std::string version_2 =
      "! " + kLong +
      "\n[Version] 2.0\n# GHz Y RI\n[Number of Ports] 4\n[Number of Frequencies] "
      "20\n[Reference] 50 50\n75 75\n[Mixed-Mode Order] D1,2 C1,2 S3 S4\n[Matrix Format] Upper\n"
      "[Begin Information]\n" +
      kLong + "\n[End Information]\n[Network Data]\n";
  for (int i = 1; i <= 20; ++i) {
    version_2 += std::to_string(i);
    for (int pair = 0; pair < 10; ++pair) version_2 += " 1.5 -0.25";
    version_2 += "\n";
  }
  version_2 += "[End]\n";

  std::string noise =
      "[Version] 2.0\n# GHz H DB\n[Number of Ports] 2\n[Two-Port Data Order] 21_12\n"
      "[Number of Frequencies] 2\n[Number of Noise Frequencies] 1\n[Network Data]\n"
      "1 1 2 3 4 5 6 7 8 ! " +
      kLong + "\n2 1 2 3 4 5 6 7 8\n[Noise Data]\n1 1 1 1 1\n[End]\n";

  const std::string broken = version_2.substr(0, version_2.size() / 2) + kLong + kLong;
  std::string overlap = version_2;
  overlap.replace(overlap.find("C1,2"), 4, "D2,3");
  return {{"version 1", version_1},
          {"version 2", version_2},
          {"version 2 with noise", noise},
          {"a long bad word", broken},
          {"overlapping descriptors", overlap}};
}

bool read(File& file, const std::string& text) {
  CountingHandler handler;
  Parser parser(file, handler, text);
  return parser.read_file();
}

// A File that a test has filled, with the noise data that no File owns.
struct Filled {
  explicit Filled(const std::string& text) : file("faults.s2p"), ok(read(file, text)) {}
  ~Filled() { delete file.get_noise_params(); }
  File file;
  bool ok;
};

TEST(AllocationFaults, Reading) {
  for (const auto& [name, text] : files()) {
    SCOPED_TRACE(name);
    const Filled good(text);
    const std::size_t failures = fail_every_allocation([&, &source = text] {
      File file("faults.s2p");
      CountingHandler handler;
      Parser parser(file, handler, source);
      const bool done = comes_through([&] { parser.read_file(); });
      EXPECT_TRUE(file.compare(file, 3));
      if (done) {
        EXPECT_TRUE(file == good.file);
      } else {
        EXPECT_EQ(handler.errors, 0U);
        EXPECT_FALSE(file.is_valid());
        EXPECT_FALSE(good.ok && file == good.file);
        File copy(file);
        EXPECT_TRUE(copy == file);
        delete file.get_noise_params();
        // The same parser, and the same File, which keeps what it had; and a new one.
        parser.read_file();
        if (file.get_noise_params() != copy.get_noise_params()) delete file.get_noise_params();
        EXPECT_TRUE(Filled(source).file == good.file);
        return false;
      }
      delete file.get_noise_params();
      return true;
    });
    EXPECT_GT(failures, 12U);
  }
}

TEST(AllocationFaults, ReadingAHeader) {
  for (const auto& [name, text] : files()) {
    SCOPED_TRACE(name);
    const std::size_t failures = fail_every_allocation([&source = text] {
      File file("faults.s2p");
      CountingHandler handler;
      Parser parser(file, handler, source);
      const bool done = comes_through([&] { parser.read_file_header(); });
      EXPECT_EQ(file.is_valid(), done);
      return done;
    });
    EXPECT_GE(failures, 1U);
  }
}

TEST(AllocationFaults, ReadingAFileThatIsNotThere) {
  const std::size_t failures = fail_every_allocation([] {
    return comes_through([] {
      File file("/no/such/folder/" + kLong);
      CountingHandler handler;
      Parser parser(file, handler);
      EXPECT_FALSE(parser.read_file());
      EXPECT_EQ(handler.errors, 1U);
    });
  });
  EXPECT_GT(failures, 2U);
}

TEST(AllocationFaults, CopyingAndAssigningAFile) {
  const Filled source(files()[1].second);
  const std::size_t failures = fail_every_allocation([&] {
    File target("target");
    std::unique_ptr<File> copy;
    const bool done = comes_through([&] {
      copy = std::make_unique<File>(source.file);
      target = source.file;
    });
    EXPECT_FALSE(done && !(target == *copy));
    if (!done) {
      EXPECT_TRUE(target == target);
      target = source.file;
      EXPECT_TRUE(target == source.file);
    }
    return done;
  });
  EXPECT_GT(failures, 5U);
}

TEST(AllocationFaults, PortNames) {
  const std::string text = files()[0].second;
  const std::string name(100, 'n');
  const std::vector<std::string> found = {kLong, ""};
  const std::vector<std::string> set = {kLong, name};
  const std::size_t failures = fail_every_allocation([&] {
    Filled filled(text);
    File& file = filled.file;
    const std::vector<std::string> comments = file.get_leading_comments();
    int steps = 0;
    const bool done = comes_through([&] {
      file.get_port_names();
      steps = 1;
      file.set_port_name(1, name);
      steps = 2;
      file.update_leading_comments();
      steps = 3;
      file.get_pairing_info();
      file.set_pairing_info(name + "MIXED");
    });
    if (steps <= 2) {
      EXPECT_EQ(file.get_leading_comments(), comments);
    }
    EXPECT_EQ(file.get_port_names(), steps <= 1 ? found : set);
    file.update_leading_comments();
    EXPECT_EQ(file.get_port_names(), steps <= 1 ? found : set);
    if (!done) file.set_pairing_info(name + "MIXED");
    EXPECT_EQ(file.get_pairing_info(), name + "MIXED");
    return done;
  });
  EXPECT_GT(failures, 30U);
}

template <typename Writer>
void fail_writing(const std::string& text) {
  FixedBuffer buffer;
  std::ostream stream(&buffer);
  Filled filled(text);
  ASSERT_TRUE(filled.ok);
  Writer(filled.file).write_file(stream);
  const std::string expected(buffer.text());
  const std::size_t failures = fail_every_allocation([&] {
    buffer.clear();
    const auto flags = stream.flags();
    const bool done = comes_through([&] { Writer(filled.file).write_file(stream); });
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(stream.getloc(), std::locale::classic());
    if (done) {
      EXPECT_EQ(buffer.text(), expected);
    } else {
      constexpr auto kKept = std::ios_base::basefield | std::ios_base::floatfield;
      EXPECT_EQ(stream.flags() & kKept, flags & kKept);
      EXPECT_LE(buffer.text().size(), expected.size());
      buffer.clear();
      Writer(filled.file).write_file(stream);
      EXPECT_EQ(buffer.text(), expected);
    }
    return done;
  });
  EXPECT_GT(failures, 5U);
}

TEST(AllocationFaults, WritingVersion1) { fail_writing<V1_Writer>(files()[0].second); }

TEST(AllocationFaults, WritingVersion2) {
  fail_writing<V2_Writer>(files()[0].second);
  fail_writing<V2_Writer>(files()[1].second);
  fail_writing<V2_Writer>(files()[2].second);
}

template <typename Copy>
void fail_copying(const File& source, Copy copy_file) {
  const std::size_t failures = fail_every_allocation([&] {
    File* copy = nullptr;
    const bool done = comes_through([&] { copy = copy_file(); });
    EXPECT_EQ(done, copy != nullptr);
    if (copy != nullptr) {
      delete copy->get_noise_params();
      delete copy;
    }
    EXPECT_TRUE(source == source);
    return done;
  });
  EXPECT_GT(failures, 12U);
}

TEST(AllocationFaults, CopyingPorts) {
  const std::string name(100, 'n');
  for (std::size_t i = 0; i < 3; ++i) {
    SCOPED_TRACE(files()[i].first);
    const Filled filled(files()[i].second);
    const File& source = filled.file;
    ASSERT_TRUE(filled.ok);
    source.get_port_names();
    const std::size_t ports = source.get_number_of_ports();
    std::vector<std::size_t> order;
    std::vector<std::pair<std::size_t, std::string>> all;
    for (std::size_t port = 0; port < ports; ++port) {
      order.push_back(ports - 1 - port);
      all.emplace_back(port, name);
    }
    fail_copying(source, [&] { return copyFileWithSubsetOfPorts(name, source, all); });
    fail_copying(source, [&] { return copyFileWithReorderedPorts(name, source, order); });
    fail_copying(source, [&] { return copyFileWithFullMatrix(name, source); });
  }
}

TEST(AllocationFaults, AddingPoints) {
  const std::size_t failures = fail_every_allocation([] {
    FullNetworkParams params(3, 1.0, ComplexFormat::RI);
    NoiseParams noise(1.0);
    std::size_t added = 0;
    std::size_t rows = 0;
    const bool done = comes_through([&] {
      for (; added < 20; ++added) params.add_freq_point(1.0);
      for (; rows < 20; ++rows) noise.add_freq_point(1.0, 1.0, 1.0, 1.0, 1.0);
    });
    EXPECT_EQ(params.freq_points(), added);
    EXPECT_EQ(noise.freq_points(), rows);
    params.add_freq_point(2.0);
    EXPECT_EQ(params.max_freq(), 2.0);
    return done;
  });
  EXPECT_GT(failures, 20U);
}

TEST(AllocationFaults, HandlersMessages) {
  const File file(kLong);
  const StandardMessageHandler handler;
  const std::size_t failures = fail_every_allocation([&] {
    return comes_through([&] {
      const ParserError error(ErrorType::ExpectedNumber,
                              Token{Token::Type::string, 1, 1, std::string(kLong)});
      const ParserError copy(error);
      EXPECT_NE(handler.report_error_msg(file, copy).find("2007"), std::string::npos);
    });
  });
  EXPECT_GT(failures, 2U);
}

TEST(AllocationFaults, AFailureFails) {
  std::size_t made = 0;
  failing_allocation = 1;
  EXPECT_FALSE(comes_through([&] {
    // Called by name: a compiler may leave out what a container allocates for nothing.
    for (; made < 3; ++made) ::operator delete(::operator new(400));
  }));
  EXPECT_EQ(made, 1U);
  failing_allocation = SIZE_MAX;
}

}  // namespace
}  // namespace touchstone2::test
