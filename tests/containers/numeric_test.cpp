// <numeric>: accumulate, inner_product, partial_sum and adjacent_difference with the built-in
// operators and with the caller's, over empty ranges, input iterators and outputs that alias
// the input.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>
#include <numeric>

namespace {

// Remembers the order of the operands it was given.
int joined(int a, int b) { return a * 10 + b; }
int second_minus_twice_first(int a, int b) { return a - 2 * b; }

} // namespace

TEST(accumulate_folds_from_the_left_starting_with_init) {
  int a[] = {1, 2, 3};
  CHECK_EQ(std::accumulate(a, a + 3, 10), 16);
  CHECK_EQ(std::accumulate(a, a, 10), 10);
  CHECK_EQ(std::accumulate(at::in(a), at::in(a + 3), 0, joined), 123);
  double halves[] = {0.5, 0.25};
  CHECK_EQ(std::accumulate(halves, halves + 2, 1.0), 1.75);
  CHECK_EQ(std::accumulate(halves, halves + 2, 1), 1); // kept: the sum is held in init's type
}

TEST(inner_product_sums_the_products_pairwise) {
  int a[] = {1, 2, 3};
  int b[] = {4, 5, 6};
  CHECK_EQ(std::inner_product(a, a + 3, b, 0), 32);
  CHECK_EQ(std::inner_product(a, a, b, 7), 7);
  CHECK_EQ(
      std::inner_product(at::in(a), at::in(a + 3), b, 1, std::multiplies<int>(), std::plus<int>()),
      5 * 7 * 9);
  CHECK_EQ(std::inner_product(a, a + 2, b, 0, joined, std::minus<int>()), -3 * 10 - 3);
}

TEST(partial_sum_writes_running_totals_even_in_place) {
  int a[] = {1, 2, 3, 4};
  int out[4];
  CHECK(std::partial_sum(a, a + 4, out) == out + 4);
  int totals[] = {1, 3, 6, 10};
  CHECK(std::equal(out, out + 4, totals));
  CHECK(std::partial_sum(a, a + 4, a) == a + 4);
  CHECK(std::equal(a, a + 4, totals));
  CHECK(std::partial_sum(a, a, out) == out);
  int b[] = {1, 2, 3};
  CHECK(std::partial_sum(at::in(b), at::in(b + 3), at::write_only<int>(out), joined).at == out + 3);
  int joins[] = {1, 12, 123};
  CHECK(std::equal(out, out + 3, joins));
}

TEST(adjacent_difference_writes_each_element_minus_the_one_before_even_in_place) {
  int a[] = {1, 4, 9, 16};
  int out[4];
  CHECK(std::adjacent_difference(a, a + 4, out) == out + 4);
  int steps[] = {1, 3, 5, 7};
  CHECK(std::equal(out, out + 4, steps));
  CHECK(std::adjacent_difference(a, a + 4, a) == a + 4);
  CHECK(std::equal(a, a + 4, steps));
  CHECK(std::adjacent_difference(a, a, out) == out);
  int b[] = {5, 3, 1};
  CHECK(std::adjacent_difference(at::in(b), at::in(b + 3), at::write_only<int>(out),
                                 second_minus_twice_first)
            .at == out + 3);
  int applied[] = {5, 3 - 10, 1 - 6};
  CHECK(std::equal(out, out + 3, applied));
  CHECK(std::adjacent_difference(b, b + 1, out) == out + 1);
  CHECK_EQ(out[0], 5);
}
