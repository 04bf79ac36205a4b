// What the time_put programs share: a small generator of their own, generated dates with every
// field in range, and put over a string stream in the classic locale.
#ifndef TIME_PUT_SUPPORT_H
#define TIME_PUT_SUPPORT_H

#include <cstdio>
#include <cstring>
#include <ctime>
#include <locale>
#include <sstream>
#include <string>

struct date_generator {
  unsigned long state;
  explicit date_generator(unsigned long seed) : state(seed) {}
  int below(int n) {
    state = (state * 1103515245UL + 12345UL) & 0x7fffffffUL;
    return static_cast<int>((state >> 8) % static_cast<unsigned long>(n));
  }
};

// Years 1900 to 1999, so that the two-digit year is the year field; days up to 28 fit every
// month. The fields need not agree with each other: the formatting reads each one alone.
inline std::tm generated_date(date_generator& gen) {
  std::tm t;
  std::memset(&t, 0, sizeof t);
  t.tm_year = gen.below(100);
  t.tm_mon = gen.below(12);
  t.tm_mday = 1 + gen.below(28);
  t.tm_hour = gen.below(24);
  t.tm_min = gen.below(60);
  t.tm_sec = gen.below(60);
  t.tm_wday = gen.below(7);
  t.tm_yday = gen.below(366);
  return t;
}

typedef std::time_put<char, std::ostreambuf_iterator<char> > stream_time_put;

inline std::string put_time(const std::tm& t, const char* pattern) {
  std::ostringstream out;
  const stream_time_put& facet = std::use_facet<stream_time_put>(out.getloc());
  facet.put(std::ostreambuf_iterator<char>(out), out, ' ', &t, pattern,
            pattern + std::strlen(pattern));
  return out.str();
}

inline void show(const std::tm& t, const char* pattern) {
  std::printf("%-24s [%s]\n", pattern, put_time(t, pattern).c_str());
}

#endif
