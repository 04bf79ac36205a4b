// std::list: the ring around a header inside the list, nodes of next, prev and value, the merge
// sort over 64 lists from the array helpers, and the operations that relink without copying.
#include "lorb_test.h"
#include "sequence_allocation_log.h"
#include "sequence_tracked.h"
#include <functional>
#include <list>

using seq::allocations;
using seq::tracked;
using seq::tracking;

typedef std::list<tracked> tracked_list;

static void fill(tracked_list& l, const int* values, int n) {
  for (int i = 0; i < n; ++i)
    l.push_back(tracked(values[i]));
}

static bool holds(const tracked_list& l, const int* values, int n) {
  if (l.size() != unsigned(n))
    return false;
  tracked_list::const_iterator it = l.begin();
  for (int i = 0; i < n; ++i, ++it)
    if (it->value != values[i])
      return false;
  return it == l.end();
}

// Whether every element sits at the address recorded for its value (values are distinct).
static bool at_recorded_addresses(const tracked_list& l, const tracked* const* address_of) {
  for (tracked_list::const_iterator it = l.begin(); it != l.end(); ++it)
    if (&*it != address_of[it->value])
      return false;
  return true;
}

static void record_addresses(const tracked_list& l, const tracked** address_of) {
  for (tracked_list::const_iterator it = l.begin(); it != l.end(); ++it)
    address_of[it->value] = &*it;
}

TEST(a_list_is_a_ring_around_a_header_inside_it_with_a_counted_size) {
  CHECK_EQ(sizeof(std::list<int>), 12u);
  unsigned news = allocations.news;
  std::list<int> l;
  CHECK_EQ(allocations.news, news);
  CHECK(l.begin() == l.end());
  CHECK(++l.end() == l.end());
  l.push_back(1);
  l.push_back(2);
  CHECK(++ ++l.begin() == l.end());
  CHECK(++l.end() == l.begin());
  CHECK(--l.begin() == l.end());
  CHECK(l.end().__node == reinterpret_cast<__vel::list_node_base*>(&l));
  CHECK_EQ(l.size(), 2u);
}

TEST(a_node_is_next_then_prev_then_the_value_one_request_each) {
  std::list<int> l;
  seq::mark();
  l.push_back(5);
  l.push_front(4);
  CHECK_EQ(allocations.logged, 2u);
  CHECK_EQ(allocations.sizes[0], 12u);
  CHECK_EQ(allocations.sizes[1], 12u);
  std::list<int>::iterator first = l.begin(), second = ++l.begin();
  CHECK_EQ(reinterpret_cast<char*>(&*first) - reinterpret_cast<char*>(first.__node), 8);
  __vel::list_node_base* const* words =
      reinterpret_cast<__vel::list_node_base* const*>(first.__node);
  CHECK(words[0] == second.__node);
  CHECK(words[1] == l.end().__node);
  std::list<char> c;
  seq::mark();
  c.push_back('x');
  CHECK_EQ(allocations.sizes[0], 12u);
}

TEST(sorting_an_empty_or_one_element_list_changes_nothing_and_takes_no_memory) {
  tracked_list empty, one;
  one.push_back(tracked(7));
  const tracked* address = &one.front();
  unsigned news = allocations.news, array_news = allocations.array_news;
  seq::reset_tracking();
  empty.sort();
  one.sort();
  one.sort(std::greater<tracked>());
  CHECK(empty.empty());
  CHECK_EQ(one.size(), 1u);
  CHECK(&one.front() == address);
  CHECK_EQ(one.front().value, 7);
  CHECK_EQ(allocations.news, news);
  CHECK_EQ(allocations.array_news, array_news);
  CHECK_EQ(tracking.copies + tracking.assignments, 0);
}

// The 64 lists come from one __vec_new (operator new[] of 64 lists and the 8-byte cookie) and go
// back through one __vec_delete.
TEST(each_sort_builds_and_destroys_its_64_lists_once_through_the_array_helpers) {
  std::list<int> l;
  for (int i = 0; i < 300; ++i)
    l.push_back((i * 7919) % 1000);
  unsigned array_news = allocations.array_news, array_deletes = allocations.array_deletes;
  unsigned news = allocations.news;
  l.sort();
  CHECK_EQ(allocations.array_news - array_news, 1u);
  CHECK_EQ(allocations.array_deletes - array_deletes, 1u);
  CHECK_EQ(allocations.last_array_size, 64 * sizeof(std::list<int>) + 8);
  CHECK_EQ(allocations.news, news);
  l.sort(std::greater<int>());
  CHECK_EQ(allocations.array_news - array_news, 2u);
  CHECK_EQ(allocations.array_deletes - array_deletes, 2u);
  int previous = 1000;
  for (std::list<int>::iterator it = l.begin(); it != l.end(); ++it) {
    CHECK(*it <= previous);
    previous = *it;
  }
}

// Values are key * 256 + arrival; ordered by key alone, ties must keep their arrival order.
static int keyed(int key, int arrival) { return key * 256 + arrival; }
struct by_key {
  bool operator()(const tracked& x, const tracked& y) const {
    return x.value / 256 < y.value / 256;
  }
};

TEST(sort_is_stable_relinks_every_node_and_copies_nothing) {
  seq::generator gen(13);
  for (int n = 2; n < 130; n += 7) {
    tracked_list l;
    int keys[130];
    for (int i = 0; i < n; ++i) {
      keys[i] = int(gen.below(5));
      l.push_back(tracked(keyed(keys[i], i)));
    }
    const tracked* address_of[5 * 256];
    record_addresses(l, address_of);
    seq::reset_tracking();
    l.sort(by_key());
    CHECK_EQ(tracking.copies + tracking.assignments + tracking.destructions, 0);
    CHECK(at_recorded_addresses(l, address_of));
    CHECK_EQ(l.size(), unsigned(n));
    int expected[130], count = 0;
    for (int key = 0; key < 5; ++key)
      for (int i = 0; i < n; ++i)
        if (keys[i] == key)
          expected[count++] = keyed(key, i);
    CHECK(holds(l, expected, n));
  }
}

TEST(sort_with_a_comparison_keeps_equal_keys_in_order) {
  tracked_list l;
  int values[] = {keyed(3, 0), keyed(1, 1), keyed(3, 2), keyed(0, 3), keyed(1, 4), keyed(3, 5)};
  fill(l, values, 6);
  l.sort(by_key());
  int expected[] = {keyed(0, 3), keyed(1, 1), keyed(1, 4), keyed(3, 0), keyed(3, 2), keyed(3, 5)};
  CHECK(holds(l, expected, 6));
}

TEST(merge_is_stable_relinks_and_empties_the_other_list) {
  tracked_list a, b;
  int first[] = {keyed(1, 0), keyed(2, 1), keyed(2, 2), keyed(5, 3)};
  int second[] = {keyed(0, 4), keyed(2, 5), keyed(6, 6), keyed(7, 7)};
  fill(a, first, 4);
  fill(b, second, 4);
  const tracked* address_of[8 * 256];
  record_addresses(a, address_of);
  record_addresses(b, address_of);
  seq::reset_tracking();
  a.merge(b, by_key());
  CHECK_EQ(tracking.copies + tracking.assignments + tracking.destructions, 0);
  int expected[] = {keyed(0, 4), keyed(1, 0), keyed(2, 1), keyed(2, 2),
                    keyed(2, 5), keyed(5, 3), keyed(6, 6), keyed(7, 7)};
  CHECK(holds(a, expected, 8));
  CHECK(b.empty());
  CHECK(b.begin() == b.end());
  CHECK(at_recorded_addresses(a, address_of));
  a.merge(a);
  CHECK_EQ(a.size(), 8u);
  b.push_back(tracked(keyed(3, 0)));
  a.merge(b); // by value
  CHECK_EQ(a.size(), 9u);
  CHECK_EQ(a.back().value, keyed(7, 7));
}

// Each element is compared with the last one kept, not with its erased neighbour.
TEST(unique_erases_against_the_last_kept_element_without_copying) {
  tracked_list l;
  int values[] = {1, 1, 2, 2, 2, 3, 1, 1, 4};
  fill(l, values, 9);
  seq::reset_tracking();
  l.unique();
  CHECK_EQ(tracking.copies + tracking.assignments, 0);
  CHECK_EQ(tracking.destructions, 4);
  int expected[] = {1, 2, 3, 1, 4};
  CHECK(holds(l, expected, 5));
  tracked_list near;
  int close[] = {1, 2, 3, 4, 10, 11, 12, 13};
  fill(near, close, 8);
  struct within_two {
    bool operator()(const tracked& x, const tracked& y) const { return y.value - x.value <= 2; }
  };
  near.unique(within_two());
  int kept[] = {1, 4, 10, 13};
  CHECK(holds(near, kept, 4));
  tracked_list empty;
  empty.unique();
  CHECK(empty.empty());
}

struct is_odd {
  bool operator()(const tracked& x) const { return x.value % 2 != 0; }
};

TEST(remove_and_remove_if_erase_without_copying_even_when_the_value_is_an_element) {
  tracked_list l;
  int values[] = {5, 1, 5, 2, 5, 3};
  fill(l, values, 6);
  seq::reset_tracking();
  l.remove(l.front()); // the front holds the value compared against
  CHECK_EQ(tracking.copies + tracking.assignments, 0);
  int expected[] = {1, 2, 3};
  CHECK(holds(l, expected, 3));
  l.remove_if(is_odd());
  int even[] = {2};
  CHECK(holds(l, even, 1));
  l.remove(tracked(9));
  CHECK_EQ(l.size(), 1u);
}

TEST(reverse_relinks_every_node) {
  for (int n = 0; n < 6; ++n) {
    tracked_list l;
    int values[6], reversed[6];
    for (int i = 0; i < n; ++i) {
      values[i] = i;
      reversed[n - 1 - i] = i;
    }
    fill(l, values, n);
    const tracked* address_of[6];
    record_addresses(l, address_of);
    seq::reset_tracking();
    l.reverse();
    CHECK_EQ(tracking.copies + tracking.assignments, 0);
    CHECK(holds(l, reversed, n));
    CHECK(at_recorded_addresses(l, address_of));
    int back_again = n;
    for (tracked_list::reverse_iterator it = l.rbegin(); it != l.rend(); ++it)
      CHECK_EQ(it->value, n - back_again--);
  }
}

TEST(the_three_splices_move_nodes_and_counts) {
  tracked_list a, b;
  int first[] = {0, 1, 2, 3}, second[] = {10, 11, 12, 13, 14};
  fill(a, first, 4);
  fill(b, second, 5);
  const tracked* address_of[15];
  record_addresses(a, address_of);
  record_addresses(b, address_of);
  seq::reset_tracking();
  tracked_list::iterator pos = ++a.begin();
  a.splice(pos, b, ++b.begin()); // 11
  int one[] = {0, 11, 1, 2, 3}, rest[] = {10, 12, 13, 14};
  CHECK(holds(a, one, 5));
  CHECK(holds(b, rest, 4));
  a.splice(a.end(), b, ++b.begin(), --b.end()); // 12, 13
  int range[] = {0, 11, 1, 2, 3, 12, 13}, left[] = {10, 14};
  CHECK(holds(a, range, 7));
  CHECK(holds(b, left, 2));
  a.splice(a.begin(), b);
  int all[] = {10, 14, 0, 11, 1, 2, 3, 12, 13};
  CHECK(holds(a, all, 9));
  CHECK(b.empty());
  a.splice(a.begin(), a, --a.end()); // within one list
  a.splice(a.end(), a, a.begin(), ++ ++a.begin());
  a.splice(a.begin(), a, a.begin()); // onto itself: nothing
  int moved[] = {14, 0, 11, 1, 2, 3, 12, 13, 10};
  CHECK(holds(a, moved, 9));
  CHECK_EQ(tracking.copies + tracking.assignments + tracking.destructions, 0);
  CHECK(at_recorded_addresses(a, address_of));
  b.splice(b.begin(), a, a.begin(), a.begin());
  CHECK(b.empty());
}

TEST(insert_erase_resize_and_assign) {
  std::list<int> l(3, 7);
  CHECK_EQ(l.size(), 3u);
  std::list<int>::iterator it = l.insert(++l.begin(), 5);
  CHECK_EQ(*it, 5);
  l.insert(l.end(), 2, 9);
  int raw[] = {1, 2, 3};
  l.insert(l.begin(), raw, raw + 3);
  int expected[] = {1, 2, 3, 7, 5, 7, 7, 9, 9};
  std::list<int>::iterator walk = l.begin();
  for (int i = 0; i < 9; ++i, ++walk)
    CHECK_EQ(*walk, expected[i]);
  it = l.erase(l.begin());
  CHECK_EQ(*it, 2);
  it = l.erase(++l.begin(), --l.end());
  CHECK_EQ(*it, 9);
  CHECK_EQ(l.size(), 2u);
  l.resize(5, 4);
  CHECK_EQ(l.size(), 5u);
  CHECK_EQ(l.back(), 4);
  l.resize(1);
  CHECK_EQ(l.size(), 1u);
  CHECK_EQ(l.front(), 2);
  l.assign(4, 6); // two integers: count and value
  CHECK_EQ(l.size(), 4u);
  CHECK_EQ(l.back(), 6);
  l.assign(raw, raw + 2);
  CHECK_EQ(l.size(), 2u);
  CHECK_EQ(l.back(), 2);
  l.assign(6, 1);
  l.assign(2u, 3);
  CHECK_EQ(l.size(), 2u);
  std::list<int> built(4, 8);
  CHECK_EQ(built.size(), 4u);
  std::list<int> copy(built);
  CHECK(copy == built);
  copy = l;
  CHECK(copy == l);
  copy = copy;
  CHECK_EQ(copy.size(), 2u);
  l.pop_front();
  l.pop_back();
  CHECK(l.empty());
  CHECK(l.get_allocator() == std::allocator<int>());
  CHECK_EQ(l.max_size(), 0xFFFFFFFFu / 12);
}

TEST(swap_exchanges_rings_whatever_their_sizes) {
  for (int na = 0; na < 3; ++na)
    for (int nb = 0; nb < 3; ++nb) {
      std::list<int> a(na, 1), b(nb, 2);
      a.swap(b);
      CHECK_EQ(a.size(), unsigned(nb));
      CHECK_EQ(b.size(), unsigned(na));
      int count = 0;
      for (std::list<int>::iterator it = a.begin(); it != a.end(); ++it, ++count)
        CHECK_EQ(*it, 2);
      CHECK_EQ(count, nb);
      count = 0;
      for (std::list<int>::reverse_iterator it = b.rbegin(); it != b.rend(); ++it, ++count)
        CHECK_EQ(*it, 1);
      CHECK_EQ(count, na);
      std::swap(a, b);
      a.push_back(3);
      CHECK_EQ(a.back(), 3);
      CHECK_EQ(a.size(), unsigned(na + 1));
    }
}

TEST(comparisons_order_lexicographically) {
  seq::generator gen(8);
  for (int round = 0; round < 300; ++round) {
    std::list<char> a, b;
    char ra[6], rb[6];
    unsigned na = gen.below(6), nb = gen.below(6);
    for (unsigned i = 0; i < na; ++i)
      a.push_back(ra[i] = char('a' + gen.below(2)));
    for (unsigned i = 0; i < nb; ++i)
      b.push_back(rb[i] = char('a' + gen.below(2)));
    int order = 0;
    for (unsigned i = 0; order == 0 && (i < na || i < nb); ++i)
      order = i == na ? -1 : i == nb ? 1 : ra[i] < rb[i] ? -1 : rb[i] < ra[i] ? 1 : 0;
    CHECK_EQ(a == b, order == 0);
    CHECK_EQ(a != b, order != 0);
    CHECK_EQ(a < b, order < 0);
    CHECK_EQ(a > b, order > 0);
    CHECK_EQ(a <= b, order <= 0);
    CHECK_EQ(a >= b, order >= 0);
  }
}

TEST(every_node_made_is_given_back) {
  unsigned news = allocations.news, deletes = allocations.deletes;
  {
    tracked_list a(5, tracked(1)), b;
    int values[] = {4, 3, 9, 1};
    fill(b, values, 4);
    a.merge(b);
    a.sort();
    a.unique();
    a.remove(tracked(9));
    tracked_list c(a);
    c.splice(c.begin(), a);
    c.resize(20, tracked(2));
  }
  CHECK_EQ(tracking.live, 0);
  CHECK_EQ(allocations.news - news, allocations.deletes - deletes);
}
