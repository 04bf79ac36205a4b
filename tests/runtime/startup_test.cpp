// Start-up and termination: the once-only _main, the scheduling of the walk with atexit, and the
// order of the walk against the program's own static destructors at every kind of exit.
#define _GNU_SOURCE 1
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>

// This program's own __cxa_atexit (what atexit calls) can be told to refuse, and counts calls.
static bool refuse_registration = false;
static int registration_attempts = 0;
extern "C" int __cxa_atexit(void (*fn)(void*), void* arg, void* dso) {
  ++registration_attempts;
  if (refuse_registration)
    return -1;
  typedef int (*real_fn)(void (*)(void*), void*, void*);
  static real_fn real = reinterpret_cast<real_fn>(dlsym(RTLD_NEXT, "__cxa_atexit"));
  return real(fn, arg, dso);
}

static bool report_static_destruction = false;
struct program_static {
  ~program_static() {
    if (report_static_destruction)
      std::printf("program static destroyed\n");
  }
};
static program_static the_program_static;

static void announce(void* object, int) { std::printf("%s\n", static_cast<const char*>(object)); }
static char walk_text[] = "walk ran";
static __lorb_destruction_node walk_node = {0, walk_text, announce};

static void record_walk_node() {
  report_static_destruction = true;
  __record_needed_destruction(&walk_node);
}

TEST(library_start_up_schedules_the_walk) { CHECK_EQ(__dtor_processing_scheduled, 1); }

TEST(returning_or_c_exit_runs_the_walk_after_the_programs_static_destructors) {
  EXPECT_CHILD(record_walk_node(), lt::exits(0), "program static destroyed\nwalk ran\n", "");
}

TEST(cxx_exit_runs_the_walk_first_and_exactly_once) {
  EXPECT_CHILD((record_walk_node(), __lorb_cxx_exit(3)), lt::exits(3),
               "walk ran\nprogram static destroyed\n", "");
}

TEST(plo_exit_runs_the_walk_then_exits_with_the_status) {
  EXPECT_CHILD((record_walk_node(), __plo_exit(7)), lt::exits(7),
               "walk ran\nprogram static destroyed\n", "");
}

TEST(main_once_is_fine) { EXPECT_CHILD(_main(), lt::exits(0), "", ""); }

TEST(main_called_twice_aborts_silently) { EXPECT_ABORT((_main(), _main()), ""); }

TEST(main_trap_aborts_with_no_message) { EXPECT_ABORT(__main_called_more_than_once(), ""); }

static void run_main_counting_registrations() {
  registration_attempts = 0;
  _main();
  if (registration_attempts != 0)
    std::printf("registered again\n");
}

TEST(main_schedules_nothing_twice) {
  EXPECT_CHILD(run_main_counting_registrations(), lt::exits(0), "", "");
}

ISOLATED_TEST(refused_registration_is_tried_again_on_the_next_call) {
  __dtor_processing_scheduled = 0;
  registration_attempts = 0;
  refuse_registration = true;
  __call_ctors();
  CHECK_EQ(__dtor_processing_scheduled, 0);
  __call_ctors();
  CHECK_EQ(__dtor_processing_scheduled, 0);
  CHECK_EQ(registration_attempts, 2);
  refuse_registration = false;
  __call_ctors();
  CHECK_EQ(__dtor_processing_scheduled, 1);
  CHECK_EQ(registration_attempts, 3);
  __call_ctors();
  CHECK_EQ(registration_attempts, 3);
}

TEST(exit_processing_hook_does_nothing) {
  EXPECT_CHILD((record_walk_node(), __eh_exit_processing(), report_static_destruction = false),
               lt::exits(0), "walk ran\n", "");
}
