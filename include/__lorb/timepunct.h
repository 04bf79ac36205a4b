// timepunct<char>: the day, month and half-day names of a C library locale, the fixed date and
// time formats, and the formatting of one conversion of a struct tm, for the time facets.
#ifndef __LORB_TIMEPUNCT_H
#define __LORB_TIMEPUNCT_H

#include <__lorb/config.h>
#include <__lorb/locale_core.h>
#include <ctime>
#include <string>

namespace std {
template <class _CharT> class timepunct;

// Not a facet: the time facets build one wherever they need the names. The names are read once,
// at construction, from strftime with the C library's LC_TIME switched to the given name.
template <> class __LORB_EXPORT timepunct<char> {
public:
  typedef char char_type;
  typedef basic_string<char> string_type;

  // A name the C library rejects, or a null one, reports "Invalid locale name\n" through
  // runtime_error. The empty name takes the C library's LC_TIME from the environment.
  explicit timepunct(const char* name);
  ~timepunct();

  // Sunday to Saturday abbreviated (0 to 6), then full (7 to 13).
  const string_type* get_week_day_list() const { return __day_names(); }
  // January to December abbreviated (0 to 11), then full (12 to 23).
  const string_type* get_month_name_list() const { return __month_names(); }

  // The full name when conv is upper case by loc's ctype<char>, else the abbreviated one; a day
  // outside 0 to 6 gives the empty string.
  string_type get_week_day(const locale& loc, char conv, int day) const;
  // The afternoon string from 12 o'clock on, else the morning string.
  string_type get_ampm_string(int hour) const;

  // Fixed, whatever the locale.
  string_type get_date_time_format() const;
  string_type get_date_format() const;
  string_type get_time_format() const;

  // The field width of a conversion letter: -1 for variable width, 0 for an unknown letter.
  static int get_spec_conv_width(char conv);
  // The text of one conversion of t; a field out of its range, or a letter that is not a
  // conversion, gives the empty string.
  string_type print_format(const locale& loc, char conv, const tm* t) const;

private:
  timepunct(const timepunct&);
  timepunct& operator=(const timepunct&);

  // Raw room for an array of strings, which the run-time's array helpers build and destroy.
  template <int _Count> union __string_array {
    void* __alignment;
    char __bytes[_Count * sizeof(string_type)];
  };

  const string_type* __day_names() const {
    return reinterpret_cast<const string_type*>(__days.__bytes);
  }
  const string_type* __month_names() const {
    return reinterpret_cast<const string_type*>(__months.__bytes);
  }
  string_type* __day_names() { return reinterpret_cast<string_type*>(__days.__bytes); }
  string_type* __month_names() { return reinterpret_cast<string_type*>(__months.__bytes); }

  void __read_names(const char* name);

  string_type __name;
  __string_array<14> __days;
  __string_array<24> __months;
  string_type __am;
  string_type __pm;
};
} // namespace std

#endif
