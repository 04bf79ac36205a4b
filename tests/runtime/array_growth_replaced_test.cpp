// Growing a library array when the program has its own operator new[] and delete[]: every step
// goes through them at the size the rule asks for, never through realloc.
#include "lorb_test.h"
#include <__lorb/array_growth.h>
#include <new>
#include <sstream>
#include <stdlib.h>
#include <string.h>

static size_t sizes[64];
static int new_calls = 0;
static int delete_calls = 0;
static int realloc_calls = 0;

extern "C" void* __libc_realloc(void*, size_t);
extern "C" void* realloc(void* p, size_t size) {
  ++realloc_calls;
  return __libc_realloc(p, size);
}

void* operator new[](size_t size) {
  if (new_calls < 64)
    sizes[new_calls] = size;
  ++new_calls;
  return malloc(size ? size : 1);
}
void operator delete[](void* p) noexcept {
  if (p)
    ++delete_calls;
  free(p);
}

TEST(a_program_with_its_own_array_new_is_seen_as_replacing) {
  CHECK(__vel::allocation_is_replaced());
}

TEST(growing_goes_through_the_program_new_and_delete) {
  char* array = new char[64];
  memset(array, 'z', 64);
  new_calls = delete_calls = realloc_calls = 0;
  char* grown = __vel::regrow_char_array(array, 64, 128);
  CHECK_EQ(new_calls, 1);
  CHECK_EQ(sizes[0], 128u);
  CHECK_EQ(delete_calls, 1);
  CHECK_EQ(realloc_calls, 0);
  CHECK_BYTES(grown, 64, "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", 64);
  delete[] grown;
}

TEST(a_string_buffer_asks_the_program_for_every_64_character_step) {
  new_calls = delete_calls = realloc_calls = 0;
  {
    std::ostringstream out;
    for (int i = 0; i < 200; ++i)
      out.put('x');
    CHECK_EQ(out.str().size(), 200u);
  }
  CHECK_EQ(realloc_calls, 0);
  // 64 on the first character, then 128, 192 and 256 as each step fills; the string str()
  // returned is not an array allocation.
  CHECK_EQ(new_calls, 4);
  CHECK_EQ(sizes[0], 64u);
  CHECK_EQ(sizes[1], 128u);
  CHECK_EQ(sizes[2], 192u);
  CHECK_EQ(sizes[3], 256u);
  CHECK_EQ(delete_calls, 4);
}
