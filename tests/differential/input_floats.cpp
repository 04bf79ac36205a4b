// float, double and long double read from string streams: generated values written in fixed
// and scientific notation with every exponent form, "5." and ".5" shapes, blanks before and text
// after, and malformed text. The value is printed only when the reading succeeded.
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
  char value[64];
  if (type == as_float) {
    float v = 0;
    is >> v;
    sprintf(value, "%.9g", static_cast<double>(v));
  } else if (type == as_double) {
    double v = 0;
    is >> v;
    sprintf(value, "%.17g", v);
  } else {
    long double v = 0;
    is >> v;
    sprintf(value, "%.21Lg", v);
  }
  printf("%s", is.fail() ? "-" : value);
  print_state(is);
  print_rest(is);
  printf("\n");
}

static const char* const blanks[] = {"", " ", "\t\n", "  \r"};
static const char* const tails[] = {"", " ", "\n", "x", " 5", ",25", "e", "E+", "f", ";"};

// A number of the type's range written by printf in one of several shapes.
static void generated_case(generator& g, float_type type) {
  double mantissa = static_cast<double>(g.next() % 10000000) / 1000.0;
  int exponent =
      static_cast<int>(g.below(type == as_float ? 61 : 121)) - (type == as_float ? 30 : 60);
  double value = mantissa;
  for (int i = 0; i < exponent; ++i)
    value *= 10;
  for (int i = 0; i > exponent; --i)
    value /= 10;
  const char* sign = g.below(3) == 0 ? "-" : g.below(5) == 0 ? "+" : "";
  char number[128];
  switch (g.below(7)) {
  case 0:
    sprintf(number, "%s%.*e", sign, static_cast<int>(g.below(18)), value);
    break;
  case 1:
    sprintf(number, "%s%.*E", sign, static_cast<int>(g.below(18)), value);
    break;
  case 2: // fixed, kept short: small numbers only
    sprintf(number, "%s%.*f", sign, static_cast<int>(g.below(12)), mantissa);
    break;
  case 3:
    sprintf(number, "%s%.*g", sign, static_cast<int>(1 + g.below(17)), value);
    break;
  case 4: // "5." and ".5" shapes with an exponent of three digits or a + sign
    sprintf(number, "%s%u.e%+03d", sign, g.below(1000), exponent);
    break;
  case 5:
    sprintf(number, "%s.%ue%03d", sign, g.below(100000), exponent < 0 ? -exponent : exponent);
    break;
  default: // leading zeros in the number and in the exponent
    sprintf(number, "%s000%u.%05uE-%04d", sign, g.below(100), g.below(100000),
            static_cast<int>(g.below(30)));
    break;
  }
  char text[192];
  sprintf(text, "%s%s%s", blanks[g.below(4)], number, tails[g.below(10)]);
  read_case(type, true, text);
}

int main() {
  generator g(1998);
  for (int t = 0; t < 3; ++t)
    for (int i = 0; i < 70; ++i)
      generated_case(g, float_type(t));

  static const char* const fixed_cases[] = {"0",
                                            "-0",
                                            "+0.0",
                                            "5.",
                                            ".5",
                                            "-.5",
                                            "+5.",
                                            "1e5",
                                            "1E5",
                                            "1e+5",
                                            "1e-5",
                                            "1e05",
                                            "1.5e-0",
                                            "123456789012345678901234567890",
                                            "0.000000000000000000000000000001",
                                            "2.2250738585072014e-308",
                                            "4.9406564584124654e-324",
                                            "3.4028234e38",
                                            "1.17549435e-38",
                                            "0.1",
                                            "0.30000000000000004",
                                            "1.5.5",
                                            "1e5e5",
                                            "12abc",
                                            "9.e",
                                            "9.e-",
                                            "1ex",
                                            "1e+x",
                                            ".e1",
                                            "+.e1",
                                            ".",
                                            "-",
                                            "+",
                                            "-.",
                                            "e5",
                                            "abc",
                                            "inf",
                                            "nan",
                                            "--1",
                                            "+-1",
                                            "0x1p3",
                                            "1,5",
                                            " \t 2.5",
                                            "7 8"};
  for (size_t i = 0; i < sizeof fixed_cases / sizeof fixed_cases[0]; ++i)
    for (int t = 0; t < 3; ++t)
      read_case(float_type(t), true, fixed_cases[i]);
  // Beyond the range of float: only the wider types (the overflow of float differs).
  read_case(as_double, true, "1.7976931348623157e308");
  read_case(as_long_double, true, "1.7976931348623157e308");
  read_case(as_long_double, true, "1e4000");
  read_case(as_double, false, "2.5 ");
  read_case(as_double, false, " 2.5");
  read_case(as_float, false, "\n1e3");

  // Several numbers from one stream, then the end.
  std::istringstream several("1.5 -2e3\t.25e+2\n7. 8e-1 x");
  double v = 0;
  printf("several:");
  while (several >> v)
    printf(" %.17g", v);
  print_state(several);
  several.clear();
  print_rest(several);
  printf("\n");
  return 0;
}
