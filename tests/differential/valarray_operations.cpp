// std::valarray over generated arrays: constructors, assignment, the unary and binary operators in
// all three forms, the compound assignments, sum/min/max, shift and cshift by counts on both sides
// of zero and past the length, apply, resize and the mathematical functions, each result printed.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <valarray>

// Linear congruential generator; 32-bit arithmetic so both builds draw the same numbers.
struct generator {
  unsigned int seed;
  explicit generator(unsigned int s) : seed(s) {}
  unsigned int next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned int below(unsigned int n) { return next() % n; }
  int between(int low, int high) { return low + int(below(unsigned(high - low + 1))); }
};

static void print(const char* what, const std::valarray<int>& v) {
  printf("%s [%u]", what, unsigned(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i)
    printf(" %d", v[i]);
  printf("\n");
}
static void print(const char* what, const std::valarray<unsigned>& v) {
  printf("%s [%u]", what, unsigned(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i)
    printf(" %u", v[i]);
  printf("\n");
}
static void print(const char* what, const std::valarray<bool>& v) {
  printf("%s [%u] ", what, unsigned(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i)
    putchar(v[i] ? '1' : '0');
  printf("\n");
}
static void print(const char* what, const std::valarray<double>& v) {
  printf("%s [%u]", what, unsigned(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i)
    printf(" %.17g", v[i]);
  printf("\n");
}

static std::valarray<int> random_ints(generator& gen, std::size_t n, int low, int high) {
  std::valarray<int> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = gen.between(low, high);
  return v;
}
static std::valarray<double> random_reals(generator& gen, std::size_t n, double low, double high) {
  std::valarray<double> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = low + (high - low) * double(gen.below(100000)) / 1e5;
  return v;
}

static int negate(int x) { return -x; }
static double halve(const double& x) { return x / 2; }

static void integers(generator& gen) {
  std::size_t n = gen.below(10);
  std::valarray<int> a = random_ints(gen, n, -200, 200);
  std::valarray<int> b = random_ints(gen, n, 1, 9); // nonzero, and small enough to shift by
  int value = gen.between(1, 9);
  print("a", a);
  print("b", b);
  print("+a", +a);
  print("-a", -a);
  print("~a", ~a);
  print("!a", !(a % 3));
  print("a*b", a * b);
  print("a/b", a / b);
  print("a%b", a % b);
  print("a+b", a + b);
  print("a-b", a - b);
  print("a^b", a ^ b);
  print("a&b", a & b);
  print("a|b", a | b);
  print("b<<b", b << b);
  print("a>>b", a >> b);
  print("a*v", a * value);
  print("v*a", value * a);
  print("a/v", a / value);
  print("v/b", value / b);
  print("a%v", a % value);
  print("v%b", value % b);
  print("a+v", a + value);
  print("v+a", value + a);
  print("a-v", a - value);
  print("v-a", value - a);
  print("a^v", a ^ value);
  print("v^a", value ^ a);
  print("a&v", a & value);
  print("v&a", value & a);
  print("a|v", a | value);
  print("v|a", value | a);
  print("b<<v", b << value);
  print("v<<b", value << b);
  print("a>>v", a >> value);
  print("v>>b", value >> b);
  std::valarray<int> c = a % 2;
  print("c&&b", c && (b % 2));
  print("c||b", c || (b % 2));
  print("c&&v", c && 0);
  print("v&&c", 1 && c);
  print("c||v", c || 0);
  print("v||c", 0 || c);
  print("a==b", a == b);
  print("a!=b", a != b);
  print("a<b", a < b);
  print("a>b", a > b);
  print("a<=b", a <= b);
  print("a>=b", a >= b);
  print("a==v", a == value);
  print("v!=a", value != a);
  print("a<v", a < value);
  print("v<a", value < a);
  print("a>v", a > value);
  print("v>a", value > a);
  print("a<=v", a <= value);
  print("v<=a", value <= a);
  print("a>=v", a >= value);
  print("v>=a", value >= a);
  print("abs", std::abs(a));
  print("apply", a.apply(negate));
  if (n)
    printf("sum %d min %d max %d\n", a.sum(), a.min(), a.max());
  for (int k = 0; k < 3; ++k) {
    int count = gen.between(-25, 25);
    printf("count %d\n", count);
    print("shift", a.shift(count));
    print("cshift", a.cshift(count));
  }
  print("shift0", a.shift(0));
  print("cshift0", a.cshift(0));
  std::valarray<int> d(a);
  d *= b;
  print("*=", d);
  d /= b;
  print("/=", d);
  d %= b;
  print("%=", d);
  d += a;
  print("+=", d);
  d -= b;
  print("-=", d);
  d ^= a;
  print("^=", d);
  d &= b;
  print("&=", d);
  d |= b; // kept small and not negative for the shifts
  print("|=", d);
  d <<= b;
  print("<<=", d);
  d >>= b;
  print(">>=", d);
  d *= value;
  d /= value;
  d %= 1000;
  d += value;
  d -= 3;
  d ^= value;
  d &= 4095;
  d |= value;
  d <<= 2;
  d >>= 1;
  print("with value", d);
  std::size_t m = gen.below(8);
  d.resize(m, value);
  print("resize", d);
  d.resize(m + 1);
  print("resize default", d);
  d = a;
  print("assign", d);
  d = value;
  print("fill", d);
  std::valarray<int> e(value, m), f(&value, 1);
  print("value n", e);
  print("pointer", f);
}

static void unsigned_bits(generator& gen) {
  std::size_t n = gen.below(8);
  std::valarray<unsigned> a(n), b(n);
  for (std::size_t i = 0; i < n; ++i) {
    a[i] = gen.next();
    b[i] = gen.below(32);
  }
  unsigned value = gen.below(32);
  print("u a", a);
  print("u ~a", ~a);
  print("u a<<b", a << b);
  print("u a>>b", a >> b);
  print("u a<<v", a << value);
  print("u a>>v", a >> value);
  print("u -a", -a);
}

static void reals(generator& gen) {
  std::size_t n = gen.below(8);
  std::valarray<double> x = random_reals(gen, n, -1, 1);
  std::valarray<double> y = random_reals(gen, n, 0.01, 10);
  double value = double(gen.between(1, 40)) / 8;
  print("x", x);
  print("y", y);
  print("x*y", x * y);
  print("x/y", x / y);
  print("x+y", x + y);
  print("x-y", x - y);
  print("v/x", value / x);
  print("x<y", x < y);
  print("abs", std::abs(x));
  print("acos", std::acos(x));
  print("asin", std::asin(x));
  print("atan", std::atan(y));
  print("atan2", std::atan2(x, y));
  print("atan2 v", std::atan2(x, value));
  print("v atan2", std::atan2(value, y));
  print("cos", std::cos(y));
  print("cosh", std::cosh(x));
  print("exp", std::exp(y));
  print("log", std::log(y));
  print("log10", std::log10(y));
  print("pow", std::pow(y, x));
  print("pow v", std::pow(y, value));
  print("v pow", std::pow(value, x));
  print("sin", std::sin(y));
  print("sinh", std::sinh(x));
  print("sqrt", std::sqrt(y));
  print("tan", std::tan(x));
  print("tanh", std::tanh(y));
  print("apply", y.apply(halve));
  if (n)
    printf("sum %.17g min %.17g max %.17g\n", y.sum(), x.min(), x.max());
  std::valarray<double> z(x);
  z += y;
  z *= 3.0;
  z /= y;
  z -= 0.5;
  print("compound", z);
}

int main() {
  generator gen(20261123u);
  for (int round = 0; round < 25; ++round) {
    printf("-- round %d\n", round);
    integers(gen);
    unsigned_bits(gen);
    reals(gen);
  }
  // Not the sum of an empty valarray: the standard leaves it undefined, and the GNU library reads
  // through a null pointer there (Lorb++'s answer, 0, is pinned by the unit tests).
  return 0;
}
