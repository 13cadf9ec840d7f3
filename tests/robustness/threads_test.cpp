// Parsers on different threads share nothing. Most of what these tests are worth shows in the
// preset tsan, which sees every unordered access.
#include <touchstone2/touchstone2.h>

#include <atomic>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"
#include "support/temp_file.h"

namespace touchstone2::test {
namespace {

constexpr std::size_t kThreads = 8;
constexpr int kRounds = 40;

// Runs `work(i)` on every thread; all of them start together.
void run_on_threads(const std::function<void(std::size_t)>& work) {
  std::atomic<std::size_t> waiting{kThreads};
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kThreads; ++i) {
    threads.emplace_back([&, i] {
      --waiting;
      while (waiting != 0) std::this_thread::yield();
      work(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

// Ends in an error of a class whose text holds numbers, other ones for each i.
std::string out_of_order(std::size_t i) {
  std::string text = "! Port[1] = in\n! \x80\n# Hz S RI\n";
  for (std::size_t k = 1; k <= 20 + i; ++k) text += std::to_string(k) + " 0.5 1e999\n";
  return text + "7 0.5 0.25\n";
}

struct Expected {
  std::string text;
  std::vector<Diagnostic> diagnostics;
};

bool equal(const std::vector<Diagnostic>& a, const std::vector<Diagnostic>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i].code != b[i].code || a[i].line != b[i].line || a[i].column != b[i].column ||
        a[i].token != b[i].token || a[i].message != b[i].message) {
      return false;
    }
  }
  return true;
}

TEST(Threads, DiagnosticsOfOneClassKeepTheirTexts) {
  std::vector<Expected> expected;
  for (std::size_t i = 0; i < kThreads; ++i) {
    const std::string text = out_of_order(i);
    expected.push_back({text, read_text(text).diagnostics});
    ASSERT_EQ(expected[i].diagnostics.back().code, 2311);
    if (i > 0) {
      ASSERT_NE(expected[i].diagnostics.back().message, expected[0].diagnostics.back().message);
    }
  }
  std::atomic<int> wrong{0};
  run_on_threads([&](std::size_t i) {
    for (int round = 0; round < kRounds; ++round) {
      if (!equal(read_text(expected[i].text).diagnostics, expected[i].diagnostics)) ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0);
}

// The text of what() is replaced by that of a later object on the same thread only.
TEST(Threads, AnEarlierTextIsNotReplacedByAnotherThread) {
  std::atomic<int> wrong{0};
  run_on_threads([&](std::size_t i) {
    const double frequency = static_cast<double>(i) + 0.5;
    const FrequencyOrderingError error(frequency, 2 * frequency, Token());
    const char* const text = error.what();
    const std::string expected = text;
    for (int round = 0; round < 20 * kRounds; ++round) {
      std::this_thread::yield();
      if (text != expected || error.what() != expected) ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, OneFileIsReadByAllAtOnce) {
  const std::string text = out_of_order(3);
  const TempFile shared(text);
  const std::vector<Diagnostic> expected = read_text(text).diagnostics;
  std::atomic<int> wrong{0};
  run_on_threads([&](std::size_t) {
    for (int round = 0; round < kRounds; ++round) {
      File file(shared.name());
      RecordingHandler handler;
      Parser parser(file, handler);
      if (parser.read_file() || !equal(handler.diagnostics, expected)) ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0);
}

std::string good_text() {
  std::string text = "! Port[1] = in\n# Hz S RI\n";
  for (int k = 1; k <= 50; ++k) text += std::to_string(k) + " 0.5 0.25 1 2 3 4 5 6\n";
  return text + "1 1 0.5 20 0.25\n";
}

// Copies share their network data, and the last of them deletes these, on whatever thread.
TEST(Threads, CopiesOfOneFileAreUsedAndDestroyedEverywhere) {
  std::atomic<int> wrong{0};
  for (int round = 0; round < kRounds; ++round) {
    ReadResult source = read_text(good_text());
    ASSERT_TRUE(source.ok);
    std::vector<std::unique_ptr<File>> copies;
    for (std::size_t i = 0; i < kThreads; ++i) {
      copies.push_back(std::make_unique<File>(source.file));
    }
    { const File last = std::move(source.file); }
    run_on_threads([&](std::size_t i) {
      std::unique_ptr<File> mine = std::move(copies[i]);
      mine->set_port_name(1, std::to_string(i));
      std::ostringstream stream;
      V2_Writer(*mine).write_file(stream);
      if (mine->get_port_names()[0] != "in" || mine->get_network_params()->max_freq() != 50) {
        ++wrong;
      }
      const File copy = *mine;
      mine.reset();
      if (copy.get_network_params()->freq_points() != 50) ++wrong;
    });
  }
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, CopiersOfOneSourceWorkAtOnce) {
  const ReadResult source = read_text(good_text());
  source.file.get_port_names();  // fills the cache; from here on all threads only read
  std::atomic<int> wrong{0};
  run_on_threads([&](std::size_t) {
    for (int round = 0; round < kRounds; ++round) {
      const std::unique_ptr<File> copy(copyFileWithReorderedPorts("copy", source.file, {1, 0}));
      const std::unique_ptr<const NoiseParams> noise(copy->get_noise_params());
      if (copy->get_port_names()[1] != "in") ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace touchstone2::test
