// Memory follows the file, never what the file claims. This file replaces the global operator
// new to count bytes, for the whole program that it is linked into.
#include <touchstone2/touchstone2.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace {

std::atomic<std::size_t> live_bytes{0};
std::atomic<std::size_t> peak_bytes{0};

// In front of every block, as wide as the strictest alignment of a plain new.
constexpr std::size_t kHeader = alignof(std::max_align_t);
static_assert(kHeader >= sizeof(std::size_t));

void* count_allocation(std::size_t size) {
  void* const block = size > SIZE_MAX - kHeader ? nullptr : std::malloc(size + kHeader);
  if (block == nullptr) throw std::bad_alloc();
  *static_cast<std::size_t*>(block) = size;
  const std::size_t live = live_bytes += size;
  std::size_t peak = peak_bytes;
  while (peak < live && !peak_bytes.compare_exchange_weak(peak, live)) {
  }
  return static_cast<char*>(block) + kHeader;
}

void count_release(void* address) {
  if (address == nullptr) return;
  void* const block = static_cast<char*>(address) - kHeader;
  live_bytes -= *static_cast<std::size_t*>(block);
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return count_allocation(size); }
void* operator new[](std::size_t size) { return count_allocation(size); }
void operator delete(void* address) noexcept { count_release(address); }
void operator delete[](void* address) noexcept { count_release(address); }
void operator delete(void* address, std::size_t) noexcept { count_release(address); }
void operator delete[](void* address, std::size_t) noexcept { count_release(address); }

namespace touchstone2 {
namespace {

using Strings = std::vector<std::string>;

constexpr std::size_t kMegabyte = 1'000'000;

// The greatest number of bytes that was allocated at once, beyond what was before.
template <typename Action>
std::size_t peak_of(Action action) {
  const std::size_t before = live_bytes;
  peak_bytes = before;
  action();
  return peak_bytes - before;
}

std::string header(const std::string& ports, const std::string& keywords) {
  return "[Version] 2.0\n# RI\n[Number of Ports] " + ports + "\n" + keywords;
}

struct ClaimCase {
  const char* name;
  std::string text;
  Strings expected;
};

TEST(Claims, TheCounterCounts) {
  EXPECT_GE(peak_of([] { std::vector<char> block(3 * kMegabyte, 'x'); }), 3 * kMegabyte);
}

TEST(Claims, AreAnsweredByAnOrdinaryDiagnosticInLittleMemory) {
  const std::string ports = "2000000000";
  const std::string points = "[Number of Frequencies] 2000000000\n";
  const std::string order = "[Two-Port Data Order] 12_21\n";
  const ClaimCase cases[] = {
      {"ports, no data",
       header(ports, "[Number of Frequencies] 1\n[Network Data]\n[End]\n"),
       {"E2310 6:1 'end'"}},
      {"ports, a record",
       header(ports, "[Number of Frequencies] 1\n[Network Data]\n1 2 3\n[End]\n"),
       {"E2308 6:1 '1'"}},
      {"ports, cut record",
       header(ports, "[Number of Frequencies] 1\n[Network Data]\n1 2 3\n"),
       {"E2209 7:1 '\n'"}},
      {"ports, upper triangle",
       header(ports,
              "[Matrix Format] Upper\n[Number of Frequencies] 1\n[Network Data]\n1 2\n[End]\n"),
       {"E2308 7:1 '1'"}},
      {"ports, lower triangle",
       header(ports,
              "[Matrix Format] Lower\n[Number of Frequencies] 1\n[Network Data]\n1 2\n[End]\n"),
       {"E2308 7:1 '1'"}},
      {"ports and references",
       header(ports, "[Reference] 50 50\n[Number of Frequencies] 1\n[Network Data]\n"),
       {"E2022 5:1 'number of frequencies'"}},
      {"ports and descriptors",
       header(ports, "[Mixed-Mode Order] S1 S2000000000\n[Number of Frequencies] 1\n"),
       {"E2315 4:23 's2000000000'"}},
      {"a port number",
       header("1", "[Mixed-Mode Order] S2000000000\n[End]\n"),
       {"E2024 4:20 's2000000000'"}},
      {"clipped ports",
       header("99999999999", "[Number of Frequencies] 1\n[Network Data]\n1 2 3\n[End]\n"),
       {"W2301 3:19 '99999999999'", "E2308 6:1 '1'"}},
      {"frequencies", header("1", points + "[Network Data]\n1 2 3\n[End]\n"), {"E2310 7:1 'end'"}},
      {"frequencies of 2 ports",
       header("2", points + order + "[Network Data]\n1 1 0 1 0 1 0 1 0\n[End]\n"),
       {"E2310 8:1 'end'"}},
      {"noise frequencies",
       header("2", "[Number of Noise Frequencies] 2000000000\n[Number of Frequencies] 1\n" + order +
                       "[Network Data]\n1 1 0 1 0 1 0 1 0\n[Noise Data]\n1 1 .5 0 .1\n[End]\n"),
       {"E2310 11:1 'end'"}},
      {"all of them",
       header(ports,
              points + "[Number of Noise Frequencies] 2000000000\n[Network Data]\n1\n[End]\n"),
       {"E2308 7:1 '1'"}},
      {"a little more than can always be filled",
       header("65537", "[Number of Frequencies] 1\n[Network Data]\n1 2 3\n[End]\n"),
       {"E2308 6:1 '1'"}},
  };
  for (const ClaimCase& c : cases) {
    SCOPED_TRACE(c.name);
    ASSERT_LE(c.text.size(), 210U);
    Strings found;
    const std::size_t peak = peak_of([&] { found = test::read_text(c.text).brief_diagnostics(); });
    EXPECT_EQ(found, c.expected);
    EXPECT_LT(peak, 4 * kMegabyte);
  }
}

TEST(Claims, AHeaderReadStoresTheClaimOnly) {
  const std::string text = header("2000000000", "[Network Data]\n");
  std::size_t ports = 0;
  EXPECT_LT(peak_of([&] {
              ports = test::read_text(text, test::Extent::header).file.get_number_of_ports();
            }),
            kMegabyte);
  EXPECT_EQ(ports, 2'000'000'000U);
}

TEST(Claims, PortCountsThatAFileCouldHoldFillTheImplicitValues) {
  for (const std::size_t ports : {std::size_t{1'000}, std::size_t{60'000}}) {
    const std::string text =
        header(std::to_string(ports), "[Number of Frequencies] 1\n[Network Data]\n1 2 3\n[End]\n");
    std::size_t peak = 0;
    peak = peak_of([&] {
      const test::ReadResult result = test::read_text(text);
      EXPECT_EQ(result.brief_diagnostics(), Strings{"E2308 6:1 '1'"});
      EXPECT_EQ(result.file.get_reference_impedance_per_port(), std::vector<double>(ports, 50.0));
      const auto& descriptors = result.file.get_mixed_mode_descriptors();
      ASSERT_EQ(descriptors.size(), ports);
      for (std::size_t i = 0; i < ports; ++i) {
        ASSERT_EQ(descriptors[i], (MixedModeDescriptor{MixedModeKind::SingleEnded, i + 1, 0}));
      }
    });
    EXPECT_LT(peak, 4 * kMegabyte);
  }
}

TEST(Claims, MemoryFollowsTheDataOfARealRecord) {
  // 200 ports: 80,001 numbers of two bytes each; two doubles a cell, and what is kept of each
  // number until the record is complete.
  constexpr std::size_t kPorts = 200;
  std::string text = header(std::to_string(kPorts), "[Number of Frequencies] 1\n[Network Data]\n1");
  for (std::size_t i = 0; i < 2 * kPorts * kPorts; ++i) text += " 0";
  text += "\n[End]\n";
  bool ok = false;
  EXPECT_LT(peak_of([&] { ok = test::read_text(text).ok; }), 80 * text.size());
  EXPECT_TRUE(ok);
}

}  // namespace
}  // namespace touchstone2
