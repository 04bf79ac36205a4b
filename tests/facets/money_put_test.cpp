// money_put: the writing walk over the positive and negative formats (fill for none and space,
// long signs, symbol), the value text with its grouping, the padding and the digit-string
// overload, through both library instances.
#include "money_test_support.h"
#include <stdio.h>

typedef std::ios_base ios;

static money_values grouped(const char* grouping, int fraction = 2) {
  money_values v;
  v.grouping = grouping;
  v.fraction = fraction;
  v.positive_format = "-vxy"; // x and y are ignored
  v.negative_format = "-vxy";
  return v;
}

static std::string units_text(long double units, const money_values& v,
                              const money_layout& layout = money_layout()) {
  return WRITE_MONEY(units, money_locale(v), false, layout);
}

TEST(the_value_is_grouped_and_given_the_decimal_point) {
  CHECK_STR(units_text(123456, grouped("\3")).c_str(), "1,234.56");
  CHECK_STR(units_text(5, grouped("\3")).c_str(), "0.05");
  CHECK_STR(units_text(123456789, grouped("\3", 0)).c_str(), "123,456,789");
  CHECK_STR(units_text(1234567, grouped("\2\3", 0)).c_str(), "12,345,67");
}

TEST(a_negative_amount_takes_the_negative_format_and_sign) {
  money_values v = grouped("\3");
  v.positive = "+";
  v.negative_format = "v-xx";
  CHECK_STR(units_text(-123456, v).c_str(), "1,234.56-");
  CHECK_STR(units_text(123456, v).c_str(), "+1,234.56");
}

TEST(a_long_sign_writes_its_rest_after_the_last_part) {
  money_values v = grouped("");
  v.negative = "()";
  v.symbol = "$";
  v.negative_format = "-?v0";
  std::string text = WRITE_MONEY(-150.0L, money_locale(v), false, money_layout(ios::showbase));
  CHECK_STR(text.c_str(), "($1.50*)");
}

TEST(the_symbol_is_written_only_with_showbase) {
  money_values v = grouped("");
  v.symbol = "EUR";
  v.positive_format = "v -?";
  CHECK_STR(WRITE_MONEY(100.0L, money_locale(v), false, money_layout(ios::showbase)).c_str(),
            "1.00*EUR");
  CHECK_STR(WRITE_MONEY(100.0L, money_locale(v), false, money_layout()).c_str(), "1.00*");
}

TEST(none_and_space_write_one_fill_character_each) {
  money_values v = grouped("");
  v.positive_format = "0v 0";
  CHECK_STR(units_text(7, v, money_layout(ios::fmtflags(), 0, '_')).c_str(), "_0.07__");
}

TEST(padding_goes_where_the_adjustment_says) {
  money_values v = grouped("");
  v.positive_format = "-v ?";
  v.symbol = "S";
  CHECK_STR(units_text(100, v, money_layout(ios::left | ios::showbase, 10)).c_str(), "1.00*S****");
  CHECK_STR(units_text(100, v, money_layout(ios::right | ios::showbase, 10)).c_str(), "****1.00*S");
  CHECK_STR(units_text(100, v, money_layout(ios::internal | ios::showbase, 10)).c_str(),
            "1.00*****S");
  // Settled: no adjustment, or more than one, pads at the start.
  CHECK_STR(units_text(100, v, money_layout(ios::showbase, 10)).c_str(), "****1.00*S");
  CHECK_STR(units_text(100, v, money_layout(ios::left | ios::right | ios::showbase, 10)).c_str(),
            "****1.00*S");
  CHECK_STR(units_text(100, v, money_layout(ios::left, 3)).c_str(), "1.00*");
}

TEST(the_last_none_or_space_is_the_internal_padding_point) {
  money_values v = grouped("");
  v.positive_format = " v0-";
  v.positive = "+";
  CHECK_STR(units_text(100, v, money_layout(ios::internal, 10, '.')).c_str(), ".1.00....+");
}

TEST(internal_without_none_or_space_pads_at_the_start) {
  CHECK_STR(units_text(100, grouped(""), money_layout(ios::internal, 6)).c_str(), "**1.00");
}

TEST(a_repeated_group_size_of_0_stops_grouping) {
  CHECK_STR(units_text(1234567, grouped("\3\0", 0)).c_str(), "1,234,567");
  CHECK_STR(units_text(1234567, grouped(std::string(1, '\0').c_str(), 0)).c_str(), "1234567");
  std::string zero_first("\0\3", 2);
  CHECK_STR(units_text(1234567, grouped(zero_first.c_str(), 0)).c_str(), "1234567");
}

TEST(group_sizes_are_their_low_four_bits_and_127_ends_them) {
  CHECK_STR(units_text(1234567, grouped("\x13", 0)).c_str(), "1,234,567");
  CHECK_STR(units_text(1234567, grouped("\2\177", 0)).c_str(), "12345,67");
}

TEST(not_a_number_takes_the_positive_format) {
  money_values v = grouped("");
  v.positive = "P";
  v.negative = "N";
  std::string text = units_text(__builtin_nanl(""), v);
  CHECK_EQ(text[0], 'P');
}

TEST(a_digit_string_is_read_up_to_its_first_other_character) {
  money_values v = grouped("\3");
  std::locale loc = money_locale(v);
  CHECK_STR(WRITE_MONEY(std::string("-0012"), loc, false, money_layout()).c_str(), "-0.12");
  CHECK_STR(WRITE_MONEY(std::string("+123456"), loc, false, money_layout()).c_str(), "1,234.56");
  CHECK_STR(WRITE_MONEY(std::string("12.99"), loc, false, money_layout()).c_str(), "0.12");
  CHECK_STR(WRITE_MONEY(std::string(""), loc, false, money_layout()).c_str(), "0.00");
}

TEST(intl_selects_the_international_punctuation) {
  money_values local = grouped(""), intl = grouped("", 3);
  intl.point = ',';
  std::locale loc = money_locale(local, intl);
  CHECK_STR(WRITE_MONEY(1500.0L, loc, true, money_layout()).c_str(), "1,500");
  CHECK_STR(WRITE_MONEY(1500.0L, loc, false, money_layout()).c_str(), "15.00");
}

// What the digit-string overload accumulates, for comparison.
static std::string expected_whole(const std::string& digits) {
  long double value = 0;
  for (std::string::size_type i = 0; i < digits.size(); ++i)
    value = value * 10 + (digits[i] - '0');
  char text[12000];
  snprintf(text, sizeof text, "%.0Lf", value);
  return text;
}

TEST(long_digit_strings_are_written_whole) {
  std::locale loc = money_locale(grouped("", 0));
  const unsigned lengths[] = {199, 200, 201};
  for (unsigned i = 0; i < 3; ++i) {
    std::string digits(lengths[i], '9');
    std::string text = WRITE_MONEY(digits, loc, false, money_layout());
    CHECK(text.size() >= lengths[i]); // the nines may round up to a digit more
    CHECK(text == expected_whole(digits));
  }
  // Past the largest long double: "inf" natively; valgrind's long double saturates instead.
  std::string too_long(10000, '9');
  std::string text = WRITE_MONEY(too_long, loc, false, money_layout());
  CHECK(text == "inf" || text.find_first_not_of("0123456789") == std::string::npos);
}

TEST(huge_amounts_are_grouped_without_overrun) {
  std::string text = units_text(1e4000L, grouped("\1", 0));
  std::string::size_type digits = (text.size() + 1) / 2;
  CHECK(digits >= 4000);
  for (std::string::size_type i = 1; i < text.size(); i += 2)
    CHECK_EQ(text[i], ',');
  CHECK_EQ(text[1], ',');
  CHECK_EQ(text[text.size() - 2], ',');
}

TEST(the_classic_locale_writes_127_fraction_digits_after_a_nul_point) {
  std::string text = WRITE_MONEY(5.0L, std::locale::classic(), false, money_layout());
  // "?-0v": nothing, nothing, one fill, then "0", the NUL point and 127 digits ending in 5.
  CHECK_EQ(text.size(), 1u + 1u + 1u + 127u);
  CHECK_EQ(text[0], '*');
  CHECK_EQ(text[1], '0');
  CHECK_EQ(text[2], '\0');
  CHECK_EQ(text[text.size() - 1], '5');
}

TEST(a_failed_buffer_drops_the_rest) {
  struct refusing : std::streambuf {
    int taken;
    refusing() : taken(0) {}
    int_type overflow(int_type c) { return taken < 3 ? (++taken, c) : traits_type::eof(); }
  } buffer;
  std::ostringstream stream;
  stream.imbue(money_locale(grouped("\3")));
  const std::money_put<char>& facet = std::use_facet<std::money_put<char> >(stream.getloc());
  money_out after = facet.put(money_out(&buffer), false, stream, ' ', 123456.0L);
  CHECK(after.failed());
  CHECK_EQ(buffer.taken, 3);
}

typedef std::moneypunct<char, false> local_punct;
typedef std::moneypunct<char, true> intl_punct;

// Run in a child: the missing facet is looked up before anything is written.
template <class _Amount>
static void write_without(const std::locale& loc, bool intl, const _Amount& amount) {
  std::ostringstream stream;
  stream.imbue(loc);
  char text[64];
  array_money_put facet;
  facet.put(text, intl, stream, ' ', amount);
}

TEST(a_missing_moneypunct_or_ctype_reports_facet_not_present) {
  EXPECT_ABORT(write_without(locale_lacking<local_punct>(), false, 1.0L),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(write_without(locale_lacking<intl_punct>(), true, 1.0L),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(write_without(locale_lacking<std::ctype<char> >(), false, std::string("12")),
               "bad_cast: Facet not present\n\n");
}

// Records the amount the digit-string operation hands on.
struct recording_put : std::money_put<char, char*> {
  recording_put() : std::money_put<char, char*>(1), units(0) {}
  mutable long double units;

protected:
  char* do_put(char* out, bool, std::ios_base&, char, long double amount) const {
    units = amount;
    return out;
  }
};

TEST(digit_strings_are_written_through_the_units_operation) {
  std::ostringstream stream;
  recording_put facet;
  char text[8];
  facet.put(text, false, stream, ' ', std::string("-0012"));
  CHECK(facet.units == -12.0L);
  facet.put(text, false, stream, ' ', std::string("+305.9"));
  CHECK(facet.units == 305.0L);
}
