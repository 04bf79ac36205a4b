// money_get: the reading walk over the negative format (signs, symbol, spaces) and the value
// part with its grouping, fraction and length checks, through both library instances.
#include "money_test_support.h"

static const std::ios_base::fmtflags plain = std::ios_base::fmtflags();
static const std::ios_base::fmtflags skip = std::ios_base::skipws;
static const std::ios_base::fmtflags base = std::ios_base::showbase;
static const int fail = std::ios_base::failbit;

static std::locale two_digits() { return money_locale(money_values()); }

TEST(the_fraction_is_padded_to_the_fraction_digits) {
  CHECK_STR(READ_DIGITS("1.5", two_digits(), false, plain).digits.c_str(), "150");
  CHECK_STR(READ_DIGITS("12", two_digits(), false, plain).digits.c_str(), "1200");
  CHECK_STR(READ_DIGITS(".5", two_digits(), false, plain).digits.c_str(), "50");
  money_reading r = READ_DIGITS("3.07x", two_digits(), false, plain);
  CHECK_STR(r.digits.c_str(), "307");
  CHECK_EQ(r.taken, 4L);
  CHECK_EQ(r.state, 0);
}

TEST(too_many_fraction_digits_fail_and_leave_the_result) {
  money_reading r = READ_DIGITS("1.234", two_digits(), false, plain);
  CHECK_EQ(r.state, fail);
  CHECK_STR(r.digits.c_str(), "untouched");
  CHECK_EQ(r.taken, 4L); // stopped at the digit with no room
}

TEST(no_digit_at_all_fails) {
  CHECK_EQ(READ_DIGITS(".", two_digits(), false, plain).state, fail);
  CHECK_EQ(READ_DIGITS("", two_digits(), false, plain).state, fail);
  CHECK_EQ(READ_DIGITS("x1", two_digits(), false, plain).state, fail);
}

TEST(end_of_input_never_sets_eofbit) {
  money_reading r = READ_DIGITS("42", two_digits(), false, plain);
  CHECK_EQ(r.state, 0);
  CHECK_EQ(r.taken, 2L);
}

TEST(the_negative_sign_makes_the_result_negative) {
  CHECK_STR(READ_DIGITS("-1.25", two_digits(), false, plain).digits.c_str(), "-125");
}

TEST(a_two_character_sign_ends_after_the_last_part) {
  money_values v;
  v.negative = "()";
  v.positive = "+";
  v.negative_format = "-?v0";
  std::locale loc = money_locale(v);
  money_reading r = READ_DIGITS("(1.50)", loc, false, plain);
  CHECK_STR(r.digits.c_str(), "-150");
  CHECK_EQ(r.taken, 6L);
  CHECK_EQ(READ_DIGITS("(1.50", loc, false, plain).state, fail);
  CHECK_EQ(READ_DIGITS("(1.50]", loc, false, plain).state, fail);
  CHECK_STR(READ_DIGITS("+7", loc, false, plain).digits.c_str(), "700");
}

TEST(a_sign_matching_neither_fails_when_both_exist) {
  money_values v;
  v.positive = "+";
  CHECK_EQ(READ_DIGITS("5", money_locale(v), false, plain).state, fail);
}

TEST(with_no_signs_a_minus_reads_as_positive) {
  money_values v;
  v.negative = "";
  std::locale loc = money_locale(v);
  money_reading r = READ_DIGITS("-5", loc, false, plain);
  CHECK_STR(r.digits.c_str(), "500");
  CHECK_EQ(r.taken, 2L);
  CHECK_STR(READ_DIGITS("+5", loc, false, plain).digits.c_str(), "500");
}

TEST(with_only_a_negative_sign_a_plus_is_taken) {
  std::locale loc = two_digits(); // positive "" and negative "-"
  CHECK_STR(READ_DIGITS("+5", loc, false, plain).digits.c_str(), "500");
  CHECK_STR(READ_DIGITS("5", loc, false, plain).digits.c_str(), "500");
}

TEST(with_only_a_positive_sign_its_absence_means_negative) {
  money_values v;
  v.positive = "+";
  v.negative = "";
  std::locale loc = money_locale(v);
  CHECK_STR(READ_DIGITS("5", loc, false, plain).digits.c_str(), "-500");
  CHECK_STR(READ_DIGITS("-5", loc, false, plain).digits.c_str(), "-500");
  CHECK_STR(READ_DIGITS("+5", loc, false, plain).digits.c_str(), "500");
}

TEST(the_negative_format_reads_positive_amounts_too) {
  money_values v;
  v.positive = "+";
  v.positive_format = "v-?0"; // never used for reading
  v.negative_format = "-v0?";
  CHECK_STR(READ_DIGITS("+5", money_locale(v), false, plain).digits.c_str(), "500");
}

TEST(without_showbase_the_symbol_is_optional) {
  money_values v;
  v.symbol = "USD";
  std::locale loc = money_locale(v);
  CHECK_STR(READ_DIGITS("USD-1.00", loc, false, plain).digits.c_str(), "-100");
  CHECK_STR(READ_DIGITS("-1.00", loc, false, plain).digits.c_str(), "-100");
  money_reading partial = READ_DIGITS("US-1.00", loc, false, plain);
  CHECK_STR(partial.digits.c_str(), "-100");
  CHECK_EQ(partial.taken, 7L);
}

TEST(with_showbase_the_symbol_is_required_in_full) {
  money_values v;
  v.symbol = "USD";
  std::locale loc = money_locale(v);
  CHECK_STR(READ_DIGITS("USD-1.00", loc, false, base).digits.c_str(), "-100");
  money_reading partial = READ_DIGITS("US-1.00", loc, false, base);
  CHECK_EQ(partial.state, fail);
  CHECK_EQ(partial.taken, 2L);
  CHECK_EQ(READ_DIGITS("-1.00", loc, false, base).state, fail);
}

TEST(a_last_symbol_is_taken_only_while_a_long_sign_waits) {
  money_values v;
  v.symbol = "$";
  v.negative_format = "-v0?";
  money_reading short_sign = READ_DIGITS("-5$", money_locale(v), false, plain);
  CHECK_STR(short_sign.digits.c_str(), "-500");
  CHECK_EQ(short_sign.taken, 2L);
  v.negative = "()";
  money_reading long_sign = READ_DIGITS("(5$)", money_locale(v), false, plain);
  CHECK_STR(long_sign.digits.c_str(), "-500");
  CHECK_EQ(long_sign.taken, 4L);
  // With showbase it is required wherever it stands.
  v.negative = "-";
  CHECK_EQ(READ_DIGITS("-5$", money_locale(v), false, base).taken, 3L);
}

TEST(a_space_part_needs_white_space) {
  money_values v;
  v.negative_format = "-v ?";
  v.symbol = "EUR";
  std::locale loc = money_locale(v);
  CHECK_STR(READ_DIGITS("-5  EUR", loc, false, base).digits.c_str(), "-500");
  CHECK_EQ(READ_DIGITS("-5EUR", loc, false, base).state, fail);
}

TEST(a_none_part_skips_white_space_except_last) {
  money_values v;
  v.negative_format = "-0v0";
  std::locale loc = money_locale(v);
  CHECK_STR(READ_DIGITS("-   5", loc, false, plain).digits.c_str(), "-500");
  CHECK_EQ(READ_DIGITS("-5  ", loc, false, plain).taken, 2L);
}

TEST(skipws_skips_leading_white_space) {
  money_values v;
  v.negative_format = "v0-?";
  std::locale value_first = money_locale(v);
  CHECK_STR(READ_DIGITS("  \n7", value_first, false, skip).digits.c_str(), "700");
  CHECK_EQ(READ_DIGITS(" 7", value_first, false, plain).state, fail);
}

TEST(other_pattern_characters_are_ignored) {
  money_values v;
  v.negative_format = "x-yv";
  CHECK_STR(READ_DIGITS("-8", money_locale(v), false, plain).digits.c_str(), "-800");
}

TEST(intl_selects_the_international_punctuation) {
  money_values local, intl;
  intl.fraction = 3;
  intl.point = ',';
  std::locale loc = money_locale(local, intl);
  CHECK_STR(READ_DIGITS("1,5", loc, true, plain).digits.c_str(), "1500");
  CHECK_STR(READ_DIGITS("1.5", loc, false, plain).digits.c_str(), "150");
}

static money_values grouped(const char* grouping, int fraction = 0) {
  money_values v;
  v.grouping = grouping;
  v.fraction = fraction;
  return v;
}

TEST(separators_must_split_the_digits_by_the_grouping) {
  std::locale loc = money_locale(grouped("\3", 2));
  CHECK_STR(READ_DIGITS("1,234.56", loc, false, plain).digits.c_str(), "123456");
  CHECK_STR(READ_DIGITS("12,345,678", loc, false, plain).digits.c_str(), "1234567800");
  CHECK_STR(READ_DIGITS("1234", loc, false, plain).digits.c_str(), "123400");
  CHECK_EQ(READ_DIGITS("12,34", loc, false, plain).state, fail);
  CHECK_EQ(READ_DIGITS("1234,567", loc, false, plain).state, fail);
}

TEST(a_separator_with_no_digits_after_it_fails) {
  money_reading r = READ_DIGITS("1,234,", money_locale(grouped("\3")), false, plain);
  CHECK_EQ(r.state, fail);
  CHECK_EQ(r.taken, 6L);
}

TEST(a_leading_separator_ends_the_value) {
  CHECK_EQ(READ_DIGITS(",123", money_locale(grouped("\3")), false, plain).state, fail);
}

TEST(the_last_group_size_repeats_and_a_later_size_of_0_is_not_taken) {
  std::locale two_then_three = money_locale(grouped("\3\2"));
  CHECK_STR(READ_DIGITS("1,23,45,678", two_then_three, false, plain).digits.c_str(), "12345678");
  CHECK_EQ(READ_DIGITS("12,345,678", two_then_three, false, plain).state, fail);
  std::locale zero_after = money_locale(grouped("\3\0\2", 0));
  CHECK_STR(READ_DIGITS("1,234,567", zero_after, false, plain).digits.c_str(), "1234567");
}

TEST(a_size_of_127_ends_the_check) {
  std::locale loc = money_locale(grouped("\3\177"));
  CHECK_STR(READ_DIGITS("1234567,890", loc, false, plain).digits.c_str(), "1234567890");
  CHECK_STR(READ_DIGITS("12,3,456", loc, false, plain).digits.c_str(), "123456");
  CHECK_EQ(READ_DIGITS("12,34", loc, false, plain).state, fail);
}

TEST(a_space_separator_must_be_followed_by_a_digit) {
  money_values v = grouped("\3");
  v.separator = ' ';
  v.negative_format = "-v ?";
  v.symbol = "X";
  std::locale loc = money_locale(v);
  CHECK_STR(READ_DIGITS("1 234  X", loc, false, base).digits.c_str(), "1234");
  // Kept: the space is taken by the value, so the space part finds none.
  CHECK_EQ(READ_DIGITS("1 234 X", loc, false, base).state, fail);
  CHECK_EQ(READ_DIGITS("1 X", loc, false, base).state, fail);
}

TEST(without_grouping_separators_end_the_value) {
  money_reading r = READ_DIGITS("1,234", money_locale(grouped("")), false, plain);
  CHECK_STR(r.digits.c_str(), "1");
  CHECK_EQ(r.taken, 1L);
}

static std::string nines(unsigned n) { return std::string(n, '9'); }

TEST(up_to_199_digits_fit_the_buffer) {
  std::locale loc = money_locale(grouped(""));
  money_reading fits = READ_DIGITS(nines(199), loc, false, plain);
  CHECK_EQ(fits.state, 0);
  CHECK(fits.digits == nines(199));
  const unsigned longer[] = {200, 201, 10000};
  for (unsigned i = 0; i < 3; ++i) {
    money_reading r = READ_DIGITS(nines(longer[i]), loc, false, plain);
    CHECK_EQ(r.state, fail);
    CHECK_STR(r.digits.c_str(), "untouched");
    CHECK_EQ(r.taken, 199L);
  }
}

TEST(grouped_digits_are_bounded_too) {
  std::string text = "9";
  while (text.size() < 400)
    text += ",999";
  money_reading r = READ_DIGITS(text, money_locale(grouped("\3")), false, plain);
  CHECK_EQ(r.state, fail);
}

TEST(a_fraction_padded_past_the_buffer_fails) {
  std::locale loc = money_locale(grouped("", 2));
  CHECK_EQ(READ_DIGITS(nines(197), loc, false, plain).state, 0);
  CHECK_EQ(READ_DIGITS(nines(198), loc, false, plain).state, fail);
  CHECK_EQ(READ_DIGITS("1", money_locale(grouped("", 1000)), false, plain).state, fail);
}

TEST(a_negative_fraction_count_takes_no_fraction_digit) {
  std::locale loc = money_locale(grouped("", -1));
  CHECK_STR(READ_DIGITS("12", loc, false, plain).digits.c_str(), "12");
  CHECK_EQ(READ_DIGITS("1.2", loc, false, plain).state, fail);
}

TEST(units_are_the_digits_as_a_number) {
  money_reading r = READ_UNITS("-1,234.56", money_locale(grouped("\3", 2)), false, plain);
  CHECK_EQ(r.state, 0);
  CHECK(r.units == -123456.0L);
}

TEST(failed_units_are_left_untouched) {
  money_reading r = READ_UNITS("x", two_digits(), false, plain);
  CHECK_EQ(r.state, fail);
  CHECK(r.units == -1.0L);
}

TEST(units_longer_than_the_conversion_text_fail) {
  std::locale loc = money_locale(grouped(""));
  money_reading positive = READ_UNITS(nines(199), loc, false, plain);
  CHECK_EQ(positive.state, 0);
  CHECK(positive.units > 9e198L);
  money_reading negative = READ_UNITS("-" + nines(199), loc, false, plain);
  CHECK_EQ(negative.state, fail);
  CHECK(negative.units == -1.0L);
}

// The classic locale keeps the C library's CHAR_MAX fraction digits.
TEST(the_classic_locale_reads_with_127_fraction_digits) {
  money_reading r = READ_DIGITS("5", std::locale::classic(), false, plain);
  CHECK_EQ(r.state, 0);
  CHECK(r.digits == "5" + std::string(127, '0'));
}

typedef std::moneypunct<char, false> local_punct;
typedef std::moneypunct<char, true> intl_punct;

// Run in a child: both facets are looked up, so the child aborts at the first.
static void read_without(const std::locale& loc, bool intl) {
  std::istringstream stream("1");
  stream.imbue(loc);
  std::ios_base::iostate state = std::ios_base::goodbit;
  std::string digits;
  array_money_get facet;
  char text[] = "1";
  facet.get(text, text + 1, intl, stream, state, digits);
}

TEST(a_missing_moneypunct_or_ctype_reports_facet_not_present) {
  CHECK(!std::has_facet<local_punct>(locale_lacking<local_punct>()));
  EXPECT_ABORT(read_without(locale_lacking<local_punct>(), false),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(read_without(locale_lacking<intl_punct>(), true), "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(read_without(locale_lacking<std::ctype<char> >(), false),
               "bad_cast: Facet not present\n\n");
}

// Answers every digit-string reading with "-42" and takes no character.
struct fixed_digits : std::money_get<char, char*> {
  fixed_digits() : std::money_get<char, char*>(1) {}

protected:
  char* do_get(char* in, char*, bool, std::ios_base&, std::ios_base::iostate&,
               std::string& digits) const {
    digits = "-42";
    return in;
  }
};

TEST(units_are_read_through_the_digit_string_operation) {
  std::istringstream stream;
  fixed_digits facet;
  char text[] = "999";
  std::ios_base::iostate state = std::ios_base::goodbit;
  long double units = 0;
  char* stop = facet.get(text, text + 3, false, stream, state, units);
  CHECK(units == -42.0L);
  CHECK(stop == text);
  CHECK_EQ(static_cast<int>(state), 0);
}
