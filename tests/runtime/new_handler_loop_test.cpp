// The allocation loops, watched from outside: this program supplies its own malloc (counting,
// and failing on demand) and its own __default_new_handler, which the library's references
// resolve to, so every call the loops make is seen.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <new>
#include <stddef.h>

using lt::malloc_fails;
static int default_handler_calls = 0;
static int program_handler_calls = 0;

extern "C" void __default_new_handler() { ++default_handler_calls; }

static void start_counting() {
  malloc_fails = true;
  lt::refused_mallocs = default_handler_calls = program_handler_calls = 0;
}

static void stop_counting() { malloc_fails = false; }

static void handler_removing_itself_on_third_call() {
  if (++program_handler_calls == 3)
    std::set_new_handler(0);
}

static void handler_installing_default_on_second_call() {
  if (++program_handler_calls == 2)
    std::set_new_handler(__default_new_handler);
}

TEST(plain_new_with_default_handler_calls_it_once_and_returns_null) {
  std::set_new_handler(__default_new_handler);
  start_counting();
  void* p = operator new(16);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 1);
  CHECK_EQ(default_handler_calls, 1);
}

TEST(plain_new_with_null_handler_still_calls_the_default_once) {
  std::set_new_handler(0);
  start_counting();
  void* p = operator new(16);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 1);
  CHECK_EQ(default_handler_calls, 1);
  std::set_new_handler(__default_new_handler);
}

TEST(nothrow_new_with_null_handler_returns_null_without_calling_any) {
  std::set_new_handler(0);
  start_counting();
  void* p = operator new(16, std::nothrow);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 1);
  CHECK_EQ(default_handler_calls, 0);
  std::set_new_handler(__default_new_handler);
}

TEST(nothrow_new_with_default_handler_calls_it_once) {
  std::set_new_handler(__default_new_handler);
  start_counting();
  void* p = operator new[](16, std::nothrow);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 1);
  CHECK_EQ(default_handler_calls, 1);
}

TEST(handler_that_installs_null_on_third_call_makes_four_mallocs) {
  std::set_new_handler(handler_removing_itself_on_third_call);
  start_counting();
  void* p = operator new(16);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 4);
  CHECK_EQ(program_handler_calls, 3);
  CHECK_EQ(default_handler_calls, 1);
}

TEST(nothrow_new_stops_at_once_when_handler_installs_null) {
  std::set_new_handler(handler_removing_itself_on_third_call);
  start_counting();
  void* p = operator new(16, std::nothrow);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 4);
  CHECK_EQ(program_handler_calls, 3);
  CHECK_EQ(default_handler_calls, 0);
}

TEST(handler_installing_the_default_ends_the_array_loop) {
  std::set_new_handler(handler_installing_default_on_second_call);
  start_counting();
  void* p = operator new[](16);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 3);
  CHECK_EQ(program_handler_calls, 2);
  CHECK_EQ(default_handler_calls, 1);
}

static void handler_that_lets_malloc_succeed() {
  ++program_handler_calls;
  malloc_fails = false;
}

TEST(handler_that_frees_memory_lets_the_allocation_succeed) {
  std::set_new_handler(handler_that_lets_malloc_succeed);
  start_counting();
  void* p = operator new(16);
  stop_counting();
  CHECK(p != 0);
  CHECK_EQ(lt::refused_mallocs, 1);
  CHECK_EQ(program_handler_calls, 1);
  CHECK_EQ(default_handler_calls, 0);
  operator delete(p);
  std::set_new_handler(__default_new_handler);
}

TEST(zero_byte_request_asks_malloc_for_one_byte) {
  start_counting();
  void* p = operator new(0);
  stop_counting();
  CHECK(p == 0);
  CHECK_EQ(lt::refused_mallocs, 1);
  CHECK_EQ(lt::last_refused_size, 1u);
}
