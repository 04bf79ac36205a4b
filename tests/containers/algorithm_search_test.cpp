// The binary searches (lower_bound, upper_bound, equal_range, binary_search) within their
// comparison limits over random-access and forward iterators, and the set operations on sorted
// ranges, repeated elements included, checked against counting models.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>

namespace {

// Compares a record with a bare key, in both orders.
struct key_less {
  bool operator()(const at::record& r, int key) const { return r.key < key; }
  bool operator()(int key, const at::record& r) const { return key < r.key; }
};

int sorted_values[1000];

} // namespace

TEST(binary_searches_find_the_bounds_within_log_n_plus_one_comparisons) {
  at::lcg gen(19);
  for (int n = 0; n <= 1000; n = n < 20 ? n + 1 : n * 3 / 2) {
    for (int i = 0; i < n; ++i)
      sorted_values[i] = gen.below(n / 3 + 2);
    std::sort(sorted_values, sorted_values + n);
    const int* a = sorted_values;
    long limit = n == 0 ? 1 : at::log2_floor(n) + 1;
    for (int v = -1; v <= n / 3 + 2; ++v) {
      int below = 0, not_above = 0;
      for (int i = 0; i < n; ++i) {
        below += a[i] < v;
        not_above += a[i] <= v;
      }
      long calls = 0;
      CHECK_EQ(std::lower_bound(a, a + n, v, at::counting_less(&calls)) - a, below);
      CHECK(calls <= limit);
      calls = 0;
      CHECK_EQ(std::upper_bound(a, a + n, v, at::counting_less(&calls)) - a, not_above);
      CHECK(calls <= limit);
      calls = 0;
      std::pair<const int*, const int*> range =
          std::equal_range(a, a + n, v, at::counting_less(&calls));
      CHECK(range.first - a == below && range.second - a == not_above);
      CHECK(calls <= 2 * limit);
      calls = 0;
      CHECK_EQ(std::binary_search(a, a + n, v, at::counting_less(&calls)), below != not_above);
      CHECK(calls <= limit + 1);
      CHECK_EQ(std::lower_bound(a, a + n, v) - a, below);
      CHECK_EQ(std::upper_bound(a, a + n, v) - a, not_above);
      CHECK(std::equal_range(a, a + n, v).second - a == not_above);
      CHECK_EQ(std::binary_search(a, a + n, v), below != not_above);
    }
  }
}

TEST(binary_searches_over_forward_iterators) {
  int a[] = {1, 3, 3, 3, 5, 8};
  long calls = 0;
  CHECK(std::lower_bound(at::fw(a), at::fw(a + 6), 3, at::counting_less(&calls)).at == a + 1);
  CHECK(calls <= 3);
  CHECK(std::lower_bound(at::fw(a), at::fw(a + 6), 4).at == a + 4);
  CHECK(std::upper_bound(at::fw(a), at::fw(a + 6), 3).at == a + 4);
  std::pair<at::forward<int>::type, at::forward<int>::type> r =
      std::equal_range(at::fw(a), at::fw(a + 6), 3);
  CHECK(r.first.at == a + 1 && r.second.at == a + 4);
  CHECK(std::binary_search(at::fw(a), at::fw(a + 6), 8));
  CHECK(!std::binary_search(at::fw(a), at::fw(a + 6), 9));
}

TEST(lower_bound_of_unsigned_words_goes_through_the_librarys_instance) {
  unsigned a[] = {2, 4, 4, 9};
  CHECK(std::lower_bound(a, a + 4, 4u) == a + 1);
  CHECK(std::lower_bound(a, a + 4, 10u) == a + 4);
  CHECK(std::lower_bound(a, a, 10u) == a);
}

TEST(binary_searches_compare_elements_with_a_value_of_another_type) {
  at::record r[] = {at::make_record(1, 0), at::make_record(4, 1), at::make_record(4, 2),
                    at::make_record(6, 3)};
  CHECK(std::lower_bound(r, r + 4, 4, key_less()) == r + 1);
  CHECK(std::upper_bound(r, r + 4, 4, key_less()) == r + 3);
  CHECK(std::equal_range(r, r + 4, 5, key_less()).first == r + 3);
  CHECK(std::binary_search(r, r + 4, 6, key_less()));
  CHECK(!std::binary_search(r, r + 4, 2, key_less()));
}

TEST(set_operations_on_generated_multisets_match_counting_models) {
  at::lcg gen(20);
  for (int round = 0; round < 300; ++round) {
    int a[30], b[30], out[60];
    int na = gen.below(31), nb = gen.below(31), span = 1 + gen.below(8);
    for (int i = 0; i < na; ++i)
      a[i] = gen.below(span);
    for (int i = 0; i < nb; ++i)
      b[i] = gen.below(span);
    std::sort(a, a + na);
    std::sort(b, b + nb);
    int ca[8] = {0}, cb[8] = {0};
    for (int i = 0; i < na; ++i)
      ++ca[a[i]];
    for (int i = 0; i < nb; ++i)
      ++cb[b[i]];
    bool includes = true;
    for (int v = 0; v < span; ++v)
      includes = includes && cb[v] <= ca[v];
    CHECK_EQ(std::includes(a, a + na, b, b + nb), includes);
    for (int op = 0; op < 4; ++op) {
      int* end = op == 0   ? std::set_union(a, a + na, b, b + nb, out)
                 : op == 1 ? std::set_intersection(a, a + na, b, b + nb, out)
                 : op == 2 ? std::set_difference(a, a + na, b, b + nb, out)
                           : std::set_symmetric_difference(a, a + na, b, b + nb, out);
      CHECK(at::is_sorted(out, end));
      int counts[8] = {0};
      for (int* p = out; p != end; ++p)
        ++counts[*p];
      for (int v = 0; v < span; ++v) {
        int want = op == 0   ? (ca[v] > cb[v] ? ca[v] : cb[v])
                   : op == 1 ? (ca[v] < cb[v] ? ca[v] : cb[v])
                   : op == 2 ? (ca[v] > cb[v] ? ca[v] - cb[v] : 0)
                             : (ca[v] > cb[v] ? ca[v] - cb[v] : cb[v] - ca[v]);
        CHECK_EQ(counts[v], want);
      }
    }
  }
}

TEST(set_operations_take_matched_elements_from_the_first_range) {
  at::record a[] = {at::make_record(1, 10), at::make_record(2, 11), at::make_record(2, 12)};
  at::record b[] = {at::make_record(2, 20), at::make_record(2, 21), at::make_record(2, 22),
                    at::make_record(3, 23)};
  at::record out[8];
  at::record* end = std::set_union(a, a + 3, b, b + 4, out);
  int union_ids[] = {10, 11, 12, 22, 23};
  CHECK_EQ(end - out, 5);
  for (int i = 0; i < 5; ++i)
    CHECK_EQ(out[i].id, union_ids[i]);
  end = std::set_intersection(a, a + 3, b, b + 4, out);
  CHECK(end - out == 2 && out[0].id == 11 && out[1].id == 12);
  end = std::set_difference(b, b + 4, a, a + 3, out);
  CHECK(end - out == 2 && out[0].id == 22 && out[1].id == 23);
  end = std::set_symmetric_difference(a, a + 3, b, b + 4, out);
  CHECK(end - out == 3 && out[0].id == 10 && out[1].id == 22 && out[2].id == 23);
}

TEST(set_operations_with_a_comparator_and_weak_iterators) {
  int a[] = {9, 7, 5, 3};
  int b[] = {8, 7, 3};
  int out[8];
  std::greater<int> descending;
  CHECK(std::includes(at::in(a), at::in(a + 4), at::in(b + 1), at::in(b + 3), descending));
  CHECK(!std::includes(a, a + 4, b, b + 3, descending));
  CHECK(std::set_union(at::in(a), at::in(a + 4), at::in(b), at::in(b + 3), at::write_only<int>(out),
                       descending)
            .at == out + 5);
  int union_values[] = {9, 8, 7, 5, 3};
  CHECK(std::equal(out, out + 5, union_values));
  CHECK(std::set_intersection(a, a + 4, b, b + 3, out, descending) == out + 2);
  CHECK(out[0] == 7 && out[1] == 3);
  CHECK(std::set_difference(a, a + 4, b, b + 3, out, descending) == out + 2);
  CHECK(out[0] == 9 && out[1] == 5);
  CHECK(std::set_symmetric_difference(a, a + 4, b, b + 3, out, descending) == out + 3);
  CHECK(out[0] == 9 && out[1] == 8 && out[2] == 5);
  CHECK(std::includes(a, a, b, b));
  CHECK(std::includes(a, a + 4, b, b));
  CHECK(!std::includes(a, a, b, b + 1));
}
