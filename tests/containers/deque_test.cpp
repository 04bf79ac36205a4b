// std::deque: blocks of 20 elements, the map's growth 2, 6, 14, 30 at either end, blocks given
// back, the shorter side moving, the random-access iterator, and generated operations against a
// plain model.
#include "lorb_test.h"
#include "sequence_allocation_log.h"
#include "sequence_tracked.h"
#include <deque>
#include <list>

using seq::allocations;
using seq::tracked;
using seq::tracking;

// Where the blocks sit in the map, by the rule: the blocks in use fill the slots first..last; a
// block beyond either end of the map needs a new map of twice the slots plus 2, which holds the
// blocks in its middle.
struct map_model {
  unsigned slots, first, last;
  unsigned replaced; // the slot count of the last replacement, 0 when the last step kept the map
};

static void replace_map(map_model& m) {
  unsigned used = m.last - m.first + 1;
  m.slots = 2 * m.slots + 2;
  m.first = (m.slots - used) / 2;
  m.last = m.first + used - 1;
  m.replaced = m.slots;
}
static void block_at_back(map_model& m) {
  m.replaced = 0;
  if (m.last + 1 == m.slots)
    replace_map(m);
  ++m.last;
}
static void block_at_front(map_model& m) {
  m.replaced = 0;
  if (m.first == 0)
    replace_map(m);
  --m.first;
}

// Pushes n elements at one end of an empty deque and checks every request against the rule.
// Growing at the back, the block in slot 0 fills from its beginning and push k (from 1) that
// fills a block brings the next one: k % 20 == 0. Growing at the front, the block in slot 1
// fills down from one place before its end: 19 elements, then a new block at every 20th push.
template <class _T> static void check_one_ended_growth(bool at_front, unsigned n) {
  std::deque<_T> d;
  map_model m = {2, at_front ? 1u : 0u, at_front ? 1u : 0u, 0};
  unsigned maps_seen = 0;
  for (unsigned k = 1; k <= n; ++k) {
    seq::mark();
    if (at_front)
      d.push_front(_T(k));
    else
      d.push_back(_T(k));
    if (k == 1) {
      CHECK_EQ(allocations.logged, 2u);
      CHECK_EQ(allocations.sizes[0], 2 * sizeof(_T*)); // the first map: 2 slots
      CHECK_EQ(allocations.sizes[1], 20 * sizeof(_T));
      continue;
    }
    if (k % 20 != 0) {
      CHECK_EQ(allocations.logged, 0u);
      continue;
    }
    if (at_front)
      block_at_front(m);
    else
      block_at_back(m);
    unsigned requests = m.replaced ? 2 : 1;
    CHECK_EQ(allocations.logged, requests);
    if (m.replaced) {
      CHECK_EQ(allocations.sizes[0], m.replaced * sizeof(_T*));
      ++maps_seen;
    }
    CHECK_EQ(allocations.sizes[requests - 1], 20 * sizeof(_T));
  }
  CHECK(maps_seen >= 3); // 6, 14 and 30 slots
  CHECK_EQ(d.size(), n);
  for (unsigned i = 0; i < n; ++i)
    CHECK(d[i] == _T(at_front ? n - i : i + 1));
}

TEST(an_empty_deque_holds_no_memory) {
  unsigned news = allocations.news;
  std::deque<int> d;
  const std::deque<int>& c = d;
  CHECK(d.begin() == d.end());
  CHECK(c.begin() == c.end());
  CHECK_EQ(d.end() - d.begin(), 0);
  CHECK_EQ(d.size(), 0u);
  CHECK(d.empty());
  CHECK(d.rbegin() == d.rend());
  std::deque<int> copy(d);
  copy = d;
  CHECK_EQ(allocations.news, news);
}

TEST(blocks_of_20_elements_and_a_map_of_2_6_14_30_slots_growing_at_the_back) {
  check_one_ended_growth<int>(false, 400);
  check_one_ended_growth<char>(false, 400);
}

TEST(blocks_of_20_elements_and_a_map_of_2_6_14_30_slots_growing_at_the_front) {
  check_one_ended_growth<int>(true, 400);
  check_one_ended_growth<char>(true, 400);
}

// The 400th push fills the block in the map's last slot of 30: the fifth map has 62 slots.
TEST(the_map_sizes_in_bytes_are_8_24_56_120_248_for_int) {
  std::deque<int> d;
  seq::mark();
  for (int i = 0; i < 400; ++i)
    d.push_back(i);
  unsigned maps[8], n = 0;
  for (unsigned i = 0; i < allocations.logged; ++i)
    if (allocations.sizes[i] != 80 && n < 8)
      maps[n++] = unsigned(allocations.sizes[i]);
  CHECK_EQ(n, 5u);
  CHECK_EQ(maps[0], 8u);
  CHECK_EQ(maps[1], 24u);
  CHECK_EQ(maps[2], 56u);
  CHECK_EQ(maps[3], 120u);
  CHECK_EQ(maps[4], 248u);
  CHECK_EQ(seq::requests_of(80), 400u / 20 + 1);
}

// 40 pushes at the back leave blocks in slots 2, 3, 4 of a 6-slot map, the first block starting
// at its beginning: the first push at the front takes slot 1 at once, the 21st slot 0, and the
// 41st needs a map of 14 slots.
TEST(growth_at_the_front_uses_the_free_slots_a_back_growth_left) {
  std::deque<int> d;
  for (int i = 0; i < 40; ++i)
    d.push_back(i);
  map_model m = {6, 2, 4, 0};
  for (int j = 1; j <= 100; ++j) {
    seq::mark();
    d.push_front(-j);
    if ((j - 1) % 20 != 0) {
      CHECK_EQ(allocations.logged, 0u);
      continue;
    }
    block_at_front(m);
    CHECK_EQ(allocations.logged, m.replaced ? 2u : 1u);
    if (m.replaced)
      CHECK_EQ(allocations.sizes[0], m.replaced * 4u);
    if (j == 41)
      CHECK_EQ(m.replaced, 14u);
    else
      CHECK_EQ(m.replaced, 0u);
  }
  CHECK_EQ(d.front(), -100);
  CHECK_EQ(d.back(), 39);
  CHECK_EQ(d.size(), 140u);
}

TEST(popping_gives_back_each_block_it_empties_and_clear_gives_back_everything) {
  std::deque<int> d;
  for (int i = 0; i < 100; ++i)
    d.push_back(i); // blocks: 100 / 20 + 1 = 6
  unsigned deletes = allocations.deletes;
  for (int i = 0; i < 20; ++i)
    d.pop_front();
  CHECK_EQ(allocations.deletes - deletes, 1u);
  CHECK_EQ(d.front(), 20);
  d.pop_back(); // the empty back block goes
  CHECK_EQ(allocations.deletes - deletes, 2u);
  CHECK_EQ(d.back(), 98);
  for (int i = 0; i < 79; ++i)
    d.pop_back();
  CHECK(d.empty());
  CHECK_EQ(allocations.deletes - deletes, 5u); // one block and the map are left
  unsigned news = allocations.news;
  d.push_back(1);
  CHECK_EQ(allocations.news, news);
  d.clear();
  CHECK_EQ(allocations.deletes - deletes, 7u);
  CHECK(d.begin() == d.end());
  d.push_front(3);
  CHECK_EQ(allocations.news - news, 2u); // a fresh map and block
  CHECK_EQ(d.front(), 3);
}

// Elements on the longer side keep their addresses; the shorter side moves by the count.
TEST(inserting_and_erasing_inside_move_the_shorter_side) {
  std::deque<int> d;
  for (int i = 0; i < 100; ++i)
    d.push_back(i);
  const int* before[100];
  for (int i = 0; i < 100; ++i)
    before[i] = &d[i];
  d.insert(d.begin() + 10, 3, -1);
  for (int i = 10; i < 100; ++i)
    CHECK(&d[i + 3] == before[i]);
  CHECK(&d[0] != before[0]);
  for (int i = 0; i < 100; ++i)
    before[i] = &d[i];
  d.insert(d.begin() + 95, -2);
  for (int i = 0; i < 95; ++i)
    CHECK(&d[i] == before[i]);
  for (int i = 0; i < 100; ++i)
    before[i] = &d[i];
  d.erase(d.begin() + 5, d.begin() + 8);
  for (int i = 8; i < 100; ++i)
    CHECK(&d[i - 3] == before[i]);
  for (int i = 0; i < 100; ++i)
    before[i] = &d[i];
  d.erase(d.begin() + 90);
  for (int i = 0; i < 90; ++i)
    CHECK(&d[i] == before[i]);
  int expected_front[] = {0, 1, 2, 3, 4, 8, 9, -1, -1, -1, 10};
  for (int i = 0; i < 11; ++i)
    CHECK_EQ(d[i], expected_front[i]);
}

TEST(on_a_tie_the_back_side_moves) {
  std::deque<int> d;
  for (int i = 0; i < 10; ++i)
    d.push_back(i);
  const int* before[11];
  for (int i = 0; i < 10; ++i)
    before[i] = &d[i];
  d.insert(d.begin() + 5, -1); // 5 before, 5 after
  for (int i = 0; i < 5; ++i)
    CHECK(&d[i] == before[i]);
  CHECK_EQ(d[5], -1);
  CHECK_EQ(d[10], 9);
  for (int i = 0; i < 11; ++i)
    before[i] = &d[i];
  d.erase(d.begin() + 5); // 5 before, 5 after
  for (int i = 0; i < 5; ++i)
    CHECK(&d[i] == before[i]);
  CHECK_EQ(d[5], 5);
}

TEST(iterators_step_and_measure_across_blocks_like_indexes) {
  std::deque<int> d;
  for (int i = 0; i < 75; ++i)
    d.push_front(-1 - i);
  for (int i = 0; i < 75; ++i)
    d.push_back(i);
  seq::generator gen(9);
  std::deque<int>::iterator first = d.begin();
  for (int round = 0; round < 2000; ++round) {
    int i = int(gen.below(151)), j = int(gen.below(151));
    std::deque<int>::iterator a = first + i, b = first + j;
    CHECK_EQ(a - b, i - j);
    CHECK_EQ(a < b, i < j);
    CHECK_EQ(a >= b, i >= j);
    CHECK(a + (j - i) == b);
    CHECK(b - (j - i) == a);
    std::deque<int>::const_iterator c = a;
    c += j - i;
    CHECK(c == b);
    if (i < 150)
      CHECK_EQ(*a, i - 75);
    if (j < 150)
      CHECK_EQ(first[j], j - 75);
  }
  int expected = -75;
  for (std::deque<int>::iterator it = d.begin(); it != d.end(); it++, ++expected)
    CHECK_EQ(*it, expected);
  for (std::deque<int>::reverse_iterator it = d.rbegin(); it != d.rend(); ++it)
    CHECK_EQ(*it, --expected);
  CHECK_EQ(d.end() - d.begin(), 150);
}

// An array model checked after every generated operation; tracked elements count lifetimes.
static int model[700];
static unsigned model_size = 0;

static void open_model(unsigned at, unsigned n) {
  for (unsigned i = model_size; i > at; --i)
    model[i - 1 + n] = model[i - 1];
  model_size += n;
}
static void close_model(unsigned at, unsigned n) {
  for (unsigned i = at; i + n < model_size; ++i)
    model[i] = model[i + n];
  model_size -= n;
}
static bool same(const std::deque<tracked>& d) {
  if (d.size() != model_size)
    return false;
  std::deque<tracked>::const_iterator it = d.begin();
  for (unsigned i = 0; i < model_size; ++i, ++it)
    if (it->value != model[i] || d[i].value != model[i])
      return false;
  return it == d.end();
}

TEST(generated_operations_agree_with_an_array) {
  seq::generator gen(21);
  unsigned news = allocations.news, deletes = allocations.deletes;
  {
    std::deque<tracked> d;
    for (int step = 0; step < 4000; ++step) {
      unsigned at = gen.below(model_size + 1);
      int value = int(gen.below(1000));
      bool room = model_size < 600;
      switch (gen.below(12)) {
      case 0:
      case 1:
        if (room) {
          d.push_front(tracked(value));
          open_model(0, 1);
          model[0] = value;
        }
        break;
      case 2:
        if (room) {
          d.push_back(tracked(value));
          model[model_size++] = value;
        }
        break;
      case 3:
        if (model_size) {
          d.pop_front();
          close_model(0, 1);
        }
        break;
      case 4:
        if (model_size) {
          d.pop_back();
          --model_size;
        }
        break;
      case 5:
        if (room) {
          CHECK_EQ(d.insert(d.begin() + at, tracked(value))->value, value);
          open_model(at, 1);
          model[at] = value;
        }
        break;
      case 6: {
        unsigned n = gen.below(45);
        if (room) {
          d.insert(d.begin() + at, n, tracked(value));
          open_model(at, n);
          for (unsigned i = 0; i < n; ++i)
            model[at + i] = value;
        }
        break;
      }
      case 7: {
        unsigned n = gen.below(30);
        std::list<tracked> source;
        for (unsigned i = 0; i < n; ++i)
          source.push_back(tracked(value + int(i)));
        if (room) {
          d.insert(d.begin() + at, source.begin(), source.end());
          open_model(at, n);
          for (unsigned i = 0; i < n; ++i)
            model[at + i] = value + int(i);
        }
        break;
      }
      case 8:
        if (at < model_size) {
          std::deque<tracked>::iterator next = d.erase(d.begin() + at);
          CHECK_EQ(next - d.begin(), int(at));
          close_model(at, 1);
        }
        break;
      case 9: {
        unsigned n = gen.below(model_size - at + 1);
        d.erase(d.begin() + at, d.begin() + (at + n));
        close_model(at, n);
        break;
      }
      case 10: {
        unsigned n = gen.below(300);
        d.resize(n, tracked(value));
        for (unsigned i = model_size; i < n; ++i)
          model[i] = value;
        model_size = n;
        break;
      }
      default: {
        std::deque<tracked> copy(d);
        CHECK(copy == d);
        d.swap(copy);
        if (model_size) {
          bool changes = model[at % model_size] != value;
          d.at(at % model_size) = tracked(value);
          model[at % model_size] = value;
          CHECK_EQ(copy != d, changes);
        }
        break;
      }
      }
      CHECK(same(d));
    }
    CHECK_EQ(tracking.live, int(model_size));
  }
  CHECK_EQ(tracking.live, 0);
  CHECK_EQ(allocations.news - news, allocations.deletes - deletes);
}

TEST(constructors_and_assignment_build_by_pushing_at_the_back) {
  std::deque<int> a(5, 7);
  CHECK_EQ(a.size(), 5u);
  CHECK_EQ(a[4], 7);
  std::deque<char> b(3, 'x');
  CHECK_EQ(b.back(), 'x');
  int raw[] = {4, 5, 6};
  std::deque<int> c(raw, raw + 3);
  CHECK_EQ(c[2], 6);
  std::deque<int> d(c);
  CHECK(d == c);
  seq::mark();
  std::deque<int> e(25, 1);
  CHECK_EQ(allocations.logged, 3u); // the map and 25 / 20 + 1 blocks
  e = c;
  CHECK(e == c);
  e.assign(30, 2);
  CHECK_EQ(e.size(), 30u);
  CHECK_EQ(e[29], 2);
  e.assign(2, 3);
  CHECK_EQ(e.size(), 2u);
  CHECK_EQ(e[1], 3);
  e.assign(raw, raw + 3);
  CHECK(e == c);
  e.assign(4, 9); // two integers: count and value
  CHECK_EQ(e.size(), 4u);
  e.insert(e.begin() + 1, 2, 0);
  CHECK_EQ(e.size(), 6u);
  CHECK_EQ(e[2], 0);
  CHECK_EQ(e[3], 9);
  e.resize(1);
  CHECK_EQ(e.size(), 1u);
  CHECK(e.get_allocator() == std::allocator<int>());
  CHECK_EQ(e.max_size(), 0xFFFFFFFFu / 4);
  std::swap(e, c);
  CHECK_EQ(c.size(), 1u);
  CHECK_EQ(e.size(), 3u);
}

TEST(comparisons_order_lexicographically) {
  seq::generator gen(4);
  for (int round = 0; round < 300; ++round) {
    std::deque<char> a, b;
    unsigned na = gen.below(45), nb = gen.below(45);
    for (unsigned i = 0; i < na; ++i)
      a.push_back(char('a' + gen.below(2)));
    for (unsigned i = 0; i < nb; ++i)
      b.push_front(char('a' + gen.below(2)));
    int order = 0;
    for (unsigned i = 0; order == 0 && (i < na || i < nb); ++i)
      order = i == na ? -1 : i == nb ? 1 : a[i] < b[i] ? -1 : b[i] < a[i] ? 1 : 0;
    CHECK_EQ(a == b, order == 0);
    CHECK_EQ(a != b, order != 0);
    CHECK_EQ(a < b, order < 0);
    CHECK_EQ(a > b, order > 0);
    CHECK_EQ(a <= b, order <= 0);
    CHECK_EQ(a >= b, order >= 0);
  }
}

// What a dying child builds is static, so that it stays reachable, not leaked.
static void at_past_the_end(const std::deque<int>& d) { d.at(d.size()); }
static void mutable_at_past_the_end() {
  static std::deque<char> d;
  d.at(0) = 'a';
}

static void construct_too_many() { std::deque<int> d(0x40000000u, 1); }

TEST(a_length_past_max_size_is_a_length_error) {
  EXPECT_ABORT(construct_too_many(), "length_error: Length exception occurred\n");
}

TEST(at_past_the_end_prints_the_container_message_and_aborts) {
  std::deque<int> d(45, 1);
  EXPECT_ABORT(at_past_the_end(d), "out_of_range: Out of range exception\n\n");
  EXPECT_ABORT(mutable_at_past_the_end(), "out_of_range: Out of range exception\n\n");
  CHECK_EQ(d.at(44), 1);
}
