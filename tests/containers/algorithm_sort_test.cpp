// sort, partial_sort, partial_sort_copy and nth_element: results over every input shape and many
// sizes, and comparison counts within N log N, including against an input built to defeat
// median-of-three quicksort.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>

namespace {

const int sizes[] = {0, 1, 2, 3, 5, 16, 17, 33, 48, 49, 100, 129, 500, 1000, 3000};
const int size_count = sizeof sizes / sizeof sizes[0];
int values[3000], original[3000];

// Comparisons allowed for a sort of n elements: a small constant times n log2 n.
long sort_budget(int n, int factor) {
  return n < 2 ? 1 : long(factor) * n * (at::log2_floor(n) + 1);
}

} // namespace

TEST(sort_orders_every_shape_and_size_within_n_log_n_comparisons) {
  at::lcg gen(1);
  for (int s = 0; s < size_count; ++s)
    for (int shape = 0; shape < at::shape_count; ++shape) {
      int n = sizes[s];
      at::fill_shape(values, n, shape, gen);
      std::copy(values, values + n, original);
      long calls = 0;
      std::sort(values, values + n, at::counting_less(&calls));
      CHECK(at::is_sorted(values, values + n));
      CHECK(at::same_values(values, original, n, 4096));
      if (!CHECK(calls <= sort_budget(n, 2)))
        printf("  n %d shape %d: %ld comparisons\n", n, shape, calls);
    }
}

TEST(sort_without_a_comparator_uses_less_than) {
  int a[] = {3, 1, 2, 3, 0};
  std::sort(a, a + 5);
  int sorted[] = {0, 1, 2, 3, 3};
  CHECK(std::equal(a, a + 5, sorted));
  std::sort(a, a + 5, std::greater<int>());
  int descending[] = {3, 3, 2, 1, 0};
  CHECK(std::equal(a, a + 5, descending));
}

TEST(sort_falls_back_to_heapsort_against_a_median_of_three_adversary) {
  static int storage[3000];
  for (int n = 100; n <= 3000; n *= 3) {
    at::adversary judge(storage, n);
    for (int i = 0; i < n; ++i)
      values[i] = i;
    std::sort(values, values + n, at::adversary_less(&judge));
    bool ordered = true;
    for (int i = 1; i < n; ++i)
      ordered = ordered && storage[values[i - 1]] <= storage[values[i]];
    CHECK(ordered);
    if (!CHECK(judge.calls <= sort_budget(n, 4)))
      printf("  n %d: %ld comparisons\n", n, judge.calls);
  }
}

TEST(partial_sort_puts_the_smallest_in_order_in_front) {
  at::lcg gen(2);
  for (int s = 0; s < size_count; ++s)
    for (int shape = 0; shape < at::shape_count; ++shape) {
      int n = sizes[s];
      int middles[] = {0, 1, n / 3, n - 1, n};
      for (int k = 0; k < 5; ++k) {
        int m = middles[k] < 0 ? 0 : middles[k];
        at::fill_shape(values, n, shape, gen);
        std::copy(values, values + n, original);
        long calls = 0;
        std::partial_sort(values, values + m, values + n, at::counting_less(&calls));
        CHECK(at::is_sorted(values, values + m));
        CHECK(at::same_values(values, original, n, 4096));
        bool front_smallest = true;
        for (int i = m; i < n && m > 0; ++i)
          front_smallest = front_smallest && !(values[i] < values[m - 1]);
        CHECK(front_smallest);
        CHECK(calls <= 1 + 2L * n * (at::log2_floor(m + 1) + 2));
      }
    }
}

TEST(partial_sort_copy_fills_the_shorter_of_the_two_ranges) {
  int a[] = {5, 1, 4, 2, 3};
  int out[7] = {9, 9, 9, 9, 9, 9, 9};
  CHECK(std::partial_sort_copy(a, a + 5, out, out + 3) == out + 3);
  int smallest[] = {1, 2, 3, 9};
  CHECK(std::equal(out, out + 4, smallest));
  CHECK(std::partial_sort_copy(at::in(a), at::in(a + 5), out, out + 7) == out + 5);
  int all[] = {1, 2, 3, 4, 5, 9};
  CHECK(std::equal(out, out + 6, all));
  CHECK(std::partial_sort_copy(a, a + 5, out, out) == out);
  CHECK(std::partial_sort_copy(a, a, out, out + 7) == out);
  CHECK(std::partial_sort_copy(a, a + 5, out, out + 2, std::greater<int>()) == out + 2);
  CHECK(out[0] == 5 && out[1] == 4);
  int input_untouched[] = {5, 1, 4, 2, 3};
  CHECK(std::equal(a, a + 5, input_untouched));
}

TEST(partial_sort_copy_of_generated_inputs_matches_a_sorted_copy) {
  at::lcg gen(3);
  for (int round = 0; round < 200; ++round) {
    int n = gen.below(60), m = gen.below(60);
    int source[60], out[60], model[60];
    for (int i = 0; i < n; ++i)
      source[i] = model[i] = gen.below(20);
    std::sort(model, model + n);
    int* end = std::partial_sort_copy(source, source + n, out, out + m);
    int k = n < m ? n : m;
    CHECK_EQ(end - out, k);
    CHECK(std::equal(out, out + k, model));
  }
}

TEST(nth_element_places_the_nth_and_splits_around_it) {
  at::lcg gen(4);
  for (int s = 0; s < size_count; ++s)
    for (int shape = 0; shape < at::shape_count; ++shape) {
      int n = sizes[s];
      int nths[] = {0, n / 2, n - 1, n};
      for (int k = 0; k < 4; ++k) {
        int nth = nths[k] < 0 ? 0 : nths[k];
        at::fill_shape(values, n, shape, gen);
        std::copy(values, values + n, original);
        std::sort(original, original + n);
        long calls = 0;
        std::nth_element(values, values + nth, values + n, at::counting_less(&calls));
        CHECK(at::same_values(values, original, n, 4096) || n == 0);
        if (nth == n)
          continue;
        CHECK_EQ(values[nth], original[nth]);
        bool split = true;
        for (int i = 0; i < nth; ++i)
          split = split && !(values[nth] < values[i]);
        for (int i = nth + 1; i < n; ++i)
          split = split && !(values[i] < values[nth]);
        CHECK(split);
        if (!CHECK(calls <= 8L * n + 8))
          printf("  n %d shape %d nth %d: %ld comparisons\n", n, shape, nth, calls);
      }
    }
}

TEST(nth_element_stays_within_n_log_n_against_the_adversary) {
  static int storage[3000];
  for (int n = 100; n <= 3000; n *= 3) {
    at::adversary judge(storage, n);
    for (int i = 0; i < n; ++i)
      values[i] = i;
    std::nth_element(values, values + n / 2, values + n, at::adversary_less(&judge));
    bool split = true;
    for (int i = 0; i < n; ++i)
      split = split && (i < n / 2 ? storage[values[i]] <= storage[values[n / 2]]
                                  : storage[values[i]] >= storage[values[n / 2]]);
    CHECK(split);
    CHECK(judge.calls <= sort_budget(n, 3));
  }
}

TEST(sorting_records_by_key_keeps_every_record) {
  at::record r[200];
  at::lcg gen(5);
  for (int i = 0; i < 200; ++i)
    r[i] = at::make_record(gen.below(10), i);
  std::sort(r, r + 200);
  bool ordered = true;
  int id_sum = 0;
  for (int i = 0; i < 200; ++i) {
    ordered = ordered && (i == 0 || !(r[i] < r[i - 1]));
    id_sum += r[i].id;
  }
  CHECK(ordered);
  CHECK_EQ(id_sum, 199 * 200 / 2);
}
