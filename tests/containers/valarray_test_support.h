// What the valarray tests share: the generator of their inputs and generated integer arrays.
#ifndef LORB_VALARRAY_TEST_SUPPORT_H
#define LORB_VALARRAY_TEST_SUPPORT_H

#include <valarray>

// Linear congruential generator: the tests' inputs.
struct generator {
  unsigned seed;
  explicit generator(unsigned s) : seed(s) {}
  unsigned next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned below(unsigned n) { return next() % n; }
  int between(int low, int high) { return low + int(below(unsigned(high - low + 1))); }
  double real(double low, double high) { return low + (high - low) * (next() % 100000) / 1e5; }
};

inline std::valarray<int> random_ints(generator& gen, std::size_t n, int low, int high) {
  std::valarray<int> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = gen.between(low, high);
  return v;
}

#endif
