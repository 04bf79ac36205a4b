// std::ofstream workloads: formatted integers, doubles and short strings, and unformatted 4 KB
// blocks, each written to a scratch file under /tmp that is opened, written, closed and removed.
#include "bench.h"
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <ostream>
#include <string>

// One scratch file per run, named after the clock so that two runs at once do not share it.
static char scratch_name[64];

static void name_scratch_file() {
  snprintf(scratch_name, sizeof scratch_name, "/tmp/lorb-bench-streams-%.0f.tmp", bench::now_ns());
}

// Opening and closing are inside the timing, as part of writing a file; removing it is not.
static void finish(std::ofstream& file, const char* name, double start, long operations) {
  file.close();
  bench::report(name, start, operations);
  if (!file) {
    fprintf(stderr, "%s: writing %s failed\n", name, scratch_name);
    exit(1);
  }
  remove(scratch_name);
}

static void write_ints() {
  const long count = 10000000;
  double start = bench::now_ns();
  std::ofstream file(scratch_name);
  // Unsigned arithmetic wraps instead of overflowing, so the values cover both signs.
  for (unsigned long i = 0; i < static_cast<unsigned long>(count); ++i)
    file << static_cast<int>(i * 7919u - 5000000u) << (i % 10 == 9 ? '\n' : ' ');
  finish(file, "ofstream_int_10M", start, count);
}

static void write_doubles() {
  const long count = 1000000;
  double start = bench::now_ns();
  std::ofstream file(scratch_name);
  // Four scales, so that fractions, whole numbers and exponents all turn up.
  const double scales[4] = {0.001, 1.0, 1000.0, 1e7};
  for (long i = 0; i < count; ++i)
    file << (i - 500000) / 7.0 * scales[i % 4] << (i % 8 == 7 ? '\n' : ' ');
  finish(file, "ofstream_double_1M", start, count);
}

// Strings of 8 to 16 characters; every other one goes through the C-string inserter.
static void write_short_strings() {
  const long total_bytes = 50L << 20;
  std::string words[9];
  for (unsigned w = 0; w < 9; ++w)
    for (unsigned j = 0; j < 8 + w; ++j)
      words[w] += static_cast<char>('a' + (w * 5 + j) % 26);
  long count = 0, written = 0;
  double start = bench::now_ns();
  std::ofstream file(scratch_name);
  for (; written < total_bytes; ++count) {
    const std::string& word = words[count % 9];
    if (count & 1)
      file << word.c_str();
    else
      file << word;
    written += static_cast<long>(word.size());
  }
  finish(file, "ofstream_short_strings_50MB", start, count);
}

static void write_blocks() {
  const long block_size = 4096, count = (50L << 20) / block_size;
  char block[4096];
  for (long j = 0; j < block_size; ++j)
    block[j] = static_cast<char>(j % 64 == 63 ? '\n' : 'A' + j % 26);
  double start = bench::now_ns();
  std::ofstream file(scratch_name);
  for (long i = 0; i < count; ++i) {
    block[0] = static_cast<char>('0' + i % 10);
    file.write(block, block_size);
  }
  finish(file, "ofstream_write_4KB_blocks_50MB", start, count);
}

int main() {
  name_scratch_file();
  write_ints();
  write_doubles();
  write_short_strings();
  write_blocks();
  return 0;
}
