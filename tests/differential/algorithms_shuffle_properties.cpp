// random_shuffle without a generator of the caller's: which permutation comes out is the
// library's own business (see algorithms_shuffle_diverges), so only its properties are printed:
// every element is still there once, and the shuffles move elements.
#include "algorithms_support.h"
#include <algorithm>

int main() {
  for (int n = 0; n <= 300; n = n < 4 ? n + 1 : n * 3) {
    int a[300], seen[300] = {0};
    for (int i = 0; i < n; ++i)
      a[i] = i;
    std::random_shuffle(a, a + n);
    bool permutation = true;
    int moved = 0;
    for (int i = 0; i < n; ++i) {
      permutation = permutation && a[i] >= 0 && a[i] < n && !seen[a[i]];
      if (a[i] >= 0 && a[i] < n)
        seen[a[i]] = 1;
      moved += a[i] != i;
    }
    printf("n %d permutation %d most moved %d\n", n, permutation, n < 10 || moved > n / 2);
  }
  return 0;
}
