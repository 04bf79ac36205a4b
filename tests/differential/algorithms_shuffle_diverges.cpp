// random_shuffle without a generator of the caller's: the library draws from its own generator,
// seeded the same at every start, where GNU uses rand(), so the permutations differ.
#include "algorithms_support.h"
#include <algorithm>

int main() {
  int a[20];
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 20; ++i)
      a[i] = i;
    std::random_shuffle(a, a + 20);
    print("shuffled", a, a + 20);
  }
  int one[1] = {5};
  std::random_shuffle(one, one);
  std::random_shuffle(one, one + 1);
  print("one", one, one + 1);
  return 0;
}
