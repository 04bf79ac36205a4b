// num_get integers: values in every base, the sign before the white space, the bases and the
// '0x' prefix.
#include "num_get_integer_support.h"

// Values

TEST(generated_unsigned_long_values_read_back_in_every_base) {
  generator g(1);
  for (int i = 0; i < 300; ++i) {
    unsigned long v = g.next() >> (i % 32);
    CHECK_READS(unsigned long, text_of("%lu", v).c_str(), dec, v);
    CHECK_READS(unsigned int, text_of("%lu", v).c_str(), dec, v);
    CHECK_READS(unsigned long, text_of("%lx", v).c_str(), hex, v);
    CHECK_READS(unsigned long, text_of("%lX", v).c_str(), hex, v);
    CHECK_READS(unsigned long, text_of("%#lx", v).c_str(), hex, v);
    CHECK_READS(unsigned long, text_of("%#lX", v).c_str(), no_base, v);
    CHECK_READS(unsigned long, text_of("%lo", v).c_str(), oct, v);
    CHECK_READS_BEFORE_BLANK(unsigned long, text_of("%lu", v).c_str(), dec, v);
    if (v != 0) // a zero has no prefix, and would read as a lone zero anyway
      CHECK_READS(unsigned long, text_of("%#lo", v).c_str(), no_base, v);
  }
}

TEST(generated_long_values_read_back_with_their_sign) {
  generator g(2);
  for (int i = 0; i < 300; ++i) {
    long v = static_cast<long>(g.next() >> (i % 32));
    char text[32];
    snprintf(text, sizeof text, "%ld", v);
    CHECK_READS(long, text, dec, v);
    snprintf(text, sizeof text, "%ld", -v);
    if (v != LONG_MIN)
      CHECK_READS(long, text, dec, -v);
  }
}

TEST(unsigned_short_reads_its_whole_range) {
  for (unsigned long v = 0; v <= 65535; v += v < 300 ? 1 : 251) {
    CHECK_READS(unsigned short, text_of("%lu", v).c_str(), dec, v);
    CHECK_READS(unsigned short, text_of("%lx", v).c_str(), hex, v);
  }
  CHECK_READS(unsigned short, "65535", dec, 65535);
}

// The sign, then the white space

TEST(white_space_is_skipped_after_the_sign_so_minus_blank_12_reads_minus_12) {
  CHECK_READS(long, "- 12", dec, -12);
  CHECK_READS(long, "-\t\n\v\f\r 12", dec, -12);
  CHECK_READS(long, "+ 12", dec, 12);
  CHECK_READS(unsigned long, "- 1", dec, 0xFFFFFFFFul);
}

TEST(white_space_is_what_the_stream_ctype_calls_space) {
  std::locale loc(std::locale::classic(), new underscore_space_ctype);
  CHECK_GET_IN(loc, long, "-__12", dec, -12, eof, 5);
  CHECK_GET_IN(loc, unsigned long, "_0x1F", no_base, 31, eof, 5);
  CHECK_GET_IN(loc, long, "- 12", dec, 0, fail, 1);
}

TEST(white_space_before_the_sign_leaves_the_sign_unread_as_a_digit) {
  CHECK_GET(long, " -12", dec, 0, fail, 1);
  CHECK_READS(long, "  12", dec, 12);
}

TEST(without_skipws_white_space_after_the_sign_means_no_digits) {
  CHECK_GET(long, "- 12", std::ios_base::dec, 0, fail, 1);
  CHECK_GET(long, " 12", std::ios_base::dec, 0, fail, 0);
  CHECK_READS(long, "-12", std::ios_base::dec, -12);
}

TEST(a_plus_is_taken_and_ignored_and_a_second_sign_is_no_digit) {
  CHECK_READS(long, "+7", dec, 7);
  CHECK_READS(unsigned short, "+7", dec, 7);
  CHECK_GET(long, "+-7", dec, 0, fail, 1);
  CHECK_GET(long, "-+7", dec, 0, fail, 1);
  CHECK_GET(long, "--7", dec, 0, fail, 1);
  CHECK_READS(long, "-0", dec, 0);
}

// Bases and the prefix

TEST(hex_0x1F_reads_31_with_basefield_hex_or_none) {
  CHECK_READS(unsigned long, "0x1F", hex, 31);
  CHECK_READS(unsigned long, "0x1F", no_base, 31);
  CHECK_READS(unsigned long, "0X1f", no_base, 31);
  CHECK_READS(unsigned long, "1F", hex, 31);
  CHECK_READS(long, "-0x1f", no_base, -31);
  CHECK_READS(unsigned long, "aBcDeF", hex, 0xABCDEFul);
}

TEST(an_x_after_a_zero_is_no_prefix_in_dec_or_oct) {
  CHECK_GET(unsigned long, "0x1F", dec, 0, good, 1);
  CHECK_GET(unsigned long, "0x1F", oct, 0, good, 1);
  CHECK_READS(unsigned long, "017", dec, 17);
}

TEST(zero_x_followed_by_no_digit_fails_with_0_and_the_x_taken) {
  CHECK_GET(unsigned long, "0xg", no_base, 0, fail, 2);
  CHECK_GET(unsigned long, "0xg", hex, 0, fail, 2);
  CHECK_GET(unsigned long, "0x", hex, 0, fail_eof, 2);
  CHECK_GET(long, "-0X ", no_base, 0, fail, 3);
}

TEST(a_lone_zero_reads_0_in_every_base) {
  const std::ios_base::fmtflags bases[] = {dec, hex, oct, no_base};
  for (int i = 0; i < 4; ++i) {
    CHECK_READS(unsigned long, "0", bases[i], 0);
    CHECK_READS(long, "-0", bases[i], 0);
    CHECK_READS_BEFORE_BLANK(unsigned short, "0", bases[i], 0);
  }
}

TEST(with_no_basefield_017_reads_15_and_17_fails) {
  CHECK_READS(unsigned long, "017", no_base, 15);
  CHECK_GET(unsigned long, "17", no_base, 0, fail, 0);
  CHECK_GET(long, "-17", no_base, 0, fail, 1);
  CHECK_READS(unsigned long, "17", oct, 15);
  CHECK_READS(unsigned long, "017", oct, 15);
}

TEST(several_basefield_bits_read_like_none) {
  const std::ios_base::fmtflags mixtures[] = {
      std::ios_base::dec | std::ios_base::hex, std::ios_base::dec | std::ios_base::oct,
      std::ios_base::hex | std::ios_base::oct, std::ios_base::basefield};
  for (int i = 0; i < 4; ++i) {
    CHECK_GET(unsigned long, "12", mixtures[i], 0, fail, 0);
    CHECK_READS(unsigned long, "012", mixtures[i], 10);
    CHECK_READS(unsigned long, "0x10", mixtures[i], 16);
  }
}

TEST(a_leading_zero_makes_octal_whose_digits_end_at_8) {
  CHECK_GET(unsigned long, "09", no_base, 0, good, 1);
  CHECK_GET(unsigned long, "0178", no_base, 15, good, 3);
  CHECK_GET(unsigned long, "178", oct, 15, good, 2);
  CHECK_GET(unsigned long, "12a", dec, 12, good, 2);
  CHECK_GET(unsigned long, "1fg", hex, 31, good, 2);
}
