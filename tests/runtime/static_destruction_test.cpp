// The needed-destruction list: order, nodes recorded while it runs, node kinds, the atexit
// variant, unloading a shared object's nodes, and the trap on a node recorded twice.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <cstdio>
#include <cstring>

typedef __lorb_destruction_node node;

// What ran, in order, as a string of single-letter names.
static char trace[64];
static void note(char c) {
  size_t n = strlen(trace);
  trace[n] = c;
  trace[n + 1] = 0;
}

struct named {
  char letter;
};
static void destroy_named(void* object, int flags) {
  note(static_cast<named*>(object)->letter);
  if (flags != 2)
    note('!');
}

static named a = {'A'}, b = {'B'}, c = {'C'}, d = {'D'};

ISOLATED_TEST(list_runs_in_reverse_order_of_recording) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, destroy_named}, nc = {0, &c, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&nb);
  __record_needed_destruction(&nc);
  __process_needed_destructions();
  CHECK_STR(trace, "CBA");
  // The list is empty now: a second run does nothing.
  __process_needed_destructions();
  __call_dtors();
  __std__needed_destruction_list();
  CHECK_STR(trace, "CBA");
}

ISOLATED_TEST(run_nodes_keep_a_non_zero_next_word) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&nb);
  CHECK(nb.next == &na);
  node* before_a = na.next; // whatever the library recorded as it loaded
  CHECK(before_a != 0);
  __process_needed_destructions();
  CHECK(nb.next == &na);
  CHECK(na.next == before_a);
}

ISOLATED_TEST(the_end_marker_is_17_not_0) {
  __process_needed_destructions(); // empties the list, the library's own records included
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  CHECK_EQ(reinterpret_cast<unsigned>(na.next), 17u);
  __process_needed_destructions();
  CHECK_EQ(reinterpret_cast<unsigned>(na.next), 17u);
  CHECK_STR(trace, "A");
}

static node late_node = {0, &d, destroy_named};
static void destroy_and_record_another(void* object, int flags) {
  destroy_named(object, flags);
  __record_needed_destruction(&late_node);
}

ISOLATED_TEST(node_recorded_during_the_walk_runs_next) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, destroy_and_record_another},
              nc = {0, &c, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&nb);
  __record_needed_destruction(&nc);
  __process_needed_destructions();
  CHECK_STR(trace, "CBDA");
}

static void plain_function() { note('f'); }
static void atexit_function() { note('x'); }

ISOLATED_TEST(node_without_object_calls_its_destructor_with_no_arguments) {
  static node nf = {0, 0, reinterpret_cast<void (*)(void*, int)>(plain_function)};
  __record_needed_destruction(&nf);
  __process_needed_destructions();
  CHECK_STR(trace, "f");
}

ISOLATED_TEST(empty_node_does_nothing) {
  static node empty = {0, 0, 0};
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&empty);
  __process_needed_destructions();
  CHECK_STR(trace, "A");
}

ISOLATED_TEST(atexit_nodes_interleave_with_static_objects) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, destroy_named};
  __record_needed_destruction(&na);
  CHECK_EQ(__vel_std_atexit(atexit_function), 0);
  __record_needed_destruction(&nb);
  __process_needed_destructions();
  CHECK_STR(trace, "BxA");
}

// This program's own malloc can be told to fail, to reach __vel_std_atexit's failure path.
using lt::malloc_fails;

ISOLATED_TEST(vel_std_atexit_returns_minus_one_and_records_nothing_without_memory) {
  malloc_fails = true;
  int result = __vel_std_atexit(atexit_function);
  malloc_fails = false;
  CHECK_EQ(result, -1);
  __process_needed_destructions();
  CHECK_STR(trace, "");
}

// An atexit node is freed after it runs (memcheck would report it lost otherwise); a static node
// is never freed, which a heap check on static storage would catch as an invalid free.
ISOLATED_TEST(atexit_node_is_freed_static_node_is_not) {
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  for (int i = 0; i < 3; ++i)
    CHECK_EQ(__vel_std_atexit(atexit_function), 0);
  __process_needed_destructions();
  CHECK_STR(trace, "xxxA");
  CHECK_EQ(na.object, static_cast<void*>(&a));
}

static void record_twice() {
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&na);
}

static void record_after_running() {
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  __process_needed_destructions();
  __record_needed_destruction(&na);
}

TEST(recording_a_node_twice_aborts_silently) { EXPECT_ABORT(record_twice(), ""); }

TEST(recording_a_node_that_has_run_aborts) { EXPECT_ABORT(record_after_running(), ""); }

TEST(already_marked_trap_aborts_with_no_message) {
  EXPECT_ABORT(__already_marked_for_destruction(), "");
}

// Unloading: three nodes; the ranges cover only the object word of the second.
ISOLATED_TEST(unloading_runs_only_the_nodes_in_its_ranges) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, destroy_named}, nc = {0, &c, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&nb);
  __record_needed_destruction(&nc);
  __process_shared_object_destruction(0, 0, &b, sizeof b);
  CHECK_STR(trace, "B");
  __process_needed_destructions();
  CHECK_STR(trace, "BCA");
}

ISOLATED_TEST(unloading_matches_the_node_address_in_the_data_range) {
  static node nodes[3] = {{0, &a, destroy_named}, {0, &b, destroy_named}, {0, &c, destroy_named}};
  static node outside = {0, &d, destroy_named};
  __record_needed_destruction(&outside);
  for (int i = 0; i < 3; ++i)
    __record_needed_destruction(&nodes[i]);
  __process_shared_object_destruction(0, 0, nodes, sizeof nodes);
  CHECK_STR(trace, "CBA");
  __process_needed_destructions();
  CHECK_STR(trace, "CBAD");
}

static void code_range_marker(void* object, int flags) { destroy_named(object, flags); }

ISOLATED_TEST(unloading_matches_the_destructor_in_the_code_range) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, code_range_marker};
  __record_needed_destruction(&na);
  __record_needed_destruction(&nb);
  __process_shared_object_destruction(reinterpret_cast<void*>(code_range_marker), 1, 0, 0);
  CHECK_STR(trace, "B");
  __process_needed_destructions();
  CHECK_STR(trace, "BA");
}

ISOLATED_TEST(unloading_matches_an_atexit_function_in_the_code_range) {
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  CHECK_EQ(__vel_std_atexit(atexit_function), 0);
  __process_shared_object_destruction(reinterpret_cast<void*>(atexit_function), 1, 0, 0);
  CHECK_STR(trace, "x");
  __process_needed_destructions();
  CHECK_STR(trace, "xA");
}

ISOLATED_TEST(unloading_with_ranges_that_cover_nothing_keeps_the_list) {
  static node na = {0, &a, destroy_named}, nb = {0, &b, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&nb);
  static char elsewhere[4];
  __process_shared_object_destruction(elsewhere, sizeof elsewhere, elsewhere, sizeof elsewhere);
  CHECK_STR(trace, "");
  __process_needed_destructions();
  CHECK_STR(trace, "BA");
}

static node node_recorded_by_unload = {0, &d, destroy_named};
static void record_during_unload(void* object, int flags) {
  destroy_named(object, flags);
  __record_needed_destruction(&node_recorded_by_unload);
}

ISOLATED_TEST(unloading_starts_again_from_the_head_after_each_node) {
  static named group[2] = {{'P'}, {'Q'}};
  static node np = {0, &group[0], record_during_unload}, nq = {0, &group[1], destroy_named};
  static node na = {0, &a, destroy_named};
  __record_needed_destruction(&na);
  __record_needed_destruction(&np);
  __record_needed_destruction(&nq);
  __process_shared_object_destruction(0, 0, group, sizeof group);
  CHECK_STR(trace, "QP");
  __process_needed_destructions();
  CHECK_STR(trace, "QPDA");
}
