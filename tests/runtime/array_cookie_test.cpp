// Array construction and destruction through the cookie helpers. This program supplies its own
// operator new[] and delete[] so that every request and release the library makes is seen.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <cstdio>
#include <cstring>
#include <new>
#include <stddef.h>
#include <stdlib.h>

static size_t last_request = 0;
static void* last_allocation = 0;
static void* last_release = 0;
static int releases = 0;
static bool allocation_fails = false;

void* operator new[](size_t size) {
  last_request = size;
  last_allocation = allocation_fails ? 0 : malloc(size);
  return last_allocation;
}
void operator delete[](void* p) noexcept {
  last_release = p;
  ++releases;
  free(p);
}

// Elements are 12 bytes; each records the order of construction and destruction.
static char trace[128];
static int next_element = 0;
static void note(char c) {
  size_t n = strlen(trace);
  trace[n] = c;
  trace[n + 1] = 0;
}
static void reset() {
  trace[0] = 0;
  next_element = 0;
  releases = 0;
  last_release = 0;
}

static void construct(void* element) {
  int* e = static_cast<int*>(element);
  e[0] = next_element++;
  note(static_cast<char>('0' + e[0]));
}
static void destroy(void* element, int flags) {
  note(static_cast<char>('0' + *static_cast<int*>(element)));
  if (flags != 2)
    note('!');
}

static const unsigned* cookie_of(void* first) { return static_cast<unsigned*>(first) - 2; }

TEST(vec_new_requests_count_times_size_plus_eight_and_writes_the_cookie) {
  reset();
  void* first = __vec_new(0, 3, 12, construct);
  CHECK_EQ(last_request, 44u);
  CHECK_EQ(first, static_cast<void*>(static_cast<char*>(last_allocation) + 8));
  CHECK_EQ(cookie_of(first)[0], 36u);
  CHECK_EQ(cookie_of(first)[1], ~3u);
  CHECK_STR(trace, "012");
  __vec_delete(first, -1, 12, 0, 1);
}

TEST(vec_delete_with_cookie_destroys_last_to_first_and_frees_the_start) {
  reset();
  void* first = __vec_new(0, 3, 12, construct);
  void* start = last_allocation;
  trace[0] = 0;
  __vec_delete(first, -1, 12, destroy, 1);
  CHECK_STR(trace, "210");
  CHECK_EQ(last_release, start);
  CHECK_EQ(releases, 1);
}

TEST(zero_count_allocates_eight_bytes_and_constructs_nothing) {
  reset();
  void* first = __vec_new(0, 0, 12, construct);
  CHECK(first != 0);
  CHECK_EQ(last_request, 8u);
  CHECK_EQ(cookie_of(first)[0], 0u);
  CHECK_EQ(cookie_of(first)[1], ~0u);
  CHECK_STR(trace, "");
  void* start = last_allocation;
  __vec_delete(first, -1, 12, destroy, 1);
  CHECK_STR(trace, "");
  CHECK_EQ(last_release, start);
}

static void destroy_loudly(void*, int) { printf("destroyed\n"); }

static void delete_with_zero_header() {
  static unsigned storage[5] = {0, 0, 0, 0, 0};
  __vec_delete(storage + 2, -1, 12, destroy_loudly, 1);
}

TEST(zero_header_fails_the_cookie_test_and_aborts_before_destroying) {
  reset();
  EXPECT_CHILD(delete_with_zero_header(), lt::aborts(), "", "");
}

static void delete_with_garbage_header() {
  static unsigned storage[5] = {36, 3, 0, 0, 0}; // the count not complemented
  __vec_delete(storage + 2, -1, 12, destroy, 1);
}

TEST(uncomplemented_header_aborts) { EXPECT_ABORT(delete_with_garbage_header(), ""); }

TEST(bad_cookie_trap_aborts_with_no_message) {
  EXPECT_ABORT(_array_pointer_not_from_vec_new(), "");
}

TEST(placement_array_new_writes_the_cookie_in_front_of_the_storage) {
  reset();
  unsigned words[6] = {0, 0, 0, 0, 0, 0};
  void* s = words + 2;
  CHECK_EQ(__placement_array_new(s, 2, 4, construct, destroy), s);
  CHECK_EQ(words[0], 8u);
  CHECK_EQ(words[1], ~2u);
  CHECK_STR(trace, "01");
  trace[0] = 0;
  __vec_delete(s, -1, 4, destroy, 0);
  CHECK_STR(trace, "10");
  CHECK_EQ(releases, 0);
}

TEST(vec_new_on_caller_storage_writes_no_cookie) {
  reset();
  unsigned words[8] = {0xAAAA, 0xBBBB, 0, 0, 0, 0, 0, 0};
  last_request = 0;
  CHECK_EQ(__vec_new(words + 2, 2, 12, construct), static_cast<void*>(words + 2));
  CHECK_EQ(words[0], 0xAAAAu);
  CHECK_EQ(words[1], 0xBBBBu);
  CHECK_EQ(last_request, 0u);
  CHECK_STR(trace, "01");
}

static int hidden_argument_sum = -1;
static void construct_with_hidden_arguments(void* element, int a, int b, int c, int d, int e, int f,
                                            int g, int h) {
  hidden_argument_sum = (a | b | c | d | e | f | g | h);
  *static_cast<int*>(element) = 1;
}

TEST(default_constructor_receives_eight_zero_arguments) {
  int storage[2] = {0, 0};
  __vec_new(storage, 1, 4,
            reinterpret_cast<__lorb_element_ctor>(
                reinterpret_cast<void*>(construct_with_hidden_arguments)));
  CHECK_EQ(hidden_argument_sum, 0);
  CHECK_EQ(storage[0], 1);
}

TEST(negative_count_constructs_nothing) {
  reset();
  int storage[4] = {0, 0, 0, 0};
  __vec_new(storage, -2, 4, construct);
  CHECK_STR(trace, "");
}

TEST(vec_new_without_constructor_only_allocates) {
  reset();
  void* first = __vec_new(0, 5, 4, 0);
  CHECK_EQ(last_request, 28u);
  CHECK_EQ(cookie_of(first)[1], ~5u);
  __vec_delete(first, -1, 4, 0, 1);
  CHECK_EQ(releases, 1);
}

TEST(failed_allocation_returns_null_and_constructs_nothing) {
  reset();
  allocation_fails = true;
  void* a = __vec_new(0, 3, 12, construct);
  void* b = __vec_new_eh(0, 3, 12, construct, destroy);
  void* c = __vec_cctor_eh(0, 3, 12, 0, 0, destroy);
  allocation_fails = false;
  CHECK(a == 0);
  CHECK(b == 0);
  CHECK(c == 0);
  CHECK_STR(trace, "");
}

TEST(vec_new_eh_behaves_as_vec_new_and_never_calls_the_destructor) {
  reset();
  void* first = __vec_new_eh(0, 2, 12, construct, destroy);
  CHECK_EQ(last_request, 32u);
  CHECK_EQ(cookie_of(first)[0], 24u);
  CHECK_STR(trace, "01");
  __vec_delete(first, -1, 12, 0, 1);
}

static void copy_element(void* to, void* from) {
  *static_cast<int*>(to) = *static_cast<int*>(from) * 10;
  note('c');
}

TEST(vec_cctor_eh_copies_element_by_element_into_new_storage) {
  reset();
  int source[3] = {1, 2, 3};
  int* copy = static_cast<int*>(__vec_cctor_eh(0, 3, 4, copy_element, source, destroy));
  CHECK_EQ(last_request, 20u);
  CHECK_EQ(cookie_of(copy)[0], 12u);
  CHECK_EQ(copy[0], 10);
  CHECK_EQ(copy[1], 20);
  CHECK_EQ(copy[2], 30);
  CHECK_STR(trace, "ccc");
  __vec_delete(copy, -1, 4, 0, 1);
}

TEST(vec_cctor_copies_into_given_storage_and_never_allocates) {
  reset();
  int source[2] = {4, 5};
  int target[2] = {0, 0};
  last_request = 0;
  __vec_cctor(target, 2, 4, copy_element, source);
  CHECK_EQ(target[0], 40);
  CHECK_EQ(target[1], 50);
  CHECK_EQ(last_request, 0u);
  __vec_cctor(target, 2, 4, 0, source); // no copy constructor: nothing happens
  CHECK_EQ(target[0], 40);
  __vec_cctor(target, 0, 4, copy_element, source);
  CHECK_STR(trace, "cc");
}

// Size 0 keeps every call on the same element, so the loop can run long without harm.
static int copies_before_exit = 0;
static void copy_then_exit_on_fifth(void*, void*) {
  if (++copies_before_exit == 5)
    exit(5);
}

TEST(vec_cctor_compares_the_count_unsigned) {
  char storage[4], source[4];
  // -1 is read as 0xFFFFFFFF: the loop runs until the copy constructor ends the process.
  EXPECT_CHILD(__vec_cctor(storage, -1, 0, copy_then_exit_on_fifth, source), lt::exits(5), "", "");
}

TEST(vec_cctor_eh_compares_the_count_signed) {
  char storage[4], source[4];
  copies_before_exit = 0;
  __vec_cctor_eh(storage, -1, 0, copy_then_exit_on_fifth, source, 0);
  CHECK_EQ(copies_before_exit, 0);
}

// An allocation function of the program's own, and size-taking and plain deallocation functions.
static unsigned given_bytes = 0;
static void* allocate_with(unsigned bytes) {
  given_bytes = bytes;
  return allocation_fails ? 0 : malloc(bytes);
}
static void* freed_start = 0;
static unsigned freed_bytes = 0;
static void release_sized(void* start, unsigned bytes) {
  freed_start = start;
  freed_bytes = bytes;
  free(start);
}
static void release_plain(void* start) {
  freed_start = start;
  freed_bytes = 0xDEAD;
  free(start);
}
static __lorb_dealloc_fn sized_release() {
  return reinterpret_cast<__lorb_dealloc_fn>(reinterpret_cast<void*>(release_sized));
}

TEST(array_new_uses_the_given_allocation_function) {
  reset();
  void* first = __array_new(3, 12, construct, destroy, allocate_with, release_plain, 0);
  CHECK_EQ(given_bytes, 44u);
  CHECK_EQ(cookie_of(first)[0], 36u);
  CHECK_EQ(cookie_of(first)[1], ~3u);
  CHECK_STR(trace, "012");
  trace[0] = 0;
  __array_delete(first, -1, 12, destroy, release_plain, 0);
  CHECK_STR(trace, "210");
  CHECK_EQ(freed_start, static_cast<void*>(static_cast<char*>(first) - 8));
  CHECK_EQ(freed_bytes, 0xDEADu);
}

TEST(array_new_without_allocation_function_uses_array_new) {
  reset();
  void* first = __array_new(2, 4, construct, destroy, 0, 0, 0);
  CHECK_EQ(last_request, 16u);
  CHECK_EQ(first, static_cast<void*>(static_cast<char*>(last_allocation) + 8));
  __array_delete(first, -1, 4, 0, 0, 0);
  CHECK_EQ(releases, 1);
}

TEST(array_new_returns_null_when_its_allocation_function_fails) {
  reset();
  allocation_fails = true;
  void* first = __array_new(3, 12, construct, destroy, allocate_with, release_plain, 1);
  allocation_fails = false;
  CHECK(first == 0);
  CHECK_STR(trace, "");
}

TEST(sized_deallocation_receives_the_byte_total_plus_eight_from_the_cookie) {
  reset();
  void* first = __array_new(3, 12, construct, destroy, allocate_with, sized_release(), 1);
  __array_delete(first, -1, 12, destroy, sized_release(), 1);
  CHECK_EQ(freed_bytes, 44u);
  CHECK_EQ(freed_start, static_cast<void*>(static_cast<char*>(first) - 8));
}

TEST(sized_deallocation_receives_eight_when_the_count_was_explicit) {
  reset();
  void* first = __array_new(3, 12, construct, destroy, allocate_with, sized_release(), 1);
  trace[0] = 0;
  __array_delete(first, 3, 12, destroy, sized_release(), 1);
  CHECK_EQ(freed_bytes, 8u);
  CHECK_STR(trace, "210");
}

TEST(explicit_count_is_trusted_over_the_cookie) {
  reset();
  void* first = __vec_new(0, 3, 12, construct);
  trace[0] = 0;
  __vec_delete(first, 2, 12, destroy, 1);
  CHECK_STR(trace, "10");
  CHECK_EQ(releases, 1);
}

TEST(delete_flag_zero_destroys_without_freeing) {
  reset();
  void* first = __vec_new(0, 2, 12, construct);
  trace[0] = 0;
  __vec_delete(first, -1, 12, destroy, 0);
  CHECK_STR(trace, "10");
  CHECK_EQ(releases, 0);
  operator delete[](static_cast<char*>(first) - 8);
}

TEST(null_array_makes_every_destruction_entry_return_at_once) {
  reset();
  __vec_delete(0, -1, 12, destroy, 1);
  __array_delete(0, -1, 12, destroy, release_plain, 1);
  __vel_fast_vec_delete(0, -1, 12, 0, 1, 0);
  CHECK_STR(trace, "");
  CHECK_EQ(releases, 0);
}

static void* whole_first = reinterpret_cast<void*>(1);
static int whole_count = -5;
static int whole_calls = 0;
static void whole_array(void* first, int count) {
  whole_first = first;
  whole_count = count;
  ++whole_calls;
}

TEST(fast_vec_new_calls_the_whole_array_constructor_once) {
  whole_calls = 0;
  void* first = __vel_fast_vec_new(0, 4, 8, whole_array);
  CHECK_EQ(whole_calls, 1);
  CHECK_EQ(whole_first, first);
  CHECK_EQ(whole_count, 4);
  CHECK_EQ(cookie_of(first)[0], 32u);
  whole_calls = 0;
  reset();
  __vel_fast_vec_delete(first, -1, 8, whole_array, 1, 12345);
  CHECK_EQ(whole_calls, 1);
  CHECK_EQ(whole_first, first);
  CHECK_EQ(whole_count, 4);
  CHECK_EQ(releases, 1);
}

TEST(fast_vec_new_hands_a_failed_allocation_to_the_whole_array_constructor) {
  whole_calls = 0;
  allocation_fails = true;
  void* first = __vel_fast_vec_new(0, 4, 8, whole_array);
  allocation_fails = false;
  CHECK(first == 0);
  CHECK_EQ(whole_calls, 1);
  CHECK(whole_first == 0);
  CHECK_EQ(whole_count, 4);
}

TEST(fast_vec_delete_with_explicit_count_and_no_delete_flag) {
  int storage[4];
  whole_calls = 0;
  reset();
  __vel_fast_vec_delete(storage, 4, 4, whole_array, 0, 0);
  CHECK_EQ(whole_count, 4);
  CHECK_EQ(releases, 0);
}

static void fast_delete_with_bad_cookie() {
  static unsigned storage[4] = {1, 1, 0, 0};
  __vel_fast_vec_delete(storage + 2, -1, 4, whole_array, 1, 0);
}

TEST(fast_vec_delete_with_bad_cookie_aborts) { EXPECT_ABORT(fast_delete_with_bad_cookie(), ""); }

TEST(prefix_size_is_eight) { CHECK_EQ(__array_new_prefix_size, 8); }
