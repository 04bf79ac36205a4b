// Formatted input from standard input: 10M ints read with std::cin >> n from a file that the
// program writes first (with the C library, untimed) and puts under stdin with freopen.
#include "bench.h"
#include "scale.h"
#include <cstdio>
#include <cstdlib>
#include <iostream>

// Unsigned arithmetic wraps instead of overflowing, so the values cover both signs and every
// length from one digit to ten.
static int value_at(unsigned long i) { return static_cast<int>(i * 2654435761u >> (i % 32)); }

static long long write_input(const char* path, long count) {
  FILE* file = fopen(path, "w");
  if (!file) {
    fprintf(stderr, "cannot write %s\n", path);
    exit(1);
  }
  long long sum = 0;
  for (long i = 0; i < count; ++i) {
    int value = value_at(static_cast<unsigned long>(i));
    sum += value;
    fprintf(file, "%d%c", value, i % 10 == 9 ? '\n' : ' ');
  }
  if (fclose(file) != 0) {
    fprintf(stderr, "writing %s failed\n", path);
    exit(1);
  }
  return sum;
}

int main() {
  char path[96];
  bench::name_scratch_file(path, sizeof path, "cin-ints");
  const long count = bench::scaled(10000000);
  const long long expected_sum = write_input(path, count);
  if (!freopen(path, "r", stdin)) {
    fprintf(stderr, "cannot put %s under stdin\n", path);
    return 1;
  }

  long read = 0;
  long long sum = 0;
  int n;
  double start = bench::now_ns();
  while (std::cin >> n) {
    sum += n;
    ++read;
  }
  bench::report("cin_int_10M", start, count);
  remove(path);
  // A wrong count or sum means the time above is not for the work it names.
  if (read != count || sum != expected_sum || !std::cin.eof()) {
    fprintf(stderr, "cin_int_10M: read %ld ints summing to %lld, expected %ld summing to %lld\n",
            read, sum, count, expected_sum);
    return 1;
  }
  return 0;
}
