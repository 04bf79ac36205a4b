// What the input programs share: a small deterministic generator, the printing of a stream's
// state bits and of what is left in it (bytes outside the printable range as \xNN), a checksum
// and the temporary file that std::cin reads from.
#ifndef INPUT_SUPPORT_H
#define INPUT_SUPPORT_H

#include <cstdio>
#include <cstring>
#include <istream>
#include <unistd.h>

// Linear congruential generator; 32-bit arithmetic so both builds draw the same numbers.
struct generator {
  unsigned int seed;
  explicit generator(unsigned int s) : seed(s) {}
  unsigned int next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned int below(unsigned int n) { return next() % n; }
};

// "[e f b]" with a '-' for each bit that is clear.
static inline void print_state(const std::istream& is) {
  printf("[%c%c%c]", is.eof() ? 'e' : '-', is.fail() ? 'f' : '-', is.bad() ? 'b' : '-');
}

static inline void print_escaped(const char* text, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) {
    unsigned char c = static_cast<unsigned char>(text[i]);
    if (c >= 32 && c < 127 && c != '\\')
      putchar(c);
    else
      printf("\\x%02x", c);
  }
}

// Prints what is left in the buffer (at most 24 bytes, then "..." and the count of the rest)
// and consumes it; the stream's own state is not looked at.
static inline void print_rest(std::istream& is) {
  char text[24];
  unsigned long n = 0, more = 0;
  for (int c = is.rdbuf()->sbumpc(); c != EOF; c = is.rdbuf()->sbumpc()) {
    if (n < sizeof text)
      text[n++] = static_cast<char>(c);
    else
      ++more;
  }
  printf(" rest \"");
  print_escaped(text, n);
  printf(more ? "\"...+%lu" : "\"", more);
}

// FNV-1a over n bytes.
static inline unsigned int checksum(const char* text, unsigned long n) {
  unsigned int h = 2166136261u;
  for (unsigned long i = 0; i < n; ++i)
    h = (h ^ static_cast<unsigned char>(text[i])) * 16777619u;
  return h;
}

// Writes n bytes to a file of this program's own and points stdin at it; returns the name so
// that the caller can remove it at the end. Must come before the first use of std::cin.
static inline const char* stdin_from(const char* program, const char* text, unsigned long n) {
  static char path[96];
  sprintf(path, "/tmp/%s.%ld", program, static_cast<long>(getpid()));
  FILE* file = fopen(path, "wb");
  if (!file || fwrite(text, 1, n, file) != n || fclose(file) != 0 || !freopen(path, "rb", stdin)) {
    printf("cannot prepare %s\n", path);
    return 0;
  }
  return path;
}

#endif
