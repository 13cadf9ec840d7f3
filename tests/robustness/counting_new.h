// Counts what a program allocates with operator new, and makes single allocations fail. Replaces
// the global operators for the whole program, so exactly one source file of it includes this.
#ifndef TOUCHSTONE2_TESTS_ROBUSTNESS_COUNTING_NEW_H
#define TOUCHSTONE2_TESTS_ROBUSTNESS_COUNTING_NEW_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace touchstone2::test {

// The counters are for programs of one thread.
struct Heap {
  std::size_t live_bytes = 0;
  std::size_t live_blocks = 0;
  std::size_t peak_bytes = 0;
  std::size_t allocations = 0;     // since the last reset
  std::size_t failing = SIZE_MAX;  // number of the allocation that fails, counted from 0

  void reset() {
    peak_bytes = live_bytes;
    allocations = 0;
    failing = SIZE_MAX;
  }
};

inline Heap heap;

namespace counting_new {

// In front of every block, as wide as the strictest alignment of a plain new.
constexpr std::size_t kHeader = alignof(std::max_align_t);
static_assert(kHeader >= sizeof(std::size_t));

inline void* allocate(std::size_t size) {
  if (heap.allocations++ == heap.failing) throw std::bad_alloc();
  void* const block = size > SIZE_MAX - kHeader ? nullptr : std::malloc(size + kHeader);
  if (block == nullptr) throw std::bad_alloc();
  *static_cast<std::size_t*>(block) = size;
  ++heap.live_blocks;
  heap.live_bytes += size;
  heap.peak_bytes = std::max(heap.peak_bytes, heap.live_bytes);
  return static_cast<char*>(block) + kHeader;
}

inline void release(void* address) {
  if (address == nullptr) return;
  void* const block = static_cast<char*>(address) - kHeader;
  --heap.live_blocks;
  heap.live_bytes -= *static_cast<std::size_t*>(block);
  std::free(block);
}

}  // namespace counting_new

}  // namespace touchstone2::test

void* operator new(std::size_t size) { return touchstone2::test::counting_new::allocate(size); }
void* operator new[](std::size_t size) { return touchstone2::test::counting_new::allocate(size); }
void operator delete(void* address) noexcept { touchstone2::test::counting_new::release(address); }
void operator delete[](void* address) noexcept {
  touchstone2::test::counting_new::release(address);
}
void operator delete(void* address, std::size_t) noexcept {
  touchstone2::test::counting_new::release(address);
}
void operator delete[](void* address, std::size_t) noexcept {
  touchstone2::test::counting_new::release(address);
}

#endif
