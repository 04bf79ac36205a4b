// The algorithms that rewrite ranges: copy, swap_ranges, transform, replace, fill, generate,
// remove, unique, reverse and rotate with their copying forms, over empty and one-element ranges
// and through forward, bidirectional and output-only iterators.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>

namespace {

bool is_odd(int x) { return x % 2 != 0; }
int twice(int x) { return 2 * x; }
bool close_to(int a, int b) { return b - a <= 1 && a - b <= 1; }

struct counter {
  int next;
  explicit counter(int start) : next(start) {}
  int operator()() { return next++; }
};

template <class T, int N> bool holds(const T* a, const T (&expected)[N]) {
  return std::equal(expected, expected + N, a);
}

} // namespace

TEST(copy_and_copy_backward_handle_overlap_in_their_own_direction) {
  int a[] = {1, 2, 3, 4, 5, 0, 0};
  CHECK(std::copy(a + 1, a + 5, a) == a + 4);
  int after_copy[] = {2, 3, 4, 5, 5, 0, 0};
  CHECK(holds(a, after_copy));
  CHECK(std::copy_backward(a, a + 5, a + 7) == a + 2);
  int after_backward[] = {2, 3, 2, 3, 4, 5, 5};
  CHECK(holds(a, after_backward));
  CHECK(std::copy(at::in(a), at::in(a), at::write_only<int>(a)).at == a);
}

TEST(swap_ranges_exchanges_and_returns_the_end_of_the_second_range) {
  int a[] = {1, 2, 3};
  int b[] = {7, 8, 9, 10};
  CHECK(std::swap_ranges(a, a + 3, b) == b + 3);
  int new_a[] = {7, 8, 9};
  int new_b[] = {1, 2, 3, 10};
  CHECK(holds(a, new_a));
  CHECK(holds(b, new_b));
  CHECK(std::swap_ranges(a, a, b) == b);
}

TEST(iter_swap_and_swap_exchange_values) {
  int a[] = {1, 2};
  std::iter_swap(a, a + 1);
  CHECK(a[0] == 2 && a[1] == 1);
  std::swap(a[0], a[1]);
  CHECK(a[0] == 1 && a[1] == 2);
}

TEST(transform_applies_unary_and_binary_operations_even_in_place) {
  int a[] = {1, 2, 3};
  CHECK(std::transform(a, a + 3, a, twice) == a + 3);
  int doubled[] = {2, 4, 6};
  CHECK(holds(a, doubled));
  int b[] = {10, 20, 30};
  int out[3];
  CHECK(std::transform(a, a + 3, b, at::write_only<int>(out), std::plus<int>()).at == out + 3);
  int sums[] = {12, 24, 36};
  CHECK(holds(out, sums));
}

TEST(replace_forms_rewrite_matching_elements) {
  int a[] = {1, 2, 1, 3};
  std::replace(a, a + 4, 1, 9);
  int replaced[] = {9, 2, 9, 3};
  CHECK(holds(a, replaced));
  std::replace_if(a, a + 4, is_odd, 0);
  int evens[] = {0, 2, 0, 0};
  CHECK(holds(a, evens));
  int src[] = {5, 6, 5};
  int out[3];
  CHECK(std::replace_copy(at::in(src), at::in(src + 3), at::write_only<int>(out), 5, 4).at ==
        out + 3);
  int copied[] = {4, 6, 4};
  CHECK(holds(out, copied));
  CHECK(std::replace_copy_if(src, src + 3, out, is_odd, -1) == out + 3);
  int copied_if[] = {-1, 6, -1};
  CHECK(holds(out, copied_if));
}

TEST(fill_and_generate_forms_write_every_element) {
  int a[5] = {0, 0, 0, 0, 0};
  std::fill(a + 1, a + 4, 7);
  int filled[] = {0, 7, 7, 7, 0};
  CHECK(holds(a, filled));
  std::fill_n(a, 2, 3);
  std::fill_n(a, 0, 9);
  std::fill_n(a, -1, 9);
  int filled_n[] = {3, 3, 7, 7, 0};
  CHECK(holds(a, filled_n));
  std::generate(a, a + 5, counter(10));
  int generated[] = {10, 11, 12, 13, 14};
  CHECK(holds(a, generated));
  std::generate_n(at::write_only<int>(a + 1), 3, counter(0));
  int generated_n[] = {10, 0, 1, 2, 14};
  CHECK(holds(a, generated_n));
}

TEST(remove_keeps_the_other_elements_in_order_and_returns_the_new_end) {
  int a[] = {1, 2, 1, 3, 1, 4};
  CHECK(std::remove(a, a + 6, 1) == a + 3);
  int kept[] = {2, 3, 4};
  CHECK(holds(a, kept));
  int b[] = {1, 1};
  CHECK(std::remove(b, b + 2, 1) == b);
  CHECK(std::remove(b, b, 1) == b);
  int c[] = {5, 6};
  CHECK(std::remove(at::fw(c), at::fw(c + 2), 1) == at::fw(c + 2));
  int d[] = {1, 2, 3, 4, 5};
  CHECK(std::remove_if(d, d + 5, is_odd) == d + 2);
  CHECK(d[0] == 2 && d[1] == 4);
}

TEST(remove_copy_forms_skip_matching_elements) {
  int a[] = {1, 2, 1, 3};
  int out[4] = {0, 0, 0, 0};
  CHECK(std::remove_copy(at::in(a), at::in(a + 4), at::write_only<int>(out), 1).at == out + 2);
  CHECK(out[0] == 2 && out[1] == 3 && out[2] == 0);
  CHECK(std::remove_copy_if(a, a + 4, out, is_odd) == out + 1);
  CHECK(out[0] == 2);
}

TEST(unique_keeps_the_first_of_each_run) {
  int a[] = {1, 1, 2, 2, 2, 3, 1, 1};
  CHECK(std::unique(a, a + 8) == a + 4);
  int kept[] = {1, 2, 3, 1};
  CHECK(holds(a, kept));
  int one[] = {4};
  CHECK(std::unique(one, one + 1) == one + 1);
  CHECK(std::unique(one, one) == one);
  int same[] = {2, 2, 2};
  CHECK(std::unique(at::fw(same), at::fw(same + 3)) == at::fw(same + 1));
}

TEST(unique_with_a_predicate_compares_with_the_last_element_kept) {
  int a[] = {1, 2, 3, 4, 6, 7};
  CHECK(std::unique(a, a + 6, close_to) == a + 3);
  int kept[] = {1, 3, 6};
  CHECK(holds(a, kept));
}

TEST(unique_copy_from_input_and_forward_sources) {
  int a[] = {1, 2, 3, 4, 6, 7, 7};
  int out[7];
  CHECK(std::unique_copy(at::in(a), at::in(a + 7), at::write_only<int>(out), close_to).at ==
        out + 3);
  int kept[] = {1, 3, 6};
  CHECK(holds(out, kept));
  CHECK(std::unique_copy(at::fw(a), at::fw(a + 7), at::write_only<int>(out), close_to).at ==
        out + 3);
  CHECK(holds(out, kept));
  CHECK(std::unique_copy(a, a + 7, out) == out + 6);
  int distinct[] = {1, 2, 3, 4, 6, 7};
  CHECK(holds(out, distinct));
  CHECK(std::unique_copy(at::in(a), at::in(a), out) == out);
  CHECK(std::unique_copy(a + 6, a + 7, out) == out + 1);
}

TEST(reverse_handles_empty_odd_and_even_lengths_in_every_category) {
  for (int n = 0; n <= 6; ++n) {
    int a[6], b[6], c[6];
    for (int i = 0; i < n; ++i)
      a[i] = b[i] = c[i] = i;
    std::reverse(a, a + n);
    std::reverse(at::bi(b), at::bi(b + n));
    bool mirrored = true;
    for (int i = 0; i < n; ++i)
      mirrored = mirrored && a[i] == n - 1 - i && b[i] == n - 1 - i;
    CHECK(mirrored);
    int out[6];
    CHECK(std::reverse_copy(at::bi(c), at::bi(c + n), at::write_only<int>(out)).at == out + n);
    CHECK(std::equal(a, a + n, out));
  }
}

TEST(rotate_puts_middle_first_for_every_split_and_category) {
  for (int n = 0; n <= 9; ++n)
    for (int m = 0; m <= n; ++m) {
      int a[9], b[9], c[9];
      for (int i = 0; i < n; ++i)
        a[i] = b[i] = c[i] = i;
      std::rotate(a, a + m, a + n);
      std::rotate(at::bi(b), at::bi(b + m), at::bi(b + n));
      std::rotate(at::fw(c), at::fw(c + m), at::fw(c + n));
      bool rotated = true;
      for (int i = 0; i < n; ++i) {
        int want = (i + m) % n;
        rotated = rotated && a[i] == want && b[i] == want && c[i] == want;
      }
      CHECK(rotated);
    }
}

TEST(rotate_reports_where_the_first_element_went) {
  for (int n = 0; n <= 9; ++n)
    for (int m = 0; m <= n; ++m) {
      int a[9], b[9], c[9];
      for (int i = 0; i < n; ++i)
        a[i] = b[i] = c[i] = i;
      int want = n - m;
      CHECK_EQ(__vel::rotate_range(a, a + m, a + n, std::random_access_iterator_tag()) - a, want);
      CHECK_EQ(__vel::rotate_range(at::bi(b), at::bi(b + m), at::bi(b + n),
                                   std::bidirectional_iterator_tag())
                       .at -
                   b,
               want);
      CHECK_EQ(
          __vel::rotate_range(at::fw(c), at::fw(c + m), at::fw(c + n), std::forward_iterator_tag())
                  .at -
              c,
          want);
    }
}

TEST(rotate_copy_writes_the_rotated_sequence) {
  int a[] = {1, 2, 3, 4, 5};
  int out[5];
  CHECK(std::rotate_copy(at::fw(a), at::fw(a + 2), at::fw(a + 5), at::write_only<int>(out)).at ==
        out + 5);
  int rotated[] = {3, 4, 5, 1, 2};
  CHECK(holds(out, rotated));
  CHECK(std::rotate_copy(a, a, a, out) == out);
}
