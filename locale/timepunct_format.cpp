// timepunct<char>: the field widths of the conversion letters and the text of one conversion.
#include <__lorb/timepunct.h>
#include <stdio.h>

namespace std {
namespace {

// Ranges are tested unsigned, so that negative fields are out of range too.
bool at_most(int field, unsigned highest) { return static_cast<unsigned>(field) <= highest; }
bool between(int field, unsigned lowest, unsigned highest) {
  return static_cast<unsigned>(field) - lowest <= highest - lowest;
}

void append_number(basic_string<char>& to, const char* format, int value) {
  char digits[16];
  sprintf(digits, format, value);
  to += digits;
}

// The year field plus 1900 as an int, as "%.4d" prints it. Added unsigned: the largest year
// fields wrap to negative years, as they do in the C library's strftime, without overflowing.
void append_full_year(basic_string<char>& to, int year_field) {
  append_number(to, "%.4d", static_cast<int>(static_cast<unsigned>(year_field) + 1900u));
}

// Week 1 starts on the year's first Sunday ('U') or Monday ('W'); days before it are in week 0.
// first_weekday is 0 for Sunday, 1 for Monday; the day of week is in range. The day of year is
// not checked, so it is taken wide to keep the sum from overflowing.
int week_of_year(const tm& t, int first_weekday) {
  int days_since_week_start = (t.tm_wday - first_weekday + 7) % 7;
  __extension__ long long day_of_year = t.tm_yday;
  return static_cast<int>((day_of_year - days_since_week_start + 7) / 7);
}

} // namespace

int timepunct<char>::get_spec_conv_width(char conv) {
  switch (conv) {
  case 'A':
  case 'B':
  case 'X':
  case 'c':
  case 'p':
  case 'x':
    return -1;
  case 'H':
  case 'I':
  case 'M':
  case 'S':
  case 'U':
  case 'W':
  case 'd':
  case 'm':
  case 'y':
    return 2;
  case 'Y':
    return 4;
  case 'a':
  case 'b':
  case 'j':
    return 3;
  case 'w':
    return 1;
  default:
    return 0;
  }
}

// The locale is not consulted: the names are this object's own.
timepunct<char>::string_type timepunct<char>::print_format(const locale&, char conv,
                                                           const tm* t) const {
  string_type text;
  switch (conv) {
  case 'A':
    if (at_most(t->tm_wday, 6))
      text += __day_names()[7 + t->tm_wday];
    break;
  case 'a':
    if (at_most(t->tm_wday, 6))
      text += __day_names()[t->tm_wday];
    break;
  case 'B':
    if (at_most(t->tm_mon, 11))
      text += __month_names()[12 + t->tm_mon];
    break;
  case 'b':
    if (at_most(t->tm_mon, 11))
      text += __month_names()[t->tm_mon];
    break;
  case 'p':
    if (at_most(t->tm_hour, 23))
      text += t->tm_hour > 11 ? __pm : __am;
    break;
  case 'H':
    if (at_most(t->tm_hour, 23))
      append_number(text, "%.2d", t->tm_hour);
    break;
  case 'I':
    if (at_most(t->tm_hour, 23)) {
      int hour = t->tm_hour == 0 ? 12 : t->tm_hour > 12 ? t->tm_hour - 12 : t->tm_hour;
      append_number(text, "%.2d", hour);
    }
    break;
  case 'M':
    if (at_most(t->tm_min, 59))
      append_number(text, "%.2d", t->tm_min);
    break;
  case 'S':
    if (at_most(t->tm_sec, 59))
      append_number(text, "%.2d", t->tm_sec);
    break;
  case 'd':
    if (between(t->tm_mday, 1, 31))
      append_number(text, "%.2d", t->tm_mday);
    break;
  case 'm':
    if (at_most(t->tm_mon, 11))
      append_number(text, "%.2d", t->tm_mon + 1);
    break;
  case 'j':
    if (at_most(t->tm_yday, 365))
      append_number(text, "%.3d", t->tm_yday + 1);
    break;
  case 'w':
    if (at_most(t->tm_wday, 6))
      append_number(text, "%.1d", t->tm_wday);
    break;
  case 'U':
    if (at_most(t->tm_wday, 6))
      append_number(text, "%.2d", week_of_year(*t, 0));
    break;
  case 'W':
    if (at_most(t->tm_wday, 6))
      append_number(text, "%.2d", week_of_year(*t, 1));
    break;
  case 'Y':
    append_full_year(text, t->tm_year);
    break;
  case 'y':
    // Kept: the year field as it stands, not reduced to the century, so 2000 prints as 100.
    append_number(text, "%.2d", t->tm_year);
    break;
  case '%':
    text += '%';
    break;
  default:
    break;
  }
  return text;
}

} // namespace std
