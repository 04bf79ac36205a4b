// What the strstream programs share: <strstream> without GNU's warning that the header is
// antiquated (it says nothing about these programs), the input programs' generator and printing,
// and the state of any stream.
#ifndef STRSTREAM_SUPPORT_H
#define STRSTREAM_SUPPORT_H

#undef __DEPRECATED
#include <strstream>

#include "input_support.h"

// "[- f -]": only whether the stream failed, which every failed write sets in both libraries.
static inline void print_failed(const std::ios& s) { printf("[%c]", s.fail() ? 'f' : '-'); }

// "[e f b]" for a stream of either direction.
static inline void print_stream_state(const std::ios& s) {
  printf("[%c%c%c]", s.eof() ? 'e' : '-', s.fail() ? 'f' : '-', s.bad() ? 'b' : '-');
}

#endif
