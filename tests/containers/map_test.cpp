// std::map: every member, the tree's shape after each step of a long generated sequence checked
// against a model, hint positions and their cost, iterator stability, comparators with state and
// the allocator the nodes come from.
#include "associative_support.h"
#include "lorb_test.h"
#include <map>
#include <string>

namespace {

typedef std::map<int, int> int_map;
typedef std::map<int, int, assoc::counting_less> counted_map;
using assoc::tracked;

int_map squares(int first, int last, int step = 1) {
  int_map m;
  for (int k = first; k < last; k += step)
    m[k] = k * k;
  return m;
}

// The keys in iteration order, as "k k k".
template <class _Map> std::string keys_of(const _Map& m) {
  std::string text;
  char buffer[16];
  for (typename _Map::const_iterator i = m.begin(); i != m.end(); ++i) {
    snprintf(buffer, sizeof buffer, text.empty() ? "%d" : " %d", i->first);
    text += buffer;
  }
  return text;
}

TEST(default_map_is_empty) {
  int_map m;
  CHECK(m.empty());
  CHECK_EQ(m.size(), 0u);
  CHECK(m.begin() == m.end());
  CHECK(m.rbegin() == m.rend());
  CHECK_SHAPE(m, true);
}

TEST(empty_map_holds_no_value_in_its_header) {
  tracked::live = 0;
  tracked::defaults = 0;
  {
    std::map<int, tracked> m;
    CHECK_EQ(tracked::live, 0);
    m.insert(std::make_pair(1, tracked(5)));
    CHECK_EQ(tracked::live, 1);
  }
  CHECK_EQ(tracked::live, 0);
  CHECK_EQ(tracked::defaults, 0);
}

TEST(comparator_given_at_construction_orders_and_is_kept) {
  unsigned calls = 0;
  counted_map m(assoc::counting_less(&calls, true));
  for (int k = 0; k < 10; ++k)
    m[k] = k;
  CHECK_STR(keys_of(m).c_str(), "9 8 7 6 5 4 3 2 1 0");
  CHECK(calls > 0);
  CHECK(m.key_comp().descending);
  CHECK(m.key_comp().calls == &calls);
  CHECK_SHAPE(m, true);
}

TEST(range_constructor_keeps_the_first_of_equal_keys) {
  std::pair<int, int> items[] = {std::make_pair(5, 50), std::make_pair(1, 10),
                                 std::make_pair(5, 99), std::make_pair(3, 30),
                                 std::make_pair(1, 77)};
  int_map m(items, items + 5);
  CHECK_EQ(m.size(), 3u);
  CHECK_STR(keys_of(m).c_str(), "1 3 5");
  CHECK_EQ(m[1], 10);
  CHECK_EQ(m[5], 50);
  CHECK_SHAPE(m, true);
}

TEST(range_constructor_with_comparator_and_allocator) {
  unsigned calls = 0;
  int_map source = squares(0, 6);
  std::map<int, int, assoc::counting_less> m(source.begin(), source.end(),
                                             assoc::counting_less(&calls, true),
                                             std::allocator<std::pair<const int, int> >());
  CHECK_STR(keys_of(m).c_str(), "5 4 3 2 1 0");
  CHECK(m.key_comp().descending);
  std::allocator<std::pair<const int, int> > standard;
  CHECK(m.get_allocator() == standard);
}

TEST(copy_is_deep_and_keeps_order_and_comparator) {
  unsigned calls = 0;
  counted_map m(assoc::counting_less(&calls, true));
  for (int k = 0; k < 20; ++k)
    m[k] = k * 3;
  counted_map copy(m);
  CHECK_EQ(copy.size(), 20u);
  CHECK(copy == m);
  CHECK(copy.key_comp().descending);
  CHECK_SHAPE(copy, true);
  copy[4] = -1;
  copy.erase(7);
  CHECK_EQ(m[4], 12);
  CHECK_EQ(m.count(7), 1u);
  CHECK(&*copy.begin() != &*m.begin());
}

TEST(assignment_replaces_contents_and_comparator) {
  unsigned calls = 0;
  counted_map down(assoc::counting_less(&calls, true));
  counted_map up;
  for (int k = 0; k < 8; ++k) {
    down[k] = k;
    up[k + 100] = k;
  }
  up = down;
  CHECK_STR(keys_of(up).c_str(), "7 6 5 4 3 2 1 0");
  CHECK(up.key_comp().descending);
  CHECK_SHAPE(up, true);
  up = up;
  CHECK_EQ(up.size(), 8u);
  counted_map empty;
  up = empty;
  CHECK(up.empty());
  CHECK_SHAPE(up, true);
}

TEST(iteration_forward_backward_and_reverse) {
  int_map m = squares(0, 50, 7);
  CHECK_STR(keys_of(m).c_str(), "0 7 14 21 28 35 42 49");
  int expected = 49;
  for (int_map::reverse_iterator r = m.rbegin(); r != m.rend(); ++r, expected -= 7)
    CHECK_EQ(r->first, expected);
  CHECK_EQ(expected, -7);
  int_map::iterator last = m.end();
  --last;
  CHECK_EQ(last->first, 49);
  int_map::iterator i = m.begin();
  i++;
  CHECK_EQ((i--)->first, 7);
  CHECK_EQ(i->first, 0);
  const int_map& c = m;
  int_map::const_reverse_iterator cr = c.rbegin();
  CHECK_EQ(cr->second, 49 * 49);
  CHECK(c.rend() == int_map::const_reverse_iterator(c.begin()));
}

TEST(mapped_values_change_through_iterators) {
  int_map m = squares(0, 5);
  for (int_map::iterator i = m.begin(); i != m.end(); ++i)
    i->second += 1;
  (*m.begin()).second = 100;
  CHECK_EQ(m[0], 100);
  CHECK_EQ(m[4], 17);
}

TEST(const_iterator_converts_from_iterator_and_compares_both_ways) {
  int_map m = squares(0, 3);
  int_map::iterator i = m.find(1);
  int_map::const_iterator c = i;
  CHECK(c == i);
  CHECK(i == c);
  CHECK(!(c != i));
  ++c;
  CHECK(c != i);
  CHECK(i != c);
  int_map::const_reverse_iterator r = m.rbegin();
  CHECK_EQ(r->first, 2);
  int_map::iterator defaulted;
  int_map::iterator copied(defaulted);
  CHECK(copied == defaulted);
}

TEST(max_size_is_the_node_allocator_limit) {
  // A node is three links, the colour (padded to a word) and the pair.
  CHECK_EQ(int_map().max_size(), size_t(-1) / (4 * sizeof(void*) + sizeof(std::pair<int, int>)));
  std::map<int, int, std::less<int>, assoc::counting_allocator<std::pair<const int, int> > > m;
  CHECK_EQ(m.max_size(), 1000u);
}

TEST(subscript_adds_a_default_value_only_for_a_missing_key) {
  tracked::live = 0;
  tracked::defaults = 0;
  {
    std::map<int, tracked> m;
    CHECK_EQ(m[5].value, -1);
    CHECK_EQ(tracked::defaults, 1);
    CHECK_EQ(m.size(), 1u);
    m[5].value = 8;
    CHECK_EQ(m[5].value, 8);
    CHECK_EQ(tracked::defaults, 1);
    CHECK_EQ(tracked::live, 1);
    std::map<std::string, int> words;
    CHECK_EQ(words["absent"], 0);
    ++words["x"];
    ++words["x"];
    CHECK_EQ(words["x"], 2);
    CHECK_EQ(words.size(), 2u);
  }
  CHECK_EQ(tracked::live, 0);
}

TEST(subscript_returns_the_stored_value_by_reference) {
  int_map m;
  int& slot = m[3];
  slot = 9;
  m[1] = 1;
  m[7] = 7;
  CHECK_EQ(&slot, &m.find(3)->second);
  CHECK_EQ(m[3], 9);
  CHECK_SHAPE(m, true);
}

TEST(insert_reports_new_and_existing_keys) {
  int_map m;
  std::pair<int_map::iterator, bool> r = m.insert(std::make_pair(4, 40));
  CHECK(r.second);
  CHECK_EQ(r.first->first, 4);
  r = m.insert(std::make_pair(4, 99));
  CHECK(!r.second);
  CHECK_EQ(r.first->second, 40);
  CHECK(r.first == m.begin());
  r = m.insert(std::make_pair(2, 20));
  CHECK(r.second);
  CHECK(r.first == m.begin());
  CHECK_EQ(m.size(), 2u);
}

TEST(insert_does_not_allocate_for_an_existing_key) {
  typedef assoc::counting_allocator<std::pair<const int, int> > counting;
  std::map<int, int, std::less<int>, counting> m;
  m[1] = 1;
  m[2] = 2;
  int before = assoc::allocation_counts::requests;
  m.insert(std::make_pair(2, 5));
  m.insert(m.begin(), std::make_pair(1, 5));
  m[1] = 3;
  CHECK_EQ(assoc::allocation_counts::requests, before);
}

TEST(hint_insert_places_keys_and_returns_them) {
  int_map m = squares(0, 20, 2);
  int_map::iterator at = m.insert(m.find(6), std::make_pair(5, -5));
  CHECK_EQ(at->first, 5);
  CHECK_EQ((++at)->first, 6);
  at = m.insert(m.find(6), std::make_pair(7, -7)); // right after the hint
  CHECK_EQ(at->first, 7);
  at = m.insert(m.begin(), std::make_pair(17, -17)); // a wrong hint still works
  CHECK_EQ(at->first, 17);
  at = m.insert(m.end(), std::make_pair(-1, -1));
  CHECK(at == m.begin());
  at = m.insert(m.end(), std::make_pair(100, 1));
  CHECK_EQ((--m.end())->first, 100);
  at = m.insert(m.find(8), std::make_pair(8, 1234)); // existing key at the hint
  CHECK_EQ(at->second, 64);
  at = m.insert(m.find(2), std::make_pair(8, 1234)); // existing key elsewhere
  CHECK_EQ(at->second, 64);
  CHECK_STR(keys_of(m).c_str(), "-1 0 2 4 5 6 7 8 10 12 14 16 17 18 100");
  CHECK_SHAPE(m, true);
}

TEST(hint_just_after_the_new_place_costs_a_constant_number_of_comparisons) {
  unsigned calls = 0;
  counted_map m(assoc::counting_less(&calls, false));
  for (int k = 0; k < 2000; k += 2)
    m.insert(m.end(), std::make_pair(k, k));
  calls = 0;
  for (int k = 1; k < 2000; k += 2) {
    counted_map::iterator hint = m.find(k + 1);
    unsigned before = calls;
    m.insert(hint, std::make_pair(k, k));
    CHECK(calls - before <= 2);
    calls = 0;
  }
  CHECK_EQ(m.size(), 2000u);
  CHECK_SHAPE(m, true);
  // Ascending at the end and descending at the front: one comparison each.
  counted_map ends(assoc::counting_less(&calls, false));
  ends[0] = 0;
  calls = 0;
  for (int k = 1; k < 500; ++k) {
    ends.insert(ends.end(), std::make_pair(k, k));
    ends.insert(ends.begin(), std::make_pair(-k, k));
  }
  CHECK_EQ(calls, 998u);
  CHECK_SHAPE(ends, true);
}

TEST(insert_range_skips_existing_keys) {
  int_map m = squares(0, 10, 3);
  int_map more = squares(0, 10, 2);
  more[3] = -3;
  m.insert(more.begin(), more.end());
  CHECK_STR(keys_of(m).c_str(), "0 2 3 4 6 8 9");
  CHECK_EQ(m[3], 9);
  CHECK_SHAPE(m, true);
}

TEST(erase_by_key_returns_how_many_went) {
  int_map m = squares(0, 10);
  CHECK_EQ(m.erase(4), 1u);
  CHECK_EQ(m.erase(4), 0u);
  CHECK_EQ(m.erase(-1), 0u);
  CHECK_EQ(m.size(), 9u);
  CHECK_STR(keys_of(m).c_str(), "0 1 2 3 5 6 7 8 9");
  CHECK_SHAPE(m, true);
}

TEST(erase_by_position_and_range) {
  int_map m = squares(0, 10);
  m.erase(m.begin());
  m.erase(--m.end());
  CHECK_STR(keys_of(m).c_str(), "1 2 3 4 5 6 7 8");
  m.erase(m.find(3), m.find(6));
  CHECK_STR(keys_of(m).c_str(), "1 2 6 7 8");
  m.erase(m.find(7), m.find(7));
  CHECK_EQ(m.size(), 5u);
  CHECK_SHAPE(m, true);
  m.erase(m.begin(), m.end());
  CHECK(m.empty());
  CHECK_SHAPE(m, true);
  m[1] = 1;
  CHECK_EQ(m.size(), 1u);
}

TEST(iterators_stay_valid_when_other_elements_are_erased) {
  int_map m = squares(0, 64);
  int_map::iterator kept[64];
  for (int k = 0; k < 64; ++k)
    kept[k] = m.find(k);
  const int* addresses[64];
  for (int k = 0; k < 64; ++k)
    addresses[k] = &kept[k]->second;
  for (int k = 0; k < 64; ++k)
    if (k % 3 != 0)
      m.erase(kept[k]);
  for (int k = 0; k < 64; k += 3) {
    CHECK_EQ(kept[k]->first, k);
    CHECK_EQ(kept[k]->second, k * k);
    CHECK_EQ(&kept[k]->second, addresses[k]);
  }
  int_map::iterator next = kept[0];
  for (int k = 3; k < 64; k += 3)
    CHECK(++next == kept[k]);
  CHECK(++next == m.end());
  CHECK_SHAPE(m, true);
}

TEST(swap_trades_contents_comparators_and_keeps_iterators) {
  unsigned calls = 0;
  counted_map down(assoc::counting_less(&calls, true));
  counted_map up;
  for (int k = 0; k < 5; ++k)
    down[k] = k;
  up[42] = 1;
  counted_map::iterator into_down = down.find(3);
  down.swap(up);
  CHECK_STR(keys_of(up).c_str(), "4 3 2 1 0");
  CHECK_STR(keys_of(down).c_str(), "42");
  CHECK(up.key_comp().descending);
  CHECK(!down.key_comp().descending);
  CHECK(into_down == up.find(3));
  std::swap(up, down);
  CHECK_STR(keys_of(down).c_str(), "4 3 2 1 0");
  CHECK_SHAPE(down, true);
  CHECK_SHAPE(up, true);
  counted_map empty;
  swap(empty, down);
  CHECK(down.empty());
  CHECK_EQ(empty.size(), 5u);
  down[1] = 1;
  CHECK_SHAPE(down, true);
}

TEST(clear_empties_and_the_map_stays_usable) {
  tracked::live = 0;
  {
    std::map<int, tracked> m;
    for (int k = 0; k < 30; ++k)
      m[k] = tracked(k);
    m.clear();
    CHECK(m.empty());
    CHECK_EQ(tracked::live, 0);
    CHECK_SHAPE(m, true);
    m[2] = tracked(2);
    CHECK_EQ(m.begin()->second.value, 2);
  }
  CHECK_EQ(tracked::live, 0);
}

TEST(value_comp_compares_pairs_by_key_only) {
  unsigned calls = 0;
  counted_map m(assoc::counting_less(&calls, true));
  counted_map::value_compare before = m.value_comp();
  CHECK(before(std::make_pair(5, 0), std::make_pair(4, 9)));
  CHECK(!before(std::make_pair(4, 0), std::make_pair(4, 9)));
  CHECK(!before(std::make_pair(4, 0), std::make_pair(5, 0)));
  CHECK_EQ(calls, 3u);
  int_map::value_compare plain = int_map().value_comp();
  CHECK(plain(std::make_pair(1, 9), std::make_pair(2, 0)));
}

TEST(find_count_and_bounds) {
  int_map m = squares(0, 20, 4); // 0 4 8 12 16
  const int_map& c = m;
  CHECK_EQ(m.find(8)->second, 64);
  CHECK(m.find(9) == m.end());
  CHECK(c.find(16) == --c.end());
  CHECK(c.find(-3) == c.end());
  CHECK_EQ(m.count(12), 1u);
  CHECK_EQ(m.count(13), 0u);
  CHECK_EQ(m.lower_bound(8)->first, 8);
  CHECK_EQ(m.lower_bound(9)->first, 12);
  CHECK(m.lower_bound(17) == m.end());
  CHECK_EQ(c.lower_bound(-5)->first, 0);
  CHECK_EQ(m.upper_bound(8)->first, 12);
  CHECK_EQ(c.upper_bound(7)->first, 8);
  CHECK(m.upper_bound(16) == m.end());
  std::pair<int_map::iterator, int_map::iterator> r = m.equal_range(4);
  CHECK_EQ(r.first->first, 4);
  CHECK_EQ(r.second->first, 8);
  std::pair<int_map::const_iterator, int_map::const_iterator> cr = c.equal_range(5);
  CHECK(cr.first == cr.second);
  CHECK_EQ(cr.first->first, 8);
  cr = c.equal_range(100);
  CHECK(cr.first == c.end() && cr.second == c.end());
}

TEST(nodes_come_from_the_given_allocator_rebound_to_the_node) {
  typedef assoc::counting_allocator<std::pair<const int, int> > counting;
  typedef std::map<int, int, std::less<int>, counting> counted;
  int before = assoc::allocation_counts::live_blocks;
  {
    counted m(std::less<int>(), counting(7));
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 1); // the header
    CHECK_EQ(m.get_allocator().id, 7);
    for (int k = 0; k < 10; ++k)
      m[k] = k;
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 11);
    CHECK_EQ(assoc::allocation_counts::last_size,
             4 * sizeof(void*) + sizeof(std::pair<const int, int>));
    counted copy(m);
    CHECK_EQ(copy.get_allocator().id, 7);
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 22);
    m.erase(3);
    m.erase(m.begin(), m.find(6));
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 16);
    m.clear();
    CHECK_EQ(assoc::allocation_counts::live_blocks, before + 12);
  }
  CHECK_EQ(assoc::allocation_counts::live_blocks, before);
}

// The relations of two maps against the lexicographical order of their (key, value) lists,
// computed by hand from two small generated maps.
TEST(comparison_operators_follow_the_element_order) {
  assoc::generator g(11);
  for (int round = 0; round < 400; ++round) {
    int_map a, b;
    int keys_a[4], values_a[4], keys_b[4], values_b[4];
    unsigned na = g.below(4), nb = g.below(4);
    for (unsigned i = 0; i < na; ++i)
      a[static_cast<int>(g.below(4))] = static_cast<int>(g.below(2));
    for (unsigned i = 0; i < nb; ++i)
      b[static_cast<int>(g.below(4))] = static_cast<int>(g.below(2));
    unsigned sa = 0, sb = 0;
    for (int_map::iterator i = a.begin(); i != a.end(); ++i, ++sa) {
      keys_a[sa] = i->first;
      values_a[sa] = i->second;
    }
    for (int_map::iterator i = b.begin(); i != b.end(); ++i, ++sb) {
      keys_b[sb] = i->first;
      values_b[sb] = i->second;
    }
    int order = 0; // -1: a first, 1: b first
    for (unsigned i = 0; order == 0 && i < sa && i < sb; ++i) {
      if (keys_a[i] != keys_b[i])
        order = keys_a[i] < keys_b[i] ? -1 : 1;
      else if (values_a[i] != values_b[i])
        order = values_a[i] < values_b[i] ? -1 : 1;
    }
    if (order == 0 && sa != sb)
      order = sa < sb ? -1 : 1;
    CHECK_EQ(a == b, order == 0);
    CHECK_EQ(a != b, order != 0);
    CHECK_EQ(a < b, order < 0);
    CHECK_EQ(a > b, order > 0);
    CHECK_EQ(a <= b, order <= 0);
    CHECK_EQ(a >= b, order >= 0);
  }
}

// A long generated sequence of every modifier next to an array model, with the tree's shape
// checked after each step.
TEST(generated_operations_match_a_model_and_keep_the_tree_valid) {
  enum { keys = 48 };
  int model[keys];
  bool present[keys] = {};
  int_map m;
  assoc::generator g(2024);
  for (int step = 0; step < 3000; ++step) {
    int k = static_cast<int>(g.below(keys));
    int v = static_cast<int>(g.below(1000));
    switch (g.below(7)) {
    case 0:
    case 1: {
      bool added = m.insert(std::make_pair(k, v)).second;
      CHECK_EQ(added, !present[k]);
      if (!present[k])
        model[k] = v;
      present[k] = true;
      break;
    }
    case 2:
      m[k] = v;
      model[k] = v;
      present[k] = true;
      break;
    case 3: {
      int_map::iterator hint = m.lower_bound(static_cast<int>(g.below(keys)));
      int_map::iterator at = m.insert(hint, std::make_pair(k, v));
      CHECK_EQ(at->first, k);
      if (!present[k])
        model[k] = v;
      present[k] = true;
      break;
    }
    case 4:
      CHECK_EQ(m.erase(k), present[k] ? 1u : 0u);
      present[k] = false;
      break;
    case 5: {
      int_map::iterator at = m.lower_bound(k);
      if (at != m.end()) {
        present[at->first] = false;
        m.erase(at);
      }
      break;
    }
    default: {
      int last = k + static_cast<int>(g.below(6));
      m.erase(m.lower_bound(k), m.lower_bound(last));
      for (int j = k; j < last && j < keys; ++j)
        present[j] = false;
    }
    }
    CHECK_SHAPE(m, true);
    int_map::const_iterator i = m.begin();
    for (int j = 0; j < keys; ++j) {
      if (!present[j])
        continue;
      if (!CHECK(i != m.end() && i->first == j && i->second == model[j]))
        return;
      ++i;
    }
    CHECK(i == m.end());
  }
}

} // namespace
