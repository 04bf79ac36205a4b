// <complex>: construction and conversion between the specialisations, the compound assignments,
// the arithmetic operators on both sides and the comparisons, checked exactly on small integers
// and within rounding bounds on generated values.
#include "lorb_test.h"
#include <cfloat>
#include <cmath>
#include <complex>

namespace {

typedef std::complex<float> cfloat;
typedef std::complex<double> cdouble;
typedef std::complex<long double> cldouble;

// Drawn from a fixed seed: parts in [-range, range) with a fraction, never zero.
struct values {
  unsigned seed;
  values() : seed(20261123u) {}
  double next(double range) {
    seed = seed * 1103515245u + 12345u;
    double unit = static_cast<double>((seed >> 8) % 1000000u) / 1000000.0;
    volatile double value = (unit * 2 - 1) * range; // rounded once, not kept in an x87 register
    return value == 0 ? 0.5 : value;
  }
  cdouble complex(double range) {
    double re = next(range);
    return cdouble(re, next(range));
  }
};

// |actual - expected| within `ulps` units of rounding of the larger magnitude of the two.
bool near(const cdouble& actual, const cdouble& expected, double ulps) {
  double scale = std::abs(expected) > std::abs(actual) ? std::abs(expected) : std::abs(actual);
  return std::abs(actual - expected) <= ulps * DBL_EPSILON * scale;
}

// Whether a value of From converts to To without being asked for.
template <class _To> struct converts_implicitly {
  static char probe(const _To&);
  static long probe(...);
};

} // namespace

TEST(constructors_default_the_missing_parts_to_zero) {
  cdouble none;
  CHECK_EQ(none.real(), 0.0);
  CHECK_EQ(none.imag(), 0.0);
  cdouble only_real(2.5);
  CHECK_EQ(only_real.real(), 2.5);
  CHECK_EQ(only_real.imag(), 0.0);
  cfloat both(1.5f, -2.0f);
  CHECK_EQ(both.real(), 1.5f);
  CHECK_EQ(both.imag(), -2.0f);
  std::complex<int> whole(3, 4);
  CHECK_EQ(whole.real(), 3);
  CHECK_EQ(std::imag(whole), 4);
  CHECK_EQ(std::real(both), 1.5f);
}

TEST(widening_conversions_are_implicit_and_narrowing_ones_explicit) {
  CHECK_EQ(sizeof(converts_implicitly<cdouble>::probe(cfloat())), sizeof(char));
  CHECK_EQ(sizeof(converts_implicitly<cldouble>::probe(cfloat())), sizeof(char));
  CHECK_EQ(sizeof(converts_implicitly<cldouble>::probe(cdouble())), sizeof(char));
  CHECK_EQ(sizeof(converts_implicitly<cfloat>::probe(cdouble())), sizeof(long));
  CHECK_EQ(sizeof(converts_implicitly<cfloat>::probe(cldouble())), sizeof(long));
  CHECK_EQ(sizeof(converts_implicitly<cdouble>::probe(cldouble())), sizeof(long));

  cdouble wide = cfloat(0.1f, -0.25f);
  CHECK_EQ(wide.real(), static_cast<double>(0.1f));
  CHECK_EQ(wide.imag(), -0.25);
  cldouble widest = cdouble(0.1, 3);
  CHECK(widest.real() == static_cast<long double>(0.1));
  cfloat narrow(cdouble(0.1, 1e300));
  CHECK_EQ(narrow.real(), 0.1f);
  CHECK(narrow.imag() > FLT_MAX); // out of float's range: infinity
  cdouble from_long_double(cldouble(0.1L, 2));
  CHECK_EQ(from_long_double.real(), static_cast<double>(0.1L));
  std::complex<int> truncated(cdouble(2.75, -1.5)); // the template converts any complex
  CHECK_EQ(truncated.real(), 2);
  CHECK_EQ(truncated.imag(), -1);
}

TEST(assigning_a_scalar_clears_the_imaginary_part) {
  cdouble z(1, 2);
  z = 5.0;
  CHECK(z == cdouble(5, 0));
  cfloat f(1, 2);
  f = cdouble(0.5, 0.25);
  CHECK(f == cfloat(0.5f, 0.25f));
  cldouble l(1, 2);
  l = cfloat(3, 4);
  CHECK(l == cldouble(3, 4));
}

TEST(compound_assignment_with_a_scalar_touches_the_parts_it_should) {
  cdouble z(6, -4);
  CHECK(&(z += 1.0) == &z);
  CHECK(z == cdouble(7, -4));
  z -= 2.0;
  CHECK(z == cdouble(5, -4));
  z *= 3.0;
  CHECK(z == cdouble(15, -12));
  z /= 4.0;
  CHECK(z == cdouble(3.75, -3));
  cfloat f(1, 1);
  f *= 2.0f;
  f /= 8.0f;
  CHECK(f == cfloat(0.25f, 0.25f));
}

TEST(compound_assignment_with_a_complex_of_any_type) {
  cdouble z(1, 2);
  CHECK(&(z += cfloat(1, 1)) == &z);
  CHECK(z == cdouble(2, 3));
  z -= cldouble(0.5L, 4);
  CHECK(z == cdouble(1.5, -1));
  z *= cdouble(2, 1); // (1.5 - i)(2 + i) = 3 + 1.5i - 2i + 1
  CHECK(z == cdouble(4, -0.5));
  z /= cfloat(0, 2); // (4 - 0.5i) / 2i = -0.25 - 2i
  CHECK(z == cdouble(-0.25, -2));
  cfloat f(3, 4);
  f *= cdouble(3, -4); // times the conjugate: the norm
  CHECK(f == cfloat(25, 0));
  f /= cldouble(5, 0);
  CHECK(f == cfloat(5, 0));
}

TEST(unary_plus_and_minus) {
  cdouble z(1.5, -2);
  CHECK(+z == z);
  CHECK(-z == cdouble(-1.5, 2));
  CHECK(-(-z) == z);
}

TEST(binary_operators_take_a_complex_or_a_scalar_on_either_side) {
  cdouble a(1, 2);
  cdouble b(3, -1);
  CHECK(a + b == cdouble(4, 1));
  CHECK(a + 2.0 == cdouble(3, 2));
  CHECK(2.0 + a == cdouble(3, 2));
  CHECK(a - b == cdouble(-2, 3));
  CHECK(a - 2.0 == cdouble(-1, 2));
  CHECK(2.0 - a == cdouble(1, -2));
  CHECK(a * b == cdouble(5, 5));
  CHECK(a * 2.0 == cdouble(2, 4));
  CHECK(2.0 * a == cdouble(2, 4));
  CHECK(cdouble(5, 5) / a == b); // the ratio 1/2 and every step are exact
  CHECK(a / 2.0 == cdouble(0.5, 1));
  CHECK(5.0 / cdouble(1, 2) == cdouble(1, -2));
  cfloat f(1, 2);
  CHECK(f * cfloat(3, -1) == cfloat(5, 5));
  CHECK(1.0f - f == cfloat(0, -2));
  cldouble l(1, 2);
  CHECK(l / 2.0L == cldouble(0.5L, 1));
  CHECK(2.0L * l + l == cldouble(3, 6));
}

TEST(comparisons_against_a_complex_or_a_scalar) {
  cdouble z(2, 0);
  CHECK(z == cdouble(2, 0));
  CHECK(!(z != cdouble(2, 0)));
  CHECK(z != cdouble(2, 1e-300));
  CHECK(z == 2.0);
  CHECK(2.0 == z);
  CHECK(z != 3.0);
  CHECK(3.0 != z);
  cdouble w(2, 1);
  CHECK(w != 2.0);
  CHECK(2.0 != w);
  CHECK(!(w == 2.0));
  CHECK(cdouble(0.0, -0.0) == 0.0); // kept: -0 equals 0
}

TEST(division_by_a_pure_imaginary_is_exact_for_power_of_two_divisors) {
  values v;
  for (int i = 0; i < 200; ++i) {
    cdouble z = v.complex(1e6);
    double d = i % 2 ? 0.25 : -8;
    cdouble q = z / cdouble(0, d);
    CHECK_EQ(q.real(), z.imag() / d);
    CHECK_EQ(q.imag(), -z.real() / d);
  }
}

TEST(division_by_a_pure_real_divides_each_part) {
  values v;
  for (int i = 0; i < 200; ++i) {
    cdouble z = v.complex(1e3);
    double d = v.next(1e3);
    cdouble q = z / cdouble(d, 0);
    CHECK(near(q, cdouble(z.real() / d, z.imag() / d), 2));
  }
}

TEST(division_undoes_multiplication_within_rounding) {
  values v;
  for (int i = 0; i < 500; ++i) {
    cdouble a = v.complex(i % 3 ? 1e3 : 1e-3);
    cdouble b = v.complex(i % 5 ? 10 : 1e5);
    CHECK(near(a * b / b, a, 16));
    CHECK(near(a / b * b, a, 16));
    CHECK(near(a + b - b, a, 4 * (std::abs(b) / std::abs(a) + 1)));
  }
}

TEST(division_of_parts_near_the_limits_does_not_overflow) {
  cdouble huge(1e300, 1e300);
  CHECK(huge / huge == cdouble(1, 0));
  // The plain formula would divide by c*c + d*d, which overflows for each of these.
  cdouble q = cdouble(5e307, -5e307) / cdouble(5e307, 5e307);
  CHECK(near(q, cdouble(0, -1), 2));
  q = cdouble(4e307, 0) / cdouble(1e-300, 1e308);
  CHECK(near(q, cdouble(0, -0.4), 4));
  cfloat f = cfloat(1e38f, 1e38f) / cfloat(1e38f, -1e38f);
  CHECK(std::abs(f - cfloat(0, 1)) <= 2 * FLT_EPSILON);
}

TEST(division_by_zero_gives_infinities) {
  cdouble q = cdouble(1, -1) / cdouble(0, 0);
  CHECK(q.real() > DBL_MAX);
  CHECK(q.imag() < -DBL_MAX);
  cdouble nothing = cdouble(0, 1) / cdouble(0, 0);
  CHECK(nothing.real() != nothing.real()); // 0/0 is NaN
}

TEST(long_double_keeps_its_precision_in_products) {
  if (lt::long_double_is_emulated())
    return;
  cldouble third(1.0L / 3, 0);
  cldouble product = third * cldouble(3, 0);
  CHECK(std::abs(product.real() - 1) <= LDBL_EPSILON);
  CHECK(cldouble(1, 0) + cldouble(LDBL_EPSILON, 0) != cldouble(1, 0));
}
