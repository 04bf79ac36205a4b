// The algorithms that only look, over generated ranges of many sizes and duplicate densities:
// positions found, counts, mismatches, searches, and the extremes.
#include "algorithms_support.h"
#include <algorithm>
#include <functional>

struct sum_digits {
  int total;
  sum_digits() : total(0) {}
  void operator()(int x) { total = total * 3 + x; }
};

static bool is_odd(int x) { return x % 2 != 0; }

int main() {
  generator gen(2024);
  int a[257], b[257], pattern[4];
  for (int s = 0; s < size_count; ++s)
    for (int v = 0; v < span_count; ++v) {
      int n = sizes[s], span = spans[v];
      fill(a, n, span, gen);
      std::copy(a, a + n, b);
      if (n > 0)
        b[gen.below(n)] += 1;
      int m = gen.below(4);
      fill(pattern, m, span, gen);
      int x = gen.below(span);
      printf("n %d span %d m %d x %d\n", n, span, m, x);
      printf(" for_each %d", std::for_each(a, a + n, sum_digits()).total);
      printf(" find %d", int(std::find(a, a + n, x) - a));
      printf(" find_if %d", int(std::find_if(a, a + n, is_odd) - a));
      printf(" find_end %d", int(std::find_end(a, a + n, pattern, pattern + m) - a));
      printf(" find_end_pred %d",
             int(std::find_end(a, a + n, pattern, pattern + m, std::less_equal<int>()) - a));
      printf(" find_first_of %d", int(std::find_first_of(a, a + n, pattern, pattern + m) - a));
      printf(" find_first_of_pred %d",
             int(std::find_first_of(a, a + n, pattern, pattern + m, std::greater<int>()) - a));
      printf(" adjacent_find %d", int(std::adjacent_find(a, a + n) - a));
      printf(" adjacent_find_pred %d", int(std::adjacent_find(a, a + n, std::greater<int>()) - a));
      printf(" count %d", int(std::count(a, a + n, x)));
      printf(" count_if %d\n", int(std::count_if(a, a + n, is_odd)));
      std::pair<int*, int*> mm = std::mismatch(a, a + n, b);
      printf(" mismatch %d %d", int(mm.first - a), int(mm.second - b));
      mm = std::mismatch(a, a + n, b, std::less_equal<int>());
      printf(" mismatch_pred %d %d", int(mm.first - a), int(mm.second - b));
      printf(" equal %d %d", std::equal(a, a + n, b), std::equal(a, a + n, b, std::less_equal<int>()));
      printf(" search %d", int(std::search(a, a + n, pattern, pattern + m) - a));
      printf(" search_pred %d",
             int(std::search(a, a + n, pattern, pattern + m, std::greater_equal<int>()) - a));
      printf(" search_n %d", int(std::search_n(a, a + n, m, x) - a));
      printf(" search_n_pred %d", int(std::search_n(a, a + n, m + 1, x, std::greater<int>()) - a));
      printf(" lexicographical %d %d %d", std::lexicographical_compare(a, a + n, b, b + n),
             std::lexicographical_compare(b, b + n, a, a + n),
             std::lexicographical_compare(a, a + n, pattern, pattern + m, std::greater<int>()));
      printf(" min_element %d max_element %d", int(std::min_element(a, a + n) - a),
             int(std::max_element(a, a + n) - a));
      printf(" min_element_pred %d max_element_pred %d\n",
             int(std::min_element(a, a + n, std::greater<int>()) - a),
             int(std::max_element(a, a + n, std::greater<int>()) - a));
    }
  return 0;
}
