// valarray's own members over generated arrays, each checked against a plain loop: constructors,
// assignments, compound assignments, unary operators, sum/min/max, shift, cshift, apply, resize,
// empty arrays, and an element type that counts its constructions and destructions.
#include "lorb_test.h"
#include "valarray_test_support.h"
#include <cstdlib>
#include <valarray>

namespace {

bool same(const std::valarray<int>& v, const int* expected, std::size_t n) {
  if (v.size() != n)
    return false;
  for (std::size_t i = 0; i < n; ++i)
    if (v[i] != expected[i])
      return false;
  return true;
}

} // namespace

TEST(constructors_make_the_length_and_elements_asked_for) {
  generator gen(11);
  for (int round = 0; round < 50; ++round) {
    std::size_t n = gen.below(20);
    int raw[20];
    for (std::size_t i = 0; i < n; ++i)
      raw[i] = gen.between(-100, 100);
    std::valarray<int> zeros(n);
    std::valarray<int> filled(raw[0], n);
    std::valarray<int> copied(raw, n);
    std::valarray<int> copy(copied);
    CHECK_EQ(zeros.size(), n);
    CHECK_EQ(filled.size(), n);
    for (std::size_t i = 0; i < n; ++i) {
      CHECK_EQ(zeros[i], 0);
      CHECK_EQ(filled[i], raw[0]);
    }
    CHECK(same(copied, raw, n));
    CHECK(same(copy, raw, n));
  }
  std::valarray<double> none;
  CHECK_EQ(none.size(), 0u);
}

TEST(assignment_takes_the_right_sides_length_and_elements) {
  generator gen(12);
  for (int round = 0; round < 50; ++round) {
    std::valarray<int> left = random_ints(gen, gen.below(12), -50, 50);
    std::valarray<int> right = random_ints(gen, gen.below(12), -50, 50);
    int expected[12];
    for (std::size_t i = 0; i < right.size(); ++i)
      expected[i] = right[i];
    std::valarray<int>& result = (left = right);
    CHECK(&result == &left);
    CHECK(same(left, expected, right.size()));
    left = left; // itself: unchanged
    CHECK(same(left, expected, right.size()));
    int value = gen.between(-9, 9);
    left = value;
    for (std::size_t i = 0; i < left.size(); ++i)
      expected[i] = value;
    CHECK(same(left, expected, right.size()));
  }
}

TEST(subscript_reads_and_writes_the_element) {
  std::valarray<int> v(5);
  for (int i = 0; i < 5; ++i)
    v[std::size_t(i)] = i * i;
  const std::valarray<int>& constant = v;
  for (int i = 0; i < 5; ++i)
    CHECK_EQ(constant[std::size_t(i)], i * i);
}

// Each compound assignment against the loop it stands for, with an array and with a value.
#define CHECK_COMPOUND(op, right_low, right_high)                                                  \
  do {                                                                                             \
    generator gen(13);                                                                             \
    for (int round = 0; round < 40; ++round) {                                                     \
      std::size_t n = gen.below(16);                                                               \
      std::valarray<int> left = random_ints(gen, n, 0, 1000);                                      \
      std::valarray<int> right = random_ints(gen, n, right_low, right_high);                       \
      int expected[16];                                                                            \
      for (std::size_t i = 0; i < n; ++i) {                                                        \
        expected[i] = left[i];                                                                     \
        expected[i] op right[i];                                                                   \
      }                                                                                            \
      CHECK(&(left op right) == &left);                                                            \
      CHECK(same(left, expected, n));                                                              \
      int value = gen.between(right_low, right_high);                                              \
      for (std::size_t i = 0; i < n; ++i)                                                          \
        expected[i] op value;                                                                      \
      CHECK(&(left op value) == &left);                                                            \
      CHECK(same(left, expected, n));                                                              \
    }                                                                                              \
  } while (0)

TEST(compound_assignments_work_element_by_element) {
  CHECK_COMPOUND(*=, -3, 3);
  CHECK_COMPOUND(/=, 1, 7);
  CHECK_COMPOUND(%=, 1, 7);
  CHECK_COMPOUND(+=, -100, 100);
  CHECK_COMPOUND(-=, -100, 100);
  CHECK_COMPOUND(^=, 0, 255);
  CHECK_COMPOUND(&=, 0, 255);
  CHECK_COMPOUND(|=, 0, 255);
  CHECK_COMPOUND(<<=, 0, 5);
  CHECK_COMPOUND(>>=, 0, 5);
}

TEST(a_compound_assignment_from_a_shorter_or_longer_array_covers_the_shorter_length) {
  int left_raw[] = {1, 2, 3, 4, 5};
  int right_raw[] = {10, 20, 30};
  std::valarray<int> left(left_raw, 5);
  left += std::valarray<int>(right_raw, 3);
  int expected[] = {11, 22, 33, 4, 5};
  CHECK(same(left, expected, 5));
  std::valarray<int> shorter(right_raw, 3);
  shorter -= std::valarray<int>(left_raw, 5);
  int expected_shorter[] = {9, 18, 27};
  CHECK(same(shorter, expected_shorter, 3));
}

TEST(unary_operators_work_element_by_element) {
  generator gen(14);
  for (int round = 0; round < 40; ++round) {
    std::size_t n = gen.below(16);
    std::valarray<int> v = random_ints(gen, n, -3, 3);
    std::valarray<int> plus = +v, minus = -v, complement = ~v;
    std::valarray<bool> negation = !v;
    CHECK_EQ(plus.size(), n);
    CHECK_EQ(minus.size(), n);
    CHECK_EQ(complement.size(), n);
    CHECK_EQ(negation.size(), n);
    for (std::size_t i = 0; i < n; ++i) {
      CHECK_EQ(plus[i], v[i]);
      CHECK_EQ(minus[i], -v[i]);
      CHECK_EQ(complement[i], ~v[i]);
      CHECK_EQ(negation[i], v[i] == 0);
    }
  }
}

TEST(sum_min_and_max_agree_with_a_loop) {
  generator gen(15);
  for (int round = 0; round < 60; ++round) {
    std::size_t n = 1 + gen.below(20);
    std::valarray<int> v = random_ints(gen, n, -1000, 1000);
    int total = 0, least = v[0], greatest = v[0];
    for (std::size_t i = 0; i < n; ++i) {
      total += v[i];
      least = v[i] < least ? v[i] : least;
      greatest = v[i] > greatest ? v[i] : greatest;
    }
    CHECK_EQ(v.sum(), total);
    CHECK_EQ(v.min(), least);
    CHECK_EQ(v.max(), greatest);
  }
}

TEST(an_empty_array_sums_and_has_min_and_max_of_a_default_element) {
  std::valarray<int> empty;
  CHECK_EQ(empty.sum(), 0);
  CHECK_EQ(empty.min(), 0);
  CHECK_EQ(empty.max(), 0);
  std::valarray<double> doubles(5);
  doubles.resize(0);
  CHECK_EQ(doubles.sum(), 0.0);
  CHECK_EQ(empty.shift(3).size(), 0u);
  CHECK_EQ(empty.cshift(-3).size(), 0u);
  CHECK_EQ((empty + empty).size(), 0u);
  CHECK_EQ(empty.apply(std::abs).size(), 0u);
}

TEST(shift_moves_toward_the_front_for_positive_counts_and_fills_with_zero) {
  generator gen(16);
  for (int round = 0; round < 60; ++round) {
    std::size_t n = gen.below(12);
    std::valarray<int> v = random_ints(gen, n, 1, 99);
    int count = gen.between(-30, 30);
    std::valarray<int> shifted = v.shift(count);
    CHECK_EQ(shifted.size(), n);
    for (std::size_t i = 0; i < n; ++i) {
      long from = long(i) + count;
      CHECK_EQ(shifted[i], from >= 0 && from < long(n) ? v[std::size_t(from)] : 0);
    }
  }
}

TEST(cshift_rotates_by_the_count_modulo_the_length) {
  generator gen(17);
  for (int round = 0; round < 60; ++round) {
    std::size_t n = gen.below(12);
    std::valarray<int> v = random_ints(gen, n, 1, 99);
    int count = gen.between(-30, 30);
    std::valarray<int> rotated = v.cshift(count);
    CHECK_EQ(rotated.size(), n);
    for (std::size_t i = 0; i < n; ++i) {
      long from = (long(i) + count) % long(n);
      if (from < 0)
        from += long(n);
      CHECK_EQ(rotated[i], v[std::size_t(from)]);
    }
  }
  int raw[] = {1, 2, 3};
  std::valarray<int> v(raw, 3);
  int zero[] = {1, 2, 3}, one[] = {2, 3, 1}, minus_one[] = {3, 1, 2};
  CHECK(same(v.cshift(0), zero, 3));
  CHECK(same(v.cshift(3), zero, 3));
  CHECK(same(v.cshift(7), one, 3));
  CHECK(same(v.cshift(-1), minus_one, 3));
  CHECK(same(v.cshift(-8), one, 3));
}

static int twice(int x) { return 2 * x; }
static int square(const int& x) { return x * x; }

TEST(apply_calls_the_function_on_each_element_in_both_forms) {
  generator gen(18);
  std::valarray<int> v = random_ints(gen, 17, -50, 50);
  std::valarray<int> doubled = v.apply(twice), squared = v.apply(square);
  CHECK_EQ(doubled.size(), 17u);
  CHECK_EQ(squared.size(), 17u);
  for (std::size_t i = 0; i < 17; ++i) {
    CHECK_EQ(doubled[i], 2 * v[i]);
    CHECK_EQ(squared[i], v[i] * v[i]);
  }
}

TEST(resize_gives_the_new_length_with_every_element_the_value) {
  generator gen(19);
  for (int round = 0; round < 30; ++round) {
    std::valarray<int> v = random_ints(gen, gen.below(10), -5, 5);
    std::size_t n = gen.below(10);
    int value = gen.between(1, 9);
    v.resize(n, value);
    CHECK_EQ(v.size(), n);
    for (std::size_t i = 0; i < n; ++i)
      CHECK_EQ(v[i], value);
    v.resize(n + 1);
    for (std::size_t i = 0; i <= n; ++i)
      CHECK_EQ(v[i], 0);
  }
}

namespace {

// An element that counts how many of it are alive.
struct counted {
  static int alive, built;
  int value;
  counted() : value(0) { ++alive, ++built; }
  counted(int v) : value(v) { ++alive, ++built; }
  counted(const counted& other) : value(other.value) { ++alive, ++built; }
  ~counted() { --alive; }
  counted& operator=(const counted& other) {
    value = other.value;
    return *this;
  }
  counted& operator+=(const counted& other) {
    value += other.value;
    return *this;
  }
};
int counted::alive = 0;
int counted::built = 0;

counted operator+(const counted& a, const counted& b) { return counted(a.value + b.value); }
counted operator-(const counted& a) { return counted(-a.value); }
bool operator<(const counted& a, const counted& b) { return a.value < b.value; }
bool operator==(const counted& a, const counted& b) { return a.value == b.value; }
counted abs(const counted& a) { return counted(a.value < 0 ? -a.value : a.value); }

} // namespace

TEST(a_class_element_is_built_once_per_element_and_all_are_destroyed) {
  counted::alive = counted::built = 0;
  {
    std::valarray<counted> defaults(4);
    CHECK_EQ(counted::alive, 4);
    CHECK_EQ(counted::built, 4);
    std::valarray<counted> copies(counted(7), 3);
    CHECK_EQ(counted::alive, 7);
    counted raw[5] = {1, -2, 3, -4, 5};
    std::valarray<counted> from_raw(raw, 5);
    CHECK_EQ(counted::alive, 17);
    std::valarray<counted> total = from_raw + from_raw;
    CHECK_EQ(total.size(), 5u);
    CHECK_EQ(total[3].value, -8);
    CHECK_EQ(from_raw.sum().value, 3);
    CHECK_EQ(from_raw.min().value, -4);
    CHECK_EQ(from_raw.max().value, 5);
    CHECK_EQ((-from_raw)[1].value, 2);
    CHECK_EQ(std::abs(from_raw)[3].value, 4);
    CHECK_EQ(from_raw.shift(2)[3].value, 0);
    CHECK_EQ(from_raw.cshift(2)[3].value, 1);
    CHECK_EQ((from_raw < total)[0], true);
    CHECK_EQ((from_raw == counted(3))[2], true);
    defaults = from_raw; // another length: rebuilt
    defaults = copies;   // and back
    copies += from_raw;
    CHECK_EQ(copies[2].value, 10);
    defaults.resize(9, counted(1));
    std::valarray<counted> picked = from_raw[std::slice(1, 2, 2)];
    CHECK_EQ(picked[1].value, -4);
    from_raw[std::slice(0, 3, 2)] = counted(0);
    CHECK_EQ(from_raw[4].value, 0);
    // defaults, copies, raw, from_raw, total, picked
    CHECK_EQ(counted::alive, 9 + 3 + 5 + 5 + 5 + 2);
  }
  CHECK_EQ(counted::alive, 0);
}
