// timepunct<char>::print_format against the C library's strftime for every day of years of all
// fourteen kinds (starting on each weekday, leap or not), the week numbers above all.
#include "lorb_test.h"
#include "timepunct_support.h"

typedef std::timepunct<char> timepunct;

// The year's kind: the weekday of January 1, plus 7 for a leap year.
static int kind_of_year(int year) {
  return calendar_day(year, 0, 12, 0, 0).tm_wday + (is_leap_year(year) ? 7 : 0);
}

// The first year of each kind from 1950 on, then the century years 1900, 2000 and 2100.
struct test_years {
  int year[17];
  int count;
  bool kind_found[14];
};

static test_years choose_years() {
  test_years chosen;
  chosen.count = 0;
  for (int k = 0; k < 14; ++k)
    chosen.kind_found[k] = false;
  for (int year = 1950; year < 2050; ++year) {
    int kind = kind_of_year(year);
    if (!chosen.kind_found[kind]) {
      chosen.kind_found[kind] = true;
      chosen.year[chosen.count++] = year;
    }
  }
  chosen.year[chosen.count++] = 1900;
  chosen.year[chosen.count++] = 2000;
  chosen.year[chosen.count++] = 2100;
  return chosen;
}

// What print_format should give for a conversion of a real date, from strftime; only 'y' of the
// years from 2000 on differs, deliberately: the year field is printed whole (2000 gives 100).
static std::string expected_text(char conv, const tm& t) {
  if (conv == 'y' && t.tm_year >= 100) {
    char century[16];
    sprintf(century, "%d", t.tm_year / 100);
    return century + c_strftime('y', t);
  }
  return c_strftime(conv, t);
}

static void compare_every_day_of(const timepunct& tp, int year, lcg& random, int& mismatches) {
  int days = is_leap_year(year) ? 366 : 365;
  for (int day = 0; day < days; ++day) {
    tm t = calendar_day(year, day, random.below(24), random.below(60), random.below(60));
    for (const char* conv = print_format_conversions; *conv; ++conv) {
      std::string got = tp.print_format(std::locale::classic(), *conv, &t);
      if (got != expected_text(*conv, t)) {
        if (++mismatches <= 5)
          printf("%d day %d %%%c: \"%s\", strftime \"%s\"\n", year, day, *conv, got.c_str(),
                 c_strftime(*conv, t).c_str());
      }
    }
  }
}

// Where the C library's calendar reaches, the dates counted here are its own.
TEST(counted_dates_agree_with_the_c_library_calendar) {
  int mismatches = 0;
  for (int year = 1970; year < 2038; ++year)
    for (int day = 0; day < (is_leap_year(year) ? 366 : 365); day += 3) {
      tm counted = calendar_day(year, day, 12, 0, 0);
      tm normalised = counted;
      normalised.tm_mon = 0;
      normalised.tm_mday = 1 + day;
      normalised.tm_wday = normalised.tm_yday = -1;
      timegm(&normalised);
      if (normalised.tm_mon != counted.tm_mon || normalised.tm_mday != counted.tm_mday ||
          normalised.tm_wday != counted.tm_wday || normalised.tm_yday != counted.tm_yday)
        ++mismatches;
    }
  CHECK_EQ(mismatches, 0);
}

TEST(the_chosen_years_cover_every_kind_of_year) {
  test_years chosen = choose_years();
  for (int k = 0; k < 14; ++k)
    CHECK(chosen.kind_found[k]);
  CHECK_EQ(chosen.count, 17);
  CHECK(!is_leap_year(1900));
  CHECK(is_leap_year(2000));
  CHECK(!is_leap_year(2100));
}

TEST(every_conversion_of_every_day_agrees_with_strftime) {
  setlocale(LC_ALL, "C");
  timepunct tp("C");
  test_years chosen = choose_years();
  lcg random(20240611);
  int mismatches = 0;
  for (int i = 0; i < chosen.count; ++i)
    compare_every_day_of(tp, chosen.year[i], random, mismatches);
  CHECK_EQ(mismatches, 0);
}

// strftime computes the week numbers from the day of year and day of week alone, so every pair,
// not only those of real dates, must give the same number.
TEST(week_numbers_agree_with_strftime_for_every_day_of_year_and_weekday) {
  setlocale(LC_ALL, "C");
  timepunct tp("C");
  tm t = calendar_day(1996, 0, 10, 30, 30);
  int mismatches = 0;
  for (t.tm_yday = 0; t.tm_yday <= 365; ++t.tm_yday)
    for (t.tm_wday = 0; t.tm_wday < 7; ++t.tm_wday) {
      if (tp.print_format(std::locale::classic(), 'U', &t) != c_strftime('U', t))
        ++mismatches;
      if (tp.print_format(std::locale::classic(), 'W', &t) != c_strftime('W', t))
        ++mismatches;
    }
  CHECK_EQ(mismatches, 0);
}

// Only the day of week is checked for the week numbers; a day of year past the year's end is not.
TEST(week_numbers_of_days_of_year_past_the_end_still_agree_with_strftime) {
  setlocale(LC_ALL, "C");
  timepunct tp("C");
  tm t = calendar_day(1996, 0, 10, 30, 30);
  int mismatches = 0;
  for (t.tm_yday = 366; t.tm_yday < 800; t.tm_yday += 5)
    for (t.tm_wday = 0; t.tm_wday < 7; ++t.tm_wday) {
      mismatches += tp.print_format(std::locale::classic(), 'U', &t) != c_strftime('U', t);
      mismatches += tp.print_format(std::locale::classic(), 'W', &t) != c_strftime('W', t);
    }
  CHECK_EQ(mismatches, 0);
  t.tm_yday = 700;
  CHECK_STR(tp.print_format(std::locale::classic(), 'j', &t).c_str(), "");
}

TEST(first_days_of_a_year_starting_on_sunday_are_in_week_1_for_U_and_week_0_for_W) {
  timepunct tp("C");
  tm t = calendar_day(2023, 0, 12, 0, 0); // a Sunday
  CHECK_EQ(t.tm_wday, 0);
  CHECK_STR(tp.print_format(std::locale::classic(), 'U', &t).c_str(), "01");
  CHECK_STR(tp.print_format(std::locale::classic(), 'W', &t).c_str(), "00");
  t = calendar_day(2023, 1, 12, 0, 0); // the Monday after
  CHECK_STR(tp.print_format(std::locale::classic(), 'U', &t).c_str(), "01");
  CHECK_STR(tp.print_format(std::locale::classic(), 'W', &t).c_str(), "01");
}

TEST(last_day_of_a_leap_year_starting_on_saturday_is_in_week_53) {
  timepunct tp("C");
  tm t = calendar_day(2000, 365, 12, 0, 0); // Sunday, December 31, 2000
  CHECK_EQ(t.tm_yday, 365);
  CHECK_EQ(t.tm_wday, 0);
  CHECK_STR(tp.print_format(std::locale::classic(), 'U', &t).c_str(), "53");
  CHECK_STR(tp.print_format(std::locale::classic(), 'W', &t).c_str(), "52");
}
