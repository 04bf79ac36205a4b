// Growing a library array when the program keeps the library's allocation functions: realloc
// at the size asked for, the kept characters preserved, and a fall-back through new[] when
// realloc fails.
#include "lorb_test.h"
#include <__lorb/array_growth.h>
#include <new>
#include <stdlib.h>
#include <string.h>

extern "C" void* __libc_realloc(void*, size_t);
extern "C" void* __libc_malloc(size_t);

static bool realloc_fails = false;
static int realloc_calls = 0;
static size_t last_realloc_size = 0;
static int malloc_calls = 0;

// The C library's realloc and malloc, watched: what the library asks for reaches them.
extern "C" void* realloc(void* p, size_t size) {
  ++realloc_calls;
  last_realloc_size = size;
  return realloc_fails ? 0 : __libc_realloc(p, size);
}
extern "C" void* malloc(size_t size) {
  ++malloc_calls;
  return __libc_malloc(size);
}

TEST(a_program_without_its_own_allocation_functions_keeps_the_library_ones) {
  CHECK(!__vel::allocation_is_replaced());
}

TEST(growing_goes_through_realloc_at_the_size_asked_for) {
  char* array = new char[64];
  memset(array, 'a', 64);
  realloc_calls = 0;
  char* grown = __vel::regrow_char_array(array, 64, 128);
  CHECK(grown != 0);
  CHECK_EQ(realloc_calls, 1);
  CHECK_EQ(last_realloc_size, 128u);
  CHECK_BYTES(grown, 64, "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", 64);
  delete[] grown;
}

TEST(a_first_array_comes_from_new_not_realloc) {
  realloc_calls = 0;
  malloc_calls = 0;
  char* array = __vel::regrow_char_array(0, 0, 64);
  CHECK(array != 0);
  CHECK_EQ(realloc_calls, 0);
  CHECK_EQ(malloc_calls, 1);
  delete[] array;
}

TEST(a_failed_realloc_falls_back_to_a_fresh_array_and_a_copy) {
  char* array = new char[10];
  memcpy(array, "0123456789", 10);
  realloc_fails = true;
  malloc_calls = 0;
  char* grown = __vel::regrow_char_array(array, 7, 4096);
  realloc_fails = false;
  CHECK(grown != 0);
  CHECK(grown != array);
  CHECK_EQ(malloc_calls, 1);
  CHECK_BYTES(grown, 7, "0123456", 7);
  delete[] grown;
}

// A growth step over generated sizes keeps every character written so far.
TEST(repeated_growth_keeps_the_text) {
  char* array = 0;
  size_t length = 0;
  for (size_t size = 64; size <= 64 * 200; size += 64) {
    array = __vel::regrow_char_array(array, length, size);
    CHECK(array != 0);
    for (; length < size; ++length)
      array[length] = static_cast<char>('a' + length % 23);
  }
  bool intact = true;
  for (size_t i = 0; i < length; ++i)
    intact = intact && array[i] == static_cast<char>('a' + i % 23);
  CHECK(intact);
  delete[] array;
}
