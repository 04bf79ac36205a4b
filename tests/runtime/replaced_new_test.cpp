// A program that defines its own operator new and delete replaces them for the library too.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <new>
#include <stddef.h>
#include <stdlib.h>

static int program_news = 0, program_deletes = 0, program_array_news = 0, program_array_deletes = 0;

void* operator new(size_t size) {
  ++program_news;
  return malloc(size ? size : 1);
}
void operator delete(void* p) noexcept {
  ++program_deletes;
  free(p);
}
void* operator new[](size_t size) {
  ++program_array_news;
  return malloc(size ? size : 1);
}
void operator delete[](void* p) noexcept {
  ++program_array_deletes;
  free(p);
}

static void construct(void*) {}

TEST(library_array_helpers_allocate_through_the_programs_operators) {
  int before_new = program_array_news, before_delete = program_array_deletes;
  void* array = __vec_new(0, 3, 12, construct);
  CHECK(array != 0);
  CHECK_EQ(program_array_news, before_new + 1);
  __vec_delete(array, -1, 12, 0, 1);
  CHECK_EQ(program_array_deletes, before_delete + 1);
}
