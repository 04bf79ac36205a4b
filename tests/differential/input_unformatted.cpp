// The other unformatted reads over generated text in string streams: get(char&), get into a
// buffer up to a delimiter (which stays), get into a stream buffer, read, ignore, peek, putback
// and unget, and >> into a stream buffer; each prints what it took, gcount and the state.
#include <cstdio>
#include <cstring>
#include <sstream>
#include <string>

#include "input_support.h"

static std::string generated_text(unsigned seed) {
  generator g(seed);
  std::string text;
  for (int i = 0; i < 400; ++i) {
    unsigned kind = g.below(12);
    text += kind == 0   ? '\n'
            : kind == 1 ? ';'
            : kind == 2 ? ' '
                        : static_cast<char>('a' + g.below(26));
  }
  return text;
}

static void show(std::istream& is, const char* taken, unsigned long n) {
  printf(" \"");
  print_escaped(taken, n);
  printf("\" gcount %ld", static_cast<long>(is.gcount()));
  print_state(is);
}

static void get_pieces(const std::string& text, long size, char delim) {
  std::istringstream is(text);
  printf("get(buf, %ld, %d):", size, delim);
  unsigned long pieces = 0, total = 0, empty = 0;
  unsigned int check = 0;
  char buffer[64];
  for (int i = 0; i < 1000 && !is.eof(); ++i) {
    is.get(buffer, size, delim);
    long n = is.gcount();
    ++pieces;
    total += static_cast<unsigned long>(n);
    check = check * 31 + checksum(buffer, static_cast<unsigned long>(n) + 1);
    if (is.fail()) { // nothing before the delimiter: step over it
      ++empty;
      is.clear();
      is.get();
    }
  }
  printf(" %lu pieces %lu empty %lu bytes %08x", pieces, empty, total, check);
  print_state(is);
  printf("\n");
}

static void single_calls(const std::string& text) {
  std::istringstream is(text);
  char c = 0;
  is.get(c);
  printf("get(c)");
  show(is, &c, 1);
  char buffer[32];
  is.read(buffer, 20);
  printf(" | read(20)");
  show(is, buffer, 20);
  is.ignore(5);
  printf(" | ignore(5) peek %d", is.peek());
  print_state(is);
  is.ignore(1000, ';');
  long ignored = static_cast<long>(is.gcount()); // before peek, which sets it to 0
  printf(" | ignore(1000,';') gcount %ld", ignored);
  printf(" peek %d", is.peek());
  is.get(c);
  is.putback(c);
  printf(" | get+putback peek %d", is.peek());
  is.get(c);
  is.get(c);
  is.unget();
  printf(" | get get unget peek %d", is.peek());
  print_state(is);
  std::stringbuf rest;
  is.get(rest, ';');
  printf(" | get(sb,';') %lu bytes peek %d", static_cast<unsigned long>(rest.str().size()),
         is.peek());
  print_state(is);
  printf("\n");
}

static void to_the_end(const std::string& text) {
  std::istringstream is(text);
  char buffer[600];
  is.read(buffer, sizeof buffer);
  printf("read past the end: gcount %ld %08x", static_cast<long>(is.gcount()),
         checksum(buffer, static_cast<unsigned long>(is.gcount())));
  print_state(is);
  std::istringstream all(text);
  std::stringbuf copy;
  all >> &copy;
  std::string copied = copy.str();
  printf(" | >> streambuf %lu bytes same %d", static_cast<unsigned long>(copied.size()),
         copied == text ? 1 : 0);
  print_state(all);
  std::istringstream ignored(text);
  ignored.ignore(100000);
  printf(" | ignore all gcount %ld", static_cast<long>(ignored.gcount()));
  print_state(ignored);
  std::istringstream peeked("");
  printf(" | peek at end %d", peeked.peek());
  print_state(peeked);
  printf("\n");
}

int main() {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    std::string text = generated_text(seed);
    printf("text %u: %08x\n", seed, checksum(text.data(), text.size()));
    get_pieces(text, 64, '\n');
    get_pieces(text, 8, ';');
    single_calls(text);
    to_the_end(text);
  }
  return 0;
}
