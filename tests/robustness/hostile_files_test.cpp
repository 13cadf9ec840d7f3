// Memory and work follow the bytes of a file, whatever it claims and however it repeats itself.
// Counted in bytes and allocations, never in seconds.
#include <touchstone2/touchstone2.h>

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "robustness/counting_new.h"

namespace touchstone2::test {
namespace {

constexpr std::size_t kBytesPerInputByte = 64;
constexpr std::size_t kFixedBytes = 8'000'000;

// Keeps nothing: a handler's own memory is the caller's affair.
struct CountingHandler : MessageHandler {
  void report_error(const File&, const ParserError&) override { ++errors; }
  void report_warning(const File&, const ParserWarning&) override { ++warnings; }
  std::size_t errors = 0;
  std::size_t warnings = 0;
};

struct Cost {
  std::size_t peak_bytes;
  std::size_t allocations;
  bool ok;
};

Cost cost_of_reading(std::string_view text, bool header_only) {
  heap.reset();
  const std::size_t before = heap.live_bytes;
  bool ok = false;
  {
    File file("hostile.s2p");
    CountingHandler handler;
    Parser parser(file, handler, text);
    ok = header_only ? parser.read_file_header() : parser.read_file();
    delete file.get_noise_params();
  }
  EXPECT_EQ(heap.live_bytes, before);
  return {heap.peak_bytes - before, heap.allocations, ok};
}

std::string times(std::size_t count, std::string_view text) {
  std::string all;
  all.reserve(count * text.size());
  for (std::size_t i = 0; i < count; ++i) all += text;
  return all;
}

// Lines of the form "1 0.5 0.25", the frequencies rising.
std::string points(std::size_t count, std::string_view values) {
  std::string all;
  for (std::size_t i = 1; i <= count; ++i) all += std::to_string(i) + std::string(values);
  return all;
}

std::string v2(const std::string& ports, const std::string& keywords, const std::string& data) {
  return "[Version] 2.0\n# RI\n[Number of Ports] " + ports + "\n" + keywords + data;
}

// The least ports whose records hold more than n numbers, as text.
std::size_t ports_of_record(std::size_t n) { return find_sqrt(n / 2) + 1; }

std::string record(std::size_t frequency, std::size_t pairs) {
  return std::to_string(frequency) + times(pairs, " 0 0") + "\n";
}

// A text of about n repetitions. `n` is what the large form takes.
struct Hostile {
  const char* name;
  std::size_t n;
  std::function<std::string(std::size_t)> text;
  bool ok = false;
};

const std::string kOrder = "[Two-Port Data Order] 12_21\n";
const std::string kTwoPortValues = " 1 0 1 0 1 0 1 0\n";

std::vector<Hostile> repetitions() {
  const std::size_t megabyte = 1'000'000;
  // A little more than a power of two, where a vector that doubles is at its worst.
  const std::size_t unlucky = (std::size_t{1} << 20) + 24;
  const std::string frame = "# RI\n1 2 3\n";
  return {
      {"a line of blanks", 4 * megabyte, [](std::size_t n) { return std::string(n, ' '); }},
      {"a line of letters", 4 * megabyte,
       [](std::size_t n) { return "# RI\n1 2 3\n" + std::string(n, 'x'); }},
      {"a line of digits", 4 * megabyte,
       [](std::size_t n) { return "# RI\n1 2 " + std::string(n, '9') + "\n"; }, true},
      {"a line of points", 4 * megabyte,
       [](std::size_t n) { return "# RI\n1 2 " + std::string(n, '.') + "\n"; }, true},
      {"an exponent", 4 * megabyte,
       [](std::size_t n) { return "# RI\n1 2 1e" + std::string(n, '1') + "\n"; }, true},
      {"a comment", 4 * megabyte,
       [&](std::size_t n) { return "!" + std::string(n, 'c') + "\n# RI\n1 2 3\n"; }, true},
      {"a comment of bad bytes", megabyte,
       [](std::size_t n) { return "!" + std::string(n, '\x80') + "\n# RI\n1 2 3\n"; }, true},
      {"a keyword", 4 * megabyte, [](std::size_t n) { return "[" + std::string(n, 'k') + "]\n"; }},
      {"an open keyword", 4 * megabyte, [](std::size_t n) { return "[" + std::string(n, '['); }},
      // Neither count fills a square matrix.
      {"a record without end", unlucky, [](std::size_t n) { return "# RI\n1" + times(n, " 1"); }},
      {"a version 2 record without end", unlucky,
       [](std::size_t n) {
         return v2("1", "[Number of Frequencies] 1\n", "[Network Data]\n1" + times(n, " 1"));
       }},
      {"options", megabyte / 2, [](std::size_t n) { return "#" + times(n, " R 50") + "\n"; }},
      {"blank lines", megabyte, [=](std::size_t n) { return times(n, "\n") + frame; }, true},
      {"carriage returns", megabyte, [=](std::size_t n) { return times(n, "\r") + frame; }, true},
      {"blank lines behind", megabyte, [=](std::size_t n) { return frame + times(n, " \n"); },
       true},
      {"leading comments", unlucky, [=](std::size_t n) { return times(n, "!\n") + frame; }, true},
      {"other comments", unlucky,
       [](std::size_t n) { return "# RI\n" + times(n, "!\n") + "1 2 3\n"; }, true},
      {"comments of version 2", megabyte,
       [](std::size_t n) {
         return v2("1", "[Number of Frequencies] 1\n" + times(n, "!\n"),
                   "[Network Data]\n1 2 3\n[End]\n");
       },
       true},
      {"secondary options lines", megabyte / 10,
       [=](std::size_t n) { return frame + times(n, "#\n"); }, true},
      {"keywords", megabyte / 10,
       [](std::size_t n) { return v2("1", times(n, "[Reference]\n"), ""); }},
      {"keywords in an information section", megabyte / 10,
       [](std::size_t n) {
         return v2("1",
                   "[Number of Frequencies] 1\n[Begin Information]\n" +
                       times(n, "[Begin Information]\n") + "[End Information]\n",
                   "[Network Data]\n1 2 3\n[End]\n");
       },
       true},
      {"references", unlucky,
       [](std::size_t n) { return v2("1", "[Reference]" + times(n, " 1"), ""); }},
      {"references on lines", unlucky,
       [](std::size_t n) {
         return v2("1", "[Reference]\n" + times(n, "1\n"), "[Matrix Format] Full\n");
       }},
      {"descriptors", unlucky / 4,
       [](std::size_t n) {
         return v2(std::to_string(n), "[Mixed-Mode Order]" + times(n, " S1"), "\n");
       }},
      {"descriptors of pairs", unlucky / 4,
       [](std::size_t n) {
         return v2(std::to_string(n), "[Mixed-Mode Order]" + times(n, " D1,2"), "\n");
       }},
      {"points", megabyte / 10,
       [](std::size_t n) { return "# Hz RI\n" + points(n, " 0.5 0.25\n"); }, true},
      {"points of version 2", megabyte / 10,
       [](std::size_t n) {
         return v2("1", "[Number of Frequencies] " + std::to_string(n) + "\n",
                   "[Network Data]\n" + points(n, " 0 0\n") + "[End]\n");
       },
       true},
      {"points for the token path", megabyte / 10,
       [](std::size_t n) { return "# Hz RI\n" + points(n, " 1. 0!\n"); }, true},
      {"values on lines of their own", megabyte / 4,
       [](std::size_t n) {
         return v2("1", "[Number of Frequencies] " + std::to_string(n / 3) + "\n",
                   "[Network Data]\n" + points(n / 3, "\n 0\n 0\n") + "[End]\n");
       },
       true},
      {"two large records of version 1", unlucky,
       [](std::size_t n) {
         const std::size_t ports = ports_of_record(n);
         return "# RI\n" + record(1, ports * ports) + record(2, ports * ports);
       },
       true},
      {"two large records of version 2", unlucky,
       [](std::size_t n) {
         const std::size_t ports = ports_of_record(n);
         return v2(
             std::to_string(ports), "[Number of Frequencies] 2\n",
             "[Network Data]\n" + record(1, ports * ports) + record(2, ports * ports) + "[End]\n");
       },
       true},
      {"a large triangle", unlucky,
       [](std::size_t n) {
         const std::size_t ports = ports_of_record(2 * n);
         return v2(std::to_string(ports), "[Number of Frequencies] 1\n[Matrix Format] Lower\n",
                   "[Network Data]\n" + record(1, ports * (ports + 1) / 2) + "[End]\n");
       },
       true},
      {"noise rows", megabyte / 10,
       [](std::size_t n) { return "# Hz RI\n1000000" + kTwoPortValues + points(n, " 1 0 0 0\n"); },
       true},
      {"points that fall", megabyte / 10,
       [](std::size_t n) { return "# Hz RI\n" + times(n, "1 2 3\n"); }},
      {"lines cut by carriage returns", megabyte / 4,
       [](std::size_t n) { return "# Hz RI\n" + points(n, " 0 0\r"); }, true},
  };
}

// A text of twice the length costs twice as much, give or take a vector that has just grown.
TEST(HostileFiles, RepetitionCostsLittleMemoryAndLinearWork) {
  for (const Hostile& hostile : repetitions()) {
    SCOPED_TRACE(hostile.name);
    const std::string half = hostile.text(hostile.n / 2);
    const std::string whole = hostile.text(hostile.n);
    const Cost half_cost = cost_of_reading(half, /*header_only=*/false);
    const Cost whole_cost = cost_of_reading(whole, /*header_only=*/false);
    const Cost header_cost = cost_of_reading(whole, /*header_only=*/true);
    EXPECT_EQ(whole_cost.ok, hostile.ok);
    EXPECT_EQ(half_cost.ok, hostile.ok);
    const std::size_t bound = kBytesPerInputByte * whole.size() + kFixedBytes;
    EXPECT_LE(whole_cost.peak_bytes, bound) << whole.size() << " bytes";
    EXPECT_LE(header_cost.peak_bytes, bound) << whole.size() << " bytes";
    const double ratio = static_cast<double>(whole.size()) / static_cast<double>(half.size());
    EXPECT_LE(static_cast<double>(whole_cost.allocations),
              ratio * static_cast<double>(half_cost.allocations) + 100);
    EXPECT_LE(static_cast<double>(whole_cost.peak_bytes),
              1.25 * ratio * static_cast<double>(half_cost.peak_bytes) + 100'000);
  }
}

// What a file claims costs nothing: every number that one can state, in files of a few hundred
// bytes, alone and together.
TEST(HostileFiles, ClaimsCostNothing) {
  for (const char* claim : {"65536", "65537", "1000000", "2000000000", "2147483647", "4294967296",
                            "99999999999999999999"}) {
    const std::string count = claim;
    const std::string frequencies = "[Number of Frequencies] " + count + "\n";
    const std::string noise = "[Number of Noise Frequencies] " + count + "\n";
    const std::string one = "[Number of Frequencies] 1\n";
    const std::string data = "[Network Data]\n1 2 3\n";
    const std::initializer_list<std::string> texts = {
        v2(count, one, data),
        v2(count, frequencies + noise, data + "[End]\n"),
        v2(count, one + "[Matrix Format] Upper\n", data),
        v2(count, one + "[Matrix Format] Lower\n", data + std::string(200, ' ')),
        v2(count, one + "[Reference] 50 50\n", data),
        v2(count, one + "[Mixed-Mode Order] S" + count + " D1," + count + "\n", data),
        v2("1", frequencies, data + "[End]\n"),
        v2("2", frequencies + noise + kOrder,
           "[Network Data]\n1" + kTwoPortValues + "[Noise Data]\n1 1 1 1 1\n[End]\n"),
        v2("2", one + kOrder + "[Mixed-Mode Order] D1," + count + " C1,2\n", data),
        "! Port " + count + " = a\n! Port[" + count + "] = b\n# RI\n1 2 3\n",
        "# R " + count + "\n1 2 3\n",
    };
    for (const std::string& text : texts) {
      SCOPED_TRACE(text);
      EXPECT_LE(cost_of_reading(text, false).peak_bytes, kFixedBytes);
      EXPECT_LE(cost_of_reading(text, true).peak_bytes, 100'000U);
    }
  }
}

// What is found in the comments and what is written costs in proportion, too.
TEST(HostileFiles, PortNamesCostLinearWork) {
  const auto cost = [](std::size_t n) {
    const std::string text = points(n, "") + times(n, "! Port[1] = a b c\n") + "# RI\n1 2 3\n";
    const std::string comments = text.substr(text.find('!'));
    File file("names.s1p");
    CountingHandler handler;
    Parser parser(file, handler, comments);
    EXPECT_TRUE(parser.read_file());
    heap.reset();
    const std::size_t before = heap.live_bytes;
    EXPECT_EQ(file.get_port_names(), std::vector<std::string>{"a_b_c"});
    file.update_leading_comments();
    const Cost spent{heap.peak_bytes - before, heap.allocations, true};
    EXPECT_LE(spent.peak_bytes, kBytesPerInputByte * comments.size() + kFixedBytes);
    return spent;
  };
  const Cost half = cost(20'000);
  const Cost whole = cost(40'000);
  EXPECT_LE(whole.allocations, 2 * half.allocations + 100);
  EXPECT_LE(whole.peak_bytes, 5 * half.peak_bytes / 2 + 100'000);
}

// The header alone may claim any number of ports; asking for their names is refused instead of
// answered with a list of as many entries.
TEST(HostileFiles, NamesOfClaimedPortsAreRefused) {
  File file("claim.ts");
  CountingHandler handler;
  const std::string text = v2("2000000000", "", "");
  Parser parser(file, handler, text);
  ASSERT_TRUE(parser.read_file_header());
  heap.reset();
  const std::size_t before = heap.live_bytes;
  EXPECT_THROW(file.get_port_names(), std::length_error);
  EXPECT_THROW(file.update_leading_comments(), std::length_error);
  EXPECT_LE(heap.peak_bytes - before, 1'000U);
}

TEST(HostileFiles, TheCounterCounts) {
  heap.reset();
  const std::size_t before = heap.live_bytes;
  // Called by name: a compiler may leave out what a container allocates for nothing.
  ::operator delete(::operator new(3'000'000));
  EXPECT_EQ(heap.peak_bytes - before, 3'000'000U);
  EXPECT_EQ(heap.allocations, 1U);
}

}  // namespace
}  // namespace touchstone2::test
