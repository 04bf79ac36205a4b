// std::set: every member, constant iterators, comparators with state, hint positions and their
// cost, iterator stability, the allocator the nodes come from, and a generated sequence checked
// against a model with the tree's shape checked after every step.
#include "associative_support.h"
#include "lorb_test.h"
#include <set>
#include <string>

namespace {

typedef std::set<int> int_set;
typedef std::set<int, assoc::counting_less> counted_set;

template <class _Set> std::string keys_of(const _Set& s) {
  std::string text;
  char buffer[16];
  for (typename _Set::const_iterator i = s.begin(); i != s.end(); ++i) {
    snprintf(buffer, sizeof buffer, text.empty() ? "%d" : " %d", *i);
    text += buffer;
  }
  return text;
}

int_set multiples(int first, int last, int step) {
  int_set s;
  for (int k = first; k < last; k += step)
    s.insert(k);
  return s;
}

// Which overload a dereference picks tells whether the element can be changed through it.
bool is_constant(const int&) { return true; }
bool is_constant(int&) { return false; }

TEST(default_set_is_empty) {
  int_set s;
  CHECK(s.empty());
  CHECK_EQ(s.size(), 0u);
  CHECK(s.begin() == s.end());
  CHECK(s.rbegin() == s.rend());
  CHECK_SHAPE(s, true);
}

TEST(empty_set_holds_no_value_in_its_header) {
  assoc::tracked::live = 0;
  assoc::tracked::defaults = 0;
  {
    std::set<assoc::tracked> s;
    CHECK_EQ(assoc::tracked::live, 0);
    s.insert(assoc::tracked(3));
    s.insert(assoc::tracked(3));
    CHECK_EQ(assoc::tracked::live, 1);
  }
  CHECK_EQ(assoc::tracked::live, 0);
  CHECK_EQ(assoc::tracked::defaults, 0);
}

TEST(elements_are_reached_through_constant_iterators_only) {
  int_set s = multiples(0, 3, 1);
  int_set::iterator i = s.begin();
  CHECK(is_constant(*i));
  CHECK(is_constant(*s.rbegin()));
  int_set::const_iterator c = i;
  CHECK(c == i && i == c);
}

TEST(comparator_given_at_construction_orders_and_is_kept) {
  unsigned calls = 0;
  counted_set s(assoc::counting_less(&calls, true));
  for (int k = 0; k < 6; ++k)
    s.insert(k);
  CHECK_STR(keys_of(s).c_str(), "5 4 3 2 1 0");
  CHECK(s.key_comp().descending);
  CHECK(s.value_comp().descending);
  CHECK(s.key_comp().calls == &calls);
  CHECK(calls > 0);
  CHECK_SHAPE(s, true);
}

TEST(range_constructors_drop_duplicates) {
  int items[] = {5, 1, 5, 3, 1, 9, 3};
  int_set s(items, items + 7);
  CHECK_STR(keys_of(s).c_str(), "1 3 5 9");
  unsigned calls = 0;
  counted_set down(items, items + 7, assoc::counting_less(&calls, true), std::allocator<int>());
  CHECK_STR(keys_of(down).c_str(), "9 5 3 1");
  CHECK_SHAPE(down, true);
}

TEST(copy_and_assignment_are_deep) {
  unsigned calls = 0;
  counted_set s(assoc::counting_less(&calls, true));
  for (int k = 0; k < 12; ++k)
    s.insert(k);
  counted_set copy(s);
  CHECK(copy == s);
  CHECK(copy.key_comp().descending);
  copy.erase(5);
  CHECK_EQ(s.count(5), 1u);
  counted_set other;
  other.insert(99);
  other = s;
  CHECK_STR(keys_of(other).c_str(), keys_of(s).c_str());
  CHECK(other.key_comp().descending);
  other = other;
  CHECK_EQ(other.size(), 12u);
  CHECK_SHAPE(other, true);
  CHECK_SHAPE(copy, true);
}

TEST(iteration_forward_backward_and_reverse) {
  int_set s = multiples(0, 30, 5);
  std::string text;
  for (int_set::reverse_iterator r = s.rbegin(); r != s.rend(); ++r)
    text += static_cast<char>('0' + *r / 5);
  CHECK_STR(text.c_str(), "543210");
  int_set::iterator last = s.end();
  CHECK_EQ(*--last, 25);
  CHECK_EQ(*last--, 25);
  CHECK_EQ(*last, 20);
  int_set::iterator first = s.begin();
  CHECK_EQ(*first++, 0);
  CHECK_EQ(*first, 5);
}

TEST(max_size_is_the_node_allocator_limit) {
  CHECK_EQ(int_set().max_size(), size_t(-1) / (4 * sizeof(void*) + sizeof(int)));
  std::set<int, std::less<int>, assoc::counting_allocator<int> > counted;
  CHECK_EQ(counted.max_size(), 1000u);
}

TEST(insert_reports_new_and_existing_keys) {
  int_set s;
  std::pair<int_set::iterator, bool> r = s.insert(4);
  CHECK(r.second && *r.first == 4);
  r = s.insert(4);
  CHECK(!r.second && r.first == s.begin());
  r = s.insert(2);
  CHECK(r.second && r.first == s.begin());
  CHECK_EQ(s.size(), 2u);
}

TEST(hint_insert_places_keys_and_returns_them) {
  int_set s = multiples(0, 20, 4); // 0 4 8 12 16
  int_set::iterator at = s.insert(s.find(8), 7);
  CHECK_EQ(*at, 7);
  CHECK(++at == s.find(8));
  at = s.insert(s.find(8), 9);
  CHECK(--at == s.find(8));
  at = s.insert(s.begin(), 14); // wrong hint
  CHECK_EQ(*at, 14);
  at = s.insert(s.find(4), 4);
  CHECK(at == s.find(4));
  at = s.insert(s.begin(), 12); // existing key, wrong hint
  CHECK(at == s.find(12));
  at = s.insert(s.end(), -2);
  CHECK(at == s.begin());
  CHECK_STR(keys_of(s).c_str(), "-2 0 4 7 8 9 12 14 16");
  CHECK_EQ(s.size(), 9u);
  CHECK_SHAPE(s, true);
}

TEST(hint_just_after_the_new_place_costs_a_constant_number_of_comparisons) {
  unsigned calls = 0;
  counted_set s(assoc::counting_less(&calls, false));
  int items[1000];
  for (int k = 0; k < 1000; ++k)
    items[k] = 2 * k;
  s.insert(items, items + 1000); // sorted input: one comparison each after the first
  CHECK_EQ(calls, 999u);
  for (int k = 1; k < 2000; k += 2) {
    counted_set::iterator hint = s.find(k + 1);
    calls = 0;
    s.insert(hint, k);
    CHECK(calls <= 2);
  }
  CHECK_EQ(s.size(), 2000u);
  CHECK_SHAPE(s, true);
}

TEST(erase_by_key_position_and_range) {
  int_set s = multiples(0, 10, 1);
  CHECK_EQ(s.erase(3), 1u);
  CHECK_EQ(s.erase(3), 0u);
  s.erase(s.begin());
  s.erase(s.find(5), s.find(8));
  CHECK_STR(keys_of(s).c_str(), "1 2 4 8 9");
  CHECK_SHAPE(s, true);
  s.erase(s.begin(), s.end());
  CHECK(s.empty());
  CHECK_SHAPE(s, true);
}

TEST(iterators_stay_valid_when_other_elements_are_erased) {
  int_set s = multiples(0, 100, 1);
  int_set::iterator kept[100];
  for (int k = 0; k < 100; ++k)
    kept[k] = s.find(k);
  for (int k = 99; k >= 0; --k)
    if (k % 4 != 1)
      s.erase(kept[k]);
  for (int k = 1; k < 100; k += 4)
    CHECK_EQ(*kept[k], k);
  CHECK(s.begin() == kept[1]);
  CHECK(--s.end() == kept[97]);
  CHECK_SHAPE(s, true);
}

TEST(swap_trades_contents_and_comparators) {
  unsigned calls = 0;
  counted_set down(assoc::counting_less(&calls, true));
  down.insert(1);
  down.insert(2);
  counted_set up;
  up.insert(5);
  counted_set::iterator five = up.begin();
  up.swap(down);
  CHECK_STR(keys_of(up).c_str(), "2 1");
  CHECK(up.key_comp().descending && !down.key_comp().descending);
  CHECK(five == down.begin());
  swap(up, down);
  CHECK_STR(keys_of(up).c_str(), "5");
  std::swap(up, down);
  CHECK_STR(keys_of(up).c_str(), "2 1");
  CHECK_SHAPE(up, true);
}

TEST(clear_empties_and_the_set_stays_usable) {
  int_set s = multiples(0, 50, 1);
  s.clear();
  CHECK(s.empty());
  CHECK_SHAPE(s, true);
  s.insert(3);
  CHECK_STR(keys_of(s).c_str(), "3");
}

TEST(find_count_and_bounds) {
  int_set s = multiples(0, 20, 4); // 0 4 8 12 16
  CHECK_EQ(*s.find(8), 8);
  CHECK(s.find(9) == s.end());
  CHECK_EQ(s.count(12), 1u);
  CHECK_EQ(s.count(13), 0u);
  CHECK_EQ(*s.lower_bound(9), 12);
  CHECK_EQ(*s.lower_bound(12), 12);
  CHECK_EQ(*s.upper_bound(12), 16);
  CHECK(s.upper_bound(16) == s.end());
  CHECK(s.lower_bound(17) == s.end());
  std::pair<int_set::iterator, int_set::iterator> r = s.equal_range(4);
  CHECK(*r.first == 4 && *r.second == 8);
  r = s.equal_range(5);
  CHECK(r.first == r.second && *r.first == 8);
  r = s.equal_range(-1);
  CHECK(r.first == s.begin() && r.second == s.begin());
}

TEST(nodes_come_from_the_given_allocator) {
  typedef std::set<int, std::less<int>, assoc::counting_allocator<int> > counted;
  int before = assoc::allocation_counts::live_blocks;
  {
    counted s(std::less<int>(), assoc::counting_allocator<int>(5));
    CHECK_EQ(s.get_allocator().id, 5);
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 1);
    for (int k = 0; k < 8; ++k)
      s.insert(k % 5);
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 6);
    CHECK_EQ(assoc::allocation_counts::last_size, 4 * sizeof(void*) + sizeof(int));
  }
  CHECK_EQ(assoc::allocation_counts::live_blocks, before);
}

TEST(comparison_operators_follow_the_element_order) {
  assoc::generator g(5);
  for (int round = 0; round < 500; ++round) {
    int_set a, b;
    for (unsigned n = g.below(5); n > 0; --n)
      a.insert(static_cast<int>(g.below(5)));
    for (unsigned n = g.below(5); n > 0; --n)
      b.insert(static_cast<int>(g.below(5)));
    // As bit masks, the first element where they differ decides.
    unsigned mask_a = 0, mask_b = 0;
    for (int_set::iterator i = a.begin(); i != a.end(); ++i)
      mask_a |= 1u << *i;
    for (int_set::iterator i = b.begin(); i != b.end(); ++i)
      mask_b |= 1u << *i;
    int order = 0;
    unsigned differ = mask_a ^ mask_b;
    if (differ) {
      unsigned lowest = differ & (0u - differ);
      unsigned below = lowest - 1;
      bool a_has = (mask_a & lowest) != 0;
      // The one holding the lower element is first, unless the other has run out.
      bool a_more_after = (mask_a & ~below & ~lowest) != 0;
      bool b_more_after = (mask_b & ~below & ~lowest) != 0;
      if (a_has)
        order = b_more_after ? -1 : 1;
      else
        order = a_more_after ? 1 : -1;
    }
    CHECK_EQ(a == b, order == 0);
    CHECK_EQ(a != b, order != 0);
    CHECK_EQ(a < b, order < 0);
    CHECK_EQ(a > b, order > 0);
    CHECK_EQ(a <= b, order <= 0);
    CHECK_EQ(a >= b, order >= 0);
  }
}

TEST(generated_operations_match_a_model_and_keep_the_tree_valid) {
  enum { keys = 40 };
  bool present[keys] = {};
  int_set s;
  assoc::generator g(31);
  for (int step = 0; step < 2500; ++step) {
    int k = static_cast<int>(g.below(keys));
    switch (g.below(5)) {
    case 0:
      CHECK_EQ(s.insert(k).second, !present[k]);
      present[k] = true;
      break;
    case 1:
      CHECK_EQ(*s.insert(s.lower_bound(static_cast<int>(g.below(keys))), k), k);
      present[k] = true;
      break;
    case 2:
      CHECK_EQ(s.erase(k), present[k] ? 1u : 0u);
      present[k] = false;
      break;
    case 3: {
      int last = k + static_cast<int>(g.below(5));
      s.erase(s.lower_bound(k), s.lower_bound(last));
      for (int j = k; j < last && j < keys; ++j)
        present[j] = false;
      break;
    }
    default:
      CHECK_EQ(s.count(k), present[k] ? 1u : 0u);
      CHECK_EQ(s.find(k) != s.end(), present[k]);
    }
    CHECK_SHAPE(s, true);
    int_set::const_iterator i = s.begin();
    for (int j = 0; j < keys; ++j)
      if (present[j] && !CHECK(i != s.end() && *i++ == j))
        return;
    CHECK(i == s.end());
  }
}

} // namespace
