// A realloc of the test program's own, which the library's calls reach instead of the C
// library's: it records the size of each request (the first 64) and counts them all.
// Include it in exactly one file of a test program.
#ifndef LORB_RECORDING_REALLOC_H
#define LORB_RECORDING_REALLOC_H

#include <stddef.h>

extern "C" void* __libc_realloc(void*, size_t);

static size_t realloc_sizes[64];
static int realloc_calls = 0;

extern "C" void* realloc(void* p, size_t size) {
  if (realloc_calls < 64)
    realloc_sizes[realloc_calls] = size;
  ++realloc_calls;
  return __libc_realloc(p, size);
}

#endif
