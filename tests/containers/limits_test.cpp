// numeric_limits: the integer constants against the types' own arithmetic, the floating values
// against what their formats imply, the primary template's defaults and the constants'
// definitions.
#include "lorb_test.h"
#include <limits.h>
#include <limits>
#include <string.h>

namespace {

// The number of decimal digits d with 10^d no larger than the type's maximum, which is what
// digits10 means for an integer type.
template <class T> int decimal_digits_that_fit() {
  unsigned long long most = static_cast<unsigned long long>(std::numeric_limits<T>::max());
  unsigned long long power = 1;
  int d = 0;
  while (power <= most / 10) {
    power *= 10;
    ++d;
  }
  return d;
}

// Checks every integer-type member; value_bits counts the bits other than the sign.
template <class T> void check_integer(bool is_signed, int value_bits) {
  typedef std::numeric_limits<T> L;
  CHECK(L::is_specialized);
  CHECK_EQ(L::is_signed, is_signed);
  CHECK_EQ(L::digits, value_bits);
  CHECK_EQ(L::digits10, decimal_digits_that_fit<T>());
  CHECK(L::is_integer);
  CHECK(L::is_exact);
  CHECK_EQ(L::radix, 2);
  // The largest value: all value bits set, and one more wraps to the smallest.
  unsigned long long max = static_cast<unsigned long long>(L::max());
  CHECK_EQ(max, (1ull << (value_bits - 1)) * 2 - 1);
  if (is_signed)
    CHECK(static_cast<long long>(L::min()) == -static_cast<long long>(max) - 1);
  else
    CHECK(L::min() == T(0));
  CHECK(T(static_cast<unsigned long long>(L::max()) + 1) == L::min());
  CHECK(L::epsilon() == T(0));
  CHECK(L::round_error() == T(0));
  CHECK_EQ(L::min_exponent, 0);
  CHECK_EQ(L::min_exponent10, 0);
  CHECK_EQ(L::max_exponent, 0);
  CHECK_EQ(L::max_exponent10, 0);
  CHECK(!L::has_infinity);
  CHECK(!L::has_quiet_NaN);
  CHECK(!L::has_signaling_NaN);
  CHECK_EQ(static_cast<int>(L::has_denorm), static_cast<int>(std::denorm_absent));
  CHECK(!L::has_denorm_loss);
  CHECK(L::infinity() == T(0));
  CHECK(L::quiet_NaN() == T(0));
  CHECK(L::signaling_NaN() == T(0));
  CHECK(L::denorm_min() == T(0));
  CHECK(!L::is_iec559);
  CHECK(L::is_bounded);
  CHECK_EQ(L::is_modulo, !is_signed);
  CHECK(L::traps);
  CHECK(!L::tinyness_before);
  CHECK_EQ(static_cast<int>(L::round_style), static_cast<int>(std::round_toward_zero));
}

} // namespace

TEST(the_enumerators_have_the_standard_values) {
  CHECK_EQ(static_cast<int>(std::round_indeterminate), -1);
  CHECK_EQ(static_cast<int>(std::round_toward_zero), 0);
  CHECK_EQ(static_cast<int>(std::round_to_nearest), 1);
  CHECK_EQ(static_cast<int>(std::round_toward_infinity), 2);
  CHECK_EQ(static_cast<int>(std::round_toward_neg_infinity), 3);
  CHECK_EQ(static_cast<int>(std::denorm_indeterminate), -1);
  CHECK_EQ(static_cast<int>(std::denorm_absent), 0);
  CHECK_EQ(static_cast<int>(std::denorm_present), 1);
}

TEST(char_is_signed_with_seven_value_bits) { check_integer<char>(true, 7); }
TEST(signed_char_has_seven_value_bits) { check_integer<signed char>(true, 7); }
TEST(unsigned_char_has_eight_bits_and_wraps) { check_integer<unsigned char>(false, 8); }
TEST(wchar_t_is_a_signed_32_bit_type) { check_integer<wchar_t>(true, 31); }
TEST(short_has_fifteen_value_bits) { check_integer<short>(true, 15); }
TEST(unsigned_short_has_sixteen_bits) { check_integer<unsigned short>(false, 16); }
TEST(int_has_thirty_one_value_bits) { check_integer<int>(true, 31); }
TEST(unsigned_has_thirty_two_bits) { check_integer<unsigned>(false, 32); }
TEST(long_has_thirty_one_value_bits_on_i386) { check_integer<long>(true, 31); }
TEST(unsigned_long_has_thirty_two_bits_on_i386) { check_integer<unsigned long>(false, 32); }
TEST(long_long_has_sixty_three_value_bits) { check_integer<long long>(true, 63); }
TEST(unsigned_long_long_has_sixty_four_bits) { check_integer<unsigned long long>(false, 64); }

TEST(integer_extremes_are_the_c_library_ones) {
  CHECK_EQ(std::numeric_limits<char>::min(), CHAR_MIN);
  CHECK_EQ(std::numeric_limits<signed char>::min(), SCHAR_MIN);
  CHECK_EQ(std::numeric_limits<unsigned char>::max(), UCHAR_MAX);
  CHECK_EQ(std::numeric_limits<short>::min(), SHRT_MIN);
  CHECK_EQ(std::numeric_limits<unsigned short>::max(), USHRT_MAX);
  CHECK_EQ(std::numeric_limits<int>::min(), INT_MIN);
  CHECK_EQ(std::numeric_limits<unsigned>::max(), UINT_MAX);
  CHECK_EQ(std::numeric_limits<long>::min(), LONG_MIN);
  CHECK_EQ(std::numeric_limits<unsigned long>::max(), ULONG_MAX);
  CHECK_EQ(std::numeric_limits<long long>::min(), LLONG_MIN);
  CHECK_EQ(std::numeric_limits<unsigned long long>::max(), ULLONG_MAX);
}

TEST(bool_has_one_digit_and_does_not_wrap) {
  typedef std::numeric_limits<bool> L;
  CHECK(L::is_specialized);
  CHECK_EQ(L::min(), false);
  CHECK_EQ(L::max(), true);
  CHECK_EQ(L::digits, 1);
  CHECK_EQ(L::digits10, 0);
  CHECK(!L::is_signed);
  CHECK(L::is_integer);
  CHECK(L::is_exact);
  CHECK_EQ(L::radix, 2);
  CHECK(!L::is_modulo);
  CHECK(L::is_bounded);
  CHECK(L::traps);
  CHECK(!L::has_infinity);
  CHECK_EQ(L::epsilon(), false);
}

namespace {

// The bits of a value of n bytes, most significant byte first, as text.
struct bytes_text {
  char text[32];
};
bytes_text bytes_of(const void* value, unsigned n) {
  bytes_text t;
  for (unsigned i = 0; i < n; ++i)
    snprintf(t.text + 2 * i, 3, "%02x", static_cast<const unsigned char*>(value)[n - 1 - i]);
  return t;
}

// Checks the members that follow from the format's parameters: epsilon is 2^(1-digits), min is
// 2^(min_exponent-1), max lies in [2^(max_exponent-1), 2^max_exponent), denorm_min is
// 2^(min_exponent-digits), and the decimal exponents bracket the binary ones. Arithmetic goes
// through volatile variables so that every result is rounded to T.
template <class T> void check_float_values() {
  typedef std::numeric_limits<T> L;
  volatile T one = 1, two = 2, half = 0.5, ten = 10;
  volatile T eps = L::epsilon();
  volatile T sum = one + eps;
  CHECK(sum > one);
  sum = one + eps / two;
  CHECK(sum == one);
  volatile T power = 1;
  for (int i = 1; i < L::digits; ++i)
    power = power * half;
  CHECK(power == L::epsilon());

  power = 1;
  for (int i = 1; i < -L::min_exponent + 2; ++i)
    power = power * half;
  CHECK(power == L::min());
  for (int i = 1; i < L::digits; ++i)
    power = power * half;
  CHECK(power == L::denorm_min());
  volatile T below = L::denorm_min() * half;
  CHECK(below == T(0));

  power = 1;
  for (int i = 1; i < L::max_exponent; ++i)
    power = power * two;
  CHECK(L::max() >= power);
  volatile T over = power * two;
  CHECK(over == L::infinity());
  volatile T top = L::max();
  over = top * two;
  CHECK(over == L::infinity());
  // max is the largest value below 2^max_exponent: one unit more overflows.
  CHECK(L::max() == power * (two - L::epsilon()));

  volatile T decimal = 1;
  for (int i = 0; i < L::max_exponent10; ++i)
    decimal = decimal * ten;
  CHECK(decimal <= L::max());
  over = decimal * ten;
  CHECK(over == L::infinity());
  decimal = 1;
  for (int i = 0; i > L::min_exponent10; --i)
    decimal = decimal / ten;
  CHECK(decimal >= L::min());
  volatile T under = decimal / ten;
  CHECK(under < L::min());

  CHECK(L::round_error() == half);
  volatile T infinity = L::infinity();
  CHECK(infinity > L::max());
  CHECK(infinity * two == infinity);
  volatile T nan = L::quiet_NaN();
  CHECK(!(nan == nan));
  volatile T signaling = L::signaling_NaN();
  CHECK(!(signaling == signaling));
}

template <class T> void check_float_flags(int digits, int digits10) {
  typedef std::numeric_limits<T> L;
  CHECK(L::is_specialized);
  CHECK_EQ(L::digits, digits);
  CHECK_EQ(L::digits10, digits10);
  CHECK(L::is_signed);
  CHECK(!L::is_integer);
  CHECK(!L::is_exact);
  CHECK_EQ(L::radix, 2);
  CHECK(L::has_infinity);
  CHECK(L::has_quiet_NaN);
  CHECK(L::has_signaling_NaN);
  CHECK_EQ(static_cast<int>(L::has_denorm), static_cast<int>(std::denorm_present));
  CHECK(!L::has_denorm_loss);
  CHECK(L::is_iec559);
  CHECK(L::is_bounded);
  CHECK(!L::is_modulo);
  CHECK(!L::traps);
  CHECK(!L::tinyness_before);
  CHECK_EQ(static_cast<int>(L::round_style), static_cast<int>(std::round_to_nearest));
}

} // namespace

TEST(float_is_iec559_single) {
  check_float_flags<float>(24, 6);
  CHECK_EQ(std::numeric_limits<float>::min_exponent, -125);
  CHECK_EQ(std::numeric_limits<float>::min_exponent10, -37);
  CHECK_EQ(std::numeric_limits<float>::max_exponent, 128);
  CHECK_EQ(std::numeric_limits<float>::max_exponent10, 38);
  check_float_values<float>();
}

TEST(double_is_iec559_double) {
  check_float_flags<double>(53, 15);
  CHECK_EQ(std::numeric_limits<double>::min_exponent, -1021);
  CHECK_EQ(std::numeric_limits<double>::min_exponent10, -307);
  CHECK_EQ(std::numeric_limits<double>::max_exponent, 1024);
  CHECK_EQ(std::numeric_limits<double>::max_exponent10, 308);
  check_float_values<double>();
}

TEST(long_double_is_the_x87_extended_format) {
  check_float_flags<long double>(64, 18);
  CHECK_EQ(std::numeric_limits<long double>::min_exponent, -16381);
  CHECK_EQ(std::numeric_limits<long double>::min_exponent10, -4931);
  CHECK_EQ(std::numeric_limits<long double>::max_exponent, 16384);
  CHECK_EQ(std::numeric_limits<long double>::max_exponent10, 4932);
  if (!lt::long_double_is_emulated()) // valgrind computes long double as double
    check_float_values<long double>();
}

TEST(float_special_values_have_the_iec559_encodings) {
  float f = std::numeric_limits<float>::infinity();
  CHECK_STR(bytes_of(&f, 4).text, "7f800000");
  f = std::numeric_limits<float>::quiet_NaN();
  CHECK_STR(bytes_of(&f, 4).text, "7fc00000");
  // A signalling NaN: the quiet bit clear, some other fraction bit set.
  f = std::numeric_limits<float>::signaling_NaN();
  unsigned bits;
  memcpy(&bits, &f, 4);
  CHECK_EQ(bits & 0x7fc00000u, 0x7f800000u);
  CHECK((bits & 0x003fffffu) != 0);
  f = std::numeric_limits<float>::max();
  CHECK_STR(bytes_of(&f, 4).text, "7f7fffff");
  f = std::numeric_limits<float>::denorm_min();
  CHECK_STR(bytes_of(&f, 4).text, "00000001");
  double d = std::numeric_limits<double>::max();
  CHECK_STR(bytes_of(&d, 8).text, "7fefffffffffffff");
  d = std::numeric_limits<double>::quiet_NaN();
  CHECK_STR(bytes_of(&d, 8).text, "7ff8000000000000");
  d = std::numeric_limits<double>::denorm_min();
  CHECK_STR(bytes_of(&d, 8).text, "0000000000000001");
}

TEST(long_double_special_values_have_the_x87_encodings) {
  if (lt::long_double_is_emulated()) // valgrind moves long double through double
    return;
  // Ten bytes: sign and 15-bit exponent, then the 64-bit significand with its explicit top bit.
  long double x = std::numeric_limits<long double>::max();
  CHECK_STR(bytes_of(&x, 10).text, "7ffeffffffffffffffff");
  x = std::numeric_limits<long double>::min();
  CHECK_STR(bytes_of(&x, 10).text, "00018000000000000000");
  x = std::numeric_limits<long double>::epsilon();
  CHECK_STR(bytes_of(&x, 10).text, "3fc08000000000000000");
  x = std::numeric_limits<long double>::denorm_min();
  CHECK_STR(bytes_of(&x, 10).text, "00000000000000000001");
  x = std::numeric_limits<long double>::infinity();
  CHECK_STR(bytes_of(&x, 10).text, "7fff8000000000000000");
  x = std::numeric_limits<long double>::quiet_NaN();
  CHECK_STR(bytes_of(&x, 10).text, "7fffc000000000000000");
  x = std::numeric_limits<long double>::signaling_NaN();
  CHECK_STR(bytes_of(&x, 10).text, "7fffa000000000000000");
}

namespace {
struct counter {
  int value;
  counter() : value(42) {}
};
int read_through_reference(const int& value) { return value; }
bool read_through_reference(const bool& value) { return value; }
} // namespace

TEST(the_primary_template_reports_an_unspecialised_type) {
  typedef std::numeric_limits<counter> L;
  CHECK(!L::is_specialized);
  CHECK_EQ(L::min().value, 42);
  CHECK_EQ(L::max().value, 42);
  CHECK_EQ(L::epsilon().value, 42);
  CHECK_EQ(L::infinity().value, 42);
  CHECK_EQ(L::quiet_NaN().value, 42);
  CHECK_EQ(L::denorm_min().value, 42);
  CHECK_EQ(L::digits, 0);
  CHECK_EQ(L::radix, 0);
  CHECK(!L::is_bounded);
  CHECK(!L::traps);
  CHECK_EQ(static_cast<int>(L::has_denorm), static_cast<int>(std::denorm_absent));
  CHECK_EQ(static_cast<int>(L::round_style), static_cast<int>(std::round_toward_zero));
  CHECK(!std::numeric_limits<int*>::is_specialized);
  CHECK(std::numeric_limits<int*>::max() == 0);
}

TEST(the_constants_are_defined_objects) {
  // Binding to a reference and taking the address need a definition in some translation unit.
  const int* digits = &std::numeric_limits<int>::digits;
  CHECK_EQ(*digits, 31);
  CHECK_EQ(read_through_reference(std::numeric_limits<double>::digits), 53);
  CHECK_EQ(read_through_reference(std::numeric_limits<bool>::is_modulo), false);
  CHECK_EQ(read_through_reference(std::numeric_limits<counter>::is_specialized), false);
  const std::float_round_style* style = &std::numeric_limits<float>::round_style;
  CHECK_EQ(static_cast<int>(*style), 1);
  const std::float_denorm_style* denorm = &std::numeric_limits<long double>::has_denorm;
  CHECK_EQ(static_cast<int>(*denorm), 1);
}

#if __cplusplus >= 201103L
static_assert(std::numeric_limits<int>::max() == INT_MAX, "max() is a constant expression");
static_assert(std::numeric_limits<double>::epsilon() > 0, "epsilon() is a constant expression");
static_assert(std::numeric_limits<long long>::min() < 0, "min() is a constant expression");
#endif
