// Allocation functions: zero-size requests, the nothrow tag, placement delete, __memzero.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <cstring>
#include <new>
#include <stddef.h>

// This program's own malloc can be told to fail, standing in for exhausted memory.
using lt::malloc_fails;

// Runs one allocation while memory is exhausted.
static void* new_without_memory(void* (*allocate)(size_t)) {
  malloc_fails = true;
  void* p = allocate(16);
  malloc_fails = false;
  return p;
}
static void* plain_new(size_t n) { return operator new(n); }
static void* plain_array_new(size_t n) { return operator new[](n); }
static void* nothrow_new(size_t n) { return operator new(n, std::nothrow); }
static void* nothrow_array_new(size_t n) { return operator new[](n, std::nothrow); }

TEST(new_of_zero_bytes_returns_distinct_non_null_pointers) {
  void* a = operator new(0);
  void* b = operator new(0);
  CHECK(a != 0);
  CHECK(b != 0);
  CHECK(a != b);
  operator delete(a);
  operator delete(b);
}

TEST(nothrow_new_of_zero_bytes_returns_non_null) {
  void* a = operator new(0, std::nothrow);
  void* b = operator new[](0, std::nothrow);
  CHECK(a != 0);
  CHECK(b != 0);
  CHECK(a != b);
  operator delete(a);
  operator delete[](b);
}

TEST(array_new_gives_usable_storage) {
  char* p = static_cast<char*>(operator new[](100));
  CHECK(p != 0);
  memset(p, 'x', 100);
  CHECK_EQ(p[99], 'x');
  operator delete[](p);
}

TEST(delete_of_null_does_nothing) {
  operator delete(0);
  operator delete[](0);
  CHECK(true);
}

TEST(placement_delete_leaves_storage_untouched) {
  char buffer[16];
  memset(buffer, 'q', sizeof buffer);
  operator delete(buffer, static_cast<void*>(buffer));
  operator delete[](buffer, static_cast<void*>(buffer));
  for (int i = 0; i < 16; ++i)
    CHECK_EQ(buffer[i], 'q');
}

TEST(placement_new_returns_its_address) {
  char buffer[8];
  CHECK_EQ(operator new(8, static_cast<void*>(buffer)), static_cast<void*>(buffer));
}

TEST(memzero_clears_exactly_the_given_bytes) {
  char buffer[10];
  memset(buffer, 'z', sizeof buffer);
  __memzero(buffer + 2, 5);
  CHECK_EQ(buffer[1], 'z');
  for (int i = 2; i < 7; ++i)
    CHECK_EQ(buffer[i], 0);
  CHECK_EQ(buffer[7], 'z');
}

TEST(exhausted_memory_returns_null_with_default_handler) {
  CHECK(new_without_memory(plain_new) == 0);
  CHECK(new_without_memory(plain_array_new) == 0);
  CHECK(new_without_memory(nothrow_new) == 0);
  CHECK(new_without_memory(nothrow_array_new) == 0);
}

static int recovering_handler_calls = 0;
static void* reserve = 0;
static void handler_that_gives_up_after_two() {
  if (++recovering_handler_calls == 2)
    std::set_new_handler(0);
}

ISOLATED_TEST(program_handler_runs_until_it_removes_itself) {
  std::set_new_handler(handler_that_gives_up_after_two);
  CHECK(new_without_memory(plain_new) == 0);
  CHECK_EQ(recovering_handler_calls, 2);
}

ISOLATED_TEST(nothrow_new_with_null_handler_calls_nothing) {
  std::set_new_handler(0);
  CHECK(new_without_memory(nothrow_new) == 0);
  CHECK(new_without_memory(plain_new) == 0);
}

ISOLATED_TEST(set_new_handler_returns_the_handler_it_replaces) {
  std::new_handler first = std::set_new_handler(handler_that_gives_up_after_two);
  CHECK(first == __default_new_handler);
  CHECK(std::set_new_handler(0) == handler_that_gives_up_after_two);
  CHECK(std::set_new_handler(first) == 0);
  CHECK(_new_handler == __default_new_handler);
}

ISOLATED_TEST(call_new_handler_reports_which_handler_ran) {
  CHECK_EQ(call_new_handler(), 1);
  std::set_new_handler(0);
  CHECK_EQ(call_new_handler(), 1);
  std::set_new_handler(handler_that_gives_up_after_two);
  CHECK_EQ(call_new_handler(), 0);
  CHECK_EQ(recovering_handler_calls, 1);
}

#if __cplusplus >= 201103L
ISOLATED_TEST(get_new_handler_reads_the_current_handler) {
  CHECK(std::get_new_handler() == __default_new_handler);
  std::set_new_handler(0);
  CHECK(std::get_new_handler() == 0);
}
#endif

#if __cplusplus >= 201703L
TEST(aligned_new_honours_the_alignment) {
  void* p = operator new(40, std::align_val_t(64));
  CHECK(p != 0);
  CHECK_EQ(reinterpret_cast<unsigned>(p) % 64, 0u);
  operator delete(p, std::align_val_t(64));
}
#endif
