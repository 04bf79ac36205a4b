// Timing for the benchmark programs: each workload is run for a fixed count and its time per
// operation printed as "name nanoseconds", which bench/run.sh pairs across the two libraries.
#ifndef LORB_BENCH_H
#define LORB_BENCH_H

#include <stdio.h>
#include <time.h>

namespace bench {

inline double now_ns() {
  timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return t.tv_sec * 1e9 + t.tv_nsec;
}

// Keeps a result alive so the optimiser cannot drop the work that made it.
inline void keep(const void* p) { __asm__ __volatile__("" : : "g"(p) : "memory"); }

inline void report(const char* name, double start_ns, long operations) {
  printf("%s %.2f\n", name, (now_ns() - start_ns) / operations);
}

} // namespace bench

#endif
