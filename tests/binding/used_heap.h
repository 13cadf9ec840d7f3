// How much memory is allocated right now, to see that a call leaves nothing behind. Counts on
// the plain C library only: under a sanitizer it is always 0, and the sanitizer itself looks.
#ifndef TOUCHSTONE2_TESTS_BINDING_USED_HEAP_H
#define TOUCHSTONE2_TESTS_BINDING_USED_HEAP_H

#include <cstddef>

#ifdef _WIN32
#include <errno.h>
#include <malloc.h>
#else
#include <malloc.h>
#endif

namespace touchstone2::test {

#ifdef _WIN32
inline std::size_t used_heap() {
  std::size_t bytes = 0;
  _HEAPINFO entry{};
  while (_heapwalk(&entry) == _HEAPOK) {
    if (entry._useflag == _USEDENTRY) bytes += entry._size;
  }
  return bytes;
}
#else
inline std::size_t used_heap() { return mallinfo2().uordblks; }
#endif

// Calls `action` often enough for caches and buffers to be there, and says by how much the
// heap has grown after that.
template <typename Action>
std::ptrdiff_t growth_of_heap(Action action) {
  for (int i = 0; i < 5; ++i) action();
  const std::size_t before = used_heap();
  for (int i = 0; i < 20; ++i) action();
  return static_cast<std::ptrdiff_t>(used_heap()) - static_cast<std::ptrdiff_t>(before);
}

}  // namespace touchstone2::test

#endif
