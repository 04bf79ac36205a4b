// timepunct<char> builds and destroys its day and month names in place through the run-time's
// array helpers: the program's own __vec_new and __vec_delete record the library's calls.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <__lorb/timepunct.h>
#include <dlfcn.h>
#include <string>

struct array_call {
  void* array;
  int count;
  unsigned size;
  bool with_element_function;
  int delete_flag; // __vec_delete only
};

static bool recording = false;
static array_call constructions[8], destructions[8];
static int construction_count = 0, destruction_count = 0;

typedef void* (*vec_new_fn)(void*, int, unsigned, __lorb_element_ctor);
typedef void (*vec_delete_fn)(void*, int, unsigned, __lorb_element_dtor, int);

// The library's own helpers, which these pass every call on to.
extern "C" void* __vec_new(void* storage, int count, unsigned size, __lorb_element_ctor ctor) {
  vec_new_fn library = reinterpret_cast<vec_new_fn>(dlsym(RTLD_NEXT, "__vec_new"));
  void* first = library(storage, count, size, ctor);
  if (recording && construction_count < 8) {
    array_call call = {storage, count, size, ctor != 0, 0};
    constructions[construction_count++] = call;
  }
  return first;
}

extern "C" void __vec_delete(void* array, int count, unsigned size, __lorb_element_dtor dtor,
                             int delete_flag) {
  if (recording && destruction_count < 8) {
    array_call call = {array, count, size, dtor != 0, delete_flag};
    destructions[destruction_count++] = call;
  }
  vec_delete_fn library = reinterpret_cast<vec_delete_fn>(dlsym(RTLD_NEXT, "__vec_delete"));
  library(array, count, size, dtor, delete_flag);
}

static bool inside(const void* p, const void* object, size_t object_size) {
  const char* c = static_cast<const char*>(p);
  const char* start = static_cast<const char*>(object);
  return c >= start && c < start + object_size;
}

TEST(names_are_constructed_in_place_fourteen_days_then_twenty_four_months) {
  construction_count = 0;
  recording = true;
  std::timepunct<char>* tp = new std::timepunct<char>("C");
  recording = false;
  CHECK_EQ(construction_count, 2);
  CHECK_EQ(constructions[0].count, 14);
  CHECK_EQ(constructions[1].count, 24);
  for (int i = 0; i < 2; ++i) {
    CHECK_EQ(constructions[i].size, static_cast<unsigned>(sizeof(std::string)));
    CHECK(constructions[i].with_element_function);
    CHECK(inside(constructions[i].array, tp, sizeof *tp));
  }
  CHECK(constructions[0].array == tp->get_week_day_list());
  CHECK(constructions[1].array == tp->get_month_name_list());
  // The fields in order: name, days, months, half-day strings.
  CHECK(static_cast<const void*>(tp) < constructions[0].array);
  CHECK(static_cast<const char*>(constructions[0].array) + 14 * sizeof(std::string) <=
        constructions[1].array);
  delete tp;
}

TEST(names_are_destroyed_in_place_months_then_days_nothing_freed) {
  std::timepunct<char>* tp = new std::timepunct<char>("C");
  const void* days = tp->get_week_day_list();
  const void* months = tp->get_month_name_list();
  destruction_count = 0;
  recording = true;
  delete tp;
  recording = false;
  CHECK_EQ(destruction_count, 2);
  CHECK(destructions[0].array == months);
  CHECK_EQ(destructions[0].count, 24);
  CHECK(destructions[1].array == days);
  CHECK_EQ(destructions[1].count, 14);
  for (int i = 0; i < 2; ++i) {
    CHECK_EQ(destructions[i].size, static_cast<unsigned>(sizeof(std::string)));
    CHECK(destructions[i].with_element_function);
    CHECK_EQ(destructions[i].delete_flag, 0);
  }
}
