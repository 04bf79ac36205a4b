// Test helper for timepunct<char>: what the C library's strftime prints for a date under a locale
// name, real calendar dates, a locale without ctype<char>, and a small generator of its own.
#ifndef LORB_TEST_TIMEPUNCT_SUPPORT_H
#define LORB_TEST_TIMEPUNCT_SUPPORT_H

#include <__lorb/timepunct.h>
#include <locale.h>
#include <locale>
#include <stdio.h>
#include <string.h>
#include <string>
#include <time.h>

// The conversions print_format formats, '%' included.
static const char print_format_conversions[] = "AaBbpHIMSdmjwUWYy%";

// strftime of one conversion under the C library's current LC_TIME.
inline std::string c_strftime(char conv, const tm& t) {
  char format[3] = {'%', conv, '\0'};
  char text[512];
  size_t length = strftime(text, sizeof text, format, &t);
  return std::string(text, length);
}

// Switches LC_TIME to a name for the life of the object, and back; reports whether it could.
class c_time_locale {
public:
  explicit c_time_locale(const char* name) {
    strncpy(kept, setlocale(LC_ALL, 0), sizeof kept - 1);
    kept[sizeof kept - 1] = '\0';
    switched = setlocale(LC_TIME, name) != 0;
  }
  ~c_time_locale() { setlocale(LC_ALL, kept); }
  bool switched;

private:
  char kept[512];
};

// Whether the C library knows the name; a name it refuses is reported as skipped.
inline bool time_locale_available(const char* name) {
  c_time_locale probe(name);
  if (!probe.switched)
    printf("note: locale %s is not installed here, skipped\n", name);
  return probe.switched;
}

inline bool is_leap_year(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// The weekday of January 1 of a year of the Gregorian calendar, 0 for Sunday: January 1 of year 1
// was a Monday, and each year moves it on by its length.
inline int weekday_of_new_year(int year) {
  int before = year - 1;
  return (1 + before + before / 4 - before / 100 + before / 400) % 7;
}

// The date `day` days after January 1 of `year` (0 gives January 1), at the given time of day,
// counted here rather than by the C library, whose time_t does not reach 1900 or 2100.
inline tm calendar_day(int year, int day, int hour, int minute, int second) {
  static const int month_days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  tm t;
  memset(&t, 0, sizeof t);
  t.tm_year = year - 1900;
  t.tm_yday = day;
  t.tm_wday = (weekday_of_new_year(year) + day) % 7;
  t.tm_hour = hour;
  t.tm_min = minute;
  t.tm_sec = second;
  int month = 0;
  for (;;) {
    int length = month_days[month] + (month == 1 && is_leap_year(year) ? 1 : 0);
    if (day < length)
      break;
    day -= length;
    ++month;
  }
  t.tm_mon = month;
  t.tm_mday = day + 1;
  return t;
}

// A small linear congruential generator, so that runs repeat.
struct lcg {
  explicit lcg(unsigned seed) : state(seed) {}
  unsigned next() {
    state = state * 1103515245u + 12345u;
    return state >> 8;
  }
  int below(int n) { return static_cast<int>(next() % static_cast<unsigned>(n)); }
  unsigned state;
};

// A copy of the "C" locale whose ctype<char> is f (null: none).
inline std::locale locale_with_ctype(std::locale::facet* f) {
  std::locale made("C");
  std::locale::facet*& slot = made.__imp->facets.data[std::ctype<char>::id.__number()];
  slot->__release();
  slot = f;
  if (f)
    ++f->__refs;
  return made;
}

#endif
