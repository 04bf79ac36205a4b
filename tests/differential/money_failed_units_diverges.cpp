// Deliberate: a failed money_get leaves the long double it was given untouched (GNU's stores 0).
#include "money_support.h"

int main() {
  const money_layout layout = {"?-v ", "?-v ", "-", "\3", 2};
  std::locale loc = money_locale(layout);
  const char* texts[] = {"x", "1,23", "1.234", "", "12.5"};
  for (int i = 0; i < 5; ++i) {
    int state = 0;
    long double units = read_units(loc, texts[i], std::ios_base::fmtflags(), state);
    printf("[%s] units %.0Lf fail %d\n", texts[i], units, failed(state));
  }
  return 0;
}
