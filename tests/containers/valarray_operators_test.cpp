// valarray's binary operators (array with array, array with value, value with array) and its
// mathematical functions over generated arrays, each checked against a plain loop.
#include "lorb_test.h"
#include "valarray_test_support.h"
#include <cmath>
#include <cstdlib>
#include <valarray>

namespace {

template <class _T>
std::valarray<_T> random_array(generator& gen, std::size_t n, int low, int high) {
  std::valarray<_T> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = _T(gen.between(low, high));
  return v;
}

std::valarray<double> random_reals(generator& gen, std::size_t n, double low, double high) {
  std::valarray<double> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = gen.real(low, high);
  return v;
}

} // namespace

// The three forms of one operator against `left op right` element by element. The left side's
// elements come from [left_low, left_high], the right side's from [right_low, right_high].
#define CHECK_BINARY(_T, _R, op, left_low, left_high, right_low, right_high)                       \
  do {                                                                                             \
    generator gen(__LINE__);                                                                       \
    for (int round = 0; round < 30; ++round) {                                                     \
      std::size_t n = gen.below(14);                                                               \
      std::valarray<_T> a = random_array<_T>(gen, n, left_low, left_high);                         \
      std::valarray<_T> b = random_array<_T>(gen, n, right_low, right_high);                       \
      _T left_value = _T(gen.between(left_low, left_high));                                        \
      _T right_value = _T(gen.between(right_low, right_high));                                     \
      std::valarray<_R> both = a op b, with_value = a op right_value,                              \
                        value_with = left_value op b;                                              \
      CHECK_EQ(both.size(), n);                                                                    \
      CHECK_EQ(with_value.size(), n);                                                              \
      CHECK_EQ(value_with.size(), n);                                                              \
      for (std::size_t i = 0; i < n; ++i) {                                                        \
        CHECK_EQ(both[i], _R(a[i] op b[i]));                                                       \
        CHECK_EQ(with_value[i], _R(a[i] op right_value));                                          \
        CHECK_EQ(value_with[i], _R(left_value op b[i]));                                           \
      }                                                                                            \
    }                                                                                              \
  } while (0)

TEST(arithmetic_operators_work_element_by_element) {
  CHECK_BINARY(int, int, *, -300, 300, -300, 300);
  CHECK_BINARY(int, int, /, -300, 300, 1, 20);
  CHECK_BINARY(int, int, %, 0, 300, 1, 20);
  CHECK_BINARY(int, int, +, -300, 300, -300, 300);
  CHECK_BINARY(int, int, -, -300, 300, -300, 300);
  CHECK_BINARY(double, double, *, -300, 300, -300, 300);
  CHECK_BINARY(double, double, /, -300, 300, 1, 20);
  CHECK_BINARY(double, double, +, -300, 300, -300, 300);
  CHECK_BINARY(double, double, -, -300, 300, -300, 300);
}

TEST(bitwise_and_shift_operators_work_element_by_element) {
  CHECK_BINARY(unsigned, unsigned, ^, 0, 1 << 20, 0, 1 << 20);
  CHECK_BINARY(unsigned, unsigned, &, 0, 1 << 20, 0, 1 << 20);
  CHECK_BINARY(unsigned, unsigned, |, 0, 1 << 20, 0, 1 << 20);
  CHECK_BINARY(unsigned, unsigned, <<, 0, 1 << 20, 0, 11);
  CHECK_BINARY(unsigned, unsigned, >>, 0, 1 << 20, 0, 31);
  CHECK_BINARY(int, int, >>, 0, 1 << 20, 0, 31);
}

TEST(logical_and_comparison_operators_give_arrays_of_bool) {
  CHECK_BINARY(int, bool, &&, -1, 1, -1, 1);
  CHECK_BINARY(int, bool, ||, -1, 1, -1, 1);
  CHECK_BINARY(int, bool, ==, -3, 3, -3, 3);
  CHECK_BINARY(int, bool, !=, -3, 3, -3, 3);
  CHECK_BINARY(int, bool, <, -3, 3, -3, 3);
  CHECK_BINARY(int, bool, >, -3, 3, -3, 3);
  CHECK_BINARY(int, bool, <=, -3, 3, -3, 3);
  CHECK_BINARY(int, bool, >=, -3, 3, -3, 3);
  CHECK_BINARY(double, bool, <, -3, 3, -3, 3);
  CHECK_BINARY(bool, bool, &&, 0, 1, 0, 1);
}

TEST(an_operator_between_arrays_of_different_lengths_covers_the_shorter) {
  int left_raw[] = {1, 2, 3, 4};
  int right_raw[] = {5, 6};
  std::valarray<int> left(left_raw, 4), right(right_raw, 2);
  std::valarray<int> sum = left + right, other_way = right * left;
  std::valarray<bool> less = left < right;
  CHECK_EQ(sum.size(), 2u);
  CHECK_EQ(sum[0], 6);
  CHECK_EQ(sum[1], 8);
  CHECK_EQ(other_way.size(), 2u);
  CHECK_EQ(other_way[1], 12);
  CHECK_EQ(less.size(), 2u);
  CHECK_EQ(std::pow(std::valarray<double>(2.0, 5), std::valarray<double>(3.0, 1)).size(), 1u);
}

// One function of one argument against the <cmath> function of the same name.
#define CHECK_UNARY_FUNCTION(name, low, high)                                                      \
  do {                                                                                             \
    generator gen(__LINE__);                                                                       \
    std::valarray<double> x = random_reals(gen, 25, low, high);                                    \
    std::valarray<double> result = std::name(x);                                                   \
    CHECK_EQ(result.size(), 25u);                                                                  \
    for (std::size_t i = 0; i < 25; ++i)                                                           \
      CHECK_EQ(result[i], std::name(x[i]));                                                        \
    std::valarray<float> xf(25);                                                                   \
    for (std::size_t i = 0; i < 25; ++i)                                                           \
      xf[i] = float(x[i]);                                                                         \
    std::valarray<float> resultf = std::name(xf);                                                  \
    for (std::size_t i = 0; i < 25; ++i) {                                                         \
      volatile float expected = std::name(xf[i]); /* rounded to float, not kept wider */           \
      CHECK(resultf[i] == expected);                                                               \
    }                                                                                              \
  } while (0)

TEST(the_functions_of_one_argument_work_element_by_element) {
  CHECK_UNARY_FUNCTION(abs, -10, 10);
  CHECK_UNARY_FUNCTION(acos, -1, 1);
  CHECK_UNARY_FUNCTION(asin, -1, 1);
  CHECK_UNARY_FUNCTION(atan, -10, 10);
  CHECK_UNARY_FUNCTION(cos, -10, 10);
  CHECK_UNARY_FUNCTION(cosh, -5, 5);
  CHECK_UNARY_FUNCTION(exp, -5, 5);
  CHECK_UNARY_FUNCTION(log, 0.01, 100);
  CHECK_UNARY_FUNCTION(log10, 0.01, 100);
  CHECK_UNARY_FUNCTION(sin, -10, 10);
  CHECK_UNARY_FUNCTION(sinh, -5, 5);
  CHECK_UNARY_FUNCTION(sqrt, 0, 100);
  CHECK_UNARY_FUNCTION(tan, -1.5, 1.5);
  CHECK_UNARY_FUNCTION(tanh, -5, 5);
}

TEST(abs_of_integers_uses_the_integer_abs) {
  generator gen(31);
  std::valarray<int> v = random_array<int>(gen, 20, -1000, 1000);
  std::valarray<int> result = std::abs(v);
  for (std::size_t i = 0; i < 20; ++i)
    CHECK_EQ(result[i], v[i] < 0 ? -v[i] : v[i]);
  std::valarray<long> longs = random_array<long>(gen, 20, -1000, 1000);
  std::valarray<long> long_result = std::abs(longs);
  for (std::size_t i = 0; i < 20; ++i)
    CHECK_EQ(long_result[i], longs[i] < 0 ? -longs[i] : longs[i]);
}

// The three forms of atan2 or pow against the <cmath> function.
#define CHECK_BINARY_FUNCTION(name, low, high)                                                     \
  do {                                                                                             \
    generator gen(__LINE__);                                                                       \
    for (int round = 0; round < 10; ++round) {                                                     \
      std::size_t n = gen.below(10);                                                               \
      std::valarray<double> x = random_reals(gen, n, low, high);                                   \
      std::valarray<double> y = random_reals(gen, n, -3, 3);                                       \
      double x_value = gen.real(low, high), y_value = gen.real(-3, 3);                             \
      std::valarray<double> both = std::name(x, y), with_value = std::name(x, y_value),            \
                            value_with = std::name(x_value, y);                                    \
      CHECK_EQ(both.size(), n);                                                                    \
      CHECK_EQ(with_value.size(), n);                                                              \
      CHECK_EQ(value_with.size(), n);                                                              \
      for (std::size_t i = 0; i < n; ++i) {                                                        \
        CHECK_EQ(both[i], std::name(x[i], y[i]));                                                  \
        CHECK_EQ(with_value[i], std::name(x[i], y_value));                                         \
        CHECK_EQ(value_with[i], std::name(x_value, y[i]));                                         \
      }                                                                                            \
    }                                                                                              \
  } while (0)

TEST(atan2_and_pow_work_in_all_three_forms) {
  CHECK_BINARY_FUNCTION(atan2, -10, 10);
  CHECK_BINARY_FUNCTION(pow, 0.1, 10);
}

TEST(a_value_of_another_type_converts_to_the_element_type) {
  std::valarray<double> v(1.5, 3);
  std::valarray<double> doubled = v * 2, shifted = 1 + v;
  CHECK_EQ(doubled[2], 3.0);
  CHECK_EQ(shifted[0], 2.5);
  CHECK_EQ(std::pow(v, 2)[1], 2.25);
}
