// Line input: std::getline over 50 MB of text, once from a std::ifstream and once from std::cin
// with the same file put under stdin by freopen; the file is written first, untimed.
#include "bench.h"
#include "scale.h"
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

struct text_totals {
  long lines;
  long long characters; // without the newlines
};

// Lines of 0 to 120 characters (60 on average), so short and long ones both turn up.
static text_totals write_text(const char* path, long total_bytes) {
  FILE* file = fopen(path, "w");
  if (!file) {
    fprintf(stderr, "cannot write %s\n", path);
    exit(1);
  }
  char line[128];
  text_totals totals = {0, 0};
  for (long written = 0; written < total_bytes; ++totals.lines) {
    unsigned length = static_cast<unsigned>(totals.lines * 37 % 121);
    for (unsigned j = 0; j < length; ++j)
      line[j] = static_cast<char>(j % 8 == 7 ? ' ' : 'a' + (totals.lines + j) % 26);
    line[length] = '\n';
    fwrite(line, 1, length + 1, file);
    totals.characters += length;
    written += length + 1;
  }
  if (fclose(file) != 0) {
    fprintf(stderr, "writing %s failed\n", path);
    exit(1);
  }
  return totals;
}

static text_totals read_lines(std::istream& in) {
  text_totals totals = {0, 0};
  std::string line;
  while (std::getline(in, line)) {
    totals.characters += static_cast<long long>(line.size());
    ++totals.lines;
  }
  return totals;
}

// A wrong count means the time reported is not for the work it names.
static void check(const char* name, const text_totals& got, const text_totals& expected) {
  if (got.lines != expected.lines || got.characters != expected.characters) {
    fprintf(stderr, "%s: read %ld lines of %lld characters, expected %ld of %lld\n", name,
            got.lines, got.characters, expected.lines, expected.characters);
    exit(1);
  }
}

int main() {
  char path[96];
  bench::name_scratch_file(path, sizeof path, "getline");
  const text_totals expected = write_text(path, bench::scaled(50L << 20));

  double start = bench::now_ns();
  std::ifstream file(path);
  text_totals got = read_lines(file);
  file.close();
  bench::report("getline_ifstream_50MB", start, expected.lines);
  check("getline_ifstream_50MB", got, expected);

  if (!freopen(path, "r", stdin)) {
    fprintf(stderr, "cannot put %s under stdin\n", path);
    return 1;
  }
  start = bench::now_ns();
  got = read_lines(std::cin);
  bench::report("getline_cin_50MB", start, expected.lines);
  check("getline_cin_50MB", got, expected);
  remove(path);
  return 0;
}
