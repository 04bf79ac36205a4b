// Where Lorb++'s floating-point reading deliberately differs: under skipws, blanks after the sign
// of the number and after the sign of the exponent are skipped; the text is converted by sscanf,
// so a number beyond the range reads as an infinity without failbit; and a failed reading keeps
// the target (GNU stores 0). The target starts as 7 in every case.
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_support.h"

enum float_type { as_float, as_double, as_long_double };

static const char* const type_names[] = {"float", "double", "long double"};

static void read_case(float_type type, bool skip, const char* text) {
  std::istringstream is(text);
  if (!skip)
    is.unsetf(std::ios_base::skipws);
  printf("%s%s \"", type_names[type], skip ? "" : " noskipws");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  if (type == as_float) {
    float v = 7;
    is >> v;
    printf("%.9g", static_cast<double>(v));
  } else if (type == as_double) {
    double v = 7;
    is >> v;
    printf("%.17g", v);
  } else {
    long double v = 7;
    is >> v;
    printf("%.21Lg", v);
  }
  print_state(is);
  print_rest(is);
  printf("\n");
}

int main() {
  // Generated: a sign, blanks, the number, and blanks again after the sign of the exponent.
  static const char* const blanks[] = {" ", "\t", "  \n "};
  generator g(2718);
  for (int i = 0; i < 24; ++i) {
    unsigned mantissa = g.below(1000000);
    unsigned exponent = g.below(21);
    const char* sign = g.below(2) ? "-" : "+";
    const char* exponent_sign = g.below(2) ? "-" : "+";
    const char* blank = blanks[g.below(3)];
    const char* exponent_blank = g.below(2) ? "" : blanks[g.below(3)];
    char text[64];
    sprintf(text, "%s%s%u.%03ue%s%s%u", sign, blank, mantissa / 1000, mantissa % 1000,
            exponent_sign, exponent_blank, exponent);
    read_case(as_double, true, text);
  }

  static const char* const blank_cases[] = {"- 1.5", "+ .5",    "-\t5.",  "1e 5",
                                            "1e- 5", "1E+\n2x", "- 1e 3 "};
  for (size_t i = 0; i < sizeof blank_cases / sizeof blank_cases[0]; ++i)
    for (int t = 0; t < 3; ++t)
      read_case(float_type(t), true, blank_cases[i]);
  read_case(as_double, false, "- 1.5");
  read_case(as_double, false, "1e 5");

  read_case(as_double, true, "1e400");
  read_case(as_double, true, "-1e400 ");
  read_case(as_float, true, "1e40");
  read_case(as_float, true, "-3.5e38");
  read_case(as_long_double, true, "1e5000");
  read_case(as_double, true, "1e-400");

  static const char* const failures[] = {"abc", "1e", ".",   "-",  "inf",
                                         "",    "  ", "1ex", "e5", "+-1"};
  for (size_t i = 0; i < sizeof failures / sizeof failures[0]; ++i)
    for (int t = 0; t < 3; ++t)
      read_case(float_type(t), true, failures[i]);
  return 0;
}
