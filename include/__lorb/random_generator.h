// std::__random_generator and the process-wide std::__trelk_rd that random_shuffle draws from
// when the caller gives no generator (containers/random_generator.cpp seeds it at start-up).
#ifndef __LORB_RANDOM_GENERATOR_H
#define __LORB_RANDOM_GENERATOR_H

#include <__lorb/config.h>

namespace std {

// A subtractive generator over 55 words with lags 55 and 24.
class __LORB_EXPORT __random_generator {
public:
  void seed(unsigned long s);

  // A number from 0 to limit - 1; limit must not be 0.
  unsigned long operator()(unsigned long limit) {
    index1 = index1 == 54 ? 0 : index1 + 1;
    index2 = index2 == 54 ? 0 : index2 + 1;
    table[index1] -= table[index2];
    return table[index1] % limit;
  }

  unsigned table[55];
  unsigned index1; // 0 after seeding
  unsigned index2; // 31 after seeding
};

extern __LORB_EXPORT __random_generator __trelk_rd;

} // namespace std

#endif
