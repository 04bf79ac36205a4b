// The process-wide generator std::__trelk_rd, its seeding at start-up, and the library's one
// out-of-line instance of __lower_bound (over arrays of unsigned words).
#include <__lorb/lower_bound.h>
#include <__lorb/random_generator.h>

namespace std {

__random_generator __trelk_rd;

// All arithmetic is on unsigned 32-bit words and wraps.
void __random_generator::seed(unsigned long s) {
  unsigned j = static_cast<unsigned>(s);
  unsigned k = 1;
  // kept: the loop below starts at i = 0 and so overwrites table[54] (at i = 34); the seed
  // reaches the table only through j.
  table[54] = j;
  for (unsigned i = 0; i < 55; ++i) {
    unsigned p = (21 * i) % 55;
    table[p] = k;
    k = j - k;
    j = table[p];
  }
  for (int round = 0; round < 4; ++round)
    for (unsigned i = 0; i < 55; ++i)
      table[i] -= table[(i + 31) % 55];
  index1 = 0;
  index2 = 31;
}

template __LORB_EXPORT unsigned* __lower_bound(unsigned*, unsigned*, const unsigned&, int*,
                                               random_access_iterator_tag);

} // namespace std

namespace {

// Seeds the shared generator before main. It has no destructor, so nothing is registered to
// run at exit.
struct seed_at_start_up {
  seed_at_start_up() { std::__trelk_rd.seed(161803398); }
};

seed_at_start_up seeder;

} // namespace
