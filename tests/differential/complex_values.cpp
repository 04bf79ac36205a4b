// std::complex over generated values: every operator and function on complex<double>, printed to
// nine digits with parts below 1e-12 of the larger part shown as 0 (so that rounding in the last
// place cannot show); complex<float> and complex<long double> counted against the double
// results; the signs of zero on the branch cuts and parts near the limits of double.
#include <cfloat>
#include <cmath>
#include <complex>
#include <cstdio>

#include "input_support.h"

typedef std::complex<float> cfloat;
typedef std::complex<double> cdouble;
typedef std::complex<long double> cldouble;

static void print_number(double v) {
  if (v != v)
    printf("nan");
  else if (v > DBL_MAX || v < -DBL_MAX)
    printf(v > 0 ? "inf" : "-inf");
  else
    printf("%.9g", v);
}

static bool is_finite(double v) { return v == v && v <= DBL_MAX && v >= -DBL_MAX; }

static void print_part(double v, double scale) {
  print_number(is_finite(v) && std::fabs(v) <= scale * 1e-12 ? 0.0 : v);
}

// The scale is the larger finite part: an infinite or NaN part does not hide the other.
static void show(const char* what, const cdouble& z) {
  double re = is_finite(z.real()) ? std::fabs(z.real()) : 0;
  double im = is_finite(z.imag()) ? std::fabs(z.imag()) : 0;
  double scale = re > im ? re : im;
  printf(" %s=(", what);
  print_part(z.real(), scale);
  printf(",");
  print_part(z.imag(), scale);
  printf(")");
}

static void show(const char* what, double v) {
  printf(" %s=", what);
  print_number(v);
}

// A part drawn from [-range, range) with three decimals of range, rounded to double once.
static double part(generator& g, double range) {
  volatile double v = (static_cast<double>(g.below(2001)) - 1000) / 1000 * range;
  return v;
}

static cdouble draw(generator& g, double range) {
  double re = part(g, range);
  return cdouble(re, part(g, range));
}

static void arithmetic(generator& g, int count) {
  printf("arithmetic\n");
  for (int i = 0; i < count; ++i) {
    double range = i % 4 == 3 ? 1e6 : 10;
    cdouble z = draw(g, range), w = draw(g, range);
    double s = part(g, range);
    if (s == 0)
      s = 0.5;
    printf("z=(%.9g,%.9g) w=(%.9g,%.9g) s=%.9g\n", z.real(), z.imag(), w.real(), w.imag(), s);
    show("z+w", z + w);
    show("z-w", z - w);
    show("z*w", z * w);
    show("z/w", z / w);
    show("-z", -z);
    show("+z", +z);
    printf("\n");
    show("z+s", z + s);
    show("s+z", s + z);
    show("z-s", z - s);
    show("s-z", s - z);
    show("z*s", z * s);
    show("s*z", s * z);
    show("z/s", z / s);
    show("s/z", s / z);
    printf("\n");
    cdouble c = z;
    show("+=w", c += w);
    show("-=w", c -= w);
    show("*=w", c *= w);
    show("/=w", c /= w);
    show("+=s", c += s);
    show("-=s", c -= s);
    show("*=s", c *= s);
    show("/=s", c /= s);
    show("*=f", c *= cfloat(1.5f, -0.25f));
    show("/=ld", c /= cldouble(-2, 0.5L));
    show("=s", c = s);
    printf(" ==%d%d%d%d !=%d%d%d\n", z == w, z == z, z == s, cdouble(s) == s, z != w, z != z,
           s != cdouble(s, 1));
  }
}

static void functions(generator& g, int count) {
  printf("functions\n");
  for (int i = 0; i < count; ++i) {
    cdouble z = draw(g, i % 3 ? 3 : 20);
    cdouble w = draw(g, 2);
    double s = part(g, 4);
    int n = static_cast<int>(g.below(17)) - 6;
    printf("z=(%.9g,%.9g) w=(%.9g,%.9g) s=%.9g n=%d\n", z.real(), z.imag(), w.real(), w.imag(), s,
           n);
    show("real", std::real(z));
    show("imag", std::imag(z));
    show("abs", std::abs(z));
    show("arg", std::arg(z));
    show("norm", std::norm(z));
    show("conj", std::conj(z));
    show("polar", std::polar(std::abs(z), std::arg(z)));
    show("polar1", std::polar(s));
    printf("\n");
    show("exp", std::exp(z));
    show("log", std::log(z));
    show("log10", std::log10(z));
    show("sqrt", std::sqrt(z));
    printf("\n");
    show("sin", std::sin(z));
    show("cos", std::cos(z));
    show("tan", std::tan(z));
    printf("\n");
    show("sinh", std::sinh(z));
    show("cosh", std::cosh(z));
    show("tanh", std::tanh(z));
    printf("\n");
    cdouble base = draw(g, 2);
    show("pow(b,n)", std::pow(base, n));
    show("pow(b,w)", std::pow(base, w));
    show("pow(b,s)", std::pow(base, s));
    show("pow(s,w)", std::pow(s, w));
    show("pow(-s,w)", std::pow(-s, w));
    printf("\n");
  }
}

// Whether the float (long double) result is within `tolerance` of the double one, relative to the
// double result's magnitude.
template <class _T>
static bool agrees(const std::complex<_T>& narrow, const cdouble& wide, double tolerance) {
  cdouble as_double(static_cast<double>(narrow.real()), static_cast<double>(narrow.imag()));
  double scale = std::abs(wide);
  return std::abs(as_double - wide) <= tolerance * (scale > 1e-30 ? scale : 1e-30);
}

enum { function_count = 18 };
static const char* const function_names[function_count] = {
    "z*w", "z/w",  "polar", "exp",  "log",  "log10",    "sqrt",     "sin",      "cos",
    "tan", "sinh", "cosh",  "tanh", "conj", "pow(z,n)", "pow(z,w)", "pow(z,s)", "pow(s,w)"};

template <class _T>
static std::complex<_T> apply(int f, const std::complex<_T>& z, const std::complex<_T>& w, _T s,
                              int n) {
  switch (f) {
  case 0:
    return z * w;
  case 1:
    return z / w;
  case 2:
    return std::polar(std::abs(z), std::arg(z));
  case 3:
    return std::exp(z);
  case 4:
    return std::log(z);
  case 5:
    return std::log10(z);
  case 6:
    return std::sqrt(z);
  case 7:
    return std::sin(z);
  case 8:
    return std::cos(z);
  case 9:
    return std::tan(z);
  case 10:
    return std::sinh(z);
  case 11:
    return std::cosh(z);
  case 12:
    return std::tanh(z);
  case 13:
    return std::conj(z);
  case 14:
    return std::pow(z, n);
  case 15:
    return std::pow(z, w);
  case 16:
    return std::pow(z, s);
  default:
    return std::pow(s, w);
  }
}

static void other_types(generator& g, int count) {
  printf("float and long double against double\n");
  int float_agree[function_count] = {0}, long_double_agree[function_count] = {0};
  for (int i = 0; i < count; ++i) {
    cdouble z = draw(g, 3), w = draw(g, 2);
    double s = part(g, 4);
    if (s == 0)
      s = 1;
    int n = static_cast<int>(g.below(11)) - 4;
    // The float inputs, and the double and long double ones made equal to them.
    cfloat zf(static_cast<float>(z.real()), static_cast<float>(z.imag()));
    cfloat wf(static_cast<float>(w.real()), static_cast<float>(w.imag()));
    float sf = static_cast<float>(s);
    for (int f = 0; f < function_count; ++f) {
      cdouble wide = apply<double>(f, zf, wf, sf, n);
      float_agree[f] += agrees(apply<float>(f, zf, wf, sf, n), wide, 1e-5);
      long_double_agree[f] += agrees(apply<long double>(f, zf, wf, sf, n), wide, 1e-13);
    }
  }
  for (int f = 0; f < function_count; ++f)
    printf("%s: float %d, long double %d of %d\n", function_names[f], float_agree[f],
           long_double_agree[f], count);
}

static void zero_signs() {
  printf("signs of zero\n");
  const double zeros[] = {0.0, -0.0};
  const double reals[] = {-4, 4, 0.0, -0.0};
  for (unsigned r = 0; r < 4; ++r)
    for (unsigned k = 0; k < 2; ++k) {
      cdouble z(reals[r], zeros[k]);
      printf("z=(%g,%g)", z.real(), z.imag());
      cdouble root = std::sqrt(z), logarithm = std::log(z), conjugate = std::conj(z);
      printf(" sqrt=(%g,%g) log=(%g,%.9g) arg=%.9g conj=(%g,%g)\n", root.real(), root.imag(),
             logarithm.real(), logarithm.imag(), std::arg(z), conjugate.real(), conjugate.imag());
    }
}

static void limits() {
  printf("near the limits\n");
  show("abs(1e300,-1e300)", std::abs(cdouble(1e300, -1e300)));
  show("abs(3e-300,4e-300)", std::abs(cdouble(3e-300, 4e-300)));
  show("abs(max,1)", std::abs(cdouble(1.7e308, 1)));
  printf("\n");
  show("sqrt(1e300,1e300)", std::sqrt(cdouble(1e300, 1e300)));
  show("sqrt(1.5e308,-1.5e308)", std::sqrt(cdouble(1.5e308, -1.5e308)));
  printf("\n");
  show("(1e300,1e300)/(1e300,1e300)", cdouble(1e300, 1e300) / cdouble(1e300, 1e300));
  show("(5e307,-5e307)/(5e307,5e307)", cdouble(5e307, -5e307) / cdouble(5e307, 5e307));
  show("(1,1)/(0,0)", cdouble(1, 1) / cdouble(0, 0));
  printf("\n");
  show("tan(1,400)", std::tan(cdouble(1, 400)));
  show("tan(-2,-30)", std::tan(cdouble(-2, -30)));
  show("tanh(400,1)", std::tanh(cdouble(400, 1)));
  show("tanh(-30,2)", std::tanh(cdouble(-30, 2)));
  printf("\n");
}

int main() {
  generator g(2026);
  arithmetic(g, 60);
  functions(g, 60);
  other_types(g, 150);
  zero_signs();
  limits();
  return 0;
}
