// What the extractor tests share: a buffer without a get area that counts its give-backs, a
// generator, the character sets and the short truncation worked out.
// Include it in exactly one file of a test program.
#ifndef IOSTREAM_ISTREAM_EXTRACTORS_SUPPORT_H
#define IOSTREAM_ISTREAM_EXTRACTORS_SUPPORT_H

#include "lorb_test.h"
#include "output_test_buffers.h"
#include <iomanip>
#include <istream>
#include <sstream>
#include <stdio.h>
#include <string.h>
#include <string>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;

// No get area, so every character comes from uflow and every give-back reaches pbackfail, which
// takes back the character just read.
struct uflow_buffer : std::basic_streambuf<char> {
  const char* text;
  long length;
  long at;
  int pbackfails;

  uflow_buffer(const char* t, long n) : text(t), length(n), at(0), pbackfails(0) {}

  int_type underflow() {
    return at < length ? traits_type::to_int_type(text[at]) : traits_type::eof();
  }
  int_type uflow() {
    return at < length ? traits_type::to_int_type(text[at++]) : traits_type::eof();
  }
  int_type pbackfail(int_type c) {
    ++pbackfails;
    if (c == traits_type::eof() || at == 0 || traits_type::to_int_type(text[at - 1]) != c)
      return traits_type::eof();
    --at;
    return c;
  }
};

// A small deterministic generator.
struct generator {
  unsigned long long state;
  explicit generator(unsigned long long seed) : state(seed) {}
  unsigned long long next() {
    state = state * 6364136223846793005ull + 1442695040888963407ull;
    return state >> 11;
  }
  unsigned long below(unsigned long n) { return static_cast<unsigned long>(next() % n); }
};

bool is_c_space(int byte) { return byte == ' ' || (byte >= 9 && byte <= 13); }

// Any byte that is not in the space class, NUL and 0xFF included.
char word_char(generator& g) {
  for (;;) {
    int byte = static_cast<int>(g.below(256));
    if (!is_c_space(byte))
      return static_cast<char>(byte);
  }
}

// As word_char, but no NUL either (a NUL ends a C-string word).
char c_word_char(generator& g) {
  for (;;) {
    char c = word_char(g);
    if (c)
      return c;
  }
}

// The value a 16-bit short holds after storing v truncated to its width.
long as_short(long v) { return static_cast<long>(((v & 0xFFFF) ^ 0x8000)) - 0x8000; }

} // namespace

#endif
