// std::multimap: every member, with the order of equal keys (insertion order, and where a hint
// puts them), equal_range and erase by key over runs of equals, and a long generated sequence
// checked against a model with the tree's shape checked after every step.
#include "associative_support.h"
#include "lorb_test.h"
#include <map>
#include <string>

namespace {

typedef std::multimap<int, int> int_multimap;
typedef std::multimap<int, int, assoc::counting_less> counted_multimap;
typedef std::pair<const int, int> item;

// "key:value key:value ..." in iteration order.
template <class _Map> std::string items_of(const _Map& m) {
  std::string text;
  char buffer[32];
  for (typename _Map::const_iterator i = m.begin(); i != m.end(); ++i) {
    snprintf(buffer, sizeof buffer, text.empty() ? "%d:%d" : " %d:%d", i->first, i->second);
    text += buffer;
  }
  return text;
}

// Keys 0..n-1, each `copies` times, the values numbering the copies.
int_multimap runs(int n, int copies) {
  int_multimap m;
  for (int c = 0; c < copies; ++c)
    for (int k = 0; k < n; ++k)
      m.insert(std::make_pair(k, c));
  return m;
}

TEST(default_multimap_is_empty) {
  int_multimap m;
  CHECK(m.empty());
  CHECK_EQ(m.size(), 0u);
  CHECK(m.begin() == m.end());
  CHECK_SHAPE(m, false);
}

TEST(equal_keys_keep_their_insertion_order) {
  int_multimap m;
  m.insert(std::make_pair(2, 0));
  m.insert(std::make_pair(1, 0));
  m.insert(std::make_pair(2, 1));
  m.insert(std::make_pair(1, 1));
  m.insert(std::make_pair(2, 2));
  CHECK_STR(items_of(m).c_str(), "1:0 1:1 2:0 2:1 2:2");
  int_multimap::iterator at = m.insert(std::make_pair(1, 2));
  CHECK_EQ(at->second, 2);
  CHECK_EQ((++at)->first, 2);
  CHECK_SHAPE(m, false);
}

TEST(range_constructor_keeps_every_element) {
  std::pair<int, int> items[] = {std::make_pair(5, 0), std::make_pair(1, 0), std::make_pair(5, 1),
                                 std::make_pair(3, 0), std::make_pair(1, 1)};
  int_multimap m(items, items + 5);
  CHECK_STR(items_of(m).c_str(), "1:0 1:1 3:0 5:0 5:1");
  unsigned calls = 0;
  counted_multimap down(items, items + 5, assoc::counting_less(&calls, true));
  CHECK_STR(items_of(down).c_str(), "5:0 5:1 3:0 1:0 1:1");
  CHECK(down.key_comp().descending);
  CHECK(down.value_comp()(std::make_pair(5, 0), std::make_pair(3, 9)));
  CHECK_SHAPE(down, false);
}

TEST(copy_and_assignment_are_deep) {
  int_multimap m = runs(6, 3);
  int_multimap copy(m);
  CHECK(copy == m);
  CHECK_SHAPE(copy, false);
  copy.erase(2);
  CHECK_EQ(m.count(2), 3u);
  int_multimap other;
  other.insert(std::make_pair(9, 9));
  other = m;
  CHECK_STR(items_of(other).c_str(), items_of(m).c_str());
  other = other;
  CHECK_EQ(other.size(), 18u);
  CHECK_SHAPE(other, false);
}

TEST(reverse_iteration_sees_equals_backwards) {
  int_multimap m = runs(3, 2);
  std::string text;
  char buffer[16];
  for (int_multimap::const_reverse_iterator r = m.rbegin(); r != m.rend(); ++r) {
    snprintf(buffer, sizeof buffer, "%d:%d ", r->first, r->second);
    text += buffer;
  }
  CHECK_STR(text.c_str(), "2:1 2:0 1:1 1:0 0:1 0:0 ");
  int_multimap::reverse_iterator r = m.rbegin();
  r->second = 7;
  CHECK_EQ((--m.end())->second, 7);
}

TEST(iterator_converts_to_const_iterator) {
  int_multimap m = runs(2, 2);
  int_multimap::iterator i = m.begin();
  int_multimap::const_iterator c(i);
  CHECK(c == i && i == c);
  c++;
  CHECK(i != c && c != i);
}

TEST(max_size_is_the_node_allocator_limit) {
  CHECK_EQ(int_multimap().max_size(), size_t(-1) / (4 * sizeof(void*) + sizeof(item)));
  std::multimap<int, int, std::less<int>, assoc::counting_allocator<item> > counted;
  CHECK_EQ(counted.max_size(), 1000u);
}

TEST(equal_range_and_count_cover_every_equal_key) {
  int_multimap m = runs(5, 4);
  const int_multimap& c = m;
  for (int k = 0; k < 5; ++k) {
    std::pair<int_multimap::iterator, int_multimap::iterator> r = m.equal_range(k);
    CHECK_EQ(assoc::distance(r.first, r.second), 4u);
    int copy = 0;
    for (int_multimap::iterator i = r.first; i != r.second; ++i, ++copy) {
      CHECK_EQ(i->first, k);
      CHECK_EQ(i->second, copy);
    }
    CHECK_EQ(m.count(k), 4u);
    CHECK(r.first == m.lower_bound(k));
    CHECK(r.second == m.upper_bound(k));
    CHECK(c.find(k) == c.lower_bound(k));
  }
  std::pair<int_multimap::const_iterator, int_multimap::const_iterator> none = c.equal_range(9);
  CHECK(none.first == c.end() && none.second == c.end());
  CHECK_EQ(m.count(-1), 0u);
  CHECK(m.find(-1) == m.end());
  CHECK_EQ(c.upper_bound(-1)->first, 0);
}

TEST(erase_by_key_removes_all_equals_and_returns_the_count) {
  int_multimap m = runs(5, 3);
  CHECK_EQ(m.erase(2), 3u);
  CHECK_EQ(m.erase(2), 0u);
  CHECK_EQ(m.size(), 12u);
  CHECK_SHAPE(m, false);
  CHECK_EQ(m.erase(0), 3u);
  CHECK_EQ(m.erase(4), 3u);
  CHECK_STR(items_of(m).c_str(), "1:0 1:1 1:2 3:0 3:1 3:2");
  CHECK_SHAPE(m, false);
}

TEST(erase_by_position_and_range) {
  int_multimap m = runs(4, 2);
  m.erase(++m.find(1));
  CHECK_STR(items_of(m).c_str(), "0:0 0:1 1:0 2:0 2:1 3:0 3:1");
  m.erase(m.upper_bound(0), m.lower_bound(3));
  CHECK_STR(items_of(m).c_str(), "0:0 0:1 3:0 3:1");
  m.erase(m.begin(), m.end());
  CHECK(m.empty());
  CHECK_SHAPE(m, false);
}

TEST(iterators_to_equals_stay_valid_when_their_neighbours_go) {
  int_multimap m = runs(8, 4);
  int_multimap::iterator second_of_five = ++m.lower_bound(5);
  int_multimap::iterator last_of_five = --m.upper_bound(5);
  m.erase(m.lower_bound(5));
  m.erase(4);
  m.erase(6);
  CHECK_EQ(second_of_five->second, 1);
  CHECK_EQ(last_of_five->second, 3);
  CHECK(m.lower_bound(5) == second_of_five);
  CHECK_SHAPE(m, false);
}

// Where a hint puts an equal key: just before the hint when it fits there, else just after it,
// else at the end of its equals nearest to the hint.
TEST(hint_puts_equal_keys_as_close_before_the_hint_as_the_order_allows) {
  int_multimap m = runs(3, 3); // 0:0 0:1 0:2 1:0 1:1 1:2 2:0 2:1 2:2
  int_multimap::iterator middle_one = ++m.lower_bound(1);
  int_multimap::iterator at = m.insert(middle_one, std::make_pair(1, 10));
  CHECK(++at == middle_one);
  at = m.insert(m.lower_bound(2), std::make_pair(1, 11)); // before 2:0, after the last 1
  CHECK(++at == m.lower_bound(2));
  at = m.insert(m.lower_bound(1), std::make_pair(1, 12)); // before the first 1
  CHECK(at == m.lower_bound(1));
  at = m.insert(m.begin(), std::make_pair(2, 13)); // key after the hint: the first 2
  CHECK(at == m.lower_bound(2));
  at = m.insert(m.end(), std::make_pair(0, 14)); // key before the hint: the last 0
  CHECK(++at == m.upper_bound(0));
  at = m.insert(m.end(), std::make_pair(2, 15));
  CHECK(++at == m.end());
  at = m.insert(m.begin(), std::make_pair(0, 16));
  CHECK(at == m.begin());
  int_multimap::iterator last_zero = --m.upper_bound(0);
  at = m.insert(last_zero, std::make_pair(1, 17)); // fits just after the hint
  CHECK(at == m.lower_bound(1));
  CHECK(--at == last_zero);
  CHECK_STR(items_of(m).c_str(),
            "0:16 0:0 0:1 0:2 0:14 1:17 1:12 1:0 1:10 1:1 1:2 1:11 2:13 2:0 2:1 2:2 2:15");
  CHECK_SHAPE(m, false);
}

TEST(hint_at_the_right_place_costs_a_constant_number_of_comparisons) {
  unsigned calls = 0;
  counted_multimap m(assoc::counting_less(&calls, false));
  for (int k = 0; k < 1000; ++k)
    m.insert(m.end(), std::make_pair(k / 4, k));
  CHECK_EQ(calls, 999u);
  for (int k = 0; k < 250; ++k) {
    counted_multimap::iterator hint = m.upper_bound(k);
    calls = 0;
    m.insert(hint, std::make_pair(k, -1));
    CHECK(calls <= 2);
  }
  CHECK_SHAPE(m, false);
  CHECK_EQ(m.count(100), 5u);
  CHECK_EQ((--m.upper_bound(100))->second, -1);
}

TEST(insert_range_appends_after_equals) {
  int_multimap m = runs(3, 1);
  int_multimap more = runs(4, 1);
  m.insert(more.begin(), more.end());
  std::pair<int, int> items[] = {std::make_pair(1, 5), std::make_pair(1, 6)};
  m.insert(items, items + 2);
  CHECK_STR(items_of(m).c_str(), "0:0 0:0 1:0 1:0 1:5 1:6 2:0 2:0 3:0");
  CHECK_SHAPE(m, false);
}

TEST(swap_and_clear) {
  unsigned calls = 0;
  counted_multimap down(assoc::counting_less(&calls, true));
  down.insert(std::make_pair(1, 1));
  down.insert(std::make_pair(2, 2));
  counted_multimap up;
  up.insert(std::make_pair(7, 7));
  counted_multimap::iterator seven = up.begin();
  up.swap(down);
  CHECK(up.key_comp().descending);
  CHECK(!down.key_comp().descending);
  CHECK(seven == down.begin());
  CHECK_STR(items_of(up).c_str(), "2:2 1:1");
  std::swap(up, down);
  CHECK_STR(items_of(up).c_str(), "7:7");
  up.clear();
  CHECK(up.empty());
  CHECK_SHAPE(up, false);
  up.insert(std::make_pair(3, 3));
  CHECK_EQ(up.size(), 1u);
}

TEST(get_allocator_returns_the_given_one) {
  typedef assoc::counting_allocator<item> counting;
  std::multimap<int, int, std::less<int>, counting> m(std::less<int>(), counting(3));
  CHECK_EQ(m.get_allocator().id, 3);
  int before = assoc::allocation_counts::live_blocks;
  m.insert(std::make_pair(1, 1));
  m.insert(std::make_pair(1, 1));
  CHECK_EQ(assoc::allocation_counts::live_blocks, before + 2);
  m.erase(1);
  CHECK_EQ(assoc::allocation_counts::live_blocks, before);
}

TEST(comparison_operators_follow_the_element_order) {
  int_multimap a = runs(3, 2), b = runs(3, 2);
  CHECK(a == b && !(a != b) && !(a < b) && !(a > b) && a <= b && a >= b);
  b.insert(std::make_pair(2, 5));
  CHECK(a != b && a < b && b > a && a <= b && !(a >= b));
  a.insert(std::make_pair(2, 9)); // 2:9 against 2:5 at the first difference
  CHECK(a > b && b < a && !(a == b));
  int_multimap empty;
  CHECK(empty < a && !(a < empty) && empty != a);
}

// Every modifier on a generated sequence next to a model of (key, serial) lists, where equal
// keys keep the serials in order, with the tree's shape checked after each step.
TEST(generated_operations_match_a_model_and_keep_the_tree_valid) {
  enum { keys = 12, room = 64 };
  int model[keys][room];
  unsigned counts[keys] = {};
  int_multimap m;
  assoc::generator g(99);
  int serial = 0;
  for (int step = 0; step < 2500; ++step) {
    int k = static_cast<int>(g.below(keys));
    switch (g.below(6)) {
    case 0:
    case 1:
      if (counts[k] < room) {
        m.insert(std::make_pair(k, serial));
        model[k][counts[k]++] = serial++;
      }
      break;
    case 2:
      if (counts[k] < room) { // a hint just past the key's equals: appended to them
        m.insert(m.upper_bound(k), std::make_pair(k, serial));
        model[k][counts[k]++] = serial++;
      }
      break;
    case 3:
      CHECK_EQ(m.erase(k), counts[k]);
      counts[k] = 0;
      break;
    case 4:
      if (counts[k]) { // the first of the key's equals
        m.erase(m.find(k));
        --counts[k];
        for (unsigned j = 0; j < counts[k]; ++j)
          model[k][j] = model[k][j + 1];
      }
      break;
    default: {
      unsigned smaller = 0;
      for (int j = 0; j < k; ++j)
        smaller += counts[j];
      CHECK_EQ(m.count(k), counts[k]);
      CHECK_EQ(assoc::distance(m.begin(), m.lower_bound(k)), smaller);
      CHECK_EQ(assoc::distance(m.begin(), m.upper_bound(k)), smaller + counts[k]);
      CHECK_EQ(m.find(k) == m.end(), counts[k] == 0);
    }
    }
    CHECK_SHAPE(m, false);
    int_multimap::const_iterator i = m.begin();
    for (int key = 0; key < keys; ++key)
      for (unsigned j = 0; j < counts[key]; ++j, ++i)
        if (!CHECK(i != m.end() && i->first == key && i->second == model[key][j]))
          return;
    CHECK(i == m.end());
  }
}

} // namespace

// A key that converts from anything: erasing by iterator must not be mistaken for erasing by key.
struct permissive_key {
  permissive_key(int i) : id(i) {}
  template <class _Any> permissive_key(const _Any&) : id(-1) {}
  int id;
};
static bool operator<(const permissive_key& a, const permissive_key& b) { return a.id < b.id; }

TEST(erasing_by_iterator_works_for_keys_that_convert_from_anything) {
  std::map<permissive_key, int> unique_keys;
  unique_keys.insert(std::make_pair(permissive_key(1), 10));
  unique_keys.insert(std::make_pair(permissive_key(2), 20));
  unique_keys.erase(unique_keys.begin());
  CHECK_EQ(unique_keys.size(), 1u);
  CHECK_EQ(unique_keys.begin()->first.id, 2);
  std::multimap<permissive_key, int> equal_keys;
  equal_keys.insert(std::make_pair(permissive_key(1), 10));
  equal_keys.insert(std::make_pair(permissive_key(1), 11));
  equal_keys.erase(equal_keys.begin());
  CHECK_EQ(equal_keys.size(), 1u);
  CHECK_EQ(equal_keys.begin()->second, 11);
}
