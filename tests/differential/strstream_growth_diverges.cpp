// Where Lorb++'s strstreambuf deliberately differs: a dynamic array grows by 16 characters at a
// time (GNU doubles it), and destroying the buffer releases nothing (GNU releases an array that
// is not frozen). The allocation functions given to the buffer show both.
#include <cstdio>

#include "strstream_support.h"

// A pool of the program's own, so that an array left unreleased is no leak.
static char pool[4096];
static unsigned long pool_used = 0;

static void* pool_alloc(size_t n) {
  printf(" alloc %lu", static_cast<unsigned long>(n));
  if (pool_used + n > sizeof pool)
    return 0;
  void* p = pool + pool_used;
  pool_used += n;
  return p;
}

static void pool_free(void* p) {
  printf(" free @%ld", static_cast<long>(static_cast<char*>(p) - pool));
}

int main() {
  {
    std::strstreambuf buffer(pool_alloc, pool_free);
    printf("writing 100 characters:");
    for (int i = 0; i < 100; ++i)
      buffer.sputc(static_cast<char>('a' + i % 26));
    printf("\ndestroying:");
  }
  printf("\n");
  {
    std::strstreambuf buffer(pool_alloc, pool_free);
    printf("one sputn of 40 characters:");
    buffer.sputn("0123456789012345678901234567890123456789", 40);
    printf("\ndestroying:");
  }
  printf("\n");
  return 0;
}
