// std::string workloads: copying, growing one character at a time, searching, comparing and
// taking substrings.
#include "bench.h"
#include <string>

static void copy_100() {
  const std::string source(100, 'c');
  const long count = 2000000;
  double start = bench::now_ns();
  for (long i = 0; i < count; ++i) {
    std::string copy(source);
    bench::keep(copy.data());
  }
  bench::report("string_copy_100_chars", start, count);
}

static void append_chars(const char* name, unsigned length, long count) {
  double start = bench::now_ns();
  for (long i = 0; i < count; ++i) {
    std::string s;
    for (unsigned j = 0; j < length; ++j)
      s += static_cast<char>('a' + j % 26);
    bench::keep(s.data());
  }
  bench::report(name, start, count);
}

static void find_in_1mb() {
  std::string text(1 << 20, 'a');
  for (unsigned i = 0; i < text.size(); i += 7)
    text[i] = 'b';
  const std::string pattern("aaaaac");
  text.replace(text.size() - 10, 6, pattern);
  const long count = 50;
  double start = bench::now_ns();
  std::string::size_type found = 0;
  for (long i = 0; i < count; ++i)
    found += text.find(pattern);
  bench::keep(&found);
  bench::report("string_find_in_1mb", start, count);
}

static void compare_strings() {
  std::string a(200, 'x'), b(200, 'x');
  b[199] = 'y';
  const long count = 5000000;
  double start = bench::now_ns();
  int total = 0;
  for (long i = 0; i < count; ++i) {
    total += a.compare(b) < 0;
    total += a == "short";
    bench::keep(&total);
  }
  bench::report("string_compare_200_chars", start, count);
}

static void substrings() {
  std::string text(1000, 's');
  const long count = 2000000;
  double start = bench::now_ns();
  for (long i = 0; i < count; ++i) {
    std::string part = text.substr(i % 900, 40);
    bench::keep(part.data());
  }
  bench::report("string_substr_40_chars", start, count);
}

int main() {
  copy_100();
  append_chars("string_append_chars_to_1kb", 1024, 20000);
  append_chars("string_append_chars_to_1mb", 1 << 20, 3);
  find_in_1mb();
  compare_strings();
  substrings();
  return 0;
}
