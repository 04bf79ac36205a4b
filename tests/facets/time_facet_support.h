// What the time facet tests share: the facets over plain pointers with their protected operations
// reachable, a stream that carries flags and locale, and a struct tm filled with a marker so that
// a field left alone shows.
#ifndef FACETS_TIME_FACET_SUPPORT_H
#define FACETS_TIME_FACET_SUPPORT_H

#include "lorb_test.h"
#include "string_sink_iterator.h"
#include <locale>
#include <sstream>
#include <stdlib.h>
#include <string.h>
#include <string>
#include <time.h>

namespace {

typedef std::ios_base::iostate iostate;
const iostate good = std::ios_base::goodbit;
const iostate eof = std::ios_base::eofbit;
const iostate fail = std::ios_base::failbit;
const iostate fail_eof = std::ios_base::failbit | std::ios_base::eofbit;
const int untouched = -77;

typedef std::time_get<char, const char*> array_time_get;

// The facets take their names from the environment's LC_TIME; the tests expect the C names
// unless a test sets another locale itself.
struct classic_time_environment {
  classic_time_environment() { setenv("LC_ALL", "C", 1); }
};
const classic_time_environment classic_names_for_every_test = classic_time_environment();

// A copy of the current locale with one facet taken out.
template <class _Facet> std::locale locale_without() {
  std::locale copy(std::locale(), new std::numpunct<char>);
  std::locale::facet*& entry = copy.__imp->facets.data[_Facet::id.__number()];
  std::locale::facet* held = entry;
  entry = 0;
  held->__release();
  return copy;
}

// The pointer instance, owned here (refs 1), with the protected operations made reachable.
struct time_reader : array_time_get {
  time_reader() : array_time_get(1) {}
  ~time_reader() {}
  using array_time_get::do_time_scanf;
  using array_time_get::get_integral_data;
  using array_time_get::which_matches;
};

struct time_writer : std::time_put<char, string_sink_iterator> {
  time_writer() : std::time_put<char, string_sink_iterator>(1) {}
  ~time_writer() {}
  using std::time_put<char, string_sink_iterator>::do_put;
};

inline tm marked_tm() {
  tm t;
  t.tm_sec = t.tm_min = t.tm_hour = t.tm_mday = t.tm_mon = t.tm_year = untouched;
  t.tm_wday = t.tm_yday = t.tm_isdst = untouched;
  return t;
}

inline tm date_of(int year, int mon, int mday, int hour, int min, int sec, int wday, int yday) {
  tm t = marked_tm();
  t.tm_year = year;
  t.tm_mon = mon;
  t.tm_mday = mday;
  t.tm_hour = hour;
  t.tm_min = min;
  t.tm_sec = sec;
  t.tm_wday = wday;
  t.tm_yday = yday;
  t.tm_isdst = 0;
  return t;
}

// What one scan did: the fields, the bits and the characters taken.
struct scan_result {
  tm t;
  iostate err;
  long taken;
};

// The text is copied so that a read past its end would show under valgrind.
inline scan_result scan_with(const char* text, const char* format, std::ios_base& str) {
  size_t length = strlen(text);
  char* copy = new char[length + 1];
  memcpy(copy, text, length + 1);
  time_reader reader;
  scan_result r = {marked_tm(), good, 0};
  const char* stop =
      reader.do_time_scanf(copy, copy + length, str, r.err, &r.t, format, format + strlen(format));
  r.taken = stop - copy;
  delete[] copy;
  return r;
}

inline scan_result scan(const char* text, const char* format) {
  std::istringstream stream;
  return scan_with(text, format, stream);
}

// Formats through the library's stream instance: put with a pattern.
inline void put_pattern_on(std::ostringstream& out, const tm& t, const char* pattern) {
  typedef std::time_put<char, std::ostreambuf_iterator<char> > stream_time_put;
  const stream_time_put& facet = std::use_facet<stream_time_put>(out.getloc());
  facet.put(std::ostreambuf_iterator<char>(out), out, ' ', &t, pattern, pattern + strlen(pattern));
}

inline std::string put_pattern(const tm& t, const char* pattern) {
  std::ostringstream out;
  put_pattern_on(out, t, pattern);
  return out.str();
}

} // namespace

#endif
