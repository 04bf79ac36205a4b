// The right shifts by non-multiples of 32 that bitset_shift_right_diverges.cpp prints and the
// bitset unit test's model recomputes: the sizes, the shifts, the generated bit patterns and the
// line each case prints.
#ifndef BITSET_SHIFT_CASES_H
#define BITSET_SHIFT_CASES_H

#include <stdio.h>
#include <string>

namespace shift_cases {

static const unsigned sizes[] = {1, 31, 32, 33, 63, 64, 65, 100, 128};
static const unsigned shifts[] = {1, 4, 31, 33, 40, 63, 65, 97, 127};
enum {
  size_count = sizeof sizes / sizeof sizes[0],
  shift_count = sizeof shifts / sizeof shifts[0]
};
enum { patterns = 3 };

struct generator {
  unsigned seed;
  generator() : seed(77) {}
  unsigned next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
};

// Pattern 0: all ones; 1: only the top bit; others random. The first character is bit n-1.
inline std::string pattern_text(generator& g, unsigned n, unsigned pattern) {
  std::string text;
  for (unsigned i = 0; i < n; ++i) {
    bool one = pattern == 0 || (pattern == 1 ? i == 0 : g.next() % 2 == 1);
    text += one ? '1' : '0';
  }
  return text;
}

inline void print_case(unsigned n, unsigned shift, const std::string& in, const std::string& out) {
  printf("%u >> %u: %s -> %s\n", n, shift, in.c_str(), out.c_str());
}

// Calls visit(n, shift, input) for every case, always in the same order.
template <class Visitor> void for_each_case(Visitor& visit) {
  generator g;
  for (unsigned i = 0; i < size_count; ++i)
    for (unsigned j = 0; j < shift_count; ++j) {
      unsigned n = sizes[i], shift = shifts[j];
      if (shift >= n || shift % 32 == 0)
        continue;
      for (unsigned p = 0; p < patterns; ++p)
        visit(n, shift, pattern_text(g, n, p));
    }
}

} // namespace shift_cases

#endif
