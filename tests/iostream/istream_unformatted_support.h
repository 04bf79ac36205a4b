// What the unformatted-read tests share: a buffer without a get area that counts its give-backs,
// a generator and the character sets.
// Include it in exactly one file of a test program.
#ifndef IOSTREAM_ISTREAM_UNFORMATTED_SUPPORT_H
#define IOSTREAM_ISTREAM_UNFORMATTED_SUPPORT_H

#include "lorb_test.h"
#include "output_test_buffers.h"
#include <istream>
#include <sstream>
#include <string.h>
#include <string>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;

const std::streamsize unlimited = 0x7FFFFFFF;

// No get area, so every character comes from uflow and every give-back reaches pbackfail, which
// takes back the character just read when `accepting`, and counts.
struct uflow_buffer : std::basic_streambuf<char> {
  const char* text;
  long length;
  long at;
  bool accepting;
  int pbackfails;
  int last_pbackfail;
  int syncs;
  int sync_result;
  std::streamsize shown;

  uflow_buffer(const char* t, long n)
      : text(t), length(n), at(0), accepting(true), pbackfails(0), last_pbackfail(0), syncs(0),
        sync_result(0), shown(0) {}

  int_type underflow() {
    return at < length ? traits_type::to_int_type(text[at]) : traits_type::eof();
  }
  int_type uflow() {
    return at < length ? traits_type::to_int_type(text[at++]) : traits_type::eof();
  }
  int_type pbackfail(int_type c) {
    ++pbackfails;
    last_pbackfail = c;
    if (!accepting || at == 0)
      return traits_type::eof();
    if (c != traits_type::eof() && traits_type::to_int_type(text[at - 1]) != c)
      return traits_type::eof();
    --at;
    return traits_type::to_int_type(text[at]);
  }
  int sync() {
    ++syncs;
    return sync_result;
  }
  std::streamsize showmanyc() { return shown; }
};

// A small deterministic generator.
struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned long below(unsigned long n) {
    state = state * 1103515245ul + 12345ul;
    return (state >> 8) % n;
  }
};

// Any byte but the newline, NUL included.
char line_char(generator& g) {
  for (;;) {
    char c = static_cast<char>(g.below(256));
    if (c != '\n')
      return c;
  }
}

} // namespace

#endif
