// A program that replaces only the plain operator new and delete: the library's array forms
// forward to them, so the library binds none of these names to its own definitions.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <new>
#include <stddef.h>
#include <stdlib.h>

static int program_news = 0, program_deletes = 0;

void* operator new(size_t size) {
  ++program_news;
  return malloc(size ? size : 1);
}
void operator delete(void* p) noexcept {
  if (p)
    ++program_deletes;
  free(p);
}

static void construct(void*) {}

TEST(library_array_new_and_delete_reach_the_programs_plain_forms) {
  int before_new = program_news, before_delete = program_deletes;
  void* p = operator new[](10);
  CHECK_EQ(program_news, before_new + 1);
  operator delete[](p);
  CHECK_EQ(program_deletes, before_delete + 1);
}

TEST(array_helpers_reach_the_programs_plain_forms) {
  int before_new = program_news, before_delete = program_deletes;
  void* array = __vec_new(0, 2, 4, construct);
  CHECK_EQ(program_news, before_new + 1);
  __vec_delete(array, -1, 4, 0, 1);
  CHECK_EQ(program_deletes, before_delete + 1);
}

TEST(nothrow_forms_do_not_reach_the_program) {
  // The library's nothrow new has its own loop over malloc; only the delete is shared.
  int before_new = program_news;
  void* p = operator new(8, std::nothrow);
  CHECK_EQ(program_news, before_new);
  operator delete(p);
}
