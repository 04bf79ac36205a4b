// Allocation workloads: operator new/delete of small sizes, and arrays of 1000 class objects
// (through the run-time's __vec_new/__vec_delete under Lorb++, new T[n]/delete[] under GNU).
#include "bench.h"
#include <new>

struct counted {
  int value;
  counted() : value(1) {}
  ~counted() { value = 0; }
};

#ifdef __LORB_CONFIG_H
#include <__lorb/runtime.h>
static void construct_counted(void* p) { new (p) counted; }
static void destroy_counted(void* p, int) { static_cast<counted*>(p)->~counted(); }
static counted* make_array(int n) {
  return static_cast<counted*>(__vec_new(0, n, sizeof(counted), construct_counted));
}
static void drop_array(counted* p) { __vec_delete(p, -1, sizeof(counted), destroy_counted, 1); }
#else
static counted* make_array(int n) { return new counted[n]; }
static void drop_array(counted* p) { delete[] p; }
#endif

static void small_new_delete(const char* name, unsigned size) {
  const long rounds = 2000000;
  double start = bench::now_ns();
  for (long i = 0; i < rounds; ++i) {
    void* p = operator new(size);
    bench::keep(p);
    operator delete(p);
  }
  bench::report(name, start, rounds);
}

int main() {
  small_new_delete("new_delete_8_bytes", 8);
  small_new_delete("new_delete_32_bytes", 32);
  small_new_delete("new_delete_128_bytes", 128);

  const long rounds = 20000;
  double start = bench::now_ns();
  for (long i = 0; i < rounds; ++i) {
    counted* array = make_array(1000);
    bench::keep(array);
    drop_array(array);
  }
  bench::report("array_of_1000_new_delete", start, rounds);
  return 0;
}
