// timepunct<char> of the named locales the set-up generates: every name against what strftime
// prints under the same name, the name conversions of a whole year, and the empty name.
#include "lorb_test.h"
#include "timepunct_support.h"
#include <stdlib.h>

typedef std::timepunct<char> timepunct;

static const char* const time_locales[] = {"C",           "POSIX",       "de_DE.UTF-8",
                                           "fr_FR.UTF-8", "en_US.UTF-8", "it_IT.UTF-8"};
static const int time_locale_count = 6;

// Days of 2021, a year other than the one the names are read from: January 3 was a Sunday.
static tm day_of_week_2021(int weekday) { return calendar_day(2021, 2 + weekday, 9, 0, 0); }
static tm middle_of_month_2021(int month) {
  tm t = calendar_day(2021, 0, 9, 0, 0);
  while (t.tm_mon != month)
    t = calendar_day(2021, t.tm_yday + 1, 9, 0, 0);
  return calendar_day(2021, t.tm_yday + 14, 9, 0, 0);
}

// Counts the names of tp that differ from strftime's under the C library locale `name`.
static int names_differing_from_strftime(const timepunct& tp, const char* name) {
  c_time_locale in_force(name);
  int differing = 0;
  const std::string* days = tp.get_week_day_list();
  for (int d = 0; d < 7; ++d) {
    tm t = day_of_week_2021(d);
    differing += days[d] != c_strftime('a', t);
    differing += days[7 + d] != c_strftime('A', t);
  }
  const std::string* months = tp.get_month_name_list();
  for (int m = 0; m < 12; ++m) {
    tm t = middle_of_month_2021(m);
    differing += months[m] != c_strftime('b', t);
    differing += months[12 + m] != c_strftime('B', t);
  }
  tm morning = calendar_day(2021, 40, 3, 0, 0);
  tm afternoon = calendar_day(2021, 40, 15, 0, 0);
  differing += tp.get_ampm_string(3) != c_strftime('p', morning);
  differing += tp.get_ampm_string(15) != c_strftime('p', afternoon);
  return differing;
}

TEST(the_dates_compared_fall_on_the_right_days) {
  for (int d = 0; d < 7; ++d)
    CHECK_EQ(day_of_week_2021(d).tm_wday, d);
  for (int m = 0; m < 12; ++m) {
    CHECK_EQ(middle_of_month_2021(m).tm_mon, m);
    CHECK_EQ(middle_of_month_2021(m).tm_mday, 15);
  }
}

TEST(every_name_of_every_locale_is_strftimes) {
  for (int i = 0; i < time_locale_count; ++i) {
    if (!time_locale_available(time_locales[i]))
      continue;
    timepunct tp(time_locales[i]);
    if (!CHECK_EQ(names_differing_from_strftime(tp, time_locales[i]), 0))
      printf("in locale %s\n", time_locales[i]);
  }
}

TEST(name_conversions_of_a_whole_year_are_strftimes) {
  for (int i = 0; i < time_locale_count; ++i) {
    if (!time_locale_available(time_locales[i]))
      continue;
    timepunct tp(time_locales[i]);
    c_time_locale in_force(time_locales[i]);
    lcg random(7 + i);
    int differing = 0;
    for (int day = 0; day < 366; ++day) {
      tm t = calendar_day(2024, day, random.below(24), 0, 0);
      for (const char* conv = "AaBbp"; *conv; ++conv)
        differing += tp.print_format(std::locale::classic(), *conv, &t) != c_strftime(*conv, t);
    }
    if (!CHECK_EQ(differing, 0))
      printf("in locale %s\n", time_locales[i]);
  }
}

TEST(german_names_are_german) {
  if (!time_locale_available("de_DE.UTF-8"))
    return;
  timepunct tp("de_DE.UTF-8");
  CHECK_STR(tp.get_week_day_list()[7].c_str(), "Sonntag");
  CHECK_STR(tp.get_month_name_list()[12 + 2].c_str(), "M\xc3\xa4rz");
}

TEST(named_locales_names_differ_from_the_c_names) {
  timepunct c("C");
  const char* names[] = {"de_DE.UTF-8", "fr_FR.UTF-8", "it_IT.UTF-8"};
  for (int i = 0; i < 3; ++i) {
    if (!time_locale_available(names[i]))
      continue;
    timepunct tp(names[i]);
    CHECK(tp.get_week_day_list()[8] != c.get_week_day_list()[8]);
    CHECK(tp.get_month_name_list()[12] != c.get_month_name_list()[12]);
  }
}

// The empty name takes LC_TIME from the environment, as the time facets build theirs.
ISOLATED_TEST(empty_name_reads_the_environments_time_locale) {
  unsetenv("LC_ALL");
  unsetenv("LANG");
  setenv("LC_TIME", "it_IT.UTF-8", 1);
  if (!time_locale_available("it_IT.UTF-8"))
    return;
  timepunct from_environment("");
  CHECK_EQ(names_differing_from_strftime(from_environment, "it_IT.UTF-8"), 0);
  CHECK_STR(setlocale(LC_TIME, 0), "C");
}

ISOLATED_TEST(empty_name_without_an_environment_gives_the_c_names) {
  unsetenv("LC_ALL");
  unsetenv("LANG");
  unsetenv("LC_TIME");
  timepunct from_environment("");
  CHECK_EQ(names_differing_from_strftime(from_environment, "C"), 0);
  CHECK_STR(from_environment.get_week_day_list()[0].c_str(), "Sun");
}
