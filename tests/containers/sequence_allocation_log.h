// The test program's own allocation functions, which the containers' requests reach: they count
// requests and releases, log the sizes of the plain requests since the last mark, and can refuse
// the plain requests of one size. Include it in exactly one file of a test program.
#ifndef SEQUENCE_ALLOCATION_LOG_H
#define SEQUENCE_ALLOCATION_LOG_H

#include <new>
#include <stddef.h>
#include <stdlib.h>

namespace seq {
struct allocation_log {
  unsigned news, deletes;             // plain operator new / delete of a non-null pointer
  unsigned array_news, array_deletes; // operator new[] / delete[] of a non-null pointer
  size_t last_array_size;
  size_t sizes[512]; // the plain requests since mark()
  unsigned logged;
  size_t refused_size; // a plain request of this many bytes gets null; 0 refuses none
};
allocation_log allocations;

inline void mark() { allocations.logged = 0; }
// How many plain requests of `bytes` bytes there were since mark().
inline unsigned requests_of(size_t bytes) {
  unsigned n = 0;
  for (unsigned i = 0; i < allocations.logged; ++i)
    n += allocations.sizes[i] == bytes;
  return n;
}
} // namespace seq

void* operator new(size_t size) {
  ++seq::allocations.news;
  if (seq::allocations.logged < sizeof seq::allocations.sizes / sizeof(size_t))
    seq::allocations.sizes[seq::allocations.logged++] = size;
  if (size == seq::allocations.refused_size)
    return 0;
  return malloc(size ? size : 1);
}
void operator delete(void* p) noexcept {
  if (p)
    ++seq::allocations.deletes;
  free(p);
}
void operator delete(void* p, size_t) noexcept { operator delete(p); }
void* operator new[](size_t size) {
  ++seq::allocations.array_news;
  seq::allocations.last_array_size = size;
  return malloc(size ? size : 1);
}
void operator delete[](void* p) noexcept {
  if (p)
    ++seq::allocations.array_deletes;
  free(p);
}
void operator delete[](void* p, size_t) noexcept { operator delete[](p); }

#endif
