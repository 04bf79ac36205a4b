// Deliberate: a none part writes one fill character, as a space part does, and is a point where
// internal adjustment pads.
#include "money_support.h"

int main() {
  const money_layout layout = {"?-0v", "?0v-", "-", "\3", 2};
  std::locale loc = money_locale(layout);
  const long double amounts[] = {12345, -12345, 0};
  for (int i = 0; i < 3; ++i)
    for (int internal = 0; internal < 2; ++internal) {
      std::ostringstream out;
      out.imbue(loc);
      out.setf(std::ios_base::showbase);
      if (internal) {
        out.setf(std::ios_base::internal, std::ios_base::adjustfield);
        out.width(14);
      }
      printf("%.0Lf%s [%s]\n", amounts[i], internal ? " internal 14" : "",
             write_units(out, amounts[i], '*').c_str());
    }
  return 0;
}
