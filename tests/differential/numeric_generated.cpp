// <numeric> over generated ranges: accumulate, inner_product, partial_sum and
// adjacent_difference with the built-in operators and with others, in place as well.
#include "algorithms_support.h"
#include <functional>
#include <numeric>

int main() {
  generator gen(99);
  int a[257], b[257], out[257];
  for (int s = 0; s < size_count; ++s)
    for (int v = 0; v < span_count; ++v) {
      int n = sizes[s];
      fill(a, n, spans[v], gen);
      fill(b, n, spans[v], gen);
      printf("n %d span %d\n", n, spans[v]);
      printf(" accumulate %d %d %.3f\n", std::accumulate(a, a + n, 5),
             std::accumulate(a, a + n, 1, std::multiplies<int>()),
             std::accumulate(a, a + n, 0.5));
      printf(" inner_product %d %d\n", std::inner_product(a, a + n, b, 0),
             std::inner_product(a, a + n, b, 0, std::plus<int>(), std::minus<int>()));
      print(" partial_sum", out, std::partial_sum(a, a + n, out));
      print(" partial_sum_minus", out, std::partial_sum(a, a + n, out, std::minus<int>()));
      print(" adjacent_difference", out, std::adjacent_difference(a, a + n, out));
      print(" adjacent_difference_plus", out,
            std::adjacent_difference(a, a + n, out, std::plus<int>()));
      std::partial_sum(b, b + n, b);
      std::adjacent_difference(b, b + n, b);
      print(" round trip in place", b, b + n);
    }
  return 0;
}
