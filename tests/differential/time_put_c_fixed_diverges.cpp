// 'c' is the fixed pattern "%a %b %d %H:%M:%S %Y" in every locale: the day of the month has two
// digits, where the GNU library pads it with a space.
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
  show_plain(t, "%c");
  show_plain(t, "<%c>");
  std::ostringstream out;
  const stream_time_put& facet = std::use_facet<stream_time_put>(out.getloc());
  facet.put(std::ostreambuf_iterator<char>(out), out, ' ', &t, 'c');
  std::printf("put 'c' -> [%s]\n", out.str().c_str());
  return 0;
}
