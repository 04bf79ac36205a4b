// The heap algorithms: make_heap, push_heap, pop_heap and sort_heap keep the heap property, with
// < and with a comparator, within their comparison limits (3N, log N, 2 log N, N log N).
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>

namespace {

template <class Compare> bool is_heap(const int* a, int n, Compare comp) {
  for (int child = 1; child < n; ++child)
    if (comp(a[(child - 1) / 2], a[child]))
      return false;
  return true;
}

int values[2000], original[2000];

} // namespace

TEST(heaps_of_no_element_and_of_one_element_are_left_alone) {
  int a[] = {4};
  long calls = 0;
  std::make_heap(a, a, at::counting_less(&calls));
  std::make_heap(a, a + 1, at::counting_less(&calls));
  std::push_heap(a, a + 1, at::counting_less(&calls));
  std::pop_heap(a, a + 1, at::counting_less(&calls));
  std::sort_heap(a, a + 1, at::counting_less(&calls));
  std::sort_heap(a, a, at::counting_less(&calls));
  CHECK_EQ(calls, 0);
  CHECK_EQ(a[0], 4);
}

TEST(make_heap_builds_a_heap_within_3n_comparisons) {
  at::lcg gen(6);
  for (int n = 0; n <= 2000; n = n < 20 ? n + 1 : n * 2)
    for (int shape = 0; shape < at::shape_count; ++shape) {
      at::fill_shape(values, n, shape, gen);
      std::copy(values, values + n, original);
      long calls = 0;
      std::make_heap(values, values + n, at::counting_less(&calls));
      CHECK(is_heap(values, n, std::less<int>()));
      CHECK(at::same_values(values, original, n, 4096));
      CHECK(calls <= 3L * n);
    }
}

TEST(push_heap_adds_the_last_element_within_log_n_comparisons) {
  at::lcg gen(7);
  for (int shape = 0; shape < at::shape_count; ++shape) {
    at::fill_shape(values, 1500, shape, gen);
    for (int n = 1; n <= 1500; ++n) {
      long calls = 0;
      std::push_heap(values, values + n, at::counting_less(&calls));
      CHECK(calls <= at::log2_floor(n));
    }
    CHECK(is_heap(values, 1500, std::less<int>()));
  }
}

TEST(pop_heap_moves_the_greatest_to_the_end_within_2_log_n_comparisons) {
  at::lcg gen(8);
  for (int shape = 0; shape < at::shape_count; ++shape) {
    at::fill_shape(values, 1500, shape, gen);
    std::make_heap(values, values + 1500);
    for (int n = 1500; n >= 1; --n) {
      int greatest = values[0];
      long calls = 0;
      std::pop_heap(values, values + n, at::counting_less(&calls));
      CHECK(calls <= 2L * at::log2_floor(n));
      CHECK_EQ(values[n - 1], greatest);
    }
    CHECK(at::is_sorted(values, values + 1500));
  }
}

TEST(sort_heap_sorts_within_n_log_n_comparisons) {
  at::lcg gen(9);
  for (int n = 2; n <= 2000; n *= 3)
    for (int shape = 0; shape < at::shape_count; ++shape) {
      at::fill_shape(values, n, shape, gen);
      std::make_heap(values, values + n);
      long calls = 0;
      std::sort_heap(values, values + n, at::counting_less(&calls));
      CHECK(at::is_sorted(values, values + n));
      CHECK(calls <= long(n) * (at::log2_floor(n) + 1));
    }
}

TEST(the_comparator_forms_build_a_heap_of_the_least) {
  int a[] = {5, 3, 8, 1, 9, 2};
  std::make_heap(a, a + 6, std::greater<int>());
  CHECK_EQ(a[0], 1);
  CHECK(is_heap(a, 6, std::greater<int>()));
  std::pop_heap(a, a + 6, std::greater<int>());
  CHECK_EQ(a[5], 1);
  CHECK(is_heap(a, 5, std::greater<int>()));
  a[5] = 0;
  std::push_heap(a, a + 6, std::greater<int>());
  CHECK_EQ(a[0], 0);
  std::sort_heap(a, a + 6, std::greater<int>());
  int descending[] = {9, 8, 5, 3, 2, 0};
  CHECK(std::equal(a, a + 6, descending));
}

TEST(heap_operations_through_a_random_sequence_match_a_sorted_model) {
  at::lcg gen(10);
  int heap[300], model[300];
  int n = 0;
  for (int step = 0; step < 3000; ++step) {
    if (n < 300 && (n == 0 || gen.below(3) != 0)) {
      heap[n] = model[n] = gen.below(50);
      ++n;
      std::push_heap(heap, heap + n);
    } else {
      std::pop_heap(heap, heap + n);
      int* greatest = std::max_element(model, model + n);
      CHECK_EQ(heap[n - 1], *greatest);
      *greatest = model[n - 1];
      --n;
    }
    CHECK(is_heap(heap, n, std::less<int>()));
  }
}
