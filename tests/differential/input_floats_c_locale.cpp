// Floating-point reading does not depend on the C library's locale: with LC_NUMERIC set to a
// locale whose decimal point is ',' the stream's own '.' still reads as the decimal point, and
// ',' still ends the number. Generated numbers in fixed and scientific notation.
#include <clocale>
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_support.h"

static void read_case(const char* text) {
  std::istringstream is(text);
  double v = 0;
  is >> v;
  printf("\"%s\" -> ", text);
  if (is.fail())
    printf("-");
  else
    printf("%a", v); // exact; the point printed is the C library's
  print_state(is);
  print_rest(is);
  printf("\n");
}

int main() {
  if (!setlocale(LC_NUMERIC, "de_DE.UTF-8") && !setlocale(LC_NUMERIC, "fr_FR.UTF-8")) {
    printf("no locale with a decimal comma\n");
    return 0;
  }
  printf("C library decimal point '%s'\n", localeconv()->decimal_point);
  generator g(11);
  for (int i = 0; i < 40; ++i) {
    unsigned whole = g.below(100000);
    unsigned fraction = g.below(1000);
    int exponent = static_cast<int>(g.below(61)) - 30;
    char text[64];
    if (i % 2)
      sprintf(text, "%u.%03ue%d", whole, fraction, exponent);
    else
      sprintf(text, "-%u.%03u", whole, fraction);
    read_case(text);
  }
  read_case("1,5");
  read_case(".25");
  read_case("7.");
  read_case("2.5e+3,1");
  setlocale(LC_NUMERIC, "C");
  return 0;
}
