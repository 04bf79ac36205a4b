// money_put and money_get with a program's own moneypunct over generated amounts of at least one
// currency unit: each written in one of several layouts, then read back as digits and units.
#include "money_support.h"

static const money_layout layouts[] = {
    {"?-v ", "?-v ", "-", "\3", 2},   {"-?v ", "-? v", "-", "\3", 2},
    {"v ?-", "v ?-", "-", "\3\2", 0}, {"?v -", "-v ?", "()", "\3", 3},
    {"- ?v", "- ?v", "-", "", 2},
};

int main() {
  generator g(20240611u);
  for (unsigned k = 0; k < sizeof layouts / sizeof layouts[0]; ++k) {
    std::locale loc = money_locale(layouts[k]);
    for (int i = 0; i < 16; ++i) {
      long double units = 1000 + g.below(1000000000u);
      if (g.below(3) == 0)
        units = 1000 + g.below(1000);
      if (g.below(2))
        units = -units;
      std::ostringstream out;
      out.imbue(loc);
      if (g.below(2))
        out.setf(std::ios_base::showbase);
      std::string text = write_units(out, units, ' ');
      printf("layout %u %.0Lf -> [%s]\n", k, units, text.c_str());
      int state = 0;
      // Without skipws: this library skips white space before the first part, GNU's does not
      // (see money_skipws_diverges).
      std::ios_base::fmtflags flags = out.flags() & ~std::ios_base::skipws;
      std::string digits = read_digits(loc, text, flags, state);
      printf("  digits %s fail %d", digits.c_str(), failed(state));
      long double back = read_units(loc, text, flags, state);
      if (!failed(state))
        printf(" units %.0Lf", back);
      printf("\n");
    }
  }
  return 0;
}
