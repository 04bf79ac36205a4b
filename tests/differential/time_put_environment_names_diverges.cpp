// The names come from the environment's LC_TIME, whatever the stream's locale: with LC_ALL set to
// de_DE.UTF-8, a stream in the classic locale prints German names, where the GNU library prints
// the classic English ones.
#include "time_put_support.h"
#include <clocale>
#include <cstdlib>

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
  if (!setlocale(LC_ALL, "de_DE.UTF-8")) {
    std::printf("de_DE.UTF-8 is not installed\n");
    return 0;
  }
  setlocale(LC_ALL, "C");
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  show_plain(t, "%A %d. %B %Y");
  show_plain(t, "%X");
  return 0;
}
