// The grouping walk: __vel::insert_group_placeholders on its own (sizes, stops, repeats, prefix,
// the text after the end), then through num_put in every base and locale.
#include "num_put_test_support.h"
#include <string.h>

namespace {

// The walk over text with the whole text as the digits; the result as a string, with the new
// length and the returned end checked against it.
struct walk_result {
  char text[256];
  unsigned length;
  unsigned end;
};

walk_result walk(const char* digits, unsigned prefix, const std::string& grouping) {
  walk_result r;
  memset(r.text, untouched, sizeof r.text);
  strcpy(r.text, digits);
  r.length = static_cast<unsigned>(strlen(digits));
  r.end = __vel::insert_group_placeholders(r.text, r.length, r.length, prefix, grouping.c_str());
  return r;
}

} // namespace

TEST(sizes_of_three_repeat_to_the_last_digit) {
  walk_result r = walk("1234567890", 0, "\3");
  CHECK_STR(r.text, "1,234,567,890");
  CHECK_EQ(r.length, 13u);
  CHECK_EQ(r.end, 13u);
  CHECK_EQ(r.text[14], untouched);
}

TEST(three_then_two_writes_12_34_567) {
  walk_result r = walk("1234567", 0, "\3\2");
  CHECK_STR(r.text, "12,34,567");
  CHECK_EQ(r.length, 9u);
}

TEST(the_last_of_several_sizes_repeats) {
  walk_result r = walk("1234567890", 0, "\1\2\3");
  CHECK_STR(r.text, "1,234,567,89,0");
}

TEST(first_byte_127_means_no_grouping) {
  walk_result r = walk("1234567", 0, "\177\3");
  CHECK_STR(r.text, "1234567");
  CHECK_EQ(r.length, 7u);
  CHECK_EQ(r.end, 7u);
}

TEST(size_127_later_in_the_string_stops_the_walk) {
  CHECK_STR(walk("1234567", 0, "\3\177").text, "1234,567");
  CHECK_STR(walk("123456789", 0, "\2\3\177\1").text, "1234,567,89");
}

TEST(size_127_later_stops_the_walk_however_long_the_digits) {
  char digits[201];
  memset(digits, '7', 200);
  digits[200] = 0;
  walk_result r = walk(digits, 0, "\3\177");
  CHECK_EQ(r.length, 201u);
  CHECK_EQ(strchr(r.text, ','), r.text + 197);
  CHECK_EQ(strrchr(r.text, ','), r.text + 197);
}

TEST(a_first_size_below_one_stops_the_walk) {
  CHECK_STR(walk("1234567", 0, "").text, "1234567");
  CHECK_STR(walk("1234567", 0, std::string("\0\3", 2)).text, "1234567");
  walk_result r = walk("1234567", 0, "\xff\3");
  CHECK_STR(r.text, "1234567");
  CHECK_EQ(r.length, 7u);
}

TEST(a_later_size_below_one_is_not_taken_so_the_one_before_repeats) {
  CHECK_STR(walk("1234567", 0, "\2\xff").text, "1,23,45,67");
  CHECK_STR(walk("1234567", 0, "\2\x80\1").text, "1,23,45,67");
}

TEST(a_group_that_fills_the_digits_exactly_gets_no_separator) {
  CHECK_STR(walk("123", 0, "\3").text, "123");
  CHECK_STR(walk("123456", 0, "\3").text, "123,456");
  CHECK_STR(walk("1234", 0, "\5").text, "1234");
}

TEST(the_prefix_is_never_grouped) {
  CHECK_STR(walk("-123", 1, "\3").text, "-123");
  CHECK_STR(walk("-123", 1, "\1").text, "-1,2,3");
  CHECK_STR(walk("+1234", 1, "\3").text, "+1,234");
  CHECK_STR(walk("0x1234", 2, "\1").text, "0x1,2,3,4");
  CHECK_STR(walk("0x123", 2, "\3").text, "0x123");
  CHECK_STR(walk("01234", 1, "\1").text, "01,2,3,4");
}

TEST(text_after_the_end_moves_along_with_its_terminator) {
  char text[64];
  memset(text, untouched, sizeof text);
  strcpy(text, "1234567.25e+10");
  unsigned length = 14;
  unsigned end = __vel::insert_group_placeholders(text, length, 7, 0, "\3");
  CHECK_EQ(end, 9u);
  CHECK_EQ(length, 16u);
  CHECK_STR(text, "1,234,567.25e+10");
  CHECK_EQ(text[17], untouched);
}

TEST(text_after_the_end_is_not_grouped) {
  char text[64];
  strcpy(text, "-12.345678");
  unsigned length = 10;
  unsigned end = __vel::insert_group_placeholders(text, length, 3, 1, "\1");
  CHECK_EQ(end, 4u);
  CHECK_STR(text, "-1,2.345678");
}

TEST(the_classic_locale_writes_no_separators) {
  formatting_stream s;
  CHECK_PUT(s, 1234567890L, "1234567890");
  s.imbue(std::locale::classic());
  CHECK_PUT(s, -1234567890L, "-1234567890");
}

TEST(decimal_integers_are_grouped_after_the_sign) {
  formatting_stream s;
  s.imbue(punctuated("\3", '.'));
  CHECK_PUT(s, 1234567L, "1.234.567");
  CHECK_PUT(s, -1234567L, "-1.234.567");
  CHECK_PUT(s, -123L, "-123");
  s.setf(std::ios_base::showpos);
  CHECK_PUT(s, 123456L, "+123.456");
  CHECK_PUT(s, 0L, "+0");
}

TEST(groups_of_three_then_two_write_12_34_567) {
  formatting_stream s;
  s.imbue(punctuated("\3\2", '.'));
  CHECK_PUT(s, 1234567L, "12.34.567");
  CHECK_PUT(s, 1234567UL, "12.34.567");
}

TEST(hexadecimal_digits_are_grouped) {
  formatting_stream s;
  s.imbue(punctuated("\2", '_'));
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  CHECK_PUT(s, 0x12345678L, "12_34_56_78");
  CHECK_PUT(s, 0x1abcdUL, "1_ab_cd");
}

TEST(hexadecimal_digits_are_grouped_after_the_base_prefix) {
  formatting_stream s;
  s.imbue(punctuated("\2", '_'));
  s.setf(std::ios_base::hex, std::ios_base::basefield);
  s.setf(std::ios_base::showbase | std::ios_base::uppercase);
  CHECK_PUT(s, 0x12345L, "0X1_23_45");
  CHECK_PUT(s, 0xabL, "0XAB");
  s.unsetf(std::ios_base::uppercase);
  CHECK_PUT(s, 0xabcL, "0xa_bc");
}

TEST(octal_digits_are_grouped_after_the_base_mark) {
  formatting_stream s;
  s.imbue(punctuated("\3", ','));
  s.setf(std::ios_base::oct, std::ios_base::basefield);
  CHECK_PUT(s, 01234567L, "1,234,567");
  s.setf(std::ios_base::showbase);
  CHECK_PUT(s, 01234567L, "01,234,567");
  CHECK_PUT(s, 0123L, "0123");
  CHECK_PUT(s, 0L, "0");
}

TEST(long_long_values_are_grouped) {
  formatting_stream s;
  s.imbue(punctuated("\3", ','));
  CHECK_PUT(s, -9223372036854775807LL - 1, "-9,223,372,036,854,775,808");
  CHECK_PUT(s, 18446744073709551615ULL, "18,446,744,073,709,551,615");
}

TEST(a_named_locale_groups_by_its_c_conventions) {
  formatting_stream s;
  s.imbue(std::locale("de_DE.UTF-8"));
  CHECK_PUT(s, 1234567L, "1.234.567");
  CHECK_PUT(s, -1234567890L, "-1.234.567.890");
}

TEST(separators_of_a_later_127_stop_in_the_facet_too) {
  formatting_stream s;
  s.imbue(punctuated("\3\177", ' '));
  CHECK_PUT(s, 123456789L, "123456 789");
  s.imbue(punctuated("\177", ' '));
  CHECK_PUT(s, 123456789L, "123456789");
}

TEST(size_127_later_stops_the_walk_over_a_long_float_text) {
  formatting_stream s;
  s.imbue(punctuated("\3\177", '\''));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(1);
  std::string c = c_text("%.*f", 1, 1e300);
  CHECK_PUT(s, 1e300, c.substr(0, c.size() - 5) + "'" + c.substr(c.size() - 5));
}

TEST(a_separator_the_same_as_the_placeholder_is_written_as_itself) {
  formatting_stream s;
  s.imbue(punctuated("\1", ','));
  CHECK_PUT(s, 1234L, "1,2,3,4");
}
