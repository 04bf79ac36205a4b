// Lines and words read from generated text through string streams: std::getline into a string,
// getline into a buffer of several sizes (a full buffer fails and is cleared), >> into a string
// with and without a width, >> into a char array with a width, and get() to the end. The text
// has empty lines, blank runs, bytes above 127, zero bytes (not for the char array, whose
// zero-byte rule differs), a 100 KB line and no final newline. Lengths and checksums are printed;
// not the width after the last, failed read (Lorb++ clears it there, GNU does not).
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>

#include "input_support.h"

static std::string generated_text(unsigned seed, bool zeros) {
  generator g(seed);
  std::string text;
  for (int line = 0; line < 60; ++line) {
    unsigned shape = g.below(8);
    if (shape == 0) { // empty line
    } else if (line == 30) {
      for (int i = 0; i < 100 * 1024; ++i)
        text += static_cast<char>('a' + g.below(26));
    } else {
      unsigned length = shape == 1 ? 300 + g.below(5000) : g.below(80);
      for (unsigned i = 0; i < length; ++i) {
        unsigned kind = g.below(20);
        char c = static_cast<char>('!' + g.below(94));
        if (kind < 3)
          c = ' ';
        else if (kind == 3)
          c = "\t\r\v\f"[g.below(4)];
        else if (kind == 4)
          c = static_cast<char>(128 + g.below(128));
        else if (kind == 5 && zeros)
          c = 0;
        text += c;
      }
    }
    text += '\n';
  }
  text += "last line without newline";
  return text;
}

static void getline_strings(const std::string& text) {
  std::istringstream is(text);
  std::string line = "old";
  printf("getline string:");
  for (int n = 0; std::getline(is, line); ++n)
    printf(" %lu:%08x", static_cast<unsigned long>(line.size()),
           checksum(line.data(), line.size()));
  printf(" end size %lu", static_cast<unsigned long>(line.size()));
  print_state(is);
  printf("\n");
}

// Each call's count, the stored bytes and the terminator go into one checksum; a call that
// fills the buffer fails, is counted and cleared.
static void getline_buffers(const std::string& text, long size) {
  std::istringstream is(text);
  char buffer[8192];
  unsigned long calls = 0, full = 0, total = 0;
  unsigned int sum = 0;
  for (;;) {
    memset(buffer, '#', sizeof buffer);
    is.getline(buffer, size);
    long count = is.gcount();
    ++calls;
    total += static_cast<unsigned long>(count);
    sum =
        sum * 31 + checksum(buffer, count < size ? count + 1 : size) + static_cast<unsigned>(count);
    if (is.eof() || is.bad())
      break;
    if (is.fail()) {
      ++full;
      is.clear();
    }
  }
  printf("getline buffer %ld: %lu calls %lu full %lu taken %08x", size, calls, full, total, sum);
  print_state(is);
  print_rest(is);
  printf("\n");
}

static void words(const std::string& text, int width) {
  std::istringstream is(text);
  std::string word;
  unsigned long count = 0, total = 0;
  unsigned int sum = 0;
  for (;;) {
    if (width)
      is >> std::setw(width);
    if (!(is >> word))
      break;
    ++count;
    total += word.size();
    sum = sum * 31 + checksum(word.data(), word.size());
  }
  printf("words width %d: %lu words %lu bytes %08x last size %lu", width, count, total, sum,
         static_cast<unsigned long>(word.size()));
  print_state(is);
  printf("\n");
}

static void char_arrays(const std::string& text, int width) {
  std::istringstream is(text);
  char word[512];
  unsigned long count = 0, total = 0;
  unsigned int sum = 0;
  while (is >> std::setw(width) >> word) {
    ++count;
    total += strlen(word);
    sum = sum * 31 + checksum(word, strlen(word));
  }
  printf("char array width %d: %lu words %lu bytes %08x", width, count, total, sum);
  print_state(is);
  printf("\n");
}

static void get_all(const std::string& text) {
  std::istringstream is(text);
  unsigned long count = 0;
  unsigned int sum = 2166136261u;
  for (int c = is.get(); c != EOF; c = is.get()) {
    ++count;
    sum = (sum ^ static_cast<unsigned>(c)) * 16777619u;
  }
  printf("get: %lu %08x gcount %ld", count, sum, static_cast<long>(is.gcount()));
  print_state(is);
  printf("\n");
}

int main() {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    std::string text = generated_text(seed, true);
    printf("text %u: %lu bytes %08x\n", seed, static_cast<unsigned long>(text.size()),
           checksum(text.data(), text.size()));
    getline_strings(text);
    getline_buffers(text, 8192);
    getline_buffers(text, seed == 1 ? 64 : 1 + static_cast<long>(seed) * 7);
    words(text, 0);
    words(text, 5);
    get_all(text);
    std::string no_zeros = generated_text(seed, false);
    char_arrays(no_zeros, 512);
    char_arrays(no_zeros, 4);
  }

  // Small cases: gcount and state around the delimiter and the end.
  static const char* const small[] = {"",       "\n",    "\n\n",   "abc",    "abc\n",
                                      "abcd\n", "abcde", "ab\ncd", "a\0b\nc"};
  for (size_t i = 0; i < sizeof small / sizeof small[0]; ++i) {
    std::string text(small[i], i == 8 ? 5 : strlen(small[i]));
    for (long size = 1; size <= 5; ++size) {
      std::istringstream is(text);
      char buffer[8];
      memset(buffer, '#', sizeof buffer);
      is.getline(buffer, size);
      printf("getline(%ld) \"", size);
      print_escaped(text.data(), text.size());
      printf("\" -> \"");
      print_escaped(buffer, sizeof buffer);
      printf("\" gcount %ld", static_cast<long>(is.gcount()));
      print_state(is);
      print_rest(is);
      printf("\n");
    }
  }
  std::istringstream delimited("one;two;;three");
  char part[16];
  while (delimited.getline(part, sizeof part, ';'))
    printf("part \"%s\" gcount %ld\n", part, static_cast<long>(delimited.gcount()));
  print_state(delimited);
  printf("\n");
  return 0;
}
