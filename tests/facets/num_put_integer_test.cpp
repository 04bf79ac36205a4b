// num_put for long, unsigned long, long long and unsigned long long: bases, signs and base
// prefixes, padding in every adjustment, the width reset, limits, the fill argument, a missing
// numpunct, and writing through an ostreambuf_iterator whose buffer refuses characters.
#include "num_put_test_support.h"
#include <limits.h>

namespace {

// A stream with grouping by threes and the fill '*', as the padding cases use it.
void group_and_fill(formatting_stream& s, char separator) {
  s.imbue(punctuated("\3", separator));
  s.fill('*');
}

} // namespace

TEST(long_1234567_with_groups_of_three_and_a_dot_writes_1_234_567) {
  formatting_stream s;
  s.imbue(punctuated("\3", '.'));
  CHECK_PUT(s, 1234567L, "1.234.567");
}

TEST(internal_pads_between_the_sign_and_the_digits) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1234L, "-**1,234");
}

TEST(right_pads_before_the_sign) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.setf(std::ios_base::right, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1234L, "**-1,234");
}

TEST(left_pads_after_the_digits) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1234L, "-1,234**");
}

TEST(no_adjustment_pads_before_like_right) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.unsetf(std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1234L, "**-1,234");
}

TEST(adjustment_mixtures_pad_before_the_whole_text) {
  const std::ios_base::fmtflags mixtures[] = {
      std::ios_base::left | std::ios_base::right, std::ios_base::left | std::ios_base::internal,
      std::ios_base::internal | std::ios_base::right, std::ios_base::adjustfield};
  for (int i = 0; i < 4; ++i) {
    formatting_stream s;
    group_and_fill(s, ',');
    s.setf(mixtures[i], std::ios_base::adjustfield);
    s.width(8);
    CHECK_PUT(s, -1234L, "**-1,234");
    s.setf(std::ios_base::hex | std::ios_base::showbase | std::ios_base::uppercase);
    s.unsetf(std::ios_base::dec);
    s.width(8);
    CHECK_PUT(s, 255L, "****0XFF");
  }
}

TEST(internal_without_a_prefix_pads_before_the_digits) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, 1234L, "***1,234");
  s.width(6);
  CHECK_PUT(s, 1234UL, "*1,234");
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  s.imbue(std::locale::classic());
  s.width(6);
  CHECK_PUT(s, 255L, "****ff");
}

TEST(hex_showbase_uppercase_255_writes_0XFF) {
  formatting_stream s;
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  s.setf(std::ios_base::showbase | std::ios_base::uppercase);
  CHECK_PUT(s, 255L, "0XFF");
}

TEST(hex_showbase_internal_pads_after_0X) {
  formatting_stream s;
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  s.setf(std::ios_base::showbase | std::ios_base::uppercase);
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.fill('0');
  s.width(6);
  CHECK_PUT(s, 255L, "0X00FF");
  s.unsetf(std::ios_base::uppercase);
  s.width(6);
  CHECK_PUT(s, 255UL, "0x00ff");
}

TEST(hex_showbase_of_zero_has_no_prefix_to_keep_apart) {
  formatting_stream s;
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  s.setf(std::ios_base::showbase);
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.fill('*');
  s.width(4);
  CHECK_PUT(s, 0L, "***0");
}

TEST(oct_showbase_of_8_writes_010) {
  formatting_stream s;
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  s.setf(std::ios_base::showbase);
  CHECK_PUT(s, 8L, "010");
  CHECK_PUT(s, 0L, "0");
}

TEST(oct_showbase_internal_pads_after_the_leading_0) {
  formatting_stream s;
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  s.setf(std::ios_base::showbase);
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.fill('*');
  s.width(6);
  CHECK_PUT(s, 8L, "0***10");
  s.setf(std::ios_base::right, std::ios_base::adjustfield);
  s.width(6);
  CHECK_PUT(s, 8L, "***010");
}

TEST(octal_without_showbase_has_no_base_mark) {
  formatting_stream s;
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.fill('*');
  s.width(4);
  CHECK_PUT(s, 8L, "**10");
}

TEST(showpos_signs_positive_decimals_and_zero) {
  formatting_stream s;
  s.setf(std::ios_base::showpos);
  CHECK_PUT(s, 42L, "+42");
  CHECK_PUT(s, 0L, "+0");
  CHECK_PUT(s, -42L, "-42");
  CHECK_PUT(s, 42LL, "+42");
}

TEST(showpos_internal_pads_after_the_plus) {
  formatting_stream s;
  s.setf(std::ios_base::showpos);
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.fill('0');
  s.width(5);
  CHECK_PUT(s, 42L, "+0042");
}

TEST(unsigned_values_take_no_plus_sign) {
  formatting_stream s;
  s.setf(std::ios_base::showpos);
  CHECK_PUT(s, 42UL, "42");
  CHECK_PUT(s, 42ULL, "42");
}

TEST(showpos_is_ignored_in_hex_and_octal) {
  formatting_stream s;
  s.setf(std::ios_base::showpos);
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, 42L, "2a");
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  CHECK_PUT(s, 42L, "52");
}

TEST(showbase_is_ignored_in_decimal) {
  formatting_stream s;
  s.setf(std::ios_base::showbase);
  CHECK_PUT(s, 42L, "42");
  CHECK_PUT(s, 42UL, "42");
}

TEST(every_basefield_other_than_oct_or_hex_alone_is_decimal) {
  const std::ios_base::fmtflags fields[] = {0,
                                            std::ios_base::dec,
                                            std::ios_base::dec | std::ios_base::oct,
                                            std::ios_base::dec | std::ios_base::hex,
                                            std::ios_base::oct | std::ios_base::hex,
                                            std::ios_base::basefield};
  for (int i = 0; i < 6; ++i) {
    formatting_stream s;
    s.setf(fields[i], std::ios_base::basefield);
    s.setf(std::ios_base::showbase | std::ios_base::uppercase);
    CHECK_PUT(s, 255L, "255");
    CHECK_PUT(s, -255L, "-255");
    CHECK_PUT(s, 255ULL, "255");
  }
}

TEST(uppercase_only_changes_hexadecimal_letters_and_x) {
  formatting_stream s;
  s.setf(std::ios_base::uppercase);
  CHECK_PUT(s, 255L, "255");
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, 0xabcdefL, "ABCDEF");
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  s.setf(std::ios_base::showbase);
  CHECK_PUT(s, 8L, "010");
}

TEST(a_negative_long_in_hex_and_octal_prints_its_bits) {
  formatting_stream s;
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, -1L, "ffffffff");
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  CHECK_PUT(s, -1L, "37777777777");
  CHECK_PUT(s, LONG_MIN, "20000000000");
}

TEST(long_and_unsigned_long_limits) {
  formatting_stream s;
  CHECK_PUT(s, LONG_MAX, "2147483647");
  CHECK_PUT(s, LONG_MIN, "-2147483648");
  CHECK_PUT(s, ULONG_MAX, "4294967295");
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  s.setf(std::ios_base::showbase);
  CHECK_PUT(s, ULONG_MAX, "0xffffffff");
  CHECK_PUT(s, LONG_MIN, "0x80000000");
}

TEST(long_long_and_unsigned_long_long_limits) {
  formatting_stream s;
  CHECK_PUT(s, LLONG_MAX, "9223372036854775807");
  CHECK_PUT(s, LLONG_MIN, "-9223372036854775808");
  CHECK_PUT(s, ULLONG_MAX, "18446744073709551615");
  CHECK_PUT(s, 0ULL, "0");
  s.setf(std::ios_base::showpos);
  CHECK_PUT(s, LLONG_MAX, "+9223372036854775807");
}

TEST(long_long_in_hex_and_octal_uses_all_64_bits) {
  formatting_stream s;
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, -1LL, "ffffffffffffffff");
  s.setf(std::ios_base::showbase | std::ios_base::uppercase | std::ios_base::showpos);
  CHECK_PUT(s, 0x123456789abcdefULL, "0X123456789ABCDEF");
  CHECK_PUT(s, LLONG_MIN, "0X8000000000000000");
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  CHECK_PUT(s, ULLONG_MAX, "01777777777777777777777");
  s.unsetf(std::ios_base::showbase);
  CHECK_PUT(s, ULLONG_MAX, "1777777777777777777777");
}

TEST(long_long_pads_like_long) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.width(16);
  CHECK_PUT(s, -12345678901LL, "-*12,345,678,901");
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.width(16);
  CHECK_PUT(s, 12345678901ULL, "12,345,678,901**");
}

TEST(width_is_reset_to_0_after_an_integer) {
  formatting_stream s;
  s.width(10);
  CHECK_PUT(s, 5L, "         5");
  CHECK_EQ(s.width(), 0L);
  s.width(1);
  CHECK_PUT(s, 12345UL, "12345");
  CHECK_EQ(s.width(), 0L);
  s.width(3);
  CHECK_PUT(s, 7LL, "  7");
  CHECK_EQ(s.width(), 0L);
  s.width(3);
  CHECK_PUT(s, 7ULL, "  7");
  CHECK_EQ(s.width(), 0L);
  CHECK_PUT(s, 7L, "7");
}

TEST(width_no_larger_than_the_text_pads_nothing) {
  formatting_stream s;
  s.fill('*');
  s.width(5);
  CHECK_PUT(s, -1234L, "-1234");
  s.width(-3);
  CHECK_PUT(s, -1234L, "-1234");
}

TEST(the_separators_count_toward_the_width) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.width(10);
  CHECK_PUT(s, 1234567L, "*1,234,567");
  s.width(9);
  CHECK_PUT(s, 1234567L, "1,234,567");
}

TEST(padding_uses_the_fill_argument_not_the_stream_fill) {
  formatting_stream s;
  s.fill('*');
  s.width(6);
  array_facet facet;
  char text[16] = {0};
  char* end = facet.put(text, s, 'x', 42L);
  CHECK_EQ(end - text, 6);
  CHECK_STR(text, "xxxx42");
  s.width(6);
  std::use_facet<buffer_num_put>(s.getloc()).put(buffer_iterator(&s.buffer), s, '#', 42UL);
  CHECK_STR(s.buffer.text.c_str(), "####42");
}

TEST(the_put_functions_reach_the_virtual_ones) {
  struct marking_num_put : array_num_put {
    marking_num_put() : array_num_put(1) {}
    ~marking_num_put() {}
    char* do_put(char* out, std::ios_base&, char, long) const {
      *out = 'L';
      return out + 1;
    }
    char* do_put(char* out, std::ios_base&, char, unsigned long long) const {
      *out = 'Q';
      return out + 1;
    }
  } facet;
  formatting_stream s;
  char text[8] = {0};
  facet.put(facet.put(text, s, ' ', 5L), s, ' ', 5ULL);
  CHECK_STR(text, "LQ");
}

TEST(an_integer_without_numpunct_in_the_locale_is_a_bad_cast) {
  formatting_stream s;
  std::locale loc(std::locale::classic(), new chosen_numpunct("\3", ',', '.', "t", "f"));
  std::locale::facet*& slot = loc.__imp->facets.data[std::numpunct<char>::id.__number()];
  slot->__release();
  slot = 0;
  s.imbue(loc);
  array_facet facet;
  char text[32];
  EXPECT_ABORT(facet.put(text, s, ' ', 1L), "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(facet.put(text, s, ' ', 1.0), "bad_cast: Facet not present\n\n");
}

TEST(a_refusing_buffer_drops_the_later_characters_and_the_iterator_says_so) {
  formatting_stream s;
  group_and_fill(s, ',');
  s.width(12);
  s.buffer.limit = 4;
  buffer_iterator after =
      std::use_facet<buffer_num_put>(s.getloc()).put(buffer_iterator(&s.buffer), s, '*', 1234567L);
  CHECK(after.failed());
  CHECK_STR(s.buffer.text.c_str(), "***1");
  // Once failed, the iterator does not call the buffer again.
  CHECK_EQ(s.buffer.refused, 1L);
  CHECK_EQ(s.width(), 0L);
}

TEST(a_refusal_during_the_padding_drops_the_digits_too) {
  formatting_stream s;
  s.width(10);
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.buffer.limit = 0;
  buffer_iterator after = std::use_facet<buffer_num_put>(s.getloc())
                              .put(buffer_iterator(&s.buffer), s, '*', -987654321LL);
  CHECK(after.failed());
  CHECK_EQ(s.buffer.text.size(), 0u);
  CHECK_EQ(s.buffer.refused, 1L);
}

TEST(an_iterator_that_failed_before_writes_nothing) {
  formatting_stream s;
  s.buffer.limit = 0;
  buffer_iterator out(&s.buffer);
  *out = 'a';
  CHECK(out.failed());
  s.buffer.limit = -1;
  buffer_iterator after = std::use_facet<buffer_num_put>(s.getloc()).put(out, s, ' ', 42UL);
  CHECK(after.failed());
  CHECK_EQ(s.buffer.text.size(), 0u);
  CHECK_EQ(s.buffer.refused, 1L);
}

namespace {
// A put area of a few characters, then an overflow that always refuses.
struct small_area_buffer : std::basic_streambuf<char> {
  char area[4];
  int overflows;
  small_area_buffer() : overflows(0) { setp(area, area + sizeof area); }

protected:
  int_type overflow(int_type) {
    ++overflows;
    return traits_type::eof();
  }
};
} // namespace

TEST(characters_past_a_full_put_area_are_dropped_when_overflow_refuses) {
  small_area_buffer buffer;
  formatting_stream s;
  s.setf(std::ios_base::showpos);
  buffer_iterator after =
      std::use_facet<buffer_num_put>(s.getloc()).put(buffer_iterator(&buffer), s, ' ', 123456L);
  CHECK(after.failed());
  CHECK_BYTES(buffer.area, 4, "+123", 4);
  CHECK_EQ(buffer.overflows, 1);
  CHECK(buffer.__pnext == buffer.area + 4);
}

TEST(an_array_result_is_the_end_of_the_text) {
  formatting_stream s;
  array_facet facet;
  char text[64];
  memset(text, untouched, sizeof text);
  char* end = facet.put(text + 3, s, ' ', -17L);
  CHECK_EQ(end - text, 6);
  CHECK_BYTES(text + 3, 3, "-17", 3);
  CHECK_EQ(text[2], untouched);
  CHECK_EQ(text[6], untouched);
}
