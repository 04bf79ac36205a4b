// The stable algorithms: stable_sort, stable_partition, merge and inplace_merge keep equal
// elements in their original order, with a full scratch buffer, a partial one, and none at all
// (the allocation refused), and stay within their comparison and predicate-call limits.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>
#include <stddef.h>

// The program's own malloc, which the library's scratch buffers reach: requests above the limit
// are refused and counted.
extern "C" void* __libc_malloc(size_t);
static size_t largest_granted = static_cast<size_t>(-1);
static int refused = 0;
static size_t first_refused_size = 0;
extern "C" void* malloc(size_t size) {
  if (size > largest_granted) {
    if (refused++ == 0)
      first_refused_size = size;
    return 0;
  }
  return __libc_malloc(size);
}

namespace {

// Limits every allocation to `bytes` for the scope's lifetime.
struct allocation_limit {
  explicit allocation_limit(size_t bytes) {
    largest_granted = bytes;
    refused = 0;
  }
  ~allocation_limit() { largest_granted = static_cast<size_t>(-1); }
};

// No buffer, a buffer of a few records, and as much as asked for.
const size_t limits[] = {0, 8 * sizeof(at::record), static_cast<size_t>(-1)};
const int sizes[] = {0, 1, 2, 3, 7, 8, 15, 16, 17, 31, 64, 100, 257, 1000, 2500};

at::record records[2500];

void fill_records(int n, int keys, at::lcg& gen) {
  for (int i = 0; i < n; ++i)
    records[i] = at::make_record(gen.below(keys), i);
}

struct key_is_even {
  long* calls;
  explicit key_is_even(long* counter) : calls(counter) {}
  bool operator()(const at::record& r) const {
    ++*calls;
    return r.key % 2 == 0;
  }
};

struct by_key_descending {
  bool operator()(const at::record& a, const at::record& b) const { return a.key > b.key; }
};

} // namespace

TEST(stable_sort_keeps_equal_keys_in_order_with_any_buffer) {
  at::lcg gen(11);
  for (int l = 0; l < 3; ++l)
    for (int s = 0; s < int(sizeof sizes / sizeof sizes[0]); ++s) {
      int n = sizes[s];
      int key_ranges[] = {1, 3, n + 1};
      for (int k = 0; k < 3; ++k) {
        fill_records(n, key_ranges[k], gen);
        long calls = 0;
        {
          allocation_limit limit(limits[l]);
          std::stable_sort(records, records + n, at::counting_less(&calls));
        }
        CHECK(at::is_stably_sorted(records, records + n));
        long log_n = at::log2_floor(n) + 1;
        long budget = l == 2 ? 2 * n * log_n : n * log_n * log_n;
        if (!CHECK(n < 2 || calls <= budget))
          printf("  limit %d n %d: %ld comparisons\n", l, n, calls);
      }
    }
}

TEST(stable_sort_asks_for_half_the_range_and_survives_without_it) {
  at::lcg gen(12);
  fill_records(1000, 10, gen);
  {
    allocation_limit limit(0);
    std::stable_sort(records, records + 1000);
    CHECK_EQ(first_refused_size, 500 * sizeof(at::record));
    CHECK_EQ(refused, 9); // halved down to nothing: 500, 250, 125, 62, 31, 15, 7, 3, 1 records
  }
  CHECK(at::is_stably_sorted(records, records + 1000));
}

TEST(stable_sort_of_ascending_descending_and_all_equal_input) {
  for (int shape = 0; shape < 3; ++shape) {
    for (int i = 0; i < 1000; ++i)
      records[i] = at::make_record(shape == 0 ? i : shape == 1 ? 1000 - i : 5, i);
    std::stable_sort(records, records + 1000);
    CHECK(at::is_stably_sorted(records, records + 1000));
  }
}

TEST(stable_sort_with_a_comparator_is_stable_in_its_order) {
  at::lcg gen(13);
  fill_records(300, 7, gen);
  std::stable_sort(records, records + 300, by_key_descending());
  bool ok = true;
  for (int i = 1; i < 300; ++i)
    ok = ok && (records[i - 1].key > records[i].key ||
                (records[i - 1].key == records[i].key && records[i - 1].id < records[i].id));
  CHECK(ok);
}

TEST(stable_sort_of_plain_values_matches_sort) {
  at::lcg gen(14);
  static int a[5000], b[5000];
  for (int round = 0; round < 4; ++round) {
    int n = 1000 + 1300 * round;
    for (int i = 0; i < n; ++i)
      a[i] = b[i] = round == 3 ? gen.below(4) : gen.below(1 << 20);
    std::stable_sort(a, a + n);
    std::sort(b, b + n);
    CHECK(std::equal(a, a + n, b));
  }
}

TEST(stable_partition_keeps_both_groups_in_order_calling_the_predicate_once_each) {
  at::lcg gen(15);
  for (int l = 0; l < 3; ++l)
    for (int s = 0; s < int(sizeof sizes / sizeof sizes[0]); ++s) {
      int n = sizes[s];
      fill_records(n, 4, gen);
      long calls = 0;
      at::record* cut;
      {
        allocation_limit limit(limits[l]);
        cut = std::stable_partition(records, records + n, key_is_even(&calls));
      }
      CHECK_EQ(calls, n);
      bool ok = true;
      for (int i = 0; i < n; ++i) {
        ok = ok && ((records[i].key % 2 == 0) == (records + i < cut));
        if (i > 0 && records + i != cut)
          ok = ok && records[i - 1].id < records[i].id;
      }
      CHECK(ok);
    }
}

TEST(stable_partition_through_bidirectional_iterators) {
  at::lcg gen(16);
  fill_records(200, 5, gen);
  long calls = 0;
  at::walker<at::record, std::bidirectional_iterator_tag> cut =
      std::stable_partition(at::bi(records), at::bi(records + 200), key_is_even(&calls));
  CHECK_EQ(calls, 200);
  for (at::record* r = records; r != records + 200; ++r)
    CHECK((r->key % 2 == 0) == (r < cut.at));
}

TEST(merge_takes_the_first_ranges_element_on_ties) {
  at::record a[] = {at::make_record(1, 0), at::make_record(2, 1), at::make_record(2, 2)};
  at::record b[] = {at::make_record(0, 3), at::make_record(2, 4), at::make_record(3, 5)};
  at::record out[6];
  long calls = 0;
  CHECK(std::merge(a, a + 3, b, b + 3, out, at::counting_less(&calls)) == out + 6);
  int ids[] = {3, 0, 1, 2, 4, 5};
  for (int i = 0; i < 6; ++i)
    CHECK_EQ(out[i].id, ids[i]);
  CHECK(calls <= 5);
  CHECK(std::merge(at::in(a), at::in(a), at::in(b), at::in(b + 3), at::write_only<at::record>(out))
            .at == out + 3);
  CHECK_EQ(out[2].id, 5);
  CHECK(std::merge(a, a + 3, b, b, out, std::less<at::record>()) == out + 3);
}

TEST(inplace_merge_of_every_split_is_stable_with_any_buffer) {
  at::lcg gen(17);
  for (int l = 0; l < 3; ++l)
    for (int n = 0; n <= 40; n += n < 10 ? 1 : 7)
      for (int m = 0; m <= n; ++m) {
        fill_records(n, 4, gen);
        std::stable_sort(records, records + m);
        std::stable_sort(records + m, records + n);
        long calls = 0;
        {
          allocation_limit limit(limits[l]);
          std::inplace_merge(records, records + m, records + n, at::counting_less(&calls));
        }
        CHECK(at::is_stably_sorted(records, records + n));
        if (l == 2)
          CHECK(calls <= (n > 0 ? n - 1 : 0));
      }
}

TEST(inplace_merge_of_long_runs_without_a_buffer_stays_within_n_log_n) {
  at::lcg gen(18);
  fill_records(2500, 50, gen);
  std::stable_sort(records, records + 900);
  std::stable_sort(records + 900, records + 2500);
  long calls = 0;
  {
    allocation_limit limit(0);
    std::inplace_merge(at::bi(records), at::bi(records + 900), at::bi(records + 2500),
                       at::counting_less(&calls));
  }
  CHECK(at::is_stably_sorted(records, records + 2500));
  CHECK(calls <= 2500L * 12);
}
