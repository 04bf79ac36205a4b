// std::vector<bool>: bits packed 32 to a word, growth counted in bits and rounded to words, the
// bit reference and iterators, and generated operations against a plain model.
#include "lorb_test.h"
#include "sequence_allocation_log.h"
#include "sequence_tracked.h"
#include <list>
#include <vector>

using seq::allocations;

typedef std::vector<bool> bits;

static unsigned words_for(unsigned n) { return (n + 31) / 32; }

TEST(bits_are_packed_thirty_two_to_a_word) {
  seq::mark();
  bits a(32, true), b(33, false), c(0, true), d(64);
  CHECK_EQ(allocations.logged, 3u);
  CHECK_EQ(allocations.sizes[0], 4u);
  CHECK_EQ(allocations.sizes[1], 8u);
  CHECK_EQ(allocations.sizes[2], 8u);
  CHECK_EQ(a.capacity(), 32u);
  CHECK_EQ(b.capacity(), 64u);
  CHECK_EQ(c.capacity(), 0u);
  CHECK_EQ(b.size(), 33u);
}

// The vectors' rule in bits (10 when empty, else twice the bits), rounded up to whole words.
TEST(pushing_grows_by_the_vector_rule_counted_in_bits_rounded_to_words) {
  bits v;
  unsigned expected_capacity = 0, growths = 0;
  seq::mark();
  for (unsigned i = 0; i < 600; ++i) {
    bool grows = i == expected_capacity;
    if (grows)
      expected_capacity = 32 * words_for(i == 0 ? 10 : 2 * i);
    v.push_back(i % 3 == 0);
    CHECK_EQ(v.capacity(), expected_capacity);
    if (grows) {
      CHECK_EQ(allocations.logged, growths + 1);
      CHECK_EQ(allocations.sizes[growths], expected_capacity / 8);
      ++growths;
    }
  }
  CHECK_EQ(allocations.logged, growths);
  CHECK_EQ(growths, 6u); // 32, 64, 128, 256, 512, 1024
  for (unsigned i = 0; i < 600; ++i)
    CHECK_EQ(bool(v[i]), i % 3 == 0);
}

TEST(the_reference_reads_writes_flips_and_swaps_one_bit) {
  bits v(40, false);
  v[33] = true;
  CHECK(v[33]);
  CHECK(!v[32]);
  CHECK(!v[34]);
  CHECK_EQ(~v[32], ~0); // the bool's complement, as an int
  CHECK_EQ(~v[33], ~1);
  v[0] = v[33];
  CHECK(v[0]);
  v[33].flip();
  CHECK(!v[33]);
  CHECK(v[0]);
  bits::swap(v[0], v[39]);
  CHECK(!v[0]);
  CHECK(v[39]);
  bits::reference r = v.front();
  r = true;
  CHECK(v[0]);
  v.back() = false;
  CHECK(!v[39]);
  const bits& c = v;
  CHECK(c.front());
  CHECK(!c.back());
  CHECK(c.at(0));
}

TEST(iterators_step_across_words_like_indexes) {
  bits v(100, false);
  for (unsigned i = 0; i < 100; i += 7)
    v[i] = true;
  bits::iterator first = v.begin();
  for (int i = 0; i <= 100; ++i) {
    bits::iterator it = first + i;
    CHECK_EQ(it - first, i);
    CHECK_EQ(v.end() - it, 100 - i);
    CHECK(it == v.end() - (100 - i));
    if (i < 100) {
      CHECK_EQ(bool(*it), i % 7 == 0);
      CHECK_EQ(bool(first[i]), i % 7 == 0);
    }
    CHECK_EQ(first<it, i> 0);
    CHECK_EQ(it <= first, i == 0);
    CHECK(it >= first);
    bits::iterator stepped = first;
    for (int k = 0; k < i; ++k)
      ++stepped;
    CHECK(stepped == it);
    for (int k = 0; k < i; ++k)
      stepped--;
    CHECK(stepped == first);
  }
  bits::const_iterator c = v.begin();
  CHECK(c == v.begin());
  c += 64;
  CHECK_EQ(c - v.begin(), 64);
  CHECK(*(c - 1) == true); // bit 63
  CHECK(*(c - 2) == false);
  CHECK(*(c - 2 + 1) == true);
  unsigned set = 0;
  for (bits::reverse_iterator r = v.rbegin(); r != v.rend(); ++r)
    set += *r;
  CHECK_EQ(set, 15u);
}

TEST(two_integers_are_a_count_and_a_value_and_ranges_are_copied) {
  bits v(5, 1);
  CHECK_EQ(v.size(), 5u);
  CHECK(v[4]);
  bool raw[] = {true, false, true, true, false, false, true};
  bits w(raw, raw + 7);
  CHECK_EQ(w.size(), 7u);
  CHECK_EQ(w.capacity(), 32u);
  std::list<bool> l(raw, raw + 7);
  bits x(l.begin(), l.end());
  CHECK(x == w);
  bits copy(w);
  CHECK(copy == w);
  w.assign(3, 0);
  CHECK_EQ(w.size(), 3u);
  CHECK(!w[0] && !w[2]);
  w.insert(w.begin() + 1, 2, 1);
  CHECK_EQ(w.size(), 5u);
  CHECK(w[1] && w[2] && !w[3]);
  w.assign(l.begin(), l.end());
  CHECK(w == x);
  w.assign(40, true);
  CHECK_EQ(w.capacity(), 64u);
  CHECK(w[39]);
}

TEST(reserve_takes_whole_words_and_checks_the_length) {
  bits v(3, true);
  seq::mark();
  v.reserve(100);
  CHECK_EQ(allocations.sizes[0], 16u);
  CHECK_EQ(v.capacity(), 128u);
  CHECK(v[2]);
  v.reserve(10);
  CHECK_EQ(v.capacity(), 128u);
  CHECK_EQ(v.max_size(), 0x7FFFFFFFu);
}

// A bool array of the same contents checked after every operation.
struct model {
  bool bit[400];
  unsigned size;
};

static bool same(const bits& v, const model& m) {
  if (v.size() != m.size)
    return false;
  for (unsigned i = 0; i < m.size; ++i)
    if (v[i] != m.bit[i])
      return false;
  return true;
}

static void open_model(model& m, unsigned at, unsigned n) {
  for (unsigned i = m.size; i > at; --i)
    m.bit[i - 1 + n] = m.bit[i - 1];
  m.size += n;
}

static void close_model(model& m, unsigned at, unsigned n) {
  for (unsigned i = at; i + n < m.size; ++i)
    m.bit[i] = m.bit[i + n];
  m.size -= n;
}

TEST(generated_operations_agree_with_a_bool_array) {
  seq::generator gen(11);
  bits v;
  model m;
  m.size = 0;
  for (int step = 0; step < 3000; ++step) {
    unsigned at = gen.below(m.size + 1);
    bool value = gen.below(2) != 0;
    switch (gen.below(10)) {
    case 0:
      if (m.size < 390) {
        v.insert(v.begin() + at, value);
        open_model(m, at, 1);
        m.bit[at] = value;
      }
      break;
    case 1: {
      unsigned n = gen.below(40);
      if (m.size + n < 390) {
        v.insert(v.begin() + at, n, value);
        open_model(m, at, n);
        for (unsigned i = 0; i < n; ++i)
          m.bit[at + i] = value;
      }
      break;
    }
    case 2: {
      bool raw[37];
      unsigned n = gen.below(37);
      for (unsigned i = 0; i < n; ++i)
        raw[i] = gen.below(2) != 0;
      if (m.size + n < 390) {
        v.insert(v.begin() + at, raw, raw + n);
        open_model(m, at, n);
        for (unsigned i = 0; i < n; ++i)
          m.bit[at + i] = raw[i];
      }
      break;
    }
    case 3:
      if (at < m.size) {
        CHECK(v.erase(v.begin() + at) == v.begin() + at);
        close_model(m, at, 1);
      }
      break;
    case 4: {
      unsigned n = gen.below(m.size - at + 1);
      v.erase(v.begin() + at, v.begin() + (at + n));
      close_model(m, at, n);
      break;
    }
    case 5:
      if (m.size < 390) {
        v.push_back(value);
        m.bit[m.size++] = value;
      } else {
        v.pop_back();
        --m.size;
      }
      break;
    case 6: {
      unsigned n = gen.below(120);
      v.resize(n, value);
      for (unsigned i = m.size; i < n; ++i)
        m.bit[i] = value;
      m.size = n;
      break;
    }
    case 7:
      v.flip();
      for (unsigned i = 0; i < m.size; ++i)
        m.bit[i] = !m.bit[i];
      break;
    case 8:
      if (at < m.size) {
        v.at(at) = value;
        m.bit[at] = value;
      }
      break;
    default: {
      bits copy(v);
      CHECK(copy == v);
      v.swap(copy);
      CHECK(!(copy < v) && !(copy > v) && copy <= v && copy >= v && !(copy != v));
      break;
    }
    }
    CHECK(same(v, m));
  }
}

TEST(comparisons_order_lexicographically) {
  seq::generator gen(5);
  for (int round = 0; round < 300; ++round) {
    bits a, b;
    unsigned na = gen.below(40), nb = gen.below(40);
    for (unsigned i = 0; i < na; ++i)
      a.push_back(gen.below(8) != 0);
    for (unsigned i = 0; i < nb; ++i)
      b.push_back(gen.below(8) != 0);
    int order = 0;
    for (unsigned i = 0; order == 0 && (i < na || i < nb); ++i)
      order = i == na ? -1 : i == nb ? 1 : a[i] == b[i] ? 0 : b[i] ? -1 : 1;
    CHECK_EQ(a == b, order == 0);
    CHECK_EQ(a != b, order != 0);
    CHECK_EQ(a < b, order < 0);
    CHECK_EQ(a > b, order > 0);
    CHECK_EQ(a <= b, order <= 0);
    CHECK_EQ(a >= b, order >= 0);
  }
}

TEST(every_word_buffer_is_given_back) {
  unsigned news = allocations.news, deletes = allocations.deletes;
  {
    bits v(70, true), w;
    w = v;
    w.insert(w.begin(), v.begin(), v.end());
    v.swap(w);
    std::swap(v, w);
    w.clear();
    CHECK(w.empty());
    CHECK_EQ(w.capacity(), 160u);
    CHECK(w.get_allocator() == std::allocator<bool>());
  }
  CHECK_EQ(allocations.news - news, allocations.deletes - deletes);
}

// What a dying child builds is static, so that it stays reachable, not leaked.
static void at_past_the_end() {
  static const bits v(33, true);
  v.at(33);
}
static void reserve_too_much() {
  static bits v;
  v.reserve(0x80000000u);
}

TEST(at_past_the_end_and_reserving_too_much_abort_with_their_messages) {
  EXPECT_ABORT(at_past_the_end(), "out_of_range: Out of range exception\n\n");
  EXPECT_ABORT(reserve_too_much(), "length_error: Length exception occurred\n");
}
