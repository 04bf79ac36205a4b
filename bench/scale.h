// Sizes of the input benchmarks: the full size times BENCH_SCALE (a positive number, 1 when unset),
// so that a slow host (an emulated i386) can run them smaller; ns per operation stays comparable.
#ifndef LORB_BENCH_SCALE_H
#define LORB_BENCH_SCALE_H

#include <stdio.h>
#include <stdlib.h>
#include <time.h>

namespace bench {

inline long scaled(long full_size) {
  const char* text = getenv("BENCH_SCALE");
  double scale = text ? atof(text) : 1.0;
  if (scale <= 0)
    scale = 1.0;
  long size = static_cast<long>(full_size * scale);
  return size > 0 ? size : 1;
}

// One scratch file per run, named after the clock so that two runs at once do not share it.
inline void name_scratch_file(char* name, unsigned long size, const char* what) {
  timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  snprintf(name, size, "/tmp/lorb-bench-%s-%ld-%ld.tmp", what, static_cast<long>(t.tv_sec),
           static_cast<long>(t.tv_nsec));
}

} // namespace bench

#endif
