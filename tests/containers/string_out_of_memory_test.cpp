// A string whose buffer cannot be allocated reports it and exits with status 1. This program
// supplies its own malloc and realloc, which fail on demand, so no test needs to exhaust the
// machine.
#include "lorb_test.h"
#include <new>
#include <stddef.h>
#include <string>

extern "C" void* __libc_malloc(size_t);
extern "C" void* __libc_realloc(void*, size_t);

static int mallocs_before_failure = -1; // -1: never fail

extern "C" void* malloc(size_t size) {
  if (mallocs_before_failure == 0)
    return 0;
  if (mallocs_before_failure > 0)
    --mallocs_before_failure;
  return __libc_malloc(size);
}

// A growing buffer is realloc'd while the program keeps the library's allocation functions: it
// fails with malloc, and counts as one request.
extern "C" void* realloc(void* p, size_t size) {
  if (mallocs_before_failure == 0)
    return 0;
  if (mallocs_before_failure > 0)
    --mallocs_before_failure;
  return __libc_realloc(p, size);
}

static const char no_memory[] = "Lorb++ : Could not allocate  memory ...\n";

static void fail_after(int mallocs) { mallocs_before_failure = mallocs; }

TEST(failed_buffer_for_a_new_string_reports_and_exits_1) {
  EXPECT_EXIT((fail_after(1), std::string("text")), 1, no_memory);
}

TEST(failed_representation_reports_too) {
  EXPECT_EXIT((fail_after(0), std::string("text")), 1, no_memory);
}

TEST(failed_growth_reports_and_exits_1) {
  std::string s(31, 'a');
  EXPECT_EXIT((fail_after(0), s += 'b'), 1, no_memory);
  EXPECT_EXIT((fail_after(0), s.reserve(100)), 1, no_memory);
  EXPECT_EXIT((fail_after(0), s.insert(0, "x")), 1, no_memory);
}

TEST(failed_unsharing_reports_and_exits_1) {
  std::string a("shared"), b(a);
  EXPECT_EXIT((fail_after(0), b[0] = 'S'), 1, no_memory);
  EXPECT_EXIT((fail_after(1), b.append("!")), 1, no_memory);
}

static int handler_calls = 0;
static void handler_that_lets_malloc_succeed() {
  ++handler_calls;
  mallocs_before_failure = -1;
}

TEST(new_handler_that_frees_memory_lets_the_string_grow) {
  std::set_new_handler(handler_that_lets_malloc_succeed);
  std::string s(31, 'a');
  fail_after(0);
  s += 'b';
  CHECK_EQ(handler_calls, 1);
  CHECK_EQ(s.size(), 32u);
  CHECK_EQ(s.capacity(), 64u);
  std::set_new_handler(0);
}

TEST(no_allocation_when_the_buffer_has_room) {
  std::string s("ab");
  fail_after(0);
  s += 'c';
  s.erase(0, 1);
  s.resize(10, 'x');
  s.assign("fits");
  s = "fits too";
  std::string copy(s); // shares
  fail_after(-1);
  CHECK_STR(s.c_str(), "fits too");
}
