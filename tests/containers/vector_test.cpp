// std::vector: the growth rule and its buffers, insertion with and without room, the members
// that take exact room, element lifetimes, comparisons and the failure paths.
#include "lorb_test.h"
#include "sequence_allocation_log.h"
#include "sequence_tracked.h"
#include <list>
#include <locale>
#include <vector>

using seq::allocations;
using seq::tracked;
using seq::tracking;

// Pushes n elements and checks that the vector reallocates exactly at the rule's points: 10
// elements when empty, then twice the element count, each time one request of that many
// elements and the old buffer given back.
template <class _T> static void check_growth_rule(unsigned n, _T value) {
  std::vector<_T> v;
  unsigned expected_capacity = 0, expected_news = 0;
  seq::mark();
  unsigned news = allocations.news, deletes = allocations.deletes;
  for (unsigned i = 0; i < n; ++i) {
    if (v.size() == expected_capacity) {
      expected_capacity = expected_capacity == 0 ? 10 : 2 * expected_capacity;
      ++expected_news;
    }
    v.push_back(value);
    CHECK_EQ(v.capacity(), expected_capacity);
  }
  CHECK_EQ(allocations.news - news, expected_news);
  CHECK_EQ(allocations.deletes - deletes, expected_news - 1);
  unsigned capacity = 10;
  for (unsigned i = 0; i < expected_news; ++i, capacity *= 2)
    CHECK_EQ(allocations.sizes[i], capacity * sizeof(_T));
}

TEST(eleven_pushes_into_an_empty_long_vector_reallocate_twice_to_10_then_20) {
  std::vector<long> v;
  CHECK_EQ(v.capacity(), 0u);
  seq::mark();
  unsigned news = allocations.news, deletes = allocations.deletes;
  for (long i = 0; i < 10; ++i)
    v.push_back(i);
  CHECK_EQ(v.capacity(), 10u);
  CHECK_EQ(allocations.news - news, 1u);
  v.push_back(10);
  CHECK_EQ(v.capacity(), 20u);
  CHECK_EQ(allocations.news - news, 2u);
  CHECK_EQ(allocations.deletes - deletes, 1u);
  CHECK_EQ(allocations.sizes[0], 40u);
  CHECK_EQ(allocations.sizes[1], 80u);
  for (long i = 0; i < 11; ++i)
    CHECK_EQ(v[i], i);
}

TEST(growth_goes_10_20_40_80_and_on_for_every_library_instance) {
  check_growth_rule<long>(1300, 5L);
  check_growth_rule<char>(700, 'c');
  check_growth_rule<void*>(400, static_cast<void*>(0));
  check_growth_rule<std::locale::facet*>(90, static_cast<std::locale::facet*>(0));
  check_growth_rule<tracked>(45, tracked(3));
  check_growth_rule<double>(170, 0.5);
}

TEST(growth_doubles_the_element_count_not_the_capacity) {
  std::vector<long> v;
  v.reserve(15);
  CHECK_EQ(v.capacity(), 15u);
  for (long i = 0; i < 15; ++i)
    v.push_back(i);
  CHECK_EQ(v.capacity(), 15u);
  v.push_back(15);
  CHECK_EQ(v.capacity(), 30u);
  v.resize(3);
  v.reserve(31);
  v.resize(31);
  v.push_back(0);
  CHECK_EQ(v.capacity(), 62u);
}

TEST(insertion_with_room_shifts_the_tail_up_from_the_end_without_allocating) {
  std::vector<tracked> v;
  v.reserve(10);
  for (int i = 0; i < 5; ++i)
    v.push_back(tracked(i));
  const tracked* buffer = &v[0];
  unsigned news = allocations.news;
  seq::reset_tracking();
  std::vector<tracked>::iterator it = v.insert(v.begin() + 1, tracked(9));
  CHECK(it == v.begin() + 1);
  CHECK_EQ(allocations.news, news);
  CHECK(&v[0] == buffer);
  // The value is held first; the last element is copied into the free place, the others are
  // assigned one place up from the end down, then the value lands.
  const int expected[] = {9, 4, 3, 2, 1, 9};
  CHECK(seq::log_is(expected, 6));
  const int contents[] = {0, 9, 1, 2, 3, 4};
  CHECK_EQ(v.size(), 6u);
  for (unsigned i = 0; i < 6; ++i)
    CHECK_EQ(v[i].value, contents[i]);
}

TEST(insertion_without_room_copies_the_front_then_the_new_element_then_the_rest) {
  std::vector<tracked> v;
  for (int i = 0; i < 10; ++i)
    v.push_back(tracked(i));
  CHECK_EQ(v.capacity(), 10u);
  seq::reset_tracking();
  v.insert(v.begin() + 3, tracked(77));
  const int expected[] = {0, 1, 2, 77, 3, 4, 5, 6, 7, 8, 9};
  CHECK(seq::log_is(expected, 11));
  CHECK_EQ(tracking.destructions, 11); // the ten old elements and the argument
  CHECK_EQ(v.capacity(), 20u);
  for (unsigned i = 0; i < v.size(); ++i)
    CHECK_EQ(v[i].value, expected[i]);
}

TEST(an_element_of_the_vector_inserted_into_it_keeps_its_value) {
  std::vector<long> v;
  for (long i = 0; i < 10; ++i)
    v.push_back(i * 10);
  v.insert(v.begin(), v[9]); // grows
  CHECK_EQ(v[0], 90L);
  v.insert(v.begin() + 2, v[5]); // room left; the value moves
  CHECK_EQ(v[2], 40L);
  v.push_back(v[0]);
  CHECK_EQ(v.back(), 90L);
  v.insert(v.begin(), 3, v[1]);
  CHECK_EQ(v[0], 0L);
  CHECK_EQ(v[2], 0L);
  CHECK_EQ(v[3], 90L);
  v.assign(30, v[5]);
  CHECK_EQ(v.size(), 30u);
  CHECK_EQ(v[29], 40L);
}

TEST(inserting_many_grows_to_twice_the_size_or_to_what_is_needed) {
  std::vector<long> v;
  v.insert(v.end(), 3, 7L);
  CHECK_EQ(v.capacity(), 10u);
  v.insert(v.begin(), 7, 1L);
  CHECK_EQ(v.capacity(), 10u);
  v.insert(v.begin() + 5, 3, 2L);
  CHECK_EQ(v.capacity(), 20u);
  v.insert(v.end(), 30, 3L);
  CHECK_EQ(v.size(), 43u);
  CHECK_EQ(v.capacity(), 43u);
  long expected_front[] = {1, 1, 1, 1, 1, 2, 2, 2, 1, 1, 7, 7, 7, 3};
  for (unsigned i = 0; i < 14; ++i)
    CHECK_EQ(v[i], expected_front[i]);
  std::vector<long> empty;
  empty.insert(empty.begin(), 25, 4L);
  CHECK_EQ(empty.capacity(), 25u);
}

// Checks v against the model after each generated insert of several elements at once.
TEST(many_element_inserts_agree_with_a_model_through_every_branch) {
  seq::generator gen(7);
  for (int round = 0; round < 200; ++round) {
    std::vector<tracked> v;
    long model[64];
    unsigned n = gen.below(12);
    for (unsigned i = 0; i < n; ++i) {
      v.push_back(tracked(int(i)));
      model[i] = long(i);
    }
    if (gen.below(2))
      v.reserve(n + gen.below(16));
    unsigned at = gen.below(n + 1), count = gen.below(14);
    int value = 100 + round;
    std::list<tracked> source;
    for (unsigned i = 0; i < count; ++i)
      source.push_back(tracked(value + int(i)));
    if (round % 2)
      v.insert(v.begin() + at, count, tracked(value));
    else
      v.insert(v.begin() + at, source.begin(), source.end());
    for (unsigned i = n; i > at; --i)
      model[i - 1 + count] = model[i - 1];
    for (unsigned i = 0; i < count; ++i)
      model[at + i] = round % 2 ? value : value + long(i);
    CHECK_EQ(v.size(), n + count);
    for (unsigned i = 0; i < n + count; ++i)
      CHECK_EQ(long(v[i].value), model[i]);
    CHECK(v.capacity() >= v.size());
  }
  CHECK_EQ(tracking.live, 0);
}

TEST(constructors_take_exactly_the_room_they_fill) {
  seq::mark();
  std::vector<long> filled(7, 3L);
  CHECK_EQ(filled.capacity(), 7u);
  CHECK_EQ(allocations.sizes[0], 28u);
  std::vector<long> copy(filled);
  CHECK_EQ(copy.capacity(), 7u);
  filled.push_back(1); // capacity 14 now; a copy still takes the size
  std::vector<long> second(filled);
  CHECK_EQ(second.capacity(), 8u);
  std::list<long> l(5, 2L);
  std::vector<long> from_list(l.begin(), l.end());
  CHECK_EQ(from_list.capacity(), 5u);
  std::vector<long> defaults(4);
  CHECK_EQ(defaults.size(), 4u);
  CHECK_EQ(defaults[3], 0L);
  unsigned news = allocations.news;
  std::vector<long> none(0, 1L), empty;
  CHECK_EQ(allocations.news, news);
  CHECK(none.begin() == none.end());
  CHECK(empty.begin() == empty.end());
}

TEST(two_integers_given_to_the_range_constructor_are_a_count_and_a_value) {
  std::vector<long> v(5, 7);
  CHECK_EQ(v.size(), 5u);
  CHECK_EQ(v[4], 7L);
  std::vector<char> c(3, 65);
  CHECK_EQ(c.size(), 3u);
  CHECK_EQ(c[0], 'A');
  std::vector<int> i(4L, 2L);
  CHECK_EQ(i.size(), 4u);
  i.assign(2, 9);
  CHECK_EQ(i.size(), 2u);
  CHECK_EQ(i[1], 9);
  i.insert(i.begin(), 3, 1);
  CHECK_EQ(i.size(), 5u);
  CHECK_EQ(i[2], 1);
  CHECK_EQ(i[3], 9);
}

// An iterator that can only be read once, to reach the input-iterator paths.
struct single_pass {
  typedef std::input_iterator_tag iterator_category;
  typedef long value_type;
  typedef std::ptrdiff_t difference_type;
  typedef const long* pointer;
  typedef const long& reference;
  const long* at;
  const long& operator*() const { return *at; }
  single_pass& operator++() {
    ++at;
    return *this;
  }
  bool operator!=(const single_pass& other) const { return at != other.at; }
  bool operator==(const single_pass& other) const { return at == other.at; }
};

TEST(input_iterator_ranges_are_taken_one_element_at_a_time) {
  long values[25];
  for (int i = 0; i < 25; ++i)
    values[i] = i;
  single_pass first = {values}, last = {values + 25};
  std::vector<long> v(first, last);
  CHECK_EQ(v.size(), 25u);
  CHECK_EQ(v.capacity(), 40u);
  single_pass middle = {values + 20};
  v.insert(v.begin() + 1, middle, last);
  CHECK_EQ(v.size(), 30u);
  CHECK_EQ(v[1], 20L);
  CHECK_EQ(v[5], 24L);
  CHECK_EQ(v[6], 1L);
  single_pass three = {values + 3};
  v.assign(first, three);
  CHECK_EQ(v.size(), 3u);
  CHECK_EQ(v[2], 2L);
  v.assign(middle, last);
  CHECK_EQ(v.size(), 5u);
  CHECK_EQ(v[0], 20L);
  v.assign(first, last);
  CHECK_EQ(v.size(), 25u);
  CHECK_EQ(v[24], 24L);
}

TEST(assign_and_assignment_reuse_the_buffer_when_it_is_big_enough_else_take_exactly) {
  std::vector<long> v(20, 1L), small(5, 2L), big(30, 3L);
  const long* buffer = &v[0];
  v = small;
  CHECK(&v[0] == buffer);
  CHECK_EQ(v.size(), 5u);
  CHECK_EQ(v.capacity(), 20u);
  CHECK_EQ(v[4], 2L);
  v = big;
  CHECK_EQ(v.capacity(), 30u);
  CHECK_EQ(v[29], 3L);
  v = v;
  CHECK_EQ(v.size(), 30u);
  v.assign(10, 4L);
  CHECK_EQ(v.capacity(), 30u);
  v.assign(31, 5L);
  CHECK_EQ(v.capacity(), 31u);
  v.assign(big.begin(), big.begin() + 12);
  CHECK_EQ(v.size(), 12u);
  CHECK_EQ(v.capacity(), 31u);
  v.assign(small.begin(), small.end());
  v.assign(big.begin(), big.begin() + 20); // between size and capacity
  CHECK_EQ(v.size(), 20u);
  CHECK_EQ(v[19], 3L);
  v.assign(big.begin(), big.end());
  CHECK_EQ(v.capacity(), 31u);
  std::vector<long> exact;
  exact.assign(big.begin(), big.end());
  CHECK_EQ(exact.capacity(), 30u);
}

TEST(reserve_takes_exactly_the_request_and_never_shrinks) {
  std::vector<long> v(3, 8L);
  seq::mark();
  v.reserve(17);
  CHECK_EQ(v.capacity(), 17u);
  CHECK_EQ(allocations.sizes[0], 68u);
  CHECK_EQ(v[2], 8L);
  unsigned news = allocations.news;
  v.reserve(5);
  v.reserve(17);
  CHECK_EQ(allocations.news, news);
  CHECK_EQ(v.capacity(), 17u);
}

TEST(resize_grows_by_the_many_element_rule_and_shrinks_in_place) {
  std::vector<long> v;
  v.resize(3);
  CHECK_EQ(v.capacity(), 10u);
  CHECK_EQ(v[2], 0L);
  v.resize(12, 6L); // twice 3 is less than the 12 needed
  CHECK_EQ(v.capacity(), 12u);
  CHECK_EQ(v[11], 6L);
  CHECK_EQ(v[2], 0L);
  v.resize(2);
  CHECK_EQ(v.size(), 2u);
  CHECK_EQ(v.capacity(), 12u);
}

TEST(erase_moves_the_tail_down_and_destroys_the_last_places) {
  std::vector<tracked> v;
  for (int i = 0; i < 8; ++i)
    v.push_back(tracked(i));
  seq::reset_tracking();
  std::vector<tracked>::iterator it = v.erase(v.begin() + 2);
  CHECK(it == v.begin() + 2);
  CHECK_EQ(tracking.assignments, 5);
  CHECK_EQ(tracking.destructions, 1);
  it = v.erase(v.begin() + 1, v.begin() + 4);
  CHECK(it == v.begin() + 1);
  const int expected[] = {0, 5, 6, 7};
  CHECK_EQ(v.size(), 4u);
  for (unsigned i = 0; i < 4; ++i)
    CHECK_EQ(v[i].value, expected[i]);
  CHECK_EQ(tracking.destructions, 4);
  CHECK(v.erase(v.end(), v.end()) == v.end());
  v.pop_back();
  CHECK_EQ(v.back().value, 6);
  v.clear();
  CHECK(v.empty());
  CHECK_EQ(v.capacity(), 10u);
  CHECK_EQ(tracking.live, 0);
}

TEST(swap_exchanges_the_buffers) {
  std::vector<long> a(3, 1L), b(12, 2L);
  const long* a_buffer = &a[0];
  const long* b_buffer = &b[0];
  a.swap(b);
  CHECK(&a[0] == b_buffer);
  CHECK(&b[0] == a_buffer);
  std::swap(a, b);
  CHECK(&a[0] == a_buffer);
  CHECK_EQ(a.size(), 3u);
  CHECK_EQ(b.capacity(), 12u);
}

TEST(access_iterators_and_the_allocator) {
  std::vector<long> v;
  for (long i = 1; i <= 5; ++i)
    v.push_back(i);
  const std::vector<long>& c = v;
  CHECK_EQ(c.front(), 1L);
  CHECK_EQ(c.back(), 5L);
  CHECK_EQ(c.at(2), 3L);
  CHECK_EQ(c[4], 5L);
  v.at(0) = 10;
  v.front() += 1;
  CHECK_EQ(v[0], 11L);
  long reversed[5], n = 0;
  for (std::vector<long>::const_reverse_iterator it = c.rbegin(); it != c.rend(); ++it)
    reversed[n++] = *it;
  CHECK_EQ(n, 5L);
  CHECK_EQ(reversed[0], 5L);
  CHECK_EQ(reversed[4], 11L);
  CHECK_EQ(c.end() - c.begin(), 5);
  CHECK_EQ(v.max_size(), 0xFFFFFFFFu / 4);
  std::allocator<long> alloc = v.get_allocator();
  long* p = alloc.allocate(1);
  alloc.deallocate(p, 1);
  CHECK_EQ(sizeof(v), 3 * sizeof(long*));
}

// Lexicographic order over generated pairs, against the obvious element loop.
TEST(comparisons_order_lexicographically) {
  seq::generator gen(3);
  for (int round = 0; round < 300; ++round) {
    std::vector<long> a, b;
    unsigned na = gen.below(5), nb = gen.below(5);
    for (unsigned i = 0; i < na; ++i)
      a.push_back(long(gen.below(3)));
    for (unsigned i = 0; i < nb; ++i)
      b.push_back(long(gen.below(3)));
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

TEST(every_element_made_is_destroyed_and_every_buffer_given_back) {
  unsigned news = allocations.news, deletes = allocations.deletes;
  {
    std::vector<tracked> v(5, tracked(1));
    v.insert(v.begin() + 2, 12, tracked(2));
    std::vector<tracked> w(v);
    w.resize(3);
    v = w;
    v.reserve(100);
    v.erase(v.begin());
  }
  CHECK_EQ(tracking.live, 0);
  CHECK_EQ(allocations.news - news, allocations.deletes - deletes);
}

// What a dying child builds is static, so that it stays reachable, not leaked.
static void at_past_the_end(const std::vector<long>& v) { v.at(v.size()); }
static void mutable_at_past_the_end() {
  static std::vector<char> v(2, 'x');
  v.at(2) = 'y';
}

TEST(at_past_the_end_prints_the_container_message_and_aborts) {
  std::vector<long> v(3, 1L), empty;
  EXPECT_ABORT(at_past_the_end(v), "out_of_range: Out of range exception\n\n");
  EXPECT_ABORT(at_past_the_end(empty), "out_of_range: Out of range exception\n\n");
  EXPECT_ABORT(mutable_at_past_the_end(), "out_of_range: Out of range exception\n\n");
}

static void reserve_too_much() {
  static std::vector<long> v;
  v.reserve(v.max_size() + 1);
}
static void construct_too_many() { static std::vector<long> v(0x40000000u, 1L); }
static void insert_too_many() {
  static std::vector<char> v(5, 'a');
  v.insert(v.begin(), 0xFFFFFFFEu, 'b');
}

TEST(lengths_past_max_size_are_length_errors) {
  EXPECT_ABORT(reserve_too_much(), "length_error: Length exception occurred\n");
  EXPECT_ABORT(construct_too_many(), "length_error: Length exception occurred\n");
  EXPECT_ABORT(insert_too_many(), "length_error: Length exception occurred\n");
}
