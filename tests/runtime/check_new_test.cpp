// Built at -O2 like any program: a `new T` whose allocation fails yields null and does not run
// T's constructor (the library and the driver build with -fcheck-new).
#include "failing_malloc.h"
#include "lorb_test.h"
#include <cstdio>
#include <new>
#include <stddef.h>

using lt::malloc_fails;

static int constructions = 0;
struct widget {
  int value;
  widget() : value(42) { ++constructions; }
};

struct with_members {
  int a, b;
};

TEST(failed_new_yields_null_without_constructing) {
  malloc_fails = true;
  widget* w = new widget;
  malloc_fails = false;
  CHECK(w == 0);
  CHECK_EQ(constructions, 0);
}

TEST(failed_value_initialising_new_writes_nothing) {
  malloc_fails = true;
  with_members* m = new with_members();
  int* i = new int(5);
  malloc_fails = false;
  CHECK(m == 0);
  CHECK(i == 0);
}

TEST(failed_array_new_yields_null_without_constructing) {
  malloc_fails = true;
  widget* many = new widget[4];
  malloc_fails = false;
  CHECK(many == 0);
  CHECK_EQ(constructions, 0);
}

TEST(successful_new_constructs) {
  widget* w = new widget;
  CHECK(w != 0);
  CHECK_EQ(w->value, 42);
  CHECK_EQ(constructions, 1);
  delete w;
}
