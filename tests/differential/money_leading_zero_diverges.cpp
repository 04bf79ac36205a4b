// Deliberate: an amount below one currency unit is written as sprintf writes it, with a leading
// "0" before the point (GNU's facet writes the point first); reading it back keeps that zero in
// the digit string.
#include "money_support.h"

int main() {
  const money_layout layout = {"?v -", "-v ?", "-", "\3", 3};
  std::locale loc = money_locale(layout);
  const long double amounts[] = {631, 5, -605, 0};
  for (int i = 0; i < 4; ++i) {
    std::ostringstream out;
    out.imbue(loc);
    std::string text = write_units(out, amounts[i], ' ');
    int state = 0;
    std::string digits = read_digits(loc, text, std::ios_base::fmtflags(), state);
    printf("%.0Lf -> [%s] -> %s fail %d\n", amounts[i], text.c_str(), digits.c_str(),
           failed(state));
  }
  return 0;
}
