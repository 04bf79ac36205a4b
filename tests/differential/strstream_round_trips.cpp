// The strstreams read back what was written: generated numbers and words through an ostrstream
// and an istrstream over its text, a strstream written whole and then read, writes into a
// caller's array until it is full, counted and unlimited istrstreams, and seeks in both
// directions checked against the text.
#include <cstdio>
#include <cstring>

#include "strstream_support.h"

struct record {
  long number;
  unsigned long count;
  char word[12];
};

static void make_records(unsigned seed, record* records, int n) {
  generator g(seed);
  for (int i = 0; i < n; ++i) {
    records[i].number = static_cast<long>(g.next() << 8) >> g.below(31);
    records[i].count = g.next() * 4099ul;
    unsigned length = 1 + g.below(10);
    for (unsigned k = 0; k < length; ++k)
      records[i].word[k] = static_cast<char>('!' + g.below(94));
    records[i].word[length] = '\0';
  }
}

// Counts the records read back that match; prints the state at the end.
template <class _Stream> static int read_records(_Stream& in, const record* records, int n) {
  int same = 0;
  for (int i = 0; i < n; ++i) {
    long number = 0;
    unsigned long count = 0;
    char word[16] = "";
    in >> number >> count >> word;
    if (number == records[i].number && count == records[i].count &&
        strcmp(word, records[i].word) == 0)
      ++same;
  }
  long after = 0;
  in >> after;
  print_stream_state(in);
  return same;
}

static void ostrstream_then_istrstream(unsigned seed) {
  record records[60];
  make_records(seed, records, 60);
  std::ostrstream out;
  for (int i = 0; i < 60; ++i)
    out << records[i].number << ' ' << records[i].count << '\n' << records[i].word << '\t';
  out << std::ends;
  int written = out.pcount();
  char* text = out.str();
  printf("seed %u: wrote %d bytes %08x", seed, written, checksum(text, strlen(text)));
  print_stream_state(out);
  std::istrstream in(text);
  int same = read_records(in, records, 60);
  printf(" read back %d of 60\n", same);
  delete[] text;
}

static void strstream_written_then_read(unsigned seed) {
  record records[40];
  make_records(seed, records, 40);
  std::strstream both;
  for (int i = 0; i < 40; ++i)
    both << records[i].number << ' ' << records[i].count << ' ' << records[i].word << '\n';
  printf("strstream %u: pcount %d", seed, both.pcount());
  int same = read_records(both, records, 40);
  printf(" read back %d of 40\n", same);
  delete[] both.str();
}

static void array_until_full(unsigned seed) {
  generator g(seed);
  char array[64];
  memset(array, '#', sizeof array);
  unsigned size = 8 + g.below(48);
  std::ostrstream out(array, static_cast<int>(size));
  int items = 0;
  // Written with write(), whose short write fails the stream in both libraries.
  while (out.good() && items < 100) {
    char item[16];
    sprintf(item, "word %u ", g.below(1000));
    out.write(item, static_cast<long>(strlen(item)));
    ++items;
  }
  printf("array of %u: %d items, pcount %d", size, items, out.pcount());
  print_failed(out);
  printf(" \"");
  print_escaped(array, sizeof array);
  printf("\" str is array %d\n", out.str() == array);
}

static void counted_and_unlimited() {
  const char text[] = "31 41 59 26 53";
  for (int n = 0; n <= 14; n += 3) {
    std::istrstream in(text, n);
    int sum = 0, value = 0, values = 0;
    while (in >> value) {
      sum += value;
      ++values;
    }
    printf("count %d: %d values sum %d", n, values, sum);
    print_stream_state(in);
    printf("\n");
  }
  // A local array read without a limit: the numbers end at the NUL, which is not a digit.
  char local[] = "123 456";
  std::istrstream unlimited(local, -1);
  int a = 0, b = 0, c = 0;
  unlimited >> a >> b;
  printf("unlimited: %d %d", a, b);
  print_stream_state(unlimited);
  unlimited >> c;
  print_stream_state(unlimited);
  printf("\n");
}

static void seeks_in_an_istrstream(unsigned seed) {
  generator g(seed);
  char text[101];
  for (int i = 0; i < 100; ++i)
    text[i] = static_cast<char>('a' + g.below(26));
  text[100] = '\0';
  std::istrstream in(text);
  int agreed = 0, failed = 0;
  for (int i = 0; i < 300; ++i) {
    long target = static_cast<long>(g.below(110));
    switch (g.below(3)) {
    case 0:
      in.seekg(target);
      break;
    case 1:
      in.seekg(target - static_cast<long>(in.tellg()), std::ios::cur);
      break;
    default:
      in.seekg(target - 100, std::ios::end);
      break;
    }
    if (in.fail()) {
      failed += target > 100;
      in.clear();
      continue;
    }
    int c = in.get();
    if ((target < 100 && c == text[target]) || (target == 100 && c == EOF))
      ++agreed;
    in.clear();
  }
  printf("istrstream seeks %u: %d agreed, %d refused beyond the end\n", seed, agreed, failed);
}

static void seeks_in_an_ostrstream(unsigned seed) {
  generator g(seed);
  char array[40], model[40];
  memset(array, '.', sizeof array);
  memset(model, '.', sizeof model);
  std::ostrstream out(array, 40);
  int refused = 0;
  for (int i = 0; i < 200; ++i) {
    long target = static_cast<long>(g.below(44));
    char c = static_cast<char>('A' + g.below(26));
    out.seekp(target);
    if (out.fail()) {
      ++refused;
      out.clear();
      continue;
    }
    out.put(c);
    if (target < 40)
      model[target] = c;
    out.clear();
  }
  printf("ostrstream seeks %u: %d refused, same as the model %d, tellp %ld\n", seed, refused,
         memcmp(array, model, sizeof array) == 0, static_cast<long>(out.tellp()));
}

static void lines_and_putback() {
  std::istrstream in("first line\nsecond\n\nlast");
  char line[32];
  while (in.getline(line, sizeof line))
    printf("line \"%s\" gcount %ld\n", line, static_cast<long>(in.gcount()));
  print_stream_state(in);
  std::istrstream again("xyz");
  int x = again.get();
  again.putback('x');
  int x2 = again.get();
  again.unget();
  int x3 = again.peek();
  printf(" putback %c %c %c", x, x2, x3);
  print_stream_state(again);
  printf("\n");
}

int main() {
  for (unsigned seed = 1; seed <= 3; ++seed)
    ostrstream_then_istrstream(seed);
  for (unsigned seed = 4; seed <= 6; ++seed)
    strstream_written_then_read(seed);
  for (unsigned seed = 7; seed <= 12; ++seed)
    array_until_full(seed);
  counted_and_unlimited();
  for (unsigned seed = 13; seed <= 15; ++seed)
    seeks_in_an_istrstream(seed);
  for (unsigned seed = 16; seed <= 18; ++seed)
    seeks_in_an_ostrstream(seed);
  lines_and_putback();
  return 0;
}
