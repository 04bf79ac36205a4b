// min, max, min_element, max_element, next_permutation and prev_permutation, and random_shuffle
// with the library's generator (repeatable after seeding) and with the caller's.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>

namespace {

// Records the limits it is asked for and answers from a fixed script.
struct scripted_generator {
  long asked[64];
  int calls;
  scripted_generator() : calls(0) {}
  ptrdiff_t operator()(ptrdiff_t limit) {
    asked[calls++] = limit;
    return (limit * 7 + 3) % limit;
  }
};

int factorial(int n) { return n <= 1 ? 1 : n * factorial(n - 1); }

bool is_permutation_of_indices(const int* a, int n) {
  int seen[512] = {0};
  for (int i = 0; i < n; ++i) {
    if (a[i] < 0 || a[i] >= n || seen[a[i]])
      return false;
    seen[a[i]] = 1;
  }
  return true;
}

} // namespace

TEST(min_and_max_return_the_first_argument_when_equal) {
  at::record a = at::make_record(1, 0), b = at::make_record(1, 1);
  CHECK_EQ(std::min(a, b).id, 0);
  CHECK_EQ(std::max(a, b).id, 0);
  CHECK_EQ(std::min(3, 2), 2);
  CHECK_EQ(std::max(3, 2), 3);
  CHECK_EQ(std::min(3, 2, std::greater<int>()), 3);
  CHECK_EQ(std::max(3, 2, std::greater<int>()), 2);
}

TEST(min_and_max_element_return_the_first_of_the_extremes) {
  at::record r[] = {at::make_record(2, 0), at::make_record(1, 1), at::make_record(5, 2),
                    at::make_record(1, 3), at::make_record(5, 4)};
  CHECK(std::min_element(r, r + 5) == r + 1);
  CHECK(std::max_element(r, r + 5) == r + 2);
  CHECK(std::min_element(r, r) == r);
  CHECK(std::max_element(r, r) == r);
  CHECK(std::min_element(r + 2, r + 3) == r + 2);
  int a[] = {4, 9, 1, 9};
  long calls = 0;
  CHECK(std::max_element(at::fw(a), at::fw(a + 4), at::counting_less(&calls)) == at::fw(a + 1));
  CHECK_EQ(calls, 3);
  CHECK(std::min_element(a, a + 4, std::greater<int>()) == a + 1);
}

TEST(next_permutation_walks_every_arrangement_in_order_then_wraps) {
  for (int n = 0; n <= 6; ++n) {
    int a[6], previous[6];
    for (int i = 0; i < n; ++i)
      a[i] = i;
    int count = 1;
    for (;;) {
      std::copy(a, a + n, previous);
      if (!std::next_permutation(at::bi(a), at::bi(a + n)))
        break;
      CHECK(std::lexicographical_compare(previous, previous + n, a, a + n));
      ++count;
    }
    CHECK_EQ(count, factorial(n));
    CHECK(at::is_sorted(a, a + n));
  }
}

TEST(next_permutation_of_repeated_values_counts_distinct_arrangements) {
  int a[] = {1, 1, 2, 2, 2};
  int count = 1;
  while (std::next_permutation(a, a + 5))
    ++count;
  CHECK_EQ(count, 10);
  int wrapped[] = {1, 1, 2, 2, 2};
  CHECK(std::equal(a, a + 5, wrapped));
}

TEST(prev_permutation_walks_backwards_and_wraps_to_the_last) {
  int a[] = {3, 2, 1, 0};
  int count = 1;
  int previous[4];
  for (;;) {
    std::copy(a, a + 4, previous);
    if (!std::prev_permutation(a, a + 4))
      break;
    CHECK(std::lexicographical_compare(a, a + 4, previous, previous + 4));
    ++count;
  }
  CHECK_EQ(count, 24);
  int last[] = {3, 2, 1, 0};
  CHECK(std::equal(a, a + 4, last));
  int b[] = {0, 1, 2};
  CHECK(std::prev_permutation(b, b + 3, std::greater<int>()));
  int next_in_reverse_order[] = {0, 2, 1};
  CHECK(std::equal(b, b + 3, next_in_reverse_order));
  CHECK(std::next_permutation(b, b + 3, std::greater<int>()));
  int back[] = {0, 1, 2};
  CHECK(std::equal(b, b + 3, back));
}

ISOLATED_TEST(random_shuffle_repeats_its_permutation_after_reseeding) {
  int first[100], second[100], third[100];
  for (int i = 0; i < 100; ++i)
    first[i] = second[i] = third[i] = i;
  std::__trelk_rd.seed(161803398);
  std::random_shuffle(first, first + 100);
  std::random_shuffle(third, third + 100);
  std::__trelk_rd.seed(161803398);
  std::random_shuffle(second, second + 100);
  CHECK(std::equal(first, first + 100, second));
  CHECK(!std::equal(first, first + 100, third));
  CHECK(is_permutation_of_indices(first, 100));
  CHECK(is_permutation_of_indices(third, 100));
  int moved = 0;
  for (int i = 0; i < 100; ++i)
    moved += first[i] != i;
  CHECK(moved > 50);
  std::__trelk_rd.seed(161803398);
  std::random_shuffle(second, second);
  std::random_shuffle(second, second + 1);
  int again[100];
  for (int i = 0; i < 100; ++i)
    again[i] = i;
  std::random_shuffle(again, again + 100);
  CHECK(std::equal(again, again + 100, first));
}

ISOLATED_TEST(random_shuffle_draws_each_position_once_from_the_librarys_generator) {
  // The shuffle of n elements takes n - 1 numbers, for limits 2, 3, ..., n.
  std::__trelk_rd.seed(7);
  int a[10];
  for (int i = 0; i < 10; ++i)
    a[i] = i;
  std::random_shuffle(a, a + 10);
  std::__random_generator copy = std::__trelk_rd;
  std::__trelk_rd.seed(7);
  for (unsigned long limit = 2; limit <= 10; ++limit)
    std::__trelk_rd(limit);
  CHECK(std::equal(copy.table, copy.table + 55, std::__trelk_rd.table));
  CHECK_EQ(copy.index1, std::__trelk_rd.index1);
}

TEST(random_shuffle_with_a_generator_asks_for_each_limit_in_turn) {
  int a[8];
  for (int i = 0; i < 8; ++i)
    a[i] = i;
  scripted_generator gen;
  std::random_shuffle(a, a + 8, gen);
  CHECK_EQ(gen.calls, 7);
  for (int i = 0; i < gen.calls; ++i)
    CHECK_EQ(gen.asked[i], i + 2);
  int model[8];
  for (int i = 0; i < 8; ++i)
    model[i] = i;
  for (int i = 1; i < 8; ++i)
    std::swap(model[i], model[((i + 1) * 7 + 3) % (i + 1)]);
  CHECK(std::equal(a, a + 8, model));
  scripted_generator unused;
  std::random_shuffle(a, a, unused);
  std::random_shuffle(a, a + 1, unused);
  CHECK_EQ(unused.calls, 0);
}
