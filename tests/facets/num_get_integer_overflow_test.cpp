// num_get integers: no digits, overflow in every base (the decimal value-went-down rule and a
// wrap it misses), saturation, the range check, the 64-bit targets and a missing facet.
#include "num_get_integer_support.h"

// No digits

TEST(no_digits_fails_and_stores_0) {
  CHECK_GET(unsigned long, "", dec, 0, fail_eof, 0);
  CHECK_GET(long, "", hex, 0, fail_eof, 0);
  CHECK_GET(unsigned short, "abc", dec, 0, fail, 0);
  CHECK_GET(unsigned int, "g", hex, 0, fail, 0);
  CHECK_GET(unsigned long, "8", oct, 0, fail, 0);
  CHECK_GET(long, "-", dec, 0, fail_eof, 1);
  CHECK_GET(long, "+x", dec, 0, fail, 1);
  CHECK_GET(long, "   ", dec, 0, fail_eof, 3);
  CHECK_GET(unsigned long, ".5", dec, 0, fail, 0);
}

// Decimal overflow

TEST(unsigned_long_4294967295_reads_and_4294967296_fails_with_the_maximum) {
  CHECK_READS(unsigned long, "4294967295", dec, 0xFFFFFFFFul);
  CHECK_READS(unsigned int, "4294967295", dec, 0xFFFFFFFFu);
  CHECK_GET(unsigned long, "4294967296", dec, 0xFFFFFFFFul, fail_eof, 10);
  CHECK_GET(unsigned int, "4294967296", dec, 0xFFFFFFFFu, fail_eof, 10);
  CHECK_GET(unsigned long, "99999999999 ", dec, 0xFFFFFFFFul, fail, 11);
}

TEST(leading_zeros_do_not_count_toward_overflow) {
  CHECK_READS(unsigned long, "000000000004294967295", dec, 0xFFFFFFFFul);
  CHECK_READS(long, "-00000000000000000002147483648", dec, LONG_MIN);
  CHECK_READS(unsigned long, "0000000000000000000000000000000001", dec, 1);
}

// 5000000000 is 705032704 past 2^32, more than the 500000000 before the last step.
TEST(a_wrap_that_leaves_the_value_higher_is_missed_and_reads_as_the_wrapped_value) {
  CHECK_READS(unsigned long, "5000000000", dec, 705032704ul);
  CHECK_READS(long, "5000000000", dec, 705032704L);
  CHECK_READS(unsigned long, "10000000000", dec, 1410065408ul); // 10^10 - 2 * 2^32
  CHECK_READS(unsigned long, "-5000000000", dec, 0ul - 705032704ul);
  // 100000000000: the step from 1410065408 wraps to 1215752192, which is lower.
  CHECK_GET(unsigned long, "100000000000", dec, 0xFFFFFFFFul, fail_eof, 12);
}

TEST(generated_long_decimal_texts_follow_the_value_went_down_rule) {
  generator g(3);
  int missed = 0, caught = 0;
  for (int i = 0; i < 600; ++i) {
    std::string digits(1, static_cast<char>('1' + g.next() % 9));
    size_t length = 10 + g.next() % 3;
    while (digits.size() < length)
      digits += static_cast<char>('0' + g.next() % 10);
    unsigned long wrapped;
    bool fits = decimal_rule(digits, wrapped);
    unsigned long long exact = exact_value(digits);
    if (exact <= 0xFFFFFFFFull)
      CHECK(fits && wrapped == exact); // the rule never rejects a value that fits
    if (fits && exact > 0xFFFFFFFFull)
      ++missed;
    if (!fits)
      ++caught;
    if (fits) {
      CHECK_READS(unsigned long, digits.c_str(), dec, wrapped);
      if (wrapped <= 0x7FFFFFFFul)
        CHECK_READS(long, digits.c_str(), dec, wrapped);
      else
        CHECK_GET(long, digits, dec, LONG_MAX, fail_eof, digits.size());
    } else {
      CHECK_GET(unsigned long, digits, dec, 0xFFFFFFFFul, fail_eof, digits.size());
      CHECK_GET(long, digits, dec, LONG_MAX, fail_eof, digits.size());
      CHECK_GET(long, "-" + digits, dec, LONG_MIN, fail_eof, digits.size() + 1);
    }
  }
  CHECK(missed > 0 && caught > 0); // the generator reaches both kinds of wrap
}

// Signed range and saturation

TEST(long_reads_its_limits_and_saturates_past_them) {
  CHECK_READS(long, "2147483647", dec, LONG_MAX);
  CHECK_READS(long, "-2147483648", dec, LONG_MIN);
  CHECK_GET(long, "2147483648", dec, LONG_MAX, fail_eof, 10);
  CHECK_GET(long, "-2147483649", dec, LONG_MIN, fail_eof, 11);
  CHECK_GET(long, "4294967295", dec, LONG_MAX, fail_eof, 10);
  CHECK_GET(long, "4294967296", dec, LONG_MAX, fail_eof, 10);
  CHECK_GET(long, "-4294967296", dec, LONG_MIN, fail_eof, 11);
  CHECK_GET(long, "-99999999999 ", dec, LONG_MIN, fail, 12);
}

TEST(long_in_hex_and_octal_takes_the_same_range) {
  CHECK_READS(long, "7FFFFFFF", hex, LONG_MAX);
  CHECK_READS(long, "-80000000", hex, LONG_MIN);
  CHECK_READS(long, "-0x80000000", no_base, LONG_MIN);
  CHECK_READS(long, "-1", hex, -1L);
  CHECK_GET(long, "80000000", hex, LONG_MAX, fail_eof, 8);
  CHECK_GET(long, "FFFFFFFF", hex, LONG_MAX, fail_eof, 8);
  CHECK_GET(long, "-80000001", hex, LONG_MIN, fail_eof, 9);
  CHECK_READS(long, "17777777777", oct, LONG_MAX);
  CHECK_READS(long, "-20000000000", oct, LONG_MIN);
  CHECK_GET(long, "20000000000", oct, LONG_MAX, fail_eof, 11);
}

// Unsigned range: "-" gives the negation within the type

TEST(minus_1_as_unsigned_reads_the_maximum) {
  CHECK_READS(unsigned long, "-1", dec, 0xFFFFFFFFul);
  CHECK_READS(unsigned int, "-1", dec, 0xFFFFFFFFu);
  CHECK_READS(unsigned short, "-1", dec, 65535);
  CHECK_READS(unsigned long, "-0x10", no_base, 0xFFFFFFF0ul);
  CHECK_READS(unsigned long, "-2147483647", dec, 0x80000001ul);
}

TEST(a_negative_unsigned_with_the_top_bit_set_is_accepted_only_at_half) {
  CHECK_READS(unsigned long, "-2147483648", dec, 0x80000000ul);
  CHECK_GET(unsigned long, "-2147483649", dec, 0xFFFFFFFFul, fail_eof, 11);
  CHECK_GET(unsigned long, "-4294967295", dec, 0xFFFFFFFFul, fail_eof, 11);
  CHECK_GET(unsigned int, "-FFFFFFFF", hex, 0xFFFFFFFFu, fail_eof, 9);
  CHECK_READS(unsigned short, "-32768", dec, 32768);
  CHECK_READS(unsigned short, "-32767", dec, 32769);
  CHECK_GET(unsigned short, "-32769", dec, 65535, fail_eof, 6);
  CHECK_GET(unsigned short, "-65535", dec, 65535, fail_eof, 6);
}

TEST(unsigned_short_70000_fails_with_65535) {
  CHECK_GET(unsigned short, "70000", dec, 65535, fail_eof, 5);
  CHECK_GET(unsigned short, "65536", dec, 65535, fail_eof, 5);
  CHECK_GET(unsigned short, "10000", hex, 65535, fail_eof, 5);
  CHECK_GET(unsigned short, "200000", oct, 65535, fail_eof, 6);
  CHECK_GET(unsigned short, "-65536", dec, 65535, fail_eof, 6); // no "+1" for an unsigned type
  CHECK_GET(unsigned short, "4294967296", dec, 65535, fail_eof, 10);
  CHECK_READS(unsigned short, "FFFF", hex, 65535);
  CHECK_READS(unsigned short, "177777", oct, 65535);
}

TEST(unsigned_int_takes_the_range_of_unsigned_long) {
  CHECK_READS(unsigned int, "0xFFFFFFFF", no_base, 0xFFFFFFFFu);
  CHECK_READS(unsigned int, "-2147483648", dec, 0x80000000u);
  CHECK_READS(unsigned int, "2147483648", dec, 0x80000000u);
  CHECK_GET(unsigned int, "-2147483649", dec, 0xFFFFFFFFu, fail_eof, 11);
}

// Hex and octal overflow: the digit that would not fit stays unread

TEST(hex_overflows_before_a_ninth_significant_digit) {
  CHECK_READS(unsigned long, "FFFFFFFF", hex, 0xFFFFFFFFul);
  CHECK_READS(unsigned long, "0x00000000000FFFFFFFF", no_base, 0xFFFFFFFFul);
  CHECK_GET(unsigned long, "100000000", hex, 0xFFFFFFFFul, fail, 8);
  CHECK_GET(unsigned long, "0x123456789", no_base, 0xFFFFFFFFul, fail, 10);
  CHECK_GET(long, "123456789", hex, LONG_MAX, fail, 8);
  CHECK_GET(long, "-123456789", hex, LONG_MIN, fail, 9);
  CHECK_GET(unsigned short, "123456789", hex, 65535, fail, 8);
  CHECK_GET(unsigned long, "10000000g", hex, 0x10000000ul, good, 8); // no ninth digit came
}

// 0x1FFFFFFF (bits 0 to 28) may take one more octal digit; 0x20000000 may not.
TEST(octal_overflows_when_one_of_the_top_three_bits_is_set) {
  CHECK_READS(unsigned long, "37777777777", oct, 0xFFFFFFFFul);
  CHECK_READS(unsigned long, "037777777777", no_base, 0xFFFFFFFFul);
  CHECK_GET(unsigned long, "40000000000", oct, 0xFFFFFFFFul, fail, 10);
  CHECK_GET(unsigned long, "040000000000", no_base, 0xFFFFFFFFul, fail, 11);
  CHECK_GET(long, "-777777777777", oct, LONG_MIN, fail, 11);
  CHECK_GET(unsigned long, "-37777777777", oct, 0xFFFFFFFFul, fail_eof, 12);
}

// The 64-bit targets: the same rules over a 64-bit accumulator

TEST(long_long_reads_its_limits_and_saturates_past_them) {
  CHECK_READS(long long, "9223372036854775807", dec, LLONG_MAX);
  CHECK_READS(long long, "-9223372036854775808", dec, LLONG_MIN);
  CHECK_READS(long long, "4294967296", dec, 4294967296LL);
  CHECK_READS(long long, "-4294967296", dec, -4294967296LL);
  CHECK_GET(long long, "9223372036854775808", dec, LLONG_MAX, fail_eof, 19);
  CHECK_GET(long long, "-9223372036854775809", dec, LLONG_MIN, fail_eof, 20);
  CHECK_GET(long long, "18446744073709551616", dec, LLONG_MAX, fail_eof, 20);
  CHECK_READS(long long, "-8000000000000000", hex, LLONG_MIN);
  CHECK_GET(long long, "8000000000000000", hex, LLONG_MAX, fail_eof, 16);
}

TEST(unsigned_long_long_reads_its_limits_and_saturates_past_them) {
  CHECK_READS(unsigned long long, "18446744073709551615", dec, ULLONG_MAX);
  CHECK_READS(unsigned long long, "-1", dec, ULLONG_MAX);
  CHECK_READS(unsigned long long, "-9223372036854775808", dec, 0x8000000000000000ull);
  CHECK_GET(unsigned long long, "-9223372036854775809", dec, ULLONG_MAX, fail_eof, 20);
  CHECK_GET(unsigned long long, "18446744073709551616", dec, ULLONG_MAX, fail_eof, 20);
  CHECK_READS(unsigned long long, "0xFFFFFFFFFFFFFFFF", no_base, ULLONG_MAX);
  CHECK_GET(unsigned long long, "10000000000000000", hex, ULLONG_MAX, fail, 16);
  CHECK_READS(unsigned long long, "1777777777777777777777", oct, ULLONG_MAX);
  CHECK_GET(unsigned long long, "2000000000000000000000", oct, ULLONG_MAX, fail, 21);
}

// 3 * 10^19 is 11553255926290448384 past 2^64, more than 3 * 10^18: the wrap is missed.
TEST(a_64_bit_wrap_that_leaves_the_value_higher_is_missed_too) {
  CHECK_READS(unsigned long long, "30000000000000000000", dec, 11553255926290448384ull);
  CHECK_GET(long long, "30000000000000000000", dec, LLONG_MAX, fail_eof, 20);
  CHECK_READS(unsigned long long, "10000000000000000000", dec, 10000000000000000000ull);
}

TEST(generated_64_bit_values_read_back) {
  generator g(4);
  for (int i = 0; i < 200; ++i) {
    unsigned long long v = (static_cast<unsigned long long>(g.next()) << 32 | g.next()) >> (i % 64);
    char text[64];
    snprintf(text, sizeof text, "%llu", v);
    CHECK_READS(unsigned long long, text, dec, v);
    snprintf(text, sizeof text, "%#llx", v);
    CHECK_READS(unsigned long long, text, hex, v);
    snprintf(text, sizeof text, "%lld", static_cast<long long>(v));
    CHECK_READS(long long, text, dec, static_cast<long long>(v));
  }
}

TEST(over_a_buffer_without_a_get_area_each_character_is_taken_once) {
  const char* texts[] = {"-12345 x", "0x1F;", "4294967296 ", "- 7", "017", ""};
  const std::ios_base::fmtflags flags[] = {dec, no_base, dec, dec, no_base, dec};
  const long values[] = {-12345, 31, LONG_MAX, -7, 15, 0};
  const iostate bits[] = {good, good, fail, eof, eof, fail_eof};
  const int taken[] = {6, 4, 10, 3, 3, 0};
  for (int i = 0; i < 6; ++i) {
    trickle_buffer buffer(texts[i]);
    std::istringstream s;
    s.flags(flags[i]);
    const buffer_num_get& facet = std::use_facet<buffer_num_get>(s.getloc());
    iostate err = good;
    long v = 77;
    facet.get(buffer_iterator(&buffer), buffer_iterator(), s, err, v);
    CHECK_EQ(v, values[i]);
    CHECK_EQ(static_cast<int>(err), static_cast<int>(bits[i]));
    CHECK_EQ(buffer.uflows, static_cast<int>(buffer.next - texts[i]));
    CHECK_EQ(buffer.uflows, taken[i]);
  }
}

// eofbit and the value on failure

TEST(eofbit_is_set_exactly_when_the_input_ended) {
  CHECK_GET(unsigned long, "12", dec, 12, eof, 2);
  CHECK_GET(unsigned long, "12x", dec, 12, good, 2);
  CHECK_GET(unsigned long, "12\n", dec, 12, good, 2);
  CHECK_GET(unsigned long, "4294967296x", dec, 0xFFFFFFFFul, fail, 10);
  CHECK_GET(unsigned long, "0", hex, 0, eof, 1);
}

TEST(the_value_is_stored_on_every_failure) {
  CHECK_GET(unsigned long, "x", dec, 0, fail, 0);
  CHECK_GET(long, "-x", dec, 0, fail, 1);
  CHECK_GET(long, "999999999999", dec, LONG_MAX, fail_eof, 12);
  CHECK_GET(unsigned short, "99999", dec, 65535, fail_eof, 5);
}

// A missing facet

TEST(a_missing_numpunct_or_ctype_aborts_with_the_bad_cast_message) {
  EXPECT_CHILD(read_with_locale<long>(std::locale::classic()), lt::exits(0), "12 eof\n", "");
  EXPECT_ABORT(read_with_locale<long>(locale_without<std::numpunct<char> >()),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(read_with_locale<unsigned short>(locale_without<std::ctype<char> >()),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(read_with_locale<unsigned long>(locale_without<std::ctype<char> >()),
               "bad_cast: Facet not present\n\n");
}

TEST(an_input_iterator_without_a_buffer_is_at_its_end_whatever_the_end_iterator) {
  std::istringstream source("-12 ");
  const std::num_get<char>& facet = std::use_facet<std::num_get<char> >(source.getloc());
  std::ios_base::iostate err = std::ios_base::goodbit;
  long v = 5;
  std::istreambuf_iterator<char> no_buffer;
  std::istreambuf_iterator<char> end(source.rdbuf());
  facet.get(no_buffer, end, source, err, v);
  CHECK_EQ(err,
           static_cast<std::ios_base::iostate>(std::ios_base::eofbit | std::ios_base::failbit));
  CHECK_EQ(v, 0L);
  CHECK_EQ(source.rdbuf()->sgetc(), '-');
}
