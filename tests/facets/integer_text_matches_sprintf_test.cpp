// __vel::format_integer against the C library's snprintf: every format the integer builder makes,
// narrow and wide, over limits, powers of two and ten with their neighbours, and millions of
// pseudo-random 32-bit and 64-bit values.
#include "num_put_test_support.h"
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace {

struct integer_format {
  char text[8];
  char conversion;
};

// Every format int_fmt builds for 'd' and 'u' over all combinations of the flags it reads and
// of a sample of the others, without repeats; then the same with "ll" for "l", as the long long
// puts use them.
struct format_set {
  integer_format narrow[64];
  integer_format wide[64];
  int count;
};

void add_unique(format_set& set, const char* text) {
  for (int i = 0; i < set.count; ++i)
    if (strcmp(set.narrow[i].text, text) == 0)
      return;
  if (set.count == 64)
    return;
  integer_format& narrow = set.narrow[set.count];
  integer_format& wide = set.wide[set.count];
  ++set.count;
  strcpy(narrow.text, text);
  size_t n = strlen(text);
  narrow.conversion = text[n - 1];
  memcpy(wide.text, text, n - 1);
  wide.text[n - 1] = 'l';
  wide.text[n] = text[n - 1];
  wide.text[n + 1] = 0;
  wide.conversion = narrow.conversion;
}

format_set builder_formats() {
  format_set set;
  set.count = 0;
  // Bits 0 to 14 hold every flag.
  for (long flags = 0; flags < 0x8000; ++flags) {
    char fmt[8];
    format_builders::integer_format(fmt, 'd', flags);
    add_unique(set, fmt);
    format_builders::integer_format(fmt, 'u', flags);
    add_unique(set, fmt);
  }
  return set;
}

// xorshift64*: the same sequence on every run.
struct value_source {
  unsigned long long state;
  explicit value_source(unsigned long long seed) : state(seed) {}
  unsigned long long next() {
    state ^= state >> 12;
    state ^= state << 25;
    state ^= state >> 27;
    return state * 2685821657736338717ULL;
  }
  // Random bits of a random magnitude, so that short texts are as common as long ones.
  unsigned long long next_of_any_size(unsigned bits) {
    unsigned long long v = next();
    unsigned shift = static_cast<unsigned>(next() % bits);
    v >>= 64 - bits + shift;
    if (next() & 1)
      v = 0ULL - v;
    return v;
  }
};

// Under valgrind every value costs a hundred times more; a twentieth of them is enough there.
unsigned scaled(unsigned count) {
  const char* memcheck = getenv("LORB_MEMCHECK");
  return memcheck && strcmp(memcheck, "1") == 0 ? count / 20 : count;
}

struct comparison_run {
  unsigned long long comparisons;
  unsigned long long mismatches;
  comparison_run() : comparisons(0), mismatches(0) {}
};

void report(comparison_run& run, const char* format, unsigned long long argument,
            const char* expected, int expected_length, const char* actual, unsigned length) {
  if (++run.mismatches > 10)
    return;
  char detail[256];
  snprintf(detail, sizeof detail,
           "format \"%s\" argument 0x%llx: sprintf wrote \"%s\" (%d), format_integer \"%s\" (%u)",
           format, argument, expected, expected_length, actual, length);
  lt::fail(__FILE__, __LINE__, "format_integer", detail);
}

void compare(comparison_run& run, const char* format, unsigned long long argument,
             const char* expected, int expected_length) {
  char text[40];
  memset(text, 'Z', sizeof text);
  unsigned length = __vel::format_integer(text, format, argument);
  ++run.comparisons;
  if (static_cast<int>(length) != expected_length ||
      memcmp(text, expected, static_cast<size_t>(expected_length) + 1) != 0)
    report(run, format, argument, expected, expected_length, text, length);
}

// The value's low 32 bits in every narrow format, handed over as num_put hands them: 'd' from a
// long (sign-extended), the others from an unsigned long (zero-extended) and, as the long
// overload gives them in octal and hexadecimal, sign-extended too.
void compare_narrow(comparison_run& run, const format_set& set, unsigned long bits) {
  unsigned long long zero_extended = bits;
  unsigned long long sign_extended =
      static_cast<unsigned long long>(static_cast<long long>(static_cast<long>(bits)));
  char expected[40];
  for (int i = 0; i < set.count; ++i) {
    const integer_format& f = set.narrow[i];
    if (f.conversion == 'd') {
      int n = snprintf(expected, sizeof expected, f.text, static_cast<long>(bits));
      compare(run, f.text, sign_extended, expected, n);
    } else {
      int n = snprintf(expected, sizeof expected, f.text, bits);
      compare(run, f.text, zero_extended, expected, n);
      compare(run, f.text, sign_extended, expected, n);
    }
  }
}

void compare_wide(comparison_run& run, const format_set& set, unsigned long long bits) {
  char expected[40];
  for (int i = 0; i < set.count; ++i) {
    const integer_format& f = set.wide[i];
    int n = f.conversion == 'd'
                ? snprintf(expected, sizeof expected, f.text, static_cast<long long>(bits))
                : snprintf(expected, sizeof expected, f.text, bits);
    compare(run, f.text, bits, expected, n);
  }
}

// 0, the limits, and every power of two and of ten with its neighbours, of both signs.
int special_values(unsigned long long* values) {
  int n = 0;
  values[n++] = 0;
  values[n++] = LONG_MAX;
  values[n++] = static_cast<unsigned long long>(static_cast<long long>(LONG_MIN));
  values[n++] = static_cast<unsigned long>(LONG_MIN);
  values[n++] = ULONG_MAX;
  values[n++] = LLONG_MAX;
  values[n++] = static_cast<unsigned long long>(LLONG_MIN);
  values[n++] = ULLONG_MAX;
  unsigned long long centres[130];
  int centre_count = 0;
  for (int k = 0; k < 64; ++k)
    centres[centre_count++] = 1ULL << k;
  unsigned long long ten = 1;
  for (int k = 0; k < 20; ++k, ten *= 10)
    centres[centre_count++] = ten;
  for (int i = 0; i < centre_count; ++i)
    for (int step = -2; step <= 2; ++step) {
      unsigned long long v = centres[i] + static_cast<unsigned long long>(step);
      values[n++] = v;
      values[n++] = 0ULL - v;
    }
  return n;
}

const unsigned random_32_bit_values = 80000;
const unsigned random_64_bit_values = 80000;

} // namespace

TEST(the_builder_makes_twenty_integer_formats_and_all_fit_the_converter) {
  format_set set = builder_formats();
  CHECK_EQ(set.count, 20);
  int per_conversion[128] = {0};
  for (int i = 0; i < set.count; ++i) {
    const char* f = set.narrow[i].text;
    ++per_conversion[static_cast<unsigned char>(set.narrow[i].conversion)];
    CHECK(f[0] == '%');
    CHECK(strlen(f) <= 5);
    CHECK(strlen(set.wide[i].text) <= 6);
    CHECK(strstr(set.wide[i].text, "ll") != 0);
  }
  // Four flag forms ("", "+", "#", "+#") of each conversion.
  CHECK_EQ(per_conversion['d'], 4);
  CHECK_EQ(per_conversion['u'], 4);
  CHECK_EQ(per_conversion['o'], 4);
  CHECK_EQ(per_conversion['x'], 4);
  CHECK_EQ(per_conversion['X'], 4);
}

TEST(limits_and_powers_match_sprintf_in_every_format) {
  format_set set = builder_formats();
  unsigned long long values[1024];
  int count = special_values(values);
  comparison_run run;
  for (int i = 0; i < count; ++i) {
    compare_narrow(run, set, static_cast<unsigned long>(values[i]));
    compare_wide(run, set, values[i]);
  }
  CHECK_EQ(run.mismatches, 0ULL);
  CHECK(run.comparisons > 30000);
}

TEST(random_32_bit_values_match_sprintf_in_every_narrow_format) {
  format_set set = builder_formats();
  value_source source(0x9e3779b97f4a7c15ULL);
  comparison_run run;
  for (unsigned i = scaled(random_32_bit_values); i > 0; --i)
    compare_narrow(run, set, static_cast<unsigned long>(source.next_of_any_size(32)));
  CHECK_EQ(run.mismatches, 0ULL);
  CHECK(run.comparisons >= 36ULL * scaled(random_32_bit_values));
}

TEST(random_64_bit_values_match_sprintf_in_every_wide_format) {
  format_set set = builder_formats();
  value_source source(0xd1b54a32d192ed03ULL);
  comparison_run run;
  for (unsigned i = scaled(random_64_bit_values); i > 0; --i)
    compare_wide(run, set, source.next_of_any_size(64));
  CHECK_EQ(run.mismatches, 0ULL);
  CHECK(run.comparisons >= 20ULL * scaled(random_64_bit_values));
}

TEST(random_32_bit_values_match_sprintf_in_every_wide_format) {
  format_set set = builder_formats();
  value_source source(0x2545f4914f6cdd1dULL);
  comparison_run run;
  for (unsigned i = scaled(random_32_bit_values); i > 0; --i) {
    unsigned long long v = source.next_of_any_size(32);
    compare_wide(run, set, v & 0xffffffffULL);
    compare_wide(run, set,
                 static_cast<unsigned long long>(
                     static_cast<long long>(static_cast<long>(v & 0xffffffffULL))));
  }
  CHECK_EQ(run.mismatches, 0ULL);
}
