// <complex>: abs, arg, norm, conj, polar and the transcendental functions, checked by the
// identities that tie them together over generated values of each floating type, by the signs of
// zero the branch cuts depend on, and on parts near the limits of the type.
#include "lorb_test.h"
#include <cfloat>
#include <cmath>
#include <complex>
#include <limits>

namespace {

typedef std::complex<float> cfloat;
typedef std::complex<double> cdouble;
typedef std::complex<long double> cldouble;

const double pi = 3.14159265358979323846;

// Drawn from a fixed seed: parts in [-range, range) with a fraction, never zero. Each value goes
// through memory so that it is rounded to its type once: the x87 registers would otherwise keep
// extra digits in one use of a variable and not in the next.
struct values {
  unsigned seed;
  values() : seed(7u) {}
  double next(double range) {
    seed = seed * 1103515245u + 12345u;
    double unit = static_cast<double>((seed >> 8) % 1000000u) / 1000000.0;
    volatile double value = (unit * 2 - 1) * range;
    return value == 0 ? 0.5 : value;
  }
  template <class _T> _T part(double range) {
    volatile _T value = _T(next(range));
    return value;
  }
  template <class _T> std::complex<_T> complex(double range) {
    _T re = part<_T>(range);
    return std::complex<_T>(re, part<_T>(range));
  }
};

// The unit of rounding of _T, that of double where valgrind computes long double as double.
template <class _T> _T unit() {
  if (sizeof(_T) > sizeof(double) && lt::long_double_is_emulated())
    return _T(DBL_EPSILON);
  return std::numeric_limits<_T>::epsilon();
}

// |actual - expected| within `units` roundings of `scale` (by default the larger magnitude).
template <class _T>
bool near(const std::complex<_T>& actual, const std::complex<_T>& expected, double units,
          _T scale = _T()) {
  if (scale == _T())
    scale = std::abs(expected) > std::abs(actual) ? std::abs(expected) : std::abs(actual);
  return std::abs(actual - expected) <= _T(units) * unit<_T>() * scale;
}

bool is_negative_zero(double x) { return x == 0 && 1 / x < 0; }

template <class _T> void check_magnitude_identities() {
  typedef std::complex<_T> complex;
  values v;
  for (int i = 0; i < 300; ++i) {
    complex z = v.complex<_T>(i % 2 ? 100 : 0.01);
    _T r = std::abs(z);
    CHECK(std::abs(r * r - std::norm(z)) <= 4 * unit<_T>() * std::norm(z));
    CHECK(near(z * std::conj(z), complex(std::norm(z)), 4));
    CHECK(std::conj(std::conj(z)) == z);
    CHECK(std::abs(std::abs(std::conj(z)) - r) <= unit<_T>() * r);
    CHECK(std::abs(std::abs(-z) - r) <= unit<_T>() * r);
    CHECK(near(std::polar(r, std::arg(z)), z, 16));
    CHECK(std::fabs(std::arg(z)) <= _T(3.1416));
  }
}

template <class _T> void check_exp_log_sqrt_identities() {
  typedef std::complex<_T> complex;
  values v;
  for (int i = 0; i < 300; ++i) {
    complex z = v.complex<_T>(i % 3 ? 1000 : 0.001);
    CHECK(near(std::exp(std::log(z)), z, 64));
    complex root = std::sqrt(z);
    CHECK(root.real() >= 0);
    CHECK(near(root * root, z, 8));
    CHECK(std::sqrt(std::conj(z)) == std::conj(root));
    complex small = v.complex<_T>(3);
    CHECK(near(std::log(std::exp(small)), small, 32, _T(4)));
    _T ln10 = std::log(_T(10));
    complex common = std::log10(z);
    CHECK(near(complex(common.real() * ln10, common.imag() * ln10), std::log(z), 8));
  }
}

template <class _T> void check_trigonometric_identities() {
  typedef std::complex<_T> complex;
  const complex i(0, 1);
  const complex one(1);
  values v;
  for (int k = 0; k < 300; ++k) {
    complex z = v.complex<_T>(1.5);
    complex s = std::sin(z), c = std::cos(z), sh = std::sinh(z), ch = std::cosh(z);
    _T size = std::norm(s) + std::norm(c) + 1;
    CHECK(near(s * s + c * c, one, 16, size));
    CHECK(near(ch * ch - sh * sh, one, 16, std::norm(ch) + std::norm(sh) + 1));
    CHECK(near(std::sin(i * z), i * sh, 4));
    CHECK(near(std::cos(i * z), ch, 4));
    CHECK(near(std::sinh(i * z), i * s, 4));
    CHECK(near(std::tan(z) * c, s, 16));
    CHECK(near(std::tanh(z) * ch, sh, 16));
    CHECK(std::tan(std::conj(z)) == std::conj(std::tan(z)));
    CHECK(near(std::tanh(i * z), i * std::tan(z), 4));
  }
}

template <class _T> void check_power_identities() {
  typedef std::complex<_T> complex;
  values v;
  for (int k = 0; k < 200; ++k) {
    complex z = v.complex<_T>(2);
    complex product(1);
    for (int n = 0; n <= 9; ++n) {
      CHECK(near(std::pow(z, n), product, 8 * n + 2));
      CHECK(near(std::pow(z, -n) * product, complex(1), 16 * n + 4));
      CHECK(near(std::pow(z, complex(_T(n))), product, 64 * n + 8));
      product *= z;
    }
    CHECK(near(std::pow(z, _T(0.5)), std::sqrt(z), 16));
    complex w = v.complex<_T>(2);
    CHECK(near(std::pow(z, w), std::exp(w * std::log(z)), 16));
    _T x = v.part<_T>(10);
    x = x < 0 ? -x : x;
    CHECK(near(std::pow(x, w), std::exp(w * std::log(complex(x))), 64));
    CHECK(near(std::pow(-x, w), std::exp(w * std::log(complex(-x))), 64));
    CHECK(near(std::pow(z, w.real()), std::exp(w.real() * std::log(z)), 64));
  }
}

} // namespace

TEST(abs_arg_norm_conj_and_polar_agree_for_every_type) {
  check_magnitude_identities<float>();
  check_magnitude_identities<double>();
  check_magnitude_identities<long double>();
}

TEST(abs_is_exact_on_pythagorean_parts_and_ignores_signs) {
  CHECK_EQ(std::abs(cdouble(3, 4)), 5.0);
  CHECK_EQ(std::abs(cdouble(-3, -4)), 5.0);
  CHECK(std::fabs(std::abs(cfloat(-5, 12)) - 13) <= 13 * FLT_EPSILON);
  CHECK_EQ(std::abs(cdouble(-7.5, 0)), 7.5);
  CHECK_EQ(std::abs(cdouble(0, -0.0)), 0.0);
  CHECK(!is_negative_zero(std::abs(cdouble(-0.0, -0.0))));
}

TEST(abs_of_parts_near_the_limits_neither_overflows_nor_underflows) {
  double big = std::abs(cdouble(1e300, -1e300)); // the squares overflow
  CHECK(std::fabs(big / 1e300 - std::sqrt(2.0)) <= 4 * DBL_EPSILON);
  double small = std::abs(cdouble(3e-300, 4e-300)); // the squares underflow to zero
  CHECK(std::fabs(small / 1e-300 - 5) <= 8 * DBL_EPSILON);
  CHECK(std::abs(cdouble(DBL_MAX, 1)) == DBL_MAX);
  float f = std::abs(cfloat(2e38f, 2e38f));
  CHECK(f < FLT_MAX);
  CHECK(std::fabs(f / 2e38f - std::sqrt(2.0f)) <= 4 * FLT_EPSILON);
  CHECK(std::abs(cfloat(3e-38f, 4e-38f)) > 0);
}

TEST(abs_of_an_infinite_part_is_infinite_even_beside_a_nan) {
  double inf = std::numeric_limits<double>::infinity();
  double nan = std::numeric_limits<double>::quiet_NaN();
  CHECK_EQ(std::abs(cdouble(-inf, nan)), inf);
  CHECK_EQ(std::abs(cdouble(nan, inf)), inf);
  double nan_abs = std::abs(cdouble(nan, 1));
  CHECK(nan_abs != nan_abs);
}

TEST(arg_and_log_take_the_side_of_the_cut_from_the_sign_of_zero) {
  CHECK_EQ(std::arg(cdouble(-1, 0.0)), pi);
  CHECK_EQ(std::arg(cdouble(-1, -0.0)), -pi);
  CHECK_EQ(std::arg(cdouble(0, 2)), pi / 2);
  cdouble above = std::log(cdouble(-1, 0.0));
  CHECK_EQ(above.real(), 0.0);
  CHECK_EQ(above.imag(), pi);
  cdouble below = std::log(cdouble(-1, -0.0));
  CHECK_EQ(below.imag(), -pi);
  CHECK(std::log(cdouble(1, 0)) == cdouble(0, 0));
  cdouble zero = std::log(cdouble(0, 0));
  CHECK(zero.real() < -DBL_MAX);
}

TEST(sqrt_takes_the_side_of_the_cut_from_the_sign_of_zero) {
  cdouble above = std::sqrt(cdouble(-4, 0.0));
  CHECK(above == cdouble(0, 2));
  CHECK(!is_negative_zero(above.real()));
  cdouble below = std::sqrt(cdouble(-4, -0.0));
  CHECK(below == cdouble(0, -2));
  CHECK(!is_negative_zero(below.real()));
  CHECK(std::sqrt(cdouble(9, 0)) == cdouble(3, 0));
  CHECK(is_negative_zero(std::sqrt(cdouble(9, -0.0)).imag()));
  CHECK(std::sqrt(cdouble(0, 0)) == cdouble(0, 0));
  CHECK(is_negative_zero(std::sqrt(cdouble(0, -0.0)).imag()));
  CHECK(near(std::sqrt(cdouble(0, 2)), cdouble(1, 1), 2));
  CHECK(near(std::sqrt(cdouble(0, -2)), cdouble(1, -1), 2));
  CHECK(std::sqrt(cfloat(-9, 0)) == cfloat(0, 3));
}

TEST(sqrt_of_parts_near_the_limits_stays_finite) {
  cdouble z(1.5e308, -1.5e308);
  cdouble root = std::sqrt(z);
  CHECK(std::abs(root) < DBL_MAX);
  CHECK(near(root * root, z, 8));
  cdouble tiny(-3e-310, 4e-310);
  CHECK(near(std::sqrt(tiny) * std::sqrt(tiny), tiny, 1e6)); // subnormal parts: few digits left
}

TEST(exp_log_sqrt_and_log10_agree_for_every_type) {
  check_exp_log_sqrt_identities<float>();
  check_exp_log_sqrt_identities<double>();
  check_exp_log_sqrt_identities<long double>();
}

TEST(exp_and_log10_on_known_points) {
  CHECK(near(std::exp(cdouble(0, pi)), cdouble(-1, 0), 2, 1.0));
  CHECK(near(std::exp(cdouble(std::log(2.0), pi / 2)), cdouble(0, 2), 2, 2.0));
  CHECK(std::exp(cdouble(1, 0)) == cdouble(std::exp(1.0), 0));
  CHECK(near(std::log10(cdouble(100, 0)), cdouble(2, 0), 2));
  CHECK(near(std::log10(cdouble(-100, 0)), cdouble(2, pi / std::log(10.0)), 2));
}

TEST(the_circular_and_hyperbolic_functions_agree_for_every_type) {
  check_trigonometric_identities<float>();
  check_trigonometric_identities<double>();
  check_trigonometric_identities<long double>();
}

TEST(tan_and_tanh_far_from_the_real_axis_stay_finite) {
  cdouble t = std::tan(cdouble(1, 400)); // sinh(400)^2 overflows
  CHECK_EQ(t.imag(), 1.0);
  CHECK(t.real() >= 0 && t.real() < 1e-300);
  CHECK_EQ(std::tan(cdouble(1, -400)).imag(), -1.0);
  cdouble h = std::tanh(cdouble(-400, 1));
  CHECK_EQ(h.real(), -1.0);
  CHECK(std::fabs(h.imag()) < 1e-300);
  cfloat f = std::tan(cfloat(0.5f, 60)); // float's sinh overflows from 90
  CHECK_EQ(f.imag(), 1.0f);
  // Either side of the branch point of the shortcut.
  cdouble inside = std::tan(cdouble(0.7, 22.9));
  cdouble outside = std::tan(cdouble(0.7, 23.1));
  CHECK(near(inside, cdouble(4 * std::sin(0.7) * std::cos(0.7) * std::exp(-45.8), 1), 4));
  CHECK(near(outside, cdouble(4 * std::sin(0.7) * std::cos(0.7) * std::exp(-46.2), 1), 4));
  CHECK(std::fabs(inside.real() / (4 * std::sin(0.7) * std::cos(0.7) * std::exp(-45.8)) - 1) <
        1e-12);
}

TEST(tan_near_a_pole_keeps_its_digits) {
  cdouble z(pi / 2, 1e-10); // the denominator is a sum of squares, nothing cancels
  cdouble t = std::tan(z);
  double cos_x = std::cos(pi / 2);
  double denominator = cos_x * cos_x + 1e-20;
  CHECK(std::fabs(t.imag() / (1e-10 / denominator) - 1) < 1e-9);
}

TEST(pow_in_all_four_forms_agrees_with_products_and_logarithms) {
  check_power_identities<float>();
  check_power_identities<double>();
  check_power_identities<long double>();
}

TEST(pow_on_known_points) {
  CHECK(std::pow(cdouble(1.5, -2), 0) == cdouble(1, 0));
  CHECK(std::pow(cdouble(0, 1), 2) == cdouble(-1, 0));
  CHECK(std::pow(cdouble(0, 2), -2) == cdouble(-0.25, 0));
  CHECK(std::pow(cdouble(1, 0), std::numeric_limits<int>::min()) == cdouble(1, 0));
  CHECK(std::pow(cdouble(4, 0), 0.5) == cdouble(2, 0)); // a positive real base takes real pow
  CHECK(near(std::pow(cdouble(-8, 0), 1.0 / 3), cdouble(1, std::sqrt(3.0)), 8));
  CHECK(near(std::pow(-8.0, cdouble(1.0 / 3, 0)), cdouble(1, std::sqrt(3.0)), 8));
  CHECK(near(std::pow(2.0, cdouble(0, pi / std::log(2.0))), cdouble(-1, 0), 4, 1.0));
  CHECK(near(std::pow(cdouble(0, 1), cdouble(0, 1)), cdouble(std::exp(-pi / 2), 0), 4));
  CHECK(std::pow(cdouble(0, 0), cdouble(2, 1)) == cdouble(0, 0));
  CHECK(std::pow(0.0, cdouble(0.5, -3)) == cdouble(0, 0));
  CHECK(std::pow(cdouble(0, 0), 3.0) == cdouble(0, 0));
}
