// The numeric extractors: numbers through num_get, short and int stored truncated and then
// flagged.
#include "istream_extractors_support.h"

// Numbers

TEST(long_values_read_back_from_their_decimal_text) {
  generator g(1);
  for (int i = 0; i < 2000; ++i) {
    long v = static_cast<long>(g.next() >> (g.below(32)));
    if (i & 1)
      v = -v;
    char text[32];
    snprintf(text, sizeof text, " %ld", v);
    std::istringstream is(text);
    long read = 0;
    is >> read;
    if (!CHECK_EQ(read, v))
      printf("  text %s\n", text);
    CHECK_EQ(is.rdstate(), eof);
  }
}

TEST(a_number_followed_by_more_input_sets_no_eofbit) {
  std::istringstream is("\t 42 x");
  long v = 0;
  is >> v;
  CHECK_EQ(v, 42L);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), ' ');
}

TEST(unsigned_long_and_unsigned_int_read_the_whole_range) {
  const char* texts[] = {"0", "1", "4294967295", "2147483648", "-1"};
  const unsigned long values[] = {0, 1, 4294967295ul, 2147483648ul, 4294967295ul};
  for (int i = 0; i < 5; ++i) {
    std::istringstream a(texts[i]), b(texts[i]);
    unsigned long ul = 7;
    unsigned int ui = 7;
    a >> ul;
    b >> ui;
    CHECK_EQ(ul, values[i]);
    CHECK_EQ(static_cast<unsigned long>(ui), values[i]);
    CHECK_EQ(a.rdstate(), eof);
    CHECK_EQ(b.rdstate(), eof);
  }
  std::istringstream over("4294967296");
  unsigned long ul = 0;
  over >> ul;
  CHECK_EQ(ul, 4294967295ul);
  CHECK_EQ(over.rdstate(), eof | fail);
}

TEST(unsigned_short_uses_its_own_range) {
  std::istringstream a("70000"), b("65535"), c("-1");
  unsigned short v = 0;
  a >> v;
  CHECK_EQ(v, static_cast<unsigned short>(65535));
  CHECK_EQ(a.rdstate(), eof | fail);
  b >> v;
  CHECK_EQ(v, static_cast<unsigned short>(65535));
  CHECK_EQ(b.rdstate(), eof);
  v = 0;
  c >> v;
  CHECK_EQ(v, static_cast<unsigned short>(65535));
  CHECK_EQ(c.rdstate(), eof);
}

TEST(a_short_out_of_range_is_stored_truncated_and_then_flagged) {
  std::istringstream is("70000");
  short s = 0;
  is >> s;
  CHECK_EQ(s, static_cast<short>(4464));
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(short_values_over_a_wide_range_are_stored_truncated_and_flagged_when_changed) {
  const long edges[] = {32767, 32768, -32768, -32769, 65535, 65536, -65536, 70000, -70000, 0};
  for (long v = -200000; v <= 200000; v += 997) {
    for (int e = -1; e < 10; ++e) {
      long value = e < 0 ? v : edges[e];
      if (e >= 0 && v != -200000)
        continue;
      char text[32];
      snprintf(text, sizeof text, "%ld ", value);
      std::istringstream is(text);
      short s = 1;
      is >> s;
      bool fits = value >= -32768 && value <= 32767;
      if (!CHECK_EQ(static_cast<long>(s), as_short(value)))
        printf("  value %ld\n", value);
      CHECK_EQ(is.rdstate(), fits ? good : fail);
    }
  }
}

TEST(int_values_read_as_long) {
  const char* texts[] = {"2147483647", "-2147483648", "0", "-17"};
  const int values[] = {2147483647, -2147483647 - 1, 0, -17};
  for (int i = 0; i < 4; ++i) {
    std::istringstream is(texts[i]);
    int v = 5;
    is >> v;
    CHECK_EQ(v, values[i]);
    CHECK_EQ(is.rdstate(), eof);
  }
}

TEST(an_int_beyond_long_takes_the_saturated_long_and_failbit) {
  std::istringstream a("2147483648"), b("-2147483649");
  int v = 0;
  a >> v;
  CHECK_EQ(v, 2147483647);
  CHECK_EQ(a.rdstate(), eof | fail);
  b >> v;
  CHECK_EQ(v, -2147483647 - 1);
  CHECK_EQ(b.rdstate(), eof | fail);
}

TEST(a_short_beyond_long_stores_the_truncated_saturation_value) {
  std::istringstream is("99999999999 ");
  short s = 1;
  is >> s;
  CHECK_EQ(static_cast<long>(s), as_short(2147483647L));
  CHECK(is.fail());
}

TEST(a_short_without_digits_stores_the_facet_zero) {
  std::istringstream is("abc");
  short s = 9;
  is >> s;
  CHECK_EQ(s, static_cast<short>(0));
  CHECK_EQ(is.rdstate(), fail);
  int i = 9;
  std::istringstream is2("x");
  is2 >> i;
  CHECK_EQ(i, 0);
  CHECK_EQ(is2.rdstate(), fail);
}

TEST(a_short_or_int_is_left_alone_when_the_sentry_fails) {
  std::istringstream is("12");
  is.setstate(eof);
  short s = 9;
  int i = 8;
  is >> s;
  is >> i;
  CHECK_EQ(s, static_cast<short>(9));
  CHECK_EQ(i, 8);
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(a_number_at_the_end_after_blanks_meets_the_end_in_the_facet) {
  std::istringstream is("   ");
  long v = 3;
  is >> v;
  CHECK_EQ(v, 0L);
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(without_skipws_a_leading_blank_stops_the_number) {
  std::istringstream is(" 12");
  is.unsetf(std::ios_base::skipws);
  long v = 3;
  is >> v;
  CHECK_EQ(v, 0L);
  CHECK_EQ(is.rdstate(), fail);
}

TEST(long_long_values_read_back_from_their_decimal_text) {
  generator g(7);
  for (int i = 0; i < 1000; ++i) {
    long long v = static_cast<long long>(g.next() << 1 ^ g.next()) >> g.below(63);
    char text[40];
    snprintf(text, sizeof text, "%lld", v);
    std::istringstream is(text);
    long long read = 0;
    is >> read;
    if (!CHECK_EQ(read, v))
      printf("  text %s\n", text);
    CHECK_EQ(is.rdstate(), eof);
  }
}

TEST(long_long_range_ends) {
  std::istringstream a("9223372036854775807"), b("-9223372036854775808"), c("9223372036854775808"),
      d("18446744073709551615");
  long long v = 0;
  a >> v;
  CHECK_EQ(v, 9223372036854775807ll);
  CHECK_EQ(a.rdstate(), eof);
  b >> v;
  CHECK_EQ(v, -9223372036854775807ll - 1);
  CHECK_EQ(b.rdstate(), eof);
  c >> v;
  CHECK_EQ(v, 9223372036854775807ll);
  CHECK_EQ(c.rdstate(), eof | fail);
  unsigned long long u = 0;
  d >> u;
  CHECK_EQ(u, 18446744073709551615ull);
  CHECK_EQ(d.rdstate(), eof);
}

TEST(floating_values_bool_and_pointer_use_their_own_overloads) {
  std::istringstream is("3.25 -1e3 0.5 1 0 0x1234 2");
  float f = 0;
  double d = 0;
  long double ld = 0;
  bool b = false;
  void* p = 0;
  is >> f >> d >> ld;
  CHECK(f == 3.25f);
  CHECK(d == -1000.0);
  CHECK(ld == 0.5L);
  is >> b;
  CHECK(b);
  is >> b;
  CHECK(!b);
  is >> p;
  CHECK_EQ(p, reinterpret_cast<void*>(0x1234));
  CHECK_EQ(is.rdstate(), good);
  b = true;
  is >> b;
  CHECK(b);
  CHECK_EQ(is.rdstate(), fail);
}

TEST(a_floating_syntax_error_leaves_the_value_and_sets_failbit) {
  std::istringstream is("x");
  double d = 2.5;
  is >> d;
  CHECK(d == 2.5);
  CHECK_EQ(is.rdstate(), fail);
}

TEST(a_numeric_extractor_on_a_stream_that_is_not_good_adds_failbit) {
  std::istringstream is("5");
  is.setstate(eof);
  long v = 9;
  double d = 1;
  is >> v >> d;
  CHECK_EQ(v, 9L);
  CHECK(d == 1);
  CHECK_EQ(is.rdstate(), eof | fail);
  std::istream none(0);
  none >> v;
  CHECK_EQ(none.rdstate(), bad | fail);
}

TEST(numbers_read_through_uflow_give_the_same_values) {
  const char text[] = "  123 -456\n789";
  uflow_buffer in(text, sizeof text - 1);
  std::istream is(&in);
  long a = 0, b = 0, c = 0;
  is >> a >> b >> c;
  CHECK_EQ(a, 123L);
  CHECK_EQ(b, -456L);
  CHECK_EQ(c, 789L);
  CHECK_EQ(is.rdstate(), eof);
}

TEST(a_numeric_extractor_without_num_get_reports_the_missing_facet) {
  std::istringstream is("5");
  is.imbue(locale_without<std::num_get<char> >());
  long v = 0;
  EXPECT_ABORT(is >> v, "bad_cast: Facet not present\n\n");
  short s = 0;
  EXPECT_ABORT(is >> s, "bad_cast: Facet not present\n\n");
}

TEST(a_failed_short_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("70000");
  is.exceptions(fail);
  short s = 0;
  EXPECT_EXIT(is >> s, 1, "Failure in I/O\n");
}

TEST(a_formatted_extraction_leaves_gcount_zero) {
  std::istringstream is("a 12 x yz");
  is.get();
  CHECK_EQ(is.gcount(), 1L);
  long n = 0;
  is >> n;
  CHECK_EQ(n, 12L);
  CHECK_EQ(is.gcount(), 0L);
  is.get();
  CHECK_EQ(is.gcount(), 1L);
  char c = 0;
  is >> c;
  CHECK_EQ(c, 'x');
  CHECK_EQ(is.gcount(), 0L);
  is.get();
  std::string s;
  is >> s;
  CHECK(s == "yz");
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), eof);
}
