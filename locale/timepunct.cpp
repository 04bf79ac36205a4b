// timepunct<char>: the names read from the C library's strftime, and the fixed formats.
#include <__lorb/c_locale_switch.h>
#include <__lorb/ctype_facets.h>
#include <__lorb/runtime.h>
#include <__lorb/timepunct.h>
#include <locale.h>
#include <new>
#include <string.h>
#include <time.h>

namespace std {
namespace {

const int day_name_count = 14;
const int month_name_count = 24;

void construct_empty_string(void* place) { ::new (place) basic_string<char>(); }
void destroy_string(void* s, int) {
  typedef basic_string<char> string_type;
  static_cast<string_type*>(s)->~string_type();
}

// Prints one conversion of the sample date into the buffer and takes the text; what strftime
// could not fit, or an empty field, gives the empty string.
class sample_printer {
public:
  sample_printer() {
    memset(&sample, 0, sizeof sample);
    sample.tm_sec = 30;
    sample.tm_min = 30;
    sample.tm_hour = 10;
    sample.tm_mday = 1;
    sample.tm_mon = 8;
    sample.tm_year = 96;
    sample.tm_wday = 0;
    sample.tm_yday = -1;
    sample.tm_isdst = -1;
    format[0] = '%';
    format[2] = '\0';
  }

  void print(char conv, basic_string<char>& into) {
    format[1] = conv;
    size_t length = strftime(buffer, sizeof buffer, format, &sample);
    into.assign(buffer, length);
  }

  tm sample;

private:
  char format[3];
  char buffer[512];
};

} // namespace

timepunct<char>::timepunct(const char* name) : __name(name ? name : ""), __am(), __pm() {
  // Storage given, so no cookie is written and nothing is allocated.
  __vec_new(__days.__bytes, day_name_count, sizeof(string_type), &construct_empty_string);
  __vec_new(__months.__bytes, month_name_count, sizeof(string_type), &construct_empty_string);
  __read_names(name);
}

timepunct<char>::~timepunct() {
  __vec_delete(__months.__bytes, month_name_count, sizeof(string_type), &destroy_string, 0);
  __vec_delete(__days.__bytes, day_name_count, sizeof(string_type), &destroy_string, 0);
}

// The given name, not the stored one: a null name must be refused, where the stored one is empty.
void timepunct<char>::__read_names(const char* name) {
  __vel::c_locale_switch reading(LC_TIME, name);
  sample_printer printer;
  string_type* days = __day_names();
  for (int d = 0; d < 7; ++d) {
    printer.sample.tm_mday = d + 1;
    printer.sample.tm_wday = d;
    printer.print('a', days[d]);
    printer.print('A', days[7 + d]);
  }
  string_type* months = __month_names();
  for (int m = 0; m < 12; ++m) {
    printer.sample.tm_mon = m;
    printer.print('b', months[m]);
    printer.print('B', months[12 + m]);
  }
  printer.print('p', __am);
  printer.sample.tm_hour = 22;
  printer.print('p', __pm);
}

timepunct<char>::string_type timepunct<char>::get_week_day(const locale& loc, char conv,
                                                           int day) const {
  const ctype<char>& classes = use_facet<ctype<char> >(loc);
  if (static_cast<unsigned>(day) > 6)
    return string_type();
  return __day_names()[classes.is(ctype_base::upper, conv) ? 7 + day : day];
}

timepunct<char>::string_type timepunct<char>::get_ampm_string(int hour) const {
  return hour >= 12 ? __pm : __am;
}

timepunct<char>::string_type timepunct<char>::get_date_time_format() const {
  return "%a %b %d %H:%M:%S %Y";
}

timepunct<char>::string_type timepunct<char>::get_date_format() const { return "%m/%d/%y"; }

timepunct<char>::string_type timepunct<char>::get_time_format() const { return "%H:%M:%S"; }

} // namespace std
