// A malloc and realloc of the test program's own, which the library's calls reach instead of
// the C library's: they count the requests they refuse and can be told to refuse all of them.
// Include it in exactly one file of a test program.
#ifndef LORB_FAILING_MALLOC_H
#define LORB_FAILING_MALLOC_H

#include <stddef.h>

extern "C" void* __libc_malloc(size_t);
extern "C" void* __libc_realloc(void*, size_t);

namespace lt {
bool malloc_fails = false;    // while true, every request is refused
int refused_mallocs = 0;      // how many requests were refused so far
size_t last_refused_size = 0; // the size of the last refused request
} // namespace lt

extern "C" void* malloc(size_t size) {
  if (!lt::malloc_fails)
    return __libc_malloc(size);
  ++lt::refused_mallocs;
  lt::last_refused_size = size;
  return 0;
}

// Growing buffers are realloc'd while the program keeps the library's allocation functions:
// refused alike, the old block kept.
extern "C" void* realloc(void* p, size_t size) {
  if (!lt::malloc_fails)
    return __libc_realloc(p, size);
  ++lt::refused_mallocs;
  lt::last_refused_size = size;
  return 0;
}

#endif
