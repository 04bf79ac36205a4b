// Every member of every numeric_limits specialisation (and of the primary template for a class
// type), one line each: integers in full, floating values as %.21Lg and as their bytes.
#include <limits>
#include <stdio.h>
#include <string.h>

struct plain {
  int value;
  plain() : value(7) {}
};

static void show(const char* type, const char* member, bool v) {
  printf("%s %s %d\n", type, member, v ? 1 : 0);
}
static void show(const char* type, const char* member, int v) {
  printf("%s %s %d\n", type, member, v);
}
static void show(const char* type, const char* member, long long v) {
  printf("%s %s %lld\n", type, member, v);
}
static void show(const char* type, const char* member, unsigned long long v) {
  printf("%s %s %llu\n", type, member, v);
}
static void show_bytes(const char* type, const char* member, long double v, const void* bytes,
                       unsigned n) {
  printf("%s %s %.21Lg [", type, member, v);
  // Printed from the most significant byte; long double's two padding bytes are left out.
  for (unsigned i = n; i > 0; --i)
    printf("%02x", static_cast<const unsigned char*>(bytes)[i - 1]);
  printf("]\n");
}
static void show(const char* type, const char* member, float v) {
  show_bytes(type, member, v, &v, 4);
}
static void show(const char* type, const char* member, double v) {
  show_bytes(type, member, v, &v, 8);
}
static void show(const char* type, const char* member, long double v) {
  show_bytes(type, member, v, &v, 10);
}
static void show(const char* type, const char* member, plain v) {
  printf("%s %s plain(%d)\n", type, member, v.value);
}

// How each type's values are shown: the widest integer of its signedness, or itself.
template <class T> struct shown_as { typedef long long type; };
template <> struct shown_as<bool> { typedef bool type; };
template <> struct shown_as<unsigned char> { typedef unsigned long long type; };
template <> struct shown_as<unsigned short> { typedef unsigned long long type; };
template <> struct shown_as<unsigned> { typedef unsigned long long type; };
template <> struct shown_as<unsigned long> { typedef unsigned long long type; };
template <> struct shown_as<unsigned long long> { typedef unsigned long long type; };
template <> struct shown_as<float> { typedef float type; };
template <> struct shown_as<double> { typedef double type; };
template <> struct shown_as<long double> { typedef long double type; };
template <> struct shown_as<plain> { typedef plain type; };

template <class T> static void print_limits(const char* type) {
  typedef std::numeric_limits<T> L;
  typedef typename shown_as<T>::type V;
  show(type, "is_specialized", L::is_specialized);
  show(type, "min", V(L::min()));
  show(type, "max", V(L::max()));
  show(type, "digits", L::digits);
  show(type, "digits10", L::digits10);
  show(type, "is_signed", L::is_signed);
  show(type, "is_integer", L::is_integer);
  show(type, "is_exact", L::is_exact);
  show(type, "radix", L::radix);
  show(type, "epsilon", V(L::epsilon()));
  show(type, "round_error", V(L::round_error()));
  show(type, "min_exponent", L::min_exponent);
  show(type, "min_exponent10", L::min_exponent10);
  show(type, "max_exponent", L::max_exponent);
  show(type, "max_exponent10", L::max_exponent10);
  show(type, "has_infinity", L::has_infinity);
  show(type, "has_quiet_NaN", L::has_quiet_NaN);
  show(type, "has_signaling_NaN", L::has_signaling_NaN);
  show(type, "has_denorm", static_cast<int>(L::has_denorm));
  show(type, "has_denorm_loss", L::has_denorm_loss);
  show(type, "infinity", V(L::infinity()));
  show(type, "quiet_NaN", V(L::quiet_NaN()));
  show(type, "signaling_NaN", V(L::signaling_NaN()));
  show(type, "denorm_min", V(L::denorm_min()));
  show(type, "is_iec559", L::is_iec559);
  show(type, "is_bounded", L::is_bounded);
  show(type, "is_modulo", L::is_modulo);
  show(type, "traps", L::traps);
  show(type, "tinyness_before", L::tinyness_before);
  show(type, "round_style", static_cast<int>(L::round_style));
}

int main() {
  print_limits<bool>("bool");
  print_limits<char>("char");
  print_limits<signed char>("signed_char");
  print_limits<unsigned char>("unsigned_char");
  print_limits<wchar_t>("wchar_t");
  print_limits<short>("short");
  print_limits<unsigned short>("unsigned_short");
  print_limits<int>("int");
  print_limits<unsigned>("unsigned");
  print_limits<long>("long");
  print_limits<unsigned long>("unsigned_long");
  print_limits<long long>("long_long");
  print_limits<unsigned long long>("unsigned_long_long");
  print_limits<float>("float");
  print_limits<double>("double");
  print_limits<long double>("long_double");
  print_limits<plain>("plain");
  // The enumerators themselves.
  printf("round %d %d %d %d %d\n", std::round_indeterminate, std::round_toward_zero,
         std::round_to_nearest, std::round_toward_infinity, std::round_toward_neg_infinity);
  printf("denorm %d %d %d\n", std::denorm_indeterminate, std::denorm_absent, std::denorm_present);
  return 0;
}
