// num_put for double and long double: the notations, the precision rule with its clamp at 127
// and the extra zeros, showpos and showpoint, the exponent marker's case, the locale's decimal
// point and grouping, padding with the sign first, the width reset, and texts longer than the
// 200-byte scratch buffer.
#include "num_put_test_support.h"
#include <float.h>
#include <locale.h>

namespace {

// The C library's text with separators every three digits of its integer part (after a sign),
// written independently of the library's walk.
std::string grouped_by_three(const std::string& text, char separator) {
  size_t sign = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  size_t point = text.find('.');
  size_t integer_end = point == std::string::npos ? text.size() : point;
  std::string out = text.substr(0, sign);
  for (size_t i = sign; i < integer_end; ++i) {
    if (i > sign && (integer_end - i) % 3 == 0)
      out += separator;
    out += text[i];
  }
  return out + text.substr(integer_end);
}

std::string replaced(std::string text, char from, char to) {
  for (size_t i = 0; i < text.size(); ++i)
    if (text[i] == from)
      text[i] = to;
  return text;
}

// Inserts count zeros before the exponent marker, or at the end without one.
std::string with_zeros_before_exponent(const std::string& text, size_t count) {
  size_t e = text.find('e');
  std::string zeros(count, '0');
  return e == std::string::npos ? text + zeros : text.substr(0, e) + zeros + text.substr(e);
}

const double third = 1.0 / 3;

} // namespace

TEST(default_notation_of_1_5_writes_1_5) {
  formatting_stream s;
  CHECK_PUT(s, 1.5, "1.5");
  CHECK_PUT(s, 1.5L, "1.5");
  CHECK_PUT(s, third, "0.333333");
  CHECK_PUT(s, 1234567.0, "1.23457e+06");
}

TEST(fixed_with_precision_0_rounds_1_5_to_2) {
  formatting_stream s;
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(0);
  CHECK_PUT(s, 1.5, "2");
  CHECK_PUT(s, 2.5L, "2");
}

TEST(precision_0_means_6_outside_fixed) {
  formatting_stream s;
  s.precision(0);
  CHECK_PUT(s, third, "0.333333");
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  CHECK_PUT(s, third, "3.333333e-01");
  CHECK_PUT(s, 1.0L / 3, "3.333333e-01");
}

TEST(both_floatfield_bits_use_g_and_keep_precision_0_since_fixed_is_set) {
  formatting_stream s;
  s.setf(std::ios_base::floatfield, std::ios_base::floatfield);
  s.precision(0);
  CHECK_PUT(s, third, c_text("%.*g", 0, third));
  CHECK_PUT(s, third, "0.3");
  s.precision(3);
  CHECK_PUT(s, 1234.5, "1.23e+03");
}

TEST(a_negative_precision_means_6) {
  formatting_stream s;
  s.precision(-5);
  CHECK_PUT(s, third, "0.333333");
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  CHECK_PUT(s, third, "3.333333e-01");
}

TEST(a_negative_precision_with_fixed_means_6_and_no_extra_zeros) {
  formatting_stream s;
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(-1);
  CHECK_PUT(s, third, "0.333333");
  s.precision(-200);
  CHECK_PUT(s, 2.0L, "2.000000");
}

TEST(precision_130_with_fixed_prints_127_decimals_then_3_zeros) {
  formatting_stream s;
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(130);
  std::string c = c_text("%.*f", 127, third);
  CHECK_EQ(c.size(), 129u);
  CHECK_PUT(s, third, c + "000");
  CHECK_PUT(s, 1.0L / 3, c_text("%.*Lf", 127, 1.0L / 3) + "000");
}

TEST(precision_127_is_passed_whole_and_128_adds_one_zero) {
  formatting_stream s;
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(127);
  CHECK_PUT(s, 0.1, c_text("%.*f", 127, 0.1));
  s.precision(128);
  CHECK_PUT(s, 0.1, c_text("%.*f", 127, 0.1) + "0");
}

TEST(extra_zeros_go_before_the_exponent) {
  formatting_stream s;
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  s.precision(131);
  std::string c = c_text("%.*e", 127, third);
  CHECK_PUT(s, third, with_zeros_before_exponent(c, 4));
  s.setf(std::ios_base::uppercase);
  CHECK_PUT(s, third, replaced(with_zeros_before_exponent(c, 4), 'e', 'E'));
}

TEST(extra_zeros_in_default_notation_follow_the_c_text) {
  formatting_stream s;
  s.precision(129);
  CHECK_PUT(s, 0.5, "0.500");
  CHECK_PUT(s, 1e-300, with_zeros_before_exponent(c_text("%.*g", 127, 1e-300), 2));
}

TEST(extra_zeros_count_toward_the_width) {
  formatting_stream s;
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.fill('*');
  s.precision(130);
  std::string text = c_text("%.*f", 127, 0.25) + "000";
  s.width(static_cast<long>(text.size()) + 2);
  CHECK_PUT(s, 0.25, "**" + text);
  s.width(static_cast<long>(text.size()));
  CHECK_PUT(s, 0.25, text);
}

TEST(scientific_with_uppercase_writes_1_500000E_00) {
  formatting_stream s;
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  s.setf(std::ios_base::uppercase);
  CHECK_PUT(s, 1.5, "1.500000E+00");
  CHECK_PUT(s, 1.5L, "1.500000E+00");
}

TEST(uppercase_turns_only_the_exponent_marker) {
  formatting_stream s;
  s.setf(std::ios_base::uppercase);
  CHECK_PUT(s, 1.5e-10, "1.5E-10");
  CHECK_PUT(s, __builtin_inf(), "inf");
  CHECK_PUT(s, -__builtin_inf(), "-inf");
  CHECK_PUT(s, __builtin_nan(""), "nan");
  CHECK_PUT(s, -__builtin_nanl(""), "-nan");
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  if (!lt::long_double_is_emulated())
    CHECK_PUT(s, __builtin_infl(), "inf");
}

TEST(a_text_without_a_decimal_point_is_integer_part_exponent_included) {
  // Kept: "%g" can write an exponent with no decimal point before it; the whole text is then
  // the integer part, so uppercase misses its marker and grouping counts its characters.
  formatting_stream s;
  s.setf(std::ios_base::uppercase);
  CHECK_PUT(s, 1e300, "1e+300");
  CHECK_PUT(s, 1.5e300, "1.5E+300");
  s.imbue(punctuated("\3", ','));
  CHECK_PUT(s, 1e300, "1e+,300");
  CHECK_PUT(s, -1e300, "-1e+,300");
}

TEST(showpoint_keeps_the_point_and_trailing_zeros) {
  formatting_stream s;
  s.setf(std::ios_base::showpoint);
  CHECK_PUT(s, 1.0, "1.00000");
  CHECK_PUT(s, 100.0L, "100.000");
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(0);
  CHECK_PUT(s, 1.0, "1.");
  s.imbue(punctuated("", ' ', ','));
  CHECK_PUT(s, 1.0, "1,");
}

TEST(showpos_signs_positive_values_and_zero) {
  formatting_stream s;
  s.setf(std::ios_base::showpos);
  CHECK_PUT(s, 1.5, "+1.5");
  CHECK_PUT(s, 0.0, "+0");
  CHECK_PUT(s, -0.0, "-0");
  CHECK_PUT(s, -1.5L, "-1.5");
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  CHECK_PUT(s, 1.5, "+1.500000e+00");
}

TEST(the_decimal_point_is_the_numpunct_one) {
  formatting_stream s;
  s.imbue(punctuated("", '.', ','));
  CHECK_PUT(s, 1.5, "1,5");
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  CHECK_PUT(s, 1.5L, "1,500000e+00");
  s.imbue(punctuated("", '.', '@'));
  CHECK_PUT(s, -0.25, "-2@500000e-01");
}

TEST(a_named_locale_gives_its_point_and_grouping) {
  formatting_stream s;
  s.imbue(std::locale("de_DE.UTF-8"));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(2);
  CHECK_PUT(s, 1234567.25, "1.234.567,25");
  CHECK_PUT(s, -1234.5L, "-1.234,50");
}

ISOLATED_TEST(the_c_library_point_is_found_whatever_the_c_locale) {
  setlocale(LC_NUMERIC, "de_DE.UTF-8");
  CHECK_STR(c_text("%.*f", 1, 1234567.5).c_str(), "1234567,5");
  formatting_stream s;
  s.imbue(punctuated("\3", ',', '.'));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(1);
  CHECK_PUT(s, 1234567.5, "1,234,567.5");
  s.imbue(std::locale::classic());
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  CHECK_PUT(s, 1.5, "1.5e+00");
}

TEST(the_integer_part_is_grouped_after_the_sign) {
  formatting_stream s;
  s.imbue(punctuated("\3", ','));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(3);
  CHECK_PUT(s, 1234567.125, "1,234,567.125");
  CHECK_PUT(s, -123456.5, "-123,456.500");
  s.imbue(punctuated("\1", '\''));
  s.precision(1);
  CHECK_PUT(s, -123.5, "-1'2'3.5");
  s.setf(std::ios_base::showpos);
  CHECK_PUT(s, 12.25L, "+1'2.2");
}

TEST(grouping_stops_at_the_decimal_point_and_leaves_the_exponent) {
  formatting_stream s;
  s.imbue(punctuated("\1", ','));
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  s.precision(4);
  CHECK_PUT(s, 12345.0, "1.2345e+04");
}

TEST(internal_writes_the_sign_first) {
  formatting_stream s;
  s.fill('*');
  s.setf(std::ios_base::internal, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1.5, "-****1.5");
  s.width(8);
  CHECK_PUT(s, 1.5, "*****1.5");
  s.setf(std::ios_base::showpos);
  s.width(8);
  CHECK_PUT(s, 1.5L, "+****1.5");
}

TEST(right_and_no_adjustment_pad_before_the_sign) {
  formatting_stream s;
  s.fill('*');
  s.setf(std::ios_base::right, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1.5, "****-1.5");
  s.unsetf(std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1.5, "****-1.5");
}

TEST(left_pads_after_the_text) {
  formatting_stream s;
  s.fill('*');
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  s.setf(std::ios_base::uppercase);
  s.width(16);
  CHECK_PUT(s, -1.5, "-1.500000E+00***");
}

TEST(internal_in_a_mixture_still_writes_the_sign_first) {
  formatting_stream s;
  s.fill('*');
  s.setf(std::ios_base::internal | std::ios_base::right, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1.5, "-****1.5");
  s.setf(std::ios_base::internal | std::ios_base::left, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1.5, "-****1.5");
  s.setf(std::ios_base::left | std::ios_base::right, std::ios_base::adjustfield);
  s.width(8);
  CHECK_PUT(s, -1.5, "****-1.5");
}

TEST(float_padding_counts_the_c_text_without_the_separators) {
  formatting_stream s;
  s.imbue(punctuated("\3", ','));
  s.fill('*');
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(0);
  s.width(10);
  CHECK_PUT(s, 1234567.0, "***1,234,567");
  s.width(7);
  CHECK_PUT(s, 1234567.0, "1,234,567");
}

TEST(width_is_reset_to_0_after_a_float) {
  formatting_stream s;
  s.width(6);
  CHECK_PUT(s, 1.5, "   1.5");
  CHECK_EQ(s.width(), 0L);
  s.width(2);
  CHECK_PUT(s, 1.5L, "1.5");
  CHECK_EQ(s.width(), 0L);
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.width(5);
  CHECK_PUT(s, 2.5, "2.5  ");
  CHECK_EQ(s.width(), 0L);
  CHECK_PUT(s, 2.5, "2.5");
}

TEST(long_double_keeps_its_own_precision) {
  formatting_stream s;
  s.precision(20);
  long double v = 1.0L / 3;
  CHECK_PUT(s, v, c_text("%.*Lg", 20, v));
  if (!lt::long_double_is_emulated())
    CHECK(c_text("%.*Lg", 20, v) != c_text("%.*g", 20, static_cast<double>(v)));
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  CHECK_PUT(s, LDBL_MAX, c_text("%.*Le", 20, LDBL_MAX));
  CHECK_PUT(s, LDBL_MIN, c_text("%.*Le", 20, LDBL_MIN));
}

TEST(double_limits_match_the_c_library) {
  formatting_stream s;
  s.precision(17);
  CHECK_PUT(s, DBL_MAX, c_text("%.*g", 17, DBL_MAX));
  CHECK_PUT(s, -DBL_MIN, c_text("%.*g", 17, -DBL_MIN));
  CHECK_PUT(s, 4.9406564584124654e-324, "4.9406564584124654e-324");
}

TEST(fixed_1e300_with_precision_127_and_grouping_is_complete) {
  formatting_stream s;
  s.imbue(punctuated("\3", ','));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(127);
  std::string c = c_text("%.*f", 127, 1e300);
  CHECK_EQ(c.size(), 429u);
  std::string expected = grouped_by_three(c, ',');
  CHECK_EQ(expected.size(), 529u);
  CHECK_PUT(s, 1e300, expected);
  CHECK_PUT(s, -1e300, "-" + expected);
  s.precision(130);
  CHECK_PUT(s, 1e300L, grouped_by_three(c_text("%.*Lf", 127, 1e300L), ',') + "000");
}

TEST(fixed_double_max_with_groups_of_one_is_complete) {
  formatting_stream s;
  s.imbue(punctuated("\1", ' '));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(2);
  std::string c = c_text("%.*f", 2, DBL_MAX);
  std::string expected;
  for (size_t i = 0; i + 3 < c.size(); ++i) {
    if (i)
      expected += ' ';
    expected += c[i];
  }
  expected += c.substr(c.size() - 3);
  CHECK_PUT(s, DBL_MAX, expected);
}

TEST(fixed_long_double_max_is_complete) {
  formatting_stream s;
  s.imbue(punctuated("\3", '.', ','));
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.precision(3);
  char text[8192];
  int n = snprintf(text, sizeof text, "%.*Lf", 3, LDBL_MAX);
  CHECK(n > 4900);
  std::string expected = grouped_by_three(std::string(text, n), '_');
  expected = replaced(replaced(expected, '.', ','), '_', '.');
  CHECK_PUT(s, LDBL_MAX, expected);
}

TEST(a_long_float_text_pads_to_a_wider_field) {
  formatting_stream s;
  s.setf(std::ios_base::fixed, std::ios_base::floatfield);
  s.setf(std::ios_base::left, std::ios_base::adjustfield);
  s.fill('#');
  s.precision(5);
  std::string c = c_text("%.*f", 5, -1e250);
  s.width(static_cast<long>(c.size()) + 3);
  CHECK_PUT(s, -1e250, c + "###");
}

TEST(a_refusing_buffer_drops_the_rest_of_a_float) {
  formatting_stream s;
  s.buffer.limit = 2;
  s.setf(std::ios_base::scientific, std::ios_base::floatfield);
  buffer_iterator after =
      std::use_facet<buffer_num_put>(s.getloc()).put(buffer_iterator(&s.buffer), s, ' ', -2.5);
  CHECK(after.failed());
  CHECK_STR(s.buffer.text.c_str(), "-2");
  CHECK_EQ(s.buffer.refused, 1L);
}
