// timepunct<char>: the "C" names, the half-day rule, the fixed formats, the field widths, one
// conversion with its range checks, and the failures of construction and of get_week_day.
#include "failing_malloc.h"
#include "locale_test_support.h"
#include "lorb_test.h"
#include "timepunct_support.h"
#include <limits.h>
#include <stdlib.h>

typedef std::timepunct<char> timepunct;

static const char* const c_abbreviated_days[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
static const char* const c_full_days[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                          "Thursday", "Friday", "Saturday"};
static const char* const c_abbreviated_months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
static const char* const c_full_months[] = {"January",   "February", "March",    "April",
                                            "May",       "June",     "July",     "August",
                                            "September", "October",  "November", "December"};

static void check_c_names(const timepunct& tp) {
  const std::string* days = tp.get_week_day_list();
  for (int d = 0; d < 7; ++d) {
    CHECK_STR(days[d].c_str(), c_abbreviated_days[d]);
    CHECK_STR(days[7 + d].c_str(), c_full_days[d]);
  }
  const std::string* months = tp.get_month_name_list();
  for (int m = 0; m < 12; ++m) {
    CHECK_STR(months[m].c_str(), c_abbreviated_months[m]);
    CHECK_STR(months[12 + m].c_str(), c_full_months[m]);
  }
  CHECK_STR(tp.get_ampm_string(0).c_str(), "AM");
  CHECK_STR(tp.get_ampm_string(23).c_str(), "PM");
}

static tm sample_tm() {
  tm t;
  memset(&t, 0, sizeof t);
  t.tm_sec = 7;
  t.tm_min = 8;
  t.tm_hour = 9;
  t.tm_mday = 10;
  t.tm_mon = 3;
  t.tm_year = 96;
  t.tm_wday = 3;
  t.tm_yday = 100;
  return t;
}

static std::string format(const timepunct& tp, char conv, const tm& t) {
  return tp.print_format(std::locale::classic(), conv, &t);
}

// Names.

TEST(c_locale_has_the_english_names_and_am_pm) {
  timepunct tp("C");
  check_c_names(tp);
}

TEST(posix_locale_has_the_same_names_as_c) {
  timepunct tp("POSIX");
  check_c_names(tp);
}

ISOLATED_TEST(c_names_are_read_while_another_locale_is_in_force) {
  setlocale(LC_ALL, "de_DE.UTF-8");
  timepunct tp("C");
  check_c_names(tp);
  CHECK_STR(setlocale(LC_TIME, 0), "de_DE.UTF-8");
}

ISOLATED_TEST(construction_puts_the_whole_c_locale_back) {
  setlocale(LC_ALL, "C");
  setlocale(LC_TIME, "fr_FR.UTF-8");
  setlocale(LC_NUMERIC, "de_DE.UTF-8");
  char before[512];
  strcpy(before, setlocale(LC_ALL, 0));
  {
    timepunct tp("it_IT.UTF-8");
    CHECK(tp.get_week_day_list()[7] != "Sunday");
  }
  CHECK_STR(setlocale(LC_ALL, 0), before);
}

TEST(names_stay_after_the_c_locale_changes) {
  timepunct tp("C");
  EXPECT_CHILD(
      {
        setlocale(LC_ALL, "fr_FR.UTF-8");
        if (tp.get_week_day_list()[8] != "Monday" || tp.get_month_name_list()[13] != "February")
          abort();
      },
      lt::exits(0), "", "");
}

TEST(the_lists_are_the_names_print_format_uses) {
  timepunct tp("C");
  tm t = sample_tm();
  for (t.tm_wday = 0; t.tm_wday < 7; ++t.tm_wday) {
    CHECK(format(tp, 'a', t) == tp.get_week_day_list()[t.tm_wday]);
    CHECK(format(tp, 'A', t) == tp.get_week_day_list()[7 + t.tm_wday]);
  }
  for (t.tm_mon = 0; t.tm_mon < 12; ++t.tm_mon) {
    CHECK(format(tp, 'b', t) == tp.get_month_name_list()[t.tm_mon]);
    CHECK(format(tp, 'B', t) == tp.get_month_name_list()[12 + t.tm_mon]);
  }
}

// Half-day strings.

TEST(half_day_changes_at_noon) {
  timepunct tp("C");
  CHECK_STR(tp.get_ampm_string(11).c_str(), "AM");
  CHECK_STR(tp.get_ampm_string(12).c_str(), "PM");
}

TEST(half_day_of_hours_outside_the_day_follows_the_comparison_with_twelve) {
  timepunct tp("C");
  CHECK_STR(tp.get_ampm_string(-1).c_str(), "AM");
  CHECK_STR(tp.get_ampm_string(INT_MIN).c_str(), "AM");
  CHECK_STR(tp.get_ampm_string(24).c_str(), "PM");
  CHECK_STR(tp.get_ampm_string(INT_MAX).c_str(), "PM");
}

TEST(p_conversion_is_am_up_to_eleven_and_pm_from_twelve) {
  timepunct tp("C");
  tm t = sample_tm();
  for (t.tm_hour = 0; t.tm_hour < 24; ++t.tm_hour)
    CHECK_STR(format(tp, 'p', t).c_str(), t.tm_hour < 12 ? "AM" : "PM");
}

// Fixed formats.

static void check_fixed_formats(const timepunct& tp) {
  CHECK_STR(tp.get_date_time_format().c_str(), "%a %b %d %H:%M:%S %Y");
  CHECK_STR(tp.get_date_format().c_str(), "%m/%d/%y");
  CHECK_STR(tp.get_time_format().c_str(), "%H:%M:%S");
}

TEST(formats_are_fixed_in_the_c_locale) {
  timepunct tp("C");
  check_fixed_formats(tp);
}

TEST(formats_are_fixed_whatever_the_locale_name) {
  const char* names[] = {"de_DE.UTF-8", "fr_FR.UTF-8", "en_US.UTF-8", "it_IT.UTF-8"};
  for (int i = 0; i < 4; ++i) {
    if (!time_locale_available(names[i]))
      continue;
    timepunct tp(names[i]);
    check_fixed_formats(tp);
  }
}

// Field widths.

static int width_by_the_table(char conv) {
  if (conv == '\0')
    return 0;
  if (strchr("ABXcpx", conv))
    return -1;
  if (strchr("HIMSUWdmy", conv))
    return 2;
  if (conv == 'Y')
    return 4;
  if (strchr("abj", conv))
    return 3;
  if (conv == 'w')
    return 1;
  return 0;
}

TEST(conversion_widths_of_the_named_letters) {
  CHECK_EQ(timepunct::get_spec_conv_width('Y'), 4);
  CHECK_EQ(timepunct::get_spec_conv_width('c'), -1);
  CHECK_EQ(timepunct::get_spec_conv_width('%'), 0);
  CHECK_EQ(timepunct::get_spec_conv_width('j'), 3);
  CHECK_EQ(timepunct::get_spec_conv_width('w'), 1);
  CHECK_EQ(timepunct::get_spec_conv_width('U'), 2);
}

TEST(conversion_widths_of_every_character) {
  for (int c = CHAR_MIN; c <= CHAR_MAX; ++c)
    CHECK_EQ(timepunct::get_spec_conv_width(static_cast<char>(c)),
             width_by_the_table(static_cast<char>(c)));
}

// get_week_day.

TEST(week_day_is_full_for_an_upper_case_conversion) {
  timepunct tp("C");
  std::locale loc = std::locale::classic();
  for (int d = 0; d < 7; ++d) {
    CHECK_STR(tp.get_week_day(loc, 'A', d).c_str(), c_full_days[d]);
    CHECK_STR(tp.get_week_day(loc, 'Q', d).c_str(), c_full_days[d]);
    CHECK_STR(tp.get_week_day(loc, 'a', d).c_str(), c_abbreviated_days[d]);
    CHECK_STR(tp.get_week_day(loc, '7', d).c_str(), c_abbreviated_days[d]);
    CHECK_STR(tp.get_week_day(loc, '%', d).c_str(), c_abbreviated_days[d]);
  }
}

TEST(week_day_asks_the_locales_ctype_what_is_upper_case) {
  static std::ctype_base::mask swapped[std::ctype<char>::table_size];
  memcpy(swapped, std::ctype<char>::classic_table, sizeof swapped);
  swapped['a'] = std::ctype<char>::classic_table['A'];
  swapped['A'] = std::ctype<char>::classic_table['a'];
  std::locale loc = locale_with_ctype(new std::ctype<char>(swapped, false, 0));
  timepunct tp("C");
  CHECK_STR(tp.get_week_day(loc, 'a', 1).c_str(), "Monday");
  CHECK_STR(tp.get_week_day(loc, 'A', 1).c_str(), "Mon");
}

TEST(week_day_outside_the_week_is_empty) {
  timepunct tp("C");
  std::locale loc = std::locale::classic();
  CHECK_STR(tp.get_week_day(loc, 'A', 7).c_str(), "");
  CHECK_STR(tp.get_week_day(loc, 'a', -1).c_str(), "");
  CHECK_STR(tp.get_week_day(loc, 'A', INT_MIN).c_str(), "");
}

TEST(week_day_without_a_ctype_facet_is_facet_not_present) {
  timepunct tp("C");
  std::locale no_ctype = locale_with_ctype(0);
  EXPECT_ABORT(tp.get_week_day(no_ctype, 'A', 0), "bad_cast: Facet not present\n\n");
}

// print_format: the values.

TEST(twelve_hour_clock_of_midnight_is_12_and_of_13_is_01) {
  timepunct tp("C");
  tm t = sample_tm();
  t.tm_hour = 0;
  CHECK_STR(format(tp, 'I', t).c_str(), "12");
  t.tm_hour = 13;
  CHECK_STR(format(tp, 'I', t).c_str(), "01");
  t.tm_hour = 12;
  CHECK_STR(format(tp, 'I', t).c_str(), "12");
  t.tm_hour = 1;
  CHECK_STR(format(tp, 'I', t).c_str(), "01");
  t.tm_hour = 23;
  CHECK_STR(format(tp, 'I', t).c_str(), "11");
}

TEST(full_year_of_year_field_96_is_1996) {
  timepunct tp("C");
  tm t = sample_tm();
  CHECK_STR(format(tp, 'Y', t).c_str(), "1996");
  t.tm_year = -1900;
  CHECK_STR(format(tp, 'Y', t).c_str(), "0000");
  t.tm_year = -1893;
  CHECK_STR(format(tp, 'Y', t).c_str(), "0007");
}

TEST(full_year_of_the_largest_year_fields_wraps_as_strftime_does) {
  timepunct tp("C");
  tm t = sample_tm();
  t.tm_year = INT_MAX;
  CHECK(format(tp, 'Y', t) == c_strftime('Y', t));
  CHECK(format(tp, 'Y', t)[0] == '-');
  t.tm_year = INT_MAX - 1899;
  CHECK(format(tp, 'Y', t) == c_strftime('Y', t));
  t.tm_year = INT_MIN;
  CHECK(format(tp, 'Y', t) == c_strftime('Y', t));
  t.tm_year = 8100;
  CHECK_STR(format(tp, 'Y', t).c_str(), "10000");
}

// Unlike strftime, which does not pad them, years before 1000 get four digits.
TEST(full_year_has_at_least_four_digits) {
  timepunct tp("C");
  tm t = sample_tm();
  t.tm_year = -1900 + 999;
  CHECK_STR(format(tp, 'Y', t).c_str(), "0999");
  t.tm_year = -1900 - 5;
  CHECK_STR(format(tp, 'Y', t).c_str(), "-0005");
}

// Kept: the year field is not reduced to the century.
TEST(two_digit_year_of_year_field_100_is_100) {
  timepunct tp("C");
  tm t = sample_tm();
  t.tm_year = 100;
  CHECK_STR(format(tp, 'y', t).c_str(), "100");
  t.tm_year = 123;
  CHECK_STR(format(tp, 'y', t).c_str(), "123");
  t.tm_year = 5;
  CHECK_STR(format(tp, 'y', t).c_str(), "05");
  t.tm_year = -5;
  CHECK_STR(format(tp, 'y', t).c_str(), "-05");
}

TEST(month_field_0_prints_as_01) {
  timepunct tp("C");
  tm t = sample_tm();
  t.tm_mon = 0;
  CHECK_STR(format(tp, 'm', t).c_str(), "01");
  t.tm_mon = 11;
  CHECK_STR(format(tp, 'm', t).c_str(), "12");
}

TEST(numbers_are_zero_padded_to_their_widths) {
  timepunct tp("C");
  tm t = sample_tm();
  CHECK_STR(format(tp, 'H', t).c_str(), "09");
  CHECK_STR(format(tp, 'M', t).c_str(), "08");
  CHECK_STR(format(tp, 'S', t).c_str(), "07");
  CHECK_STR(format(tp, 'd', t).c_str(), "10");
  CHECK_STR(format(tp, 'j', t).c_str(), "101");
  CHECK_STR(format(tp, 'w', t).c_str(), "3");
  t.tm_yday = 0;
  CHECK_STR(format(tp, 'j', t).c_str(), "001");
  t.tm_yday = 365;
  CHECK_STR(format(tp, 'j', t).c_str(), "366");
}

TEST(percent_prints_itself) {
  timepunct tp("C");
  tm t = sample_tm();
  CHECK_STR(format(tp, '%', t).c_str(), "%");
}

TEST(every_letter_that_is_not_a_conversion_gives_the_empty_string) {
  timepunct tp("C");
  tm t = sample_tm();
  for (int c = CHAR_MIN; c <= CHAR_MAX; ++c) {
    if (c != 0 && strchr(print_format_conversions, c))
      continue;
    CHECK_EQ(format(tp, static_cast<char>(c), t).size(), 0u);
  }
  // The composite conversions are left to the time facets.
  CHECK_STR(format(tp, 'c', t).c_str(), "");
  CHECK_STR(format(tp, 'x', t).c_str(), "");
  CHECK_STR(format(tp, 'X', t).c_str(), "");
}

// print_format: the range checks.

struct checked_field {
  char conv;
  int tm::*field;
  int lowest, highest;
};

static const checked_field checked_fields[] = {
    {'A', &tm::tm_wday, 0, 6},  {'a', &tm::tm_wday, 0, 6},  {'w', &tm::tm_wday, 0, 6},
    {'U', &tm::tm_wday, 0, 6},  {'W', &tm::tm_wday, 0, 6},  {'B', &tm::tm_mon, 0, 11},
    {'b', &tm::tm_mon, 0, 11},  {'m', &tm::tm_mon, 0, 11},  {'H', &tm::tm_hour, 0, 23},
    {'I', &tm::tm_hour, 0, 23}, {'p', &tm::tm_hour, 0, 23}, {'M', &tm::tm_min, 0, 59},
    {'S', &tm::tm_sec, 0, 59},  {'d', &tm::tm_mday, 1, 31}, {'j', &tm::tm_yday, 0, 365},
};
static const int checked_field_count = sizeof checked_fields / sizeof checked_fields[0];

TEST(hour_field_24_gives_the_empty_string) {
  timepunct tp("C");
  tm t = sample_tm();
  t.tm_hour = 24;
  CHECK_STR(format(tp, 'H', t).c_str(), "");
}

TEST(fields_at_the_ends_of_their_ranges_are_printed) {
  timepunct tp("C");
  for (int i = 0; i < checked_field_count; ++i) {
    const checked_field& f = checked_fields[i];
    tm t = sample_tm();
    t.*f.field = f.lowest;
    CHECK(!format(tp, f.conv, t).empty());
    t.*f.field = f.highest;
    CHECK(!format(tp, f.conv, t).empty());
  }
}

TEST(fields_outside_their_ranges_give_the_empty_string) {
  timepunct tp("C");
  const int outside[] = {-1, INT_MIN, INT_MAX};
  for (int i = 0; i < checked_field_count; ++i) {
    const checked_field& f = checked_fields[i];
    tm t = sample_tm();
    t.*f.field = f.lowest - 1;
    CHECK_STR(format(tp, f.conv, t).c_str(), "");
    t.*f.field = f.highest + 1;
    CHECK_STR(format(tp, f.conv, t).c_str(), "");
    for (int k = 0; k < 3; ++k) {
      t.*f.field = outside[k];
      CHECK_STR(format(tp, f.conv, t).c_str(), "");
    }
  }
}

TEST(each_conversion_checks_only_its_own_field) {
  timepunct tp("C");
  for (int i = 0; i < checked_field_count; ++i) {
    const checked_field& f = checked_fields[i];
    tm t = sample_tm();
    // Every other checked field out of range.
    for (int k = 0; k < checked_field_count; ++k)
      if (checked_fields[k].field != f.field)
        t.*checked_fields[k].field = -1;
    CHECK(!format(tp, f.conv, t).empty());
  }
}

TEST(years_are_printed_whatever_the_other_fields_hold) {
  timepunct tp("C");
  tm t;
  memset(&t, 0xff, sizeof t);
  t.tm_year = 96;
  CHECK_STR(format(tp, 'Y', t).c_str(), "1996");
  CHECK_STR(format(tp, 'y', t).c_str(), "96");
  CHECK_STR(format(tp, '%', t).c_str(), "%");
}

// Failures.

TEST(unknown_name_is_an_invalid_locale_name) {
  EXPECT_ABORT(timepunct tp("xx_NOWHERE.UTF-8"), "runtime_error: Invalid locale name\n\n");
}

TEST(null_name_is_an_invalid_locale_name) {
  EXPECT_ABORT(timepunct tp(static_cast<const char*>(0)), "runtime_error: Invalid locale name\n\n");
}

// The C library locale at the abort is still the one set before: nothing was switched.
TEST(unknown_name_leaves_the_c_locale_as_it_was) {
  EXPECT_CHILD(
      {
        report_c_locale_on_abort("fr_FR.UTF-8");
        timepunct tp("xx_NOWHERE.UTF-8");
      },
      lt::aborts(), "fr_FR.UTF-8", "runtime_error: Invalid locale name\n\n");
}

TEST(running_out_of_memory_while_constructing_ends_the_program) {
  EXPECT_EXIT(
      {
        lt::malloc_fails = true;
        timepunct tp("C");
      },
      1, "Lorb++ : Could not allocate  memory ...\n");
}
