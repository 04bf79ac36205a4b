// __trelk_strtoul and __trelk_strtol: signs, leading zeros, bases 8, 10 and 16, the exact
// overflow test and what it stores (0xFFFFFFFF, or 1 with a '-'), and the limits of strtol.
#include "lorb_test.h"
#include <limits.h>
#include <locale>
#include <stdio.h>
#include <string>

namespace {

struct unsigned_result {
  bool in_range;
  unsigned long value;
};

unsigned_result to_unsigned(const std::string& text, int base) {
  unsigned_result r = {false, 12345};
  r.in_range = std::__trelk_strtoul(text.c_str(), r.value, base);
  return r;
}

struct signed_result {
  bool in_range;
  long value;
};

signed_result to_signed(const std::string& text, int base) {
  signed_result r = {false, 12345};
  r.in_range = std::__trelk_strtol(text.c_str(), r.value, base);
  return r;
}

#define CHECK_STRTOUL(text, base, fits, expected)                                                  \
  do {                                                                                             \
    unsigned_result r_ = to_unsigned((text), (base));                                              \
    CHECK_EQ(r_.in_range, (fits));                                                                 \
    CHECK_EQ(r_.value, static_cast<unsigned long>(expected));                                      \
  } while (0)

#define CHECK_STRTOL(text, base, fits, expected)                                                   \
  do {                                                                                             \
    signed_result r_ = to_signed((text), (base));                                                  \
    CHECK_EQ(r_.in_range, (fits));                                                                 \
    CHECK_EQ(r_.value, static_cast<long>(expected));                                               \
  } while (0)

struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned long next() {
    state = state * 1103515245ul + 12345ul;
    unsigned long high = state >> 16;
    state = state * 1103515245ul + 12345ul;
    return (high << 16) ^ (state >> 16);
  }
};

const char digit_chars[] = "0123456789abcdef";

// A text of n random digits of base, and its exact value (n at most 16 hex, 19 decimal digits).
std::string random_digits(generator& g, int base, int n, unsigned long long& exact) {
  std::string text;
  exact = 0;
  for (int i = 0; i < n; ++i) {
    int d = static_cast<int>(g.next() % base);
    text += digit_chars[d];
    exact = exact * base + d;
  }
  return text;
}

} // namespace

// __trelk_strtoul

TEST(strtoul_reads_plain_digits_in_bases_8_10_and_16) {
  CHECK_STRTOUL("123", 10, true, 123);
  CHECK_STRTOUL("777", 8, true, 0777);
  CHECK_STRTOUL("ff", 16, true, 0xFF);
  CHECK_STRTOUL("FF", 16, true, 0xFF);
  CHECK_STRTOUL("aBcD", 16, true, 0xABCD);
  CHECK_STRTOUL("4294967295", 10, true, 0xFFFFFFFFul);
  CHECK_STRTOUL("ffffffff", 16, true, 0xFFFFFFFFul);
  CHECK_STRTOUL("37777777777", 8, true, 0xFFFFFFFFul);
}

TEST(strtoul_takes_a_sign_and_negates_as_unsigned) {
  CHECK_STRTOUL("+123", 10, true, 123);
  CHECK_STRTOUL("-123", 10, true, 0ul - 123);
  CHECK_STRTOUL("-1", 10, true, 0xFFFFFFFFul);
  CHECK_STRTOUL("-4294967295", 10, true, 1);
  CHECK_STRTOUL("-ffffffff", 16, true, 1);
  CHECK_STRTOUL("-0", 10, true, 0);
}

TEST(strtoul_with_nothing_after_the_sign_gives_0_in_range) {
  CHECK_STRTOUL("", 10, true, 0);
  CHECK_STRTOUL("+", 10, true, 0);
  CHECK_STRTOUL("-", 16, true, 0);
  CHECK_STRTOUL("0", 8, true, 0);
  CHECK_STRTOUL("0000", 10, true, 0);
  CHECK_STRTOUL("-000", 10, true, 0);
}

TEST(strtoul_skips_leading_zeros_before_counting) {
  CHECK_STRTOUL("0000000000000000004294967295", 10, true, 0xFFFFFFFFul);
  CHECK_STRTOUL("000000000000ffffffff", 16, true, 0xFFFFFFFFul);
  CHECK_STRTOUL("0012", 8, true, 10);
}

TEST(strtoul_overflow_stores_0xFFFFFFFF_and_says_out_of_range) {
  CHECK_STRTOUL("4294967296", 10, false, 0xFFFFFFFFul); // the last sum wraps below its digit
  CHECK_STRTOUL("4294967300", 10, false, 0xFFFFFFFFul); // the product wraps
  CHECK_STRTOUL("99999999999999999999", 10, false, 0xFFFFFFFFul);
  CHECK_STRTOUL("100000000", 16, false, 0xFFFFFFFFul);
  CHECK_STRTOUL("40000000000", 8, false, 0xFFFFFFFFul);
  CHECK_STRTOUL("+4294967296", 10, false, 0xFFFFFFFFul);
}

// Kept: the overflow value 0xFFFFFFFF is negated like any other, giving 1.
TEST(strtoul_overflow_with_a_minus_stores_1) {
  CHECK_STRTOUL("-4294967296", 10, false, 1);
  CHECK_STRTOUL("-100000000", 16, false, 1);
  CHECK_STRTOUL("-99999999999999999999", 10, false, 1);
}

TEST(strtoul_a_character_after_a_digit_that_is_no_digit_is_out_of_range) {
  CHECK_STRTOUL("12z", 10, false, 0xFFFFFFFFul);
  // wherever it stands, also first
  CHECK_STRTOUL("x5", 10, false, 0xFFFFFFFFul);
  CHECK_STRTOUL("-x", 10, false, 1ul);
  CHECK_STRTOUL("005", 2, false, 0xFFFFFFFFul);
  CHECK_STRTOL("x", 10, false, LONG_MAX);
  CHECK_STRTOUL("18", 8, false, 0xFFFFFFFFul);
  CHECK_STRTOUL("1g", 16, false, 0xFFFFFFFFul);
  CHECK_STRTOUL("1 ", 10, false, 0xFFFFFFFFul);
}

TEST(strtoul_generated_texts_are_in_range_exactly_when_they_fit) {
  generator g(10);
  const int bases[] = {8, 10, 16};
  const int longest[] = {14, 13, 10};
  for (int b = 0; b < 3; ++b) {
    for (int i = 0; i < 400; ++i) {
      unsigned long long exact;
      std::string text = random_digits(g, bases[b], 1 + i % longest[b], exact);
      bool fits = exact <= 0xFFFFFFFFull;
      unsigned long value = fits ? static_cast<unsigned long>(exact) : 0xFFFFFFFFul;
      CHECK_STRTOUL(text, bases[b], fits, value);
      CHECK_STRTOUL("-" + text, bases[b], fits, 0ul - value);
    }
  }
}

TEST(strtoul_reads_back_what_sprintf_writes) {
  generator g(11);
  for (int i = 0; i < 300; ++i) {
    unsigned long v = g.next() >> (i % 32);
    char text[32];
    snprintf(text, sizeof text, "%lu", v);
    CHECK_STRTOUL(text, 10, true, v);
    snprintf(text, sizeof text, "%lx", v);
    CHECK_STRTOUL(text, 16, true, v);
    snprintf(text, sizeof text, "%lX", v);
    CHECK_STRTOUL(text, 16, true, v);
    snprintf(text, sizeof text, "%lo", v);
    CHECK_STRTOUL(text, 8, true, v);
  }
}

// __trelk_strtol

TEST(strtol_reads_its_limits) {
  CHECK_STRTOL("2147483647", 10, true, LONG_MAX);
  CHECK_STRTOL("-2147483648", 10, true, LONG_MIN);
  CHECK_STRTOL("7fffffff", 16, true, LONG_MAX);
  CHECK_STRTOL("-80000000", 16, true, LONG_MIN);
  CHECK_STRTOL("-20000000000", 8, true, LONG_MIN);
  CHECK_STRTOL("-1", 10, true, -1);
  CHECK_STRTOL("+5", 10, true, 5);
  CHECK_STRTOL("-0", 10, true, 0);
  CHECK_STRTOL("", 10, true, 0);
  CHECK_STRTOL("-", 10, true, 0);
}

TEST(strtol_past_its_limits_stores_the_limit_and_says_out_of_range) {
  CHECK_STRTOL("2147483648", 10, false, LONG_MAX);
  CHECK_STRTOL("-2147483649", 10, false, LONG_MIN);
  CHECK_STRTOL("80000000", 16, false, LONG_MAX);
  CHECK_STRTOL("+2147483648", 10, false, LONG_MAX);
  CHECK_STRTOL("4294967295", 10, false, LONG_MAX);
  CHECK_STRTOL("4294967296", 10, false, LONG_MAX);
  CHECK_STRTOL("-4294967296", 10, false, LONG_MIN);
  CHECK_STRTOL("-99999999999999999999", 10, false, LONG_MIN);
}

// Only the first '-' belongs to strtol; strtoul takes the sign after it.
TEST(strtol_hands_a_second_sign_to_strtoul) {
  CHECK_STRTOL("-+5", 10, true, -5);
  CHECK_STRTOL("--5", 10, false, LONG_MIN); // strtoul gives 0xFFFFFFFB, past the limit
  CHECK_STRTOL("--0", 10, true, 0);
}

TEST(strtol_generated_values_read_back_and_texts_past_the_limits_saturate) {
  generator g(12);
  for (int i = 0; i < 300; ++i) {
    long v = static_cast<long>(g.next() >> (i % 32));
    char text[32];
    snprintf(text, sizeof text, "%ld", v);
    CHECK_STRTOL(text, 10, true, v);
    unsigned long long exact;
    std::string digits = random_digits(g, 10, 1 + i % 12, exact);
    CHECK_STRTOL(digits, 10, exact <= 0x7FFFFFFFull,
                 exact <= 0x7FFFFFFFull ? static_cast<long>(exact) : LONG_MAX);
    CHECK_STRTOL("-" + digits, 10, exact <= 0x80000000ull,
                 exact <= 0x80000000ull ? static_cast<long>(0ul - static_cast<unsigned long>(exact))
                                        : LONG_MIN);
  }
}
