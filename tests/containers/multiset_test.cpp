// std::multiset: every member, runs of equal keys (counts, bounds, erase by key), where a hint
// puts equal keys, and a long generated sequence checked against a count-per-key model with the
// tree's shape checked after every step.
#include "associative_support.h"
#include "lorb_test.h"
#include <set>
#include <string>

namespace {

typedef std::multiset<int> int_multiset;
typedef std::multiset<int, assoc::counting_less> counted_multiset;
typedef std::multiset<assoc::tracked> tracked_multiset;

template <class _Set> std::string keys_of(const _Set& s) {
  std::string text;
  char buffer[16];
  for (typename _Set::const_iterator i = s.begin(); i != s.end(); ++i) {
    snprintf(buffer, sizeof buffer, text.empty() ? "%d" : " %d", *i);
    text += buffer;
  }
  return text;
}

bool is_constant(const int&) { return true; }
bool is_constant(int&) { return false; }

TEST(default_multiset_is_empty) {
  int_multiset s;
  CHECK(s.empty());
  CHECK_EQ(s.size(), 0u);
  CHECK(s.begin() == s.end());
  CHECK_SHAPE(s, false);
}

TEST(every_insert_adds_an_element) {
  int_multiset s;
  for (int k = 0; k < 12; ++k)
    s.insert(k % 3);
  CHECK_STR(keys_of(s).c_str(), "0 0 0 0 1 1 1 1 2 2 2 2");
  int_multiset::iterator at = s.insert(1);
  CHECK(++at == s.lower_bound(2)); // after its equals
  CHECK(is_constant(*s.begin()));
  CHECK_SHAPE(s, false);
}

TEST(equal_elements_keep_their_insertion_order) {
  tracked_multiset s;
  // Ordered by value; the objects' addresses tell which insertion each one came from.
  const assoc::tracked* first = &*s.insert(assoc::tracked(4));
  const assoc::tracked* second = &*s.insert(assoc::tracked(4));
  s.insert(assoc::tracked(2));
  const assoc::tracked* third = &*s.insert(assoc::tracked(4));
  tracked_multiset::iterator i = s.lower_bound(assoc::tracked(4));
  CHECK_EQ(&*i++, first);
  CHECK_EQ(&*i++, second);
  CHECK_EQ(&*i++, third);
  CHECK(i == s.end());
}

TEST(range_constructors_keep_duplicates) {
  int items[] = {5, 1, 5, 3, 1, 9, 3};
  int_multiset s(items, items + 7);
  CHECK_STR(keys_of(s).c_str(), "1 1 3 3 5 5 9");
  unsigned calls = 0;
  counted_multiset down(items, items + 7, assoc::counting_less(&calls, true));
  CHECK_STR(keys_of(down).c_str(), "9 5 5 3 3 1 1");
  CHECK(down.key_comp().descending && down.value_comp().descending);
  CHECK_SHAPE(down, false);
  s.insert(items, items + 3);
  CHECK_STR(keys_of(s).c_str(), "1 1 1 3 3 5 5 5 5 9");
}

TEST(copy_and_assignment_are_deep) {
  int items[] = {4, 4, 2, 8, 2, 4};
  int_multiset s(items, items + 6);
  int_multiset copy(s);
  CHECK(copy == s);
  CHECK_SHAPE(copy, false);
  copy.erase(4);
  CHECK_EQ(s.count(4), 3u);
  int_multiset other;
  other.insert(1);
  other = s;
  CHECK_STR(keys_of(other).c_str(), "2 2 4 4 4 8");
  other = other;
  CHECK_EQ(other.size(), 6u);
}

TEST(reverse_iteration) {
  int items[] = {3, 1, 2, 1};
  int_multiset s(items, items + 4);
  std::string text;
  for (int_multiset::const_reverse_iterator r = s.rbegin(); r != s.rend(); ++r)
    text += static_cast<char>('0' + *r);
  CHECK_STR(text.c_str(), "3211");
  int_multiset::reverse_iterator r = s.rbegin();
  CHECK(is_constant(*r));
}

TEST(max_size_is_the_node_allocator_limit) {
  CHECK_EQ(int_multiset().max_size(), size_t(-1) / (4 * sizeof(void*) + sizeof(int)));
  std::multiset<int, std::less<int>, assoc::counting_allocator<int> > counted;
  CHECK_EQ(counted.max_size(), 1000u);
}

TEST(count_bounds_and_equal_range_over_runs) {
  int_multiset s;
  for (int k = 0; k < 6; ++k)
    for (int copies = 0; copies < k; ++copies)
      s.insert(k * 10); // k copies of 10k: 10 20 20 30 30 30 ...
  for (int k = 0; k < 6; ++k) {
    CHECK_EQ(s.count(k * 10), static_cast<unsigned>(k));
    std::pair<int_multiset::iterator, int_multiset::iterator> r = s.equal_range(k * 10);
    CHECK_EQ(assoc::distance(r.first, r.second), static_cast<unsigned>(k));
    CHECK_EQ(assoc::distance(s.begin(), r.first), static_cast<unsigned>(k * (k - 1) / 2));
    CHECK(r.first == s.lower_bound(k * 10) && r.second == s.upper_bound(k * 10));
    CHECK_EQ(s.count(k * 10 + 5), 0u);
  }
  CHECK(s.find(0) == s.end());
  CHECK(s.find(30) == s.lower_bound(30));
  CHECK(s.upper_bound(50) == s.end());
}

TEST(erase_by_key_removes_the_whole_run_and_returns_its_length) {
  int_multiset s;
  for (int k = 0; k < 20; ++k)
    s.insert(k % 4);
  CHECK_EQ(s.erase(2), 5u);
  CHECK_EQ(s.erase(2), 0u);
  CHECK_EQ(s.erase(0), 5u);
  CHECK_STR(keys_of(s).c_str(), "1 1 1 1 1 3 3 3 3 3");
  CHECK_SHAPE(s, false);
  s.erase(s.begin());
  s.erase(s.lower_bound(3), s.end());
  CHECK_STR(keys_of(s).c_str(), "1 1 1 1");
  s.erase(s.begin(), s.end());
  CHECK(s.empty());
  CHECK_SHAPE(s, false);
}

TEST(iterators_stay_valid_when_equal_neighbours_go) {
  int_multiset s;
  for (int k = 0; k < 30; ++k)
    s.insert(k % 3);
  int_multiset::iterator fifth_one = s.lower_bound(1);
  for (int n = 0; n < 4; ++n)
    ++fifth_one;
  const int* address = &*fifth_one;
  int_multiset::iterator i = s.lower_bound(1);
  for (int n = 0; n < 4; ++n)
    s.erase(i++);
  s.erase(0);
  CHECK(fifth_one == s.begin());
  CHECK_EQ(&*fifth_one, address);
  CHECK_EQ(s.count(1), 6u);
  CHECK_SHAPE(s, false);
}

TEST(hint_puts_equal_keys_as_close_before_the_hint_as_the_order_allows) {
  tracked_multiset s;
  for (int k = 0; k < 9; ++k)
    s.insert(assoc::tracked(k / 3)); // 0 0 0 1 1 1 2 2 2
  tracked_multiset::iterator hint = ++s.lower_bound(assoc::tracked(1));
  tracked_multiset::iterator at = s.insert(hint, assoc::tracked(1));
  CHECK(++at == hint);                         // right before the hint
  at = s.insert(s.begin(), assoc::tracked(1)); // the key lies after the hint: its first equal
  CHECK(at == s.lower_bound(assoc::tracked(1)));
  at = s.insert(s.end(), assoc::tracked(0)); // before the hint: its last equal
  CHECK(++at == s.upper_bound(assoc::tracked(0)));
  tracked_multiset::iterator last_one = --s.upper_bound(assoc::tracked(1));
  at = s.insert(last_one, assoc::tracked(2)); // fits just after the hint
  CHECK(--at == last_one);
  CHECK_EQ(s.size(), 13u);
  CHECK_SHAPE(s, false);
}

TEST(hint_at_the_right_place_costs_a_constant_number_of_comparisons) {
  unsigned calls = 0;
  counted_multiset s(assoc::counting_less(&calls, false));
  for (int k = 0; k < 600; ++k)
    s.insert(s.end(), k / 3);
  CHECK_EQ(calls, 599u);
  for (int k = 0; k < 200; ++k) {
    counted_multiset::iterator hint = s.lower_bound(k);
    calls = 0;
    s.insert(hint, k);
    CHECK(calls <= 2);
  }
  calls = 0;
  s.insert(s.begin(), -1);
  CHECK_EQ(calls, 1u);
  CHECK_EQ(s.size(), 801u);
  CHECK_SHAPE(s, false);
}

TEST(swap_clear_and_allocator) {
  typedef std::multiset<int, std::less<int>, assoc::counting_allocator<int> > counted;
  int before = assoc::allocation_counts::live_blocks;
  {
    counted a(std::less<int>(), assoc::counting_allocator<int>(1));
    counted b(std::less<int>(), assoc::counting_allocator<int>(2));
    a.insert(1);
    a.insert(1);
    b.insert(7);
    a.swap(b);
    CHECK_STR(keys_of(a).c_str(), "7");
    CHECK_STR(keys_of(b).c_str(), "1 1");
    CHECK_EQ(a.get_allocator().id, 2);
    CHECK_EQ(b.get_allocator().id, 1);
    std::swap(a, b);
    CHECK_STR(keys_of(a).c_str(), "1 1");
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 5);
    a.clear();
    CHECK(a.empty());
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 3);
    a.insert(4);
    CHECK_SHAPE(a, false);
  }
  CHECK_EQ(assoc::allocation_counts::live_blocks, before);
}

TEST(comparison_operators_follow_the_element_order) {
  int one[] = {1, 1, 2}, two[] = {1, 1, 2, 2}, three[] = {1, 2};
  int_multiset a(one, one + 3), b(two, two + 4), c(three, three + 2), a2(one, one + 3);
  CHECK(a == a2 && !(a != a2) && a <= a2 && a >= a2 && !(a < a2) && !(a > a2));
  CHECK(a < b && b > a && a != b && a <= b && !(a >= b)); // a is a prefix of b
  CHECK(b < c && c > b && !(c <= b));                     // 1 against 2 at the second element
  CHECK(int_multiset() < a && !(a < int_multiset()));
}

// Every modifier on a generated sequence next to a count-per-key model, with the tree's shape
// checked after each step.
TEST(generated_operations_match_a_model_and_keep_the_tree_valid) {
  enum { keys = 24 };
  unsigned counts[keys] = {};
  unsigned total = 0;
  int_multiset s;
  assoc::generator g(4242);
  for (int step = 0; step < 3000; ++step) {
    int k = static_cast<int>(g.below(keys));
    switch (g.below(7)) {
    case 0:
    case 1:
      CHECK_EQ(*s.insert(k), k);
      ++counts[k];
      break;
    case 2:
      CHECK_EQ(*s.insert(s.lower_bound(static_cast<int>(g.below(keys))), k), k);
      ++counts[k];
      break;
    case 3:
      CHECK_EQ(s.erase(k), counts[k]);
      counts[k] = 0;
      break;
    case 4:
      if (counts[k]) {
        s.erase(s.find(k));
        --counts[k];
      }
      break;
    case 5: {
      int last = k + static_cast<int>(g.below(4));
      s.erase(s.lower_bound(k), s.lower_bound(last));
      for (int j = k; j < last && j < keys; ++j)
        counts[j] = 0;
      break;
    }
    default:
      CHECK_EQ(s.count(k), counts[k]);
    }
    CHECK_SHAPE(s, false);
    total = 0;
    int_multiset::const_iterator i = s.begin();
    for (int j = 0; j < keys; ++j)
      for (unsigned n = 0; n < counts[j]; ++n, ++total)
        if (!CHECK(i != s.end() && *i++ == j))
          return;
    CHECK(i == s.end());
    CHECK_EQ(s.size(), total);
  }
}

} // namespace
