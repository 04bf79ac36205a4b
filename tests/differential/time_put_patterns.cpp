// time_put over generated dates of the twentieth century in the classic locale: names, numbers,
// the 12-hour clock, week numbers and the fixed 'x' and 'X' patterns.
#include "time_put_support.h"

static const char* const patterns[] = {
    "%a %b %d %H:%M:%S %Y", "%A, %B %d",     "%I:%M %p",   "%j %w %U %W", "%x", "%X", "%m/%d/%y",
    "at %H%% of %Y!",       "%y%m%d-%H%M%S", "plain text",
};

int main() {
  date_generator gen(20010305);
  for (int i = 0; i < 120; ++i) {
    std::tm t = generated_date(gen);
    std::printf("date %d\n", i);
    for (unsigned p = 0; p < sizeof patterns / sizeof patterns[0]; ++p)
      show(t, patterns[p]);
  }
  return 0;
}
