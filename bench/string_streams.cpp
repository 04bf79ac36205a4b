// String streams: building 10 MB in a std::ostringstream and in a std::ostrstream from short
// strings, and parsing 1M ints from a std::istringstream.
#include "bench.h"
#include "scale.h"
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <strstream>

// Writes strings of 8 to 16 characters until `total_bytes` are written; every other one goes
// through the C-string inserter. Returns how many strings, and the characters in *written.
template <class _Stream> static long write_short_strings(_Stream& out, long total_bytes, long* written) {
  std::string words[9];
  for (unsigned w = 0; w < 9; ++w)
    for (unsigned j = 0; j < 8 + w; ++j)
      words[w] += static_cast<char>('a' + (w * 5 + j) % 26);
  long count = 0;
  for (*written = 0; *written < total_bytes; ++count) {
    const std::string& word = words[count % 9];
    if (count & 1)
      out << word.c_str();
    else
      out << word;
    *written += static_cast<long>(word.size());
  }
  return count;
}

static void check_length(const char* name, long built, long written) {
  if (built != written) {
    fprintf(stderr, "%s: built %ld characters, expected %ld\n", name, built, written);
    exit(1);
  }
}

// The final str() is timed too: a program builds a string to get it.
static void build_short_strings() {
  long written;
  double start = bench::now_ns();
  std::ostringstream out;
  long count = write_short_strings(out, bench::scaled(10L << 20), &written);
  std::string built = out.str();
  bench::report("ostringstream_short_strings_10MB", start, count);
  bench::keep(built.data());
  check_length("ostringstream_short_strings_10MB", static_cast<long>(built.size()), written);
}

// The same text in the character-array stream, which grows its array 16 characters at a time.
static void build_short_strings_in_array() {
  long written;
  double start = bench::now_ns();
  std::ostrstream out;
  long count = write_short_strings(out, bench::scaled(10L << 20), &written);
  long built = out.pcount();
  char* text = out.str();
  bench::report("ostrstream_short_strings_10MB", start, count);
  bench::keep(text);
  delete[] text;
  check_length("ostrstream_short_strings_10MB", built, written);
}

// Both signs and every length from one digit to ten. The text is made with the C library in one
// array and handed to a string once, so that making it costs the same with either library.
static void parse_ints() {
  const long count = bench::scaled(1000000);
  const long longest = 12; // "-2147483648" and a separator
  char* array = static_cast<char*>(malloc(count * longest + 1));
  if (!array) {
    fprintf(stderr, "istringstream_int_1M: no memory for the text\n");
    exit(1);
  }
  long length = 0;
  long long expected_sum = 0;
  for (long i = 0; i < count; ++i) {
    int value = static_cast<int>(static_cast<unsigned long>(i) * 2654435761u >> (i % 32));
    expected_sum += value;
    length += snprintf(array + length, longest + 1, "%d%c", value, i % 10 == 9 ? '\n' : ' ');
  }
  std::string text(array, length);
  free(array);
  long read = 0;
  long long sum = 0;
  int n;
  double start = bench::now_ns(); // making the stream copies the text, and is timed
  std::istringstream in(text);
  while (in >> n) {
    sum += n;
    ++read;
  }
  bench::report("istringstream_int_1M", start, count);
  if (read != count || sum != expected_sum || !in.eof()) {
    fprintf(stderr, "istringstream_int_1M: read %ld ints summing to %lld, expected %ld of %lld\n",
            read, sum, count, expected_sum);
    exit(1);
  }
}

int main() {
  build_short_strings();
  build_short_strings_in_array();
  parse_ints();
  return 0;
}
