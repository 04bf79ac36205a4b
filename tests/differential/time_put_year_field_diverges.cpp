// 'y' prints the year field as it stands, not reduced to the century, so 2001 prints as 101 and
// the fixed 'x' pattern with it; the GNU library prints 01.
#include "time_put_support.h"

static void show_plain(const std::tm& t, const char* pattern) {
  std::printf("%s -> [%s]\n", pattern, put_time(t, pattern).c_str());
}

int main() {
  // Monday 5 March 2001, 14:07:09, day 63 of the year.
  std::tm t;
  std::memset(&t, 0, sizeof t);
  t.tm_year = 101;
  t.tm_mon = 2;
  t.tm_mday = 5;
  t.tm_hour = 14;
  t.tm_min = 7;
  t.tm_sec = 9;
  t.tm_wday = 1;
  t.tm_yday = 63;
  show_plain(t, "%y");
  show_plain(t, "%x");
  t.tm_year = 100;
  show_plain(t, "%y %Y");
  return 0;
}
