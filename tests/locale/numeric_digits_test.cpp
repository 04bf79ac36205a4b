// __numeric_digits<char>: digit sets of bases 8, 10 and 16 and the values of their characters.
#include "lorb_test.h"
#include <__lorb/punct_facets.h>

typedef std::__numeric_digits<char> digits;

static int expected_value(int c, int base) {
  int v = -1;
  if (c >= '0' && c <= '9')
    v = c - '0';
  else if (c >= 'a' && c <= 'f')
    v = c - 'a' + 10;
  else if (c >= 'A' && c <= 'F')
    v = c - 'A' + 10;
  if (base != 8 && base != 10 && base != 16)
    return -1;
  return v < base ? v : -1;
}

TEST(every_byte_in_every_base) {
  const int bases[] = {8, 10, 16};
  for (int b = 0; b < 3; ++b)
    for (int c = 0; c < 256; ++c) {
      char ch = static_cast<char>(c);
      int expected = expected_value(c, bases[b]);
      CHECK_EQ(digits::value(ch, bases[b]), expected);
      CHECK_EQ(digits::is_digit(ch, bases[b]), expected >= 0);
    }
}

TEST(single_base_members_agree_with_the_base_forms) {
  for (int c = 0; c < 256; ++c) {
    char ch = static_cast<char>(c);
    CHECK_EQ(digits::dec_value(ch), expected_value(c, 10));
    CHECK_EQ(digits::oct_value(ch), expected_value(c, 8));
    CHECK_EQ(digits::hex_value(ch), expected_value(c, 16));
    CHECK_EQ(digits::is_dec_digit(ch), expected_value(c, 10) >= 0);
    CHECK_EQ(digits::is_oct_digit(ch), expected_value(c, 8) >= 0);
    CHECK_EQ(digits::is_hex_digit(ch), expected_value(c, 16) >= 0);
  }
}

TEST(hex_values_of_both_cases) {
  CHECK_EQ(digits::hex_value('f'), 15);
  CHECK_EQ(digits::hex_value('F'), 15);
  CHECK_EQ(digits::hex_value('a'), 10);
  CHECK_EQ(digits::hex_value('g'), -1);
}

TEST(eight_is_not_an_octal_digit) {
  CHECK_EQ(digits::value('8', 8), -1);
  CHECK(!digits::is_digit('8', 8));
  CHECK_EQ(digits::value('7', 8), 7);
}

TEST(other_bases_have_no_digits) {
  CHECK(!digits::is_digit('1', 2));
  CHECK_EQ(digits::value('1', 2), -1);
  CHECK(!digits::is_digit('0', 0));
  CHECK_EQ(digits::value('5', 36), -1);
}

TEST(nul_is_never_a_digit) {
  CHECK(!digits::is_hex_digit('\0'));
  CHECK_EQ(digits::dec_value('\0'), -1);
}
