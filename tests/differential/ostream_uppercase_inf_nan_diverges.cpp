// Where Lorb++'s floating-point text deliberately differs under uppercase: the C library's text
// is taken in lower case and only an exponent marker after a decimal point becomes 'E', so
// infinities and NaNs stay "inf" and "nan" and an exponent without a point ("1e+15") stays lower
// case (GNU writes "INF", "NAN" and "1E+15").
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <ostream>
#include <unistd.h>

#include "case_file.h"

// Appends " width=N" with the stream's width, leaving the width as it is.
static void append_width(std::ostream& out) {
  char text[32];
  sprintf(text, " width=%ld", static_cast<long>(out.width()));
  out.write(text, static_cast<long>(strlen(text)));
}

struct named_flag {
  std::ios_base::fmtflags flag;
  const char* name;
};

static void show(std::ofstream& out, const char* description, std::ios_base::fmtflags flags,
                 long precision, long width, double value) {
  begin_case(out, description);
  out.flags(flags | std::ios_base::uppercase);
  out.precision(precision);
  out.fill('*');
  out.width(width);
  out << value;
  end_case(out);
}

int main() {
  const double infinity = strtod("inf", 0);
  const double not_a_number = strtod("nan", 0);
  const double specials[] = {infinity, -infinity, not_a_number, -not_a_number};
  const char* const special_labels[] = {"inf", "-inf", "nan", "-nan"};
  const named_flag notations[] = {{std::ios_base::fmtflags(), "general"},
                                  {std::ios_base::fixed, "fixed"},
                                  {std::ios_base::scientific, "scientific"}};
  std::ofstream out;
  open_cases(out, "ostream_uppercase_inf_nan_diverges");
  char description[200];
  for (int v = 0; v < 4; ++v)
    for (int n = 0; n < 3; ++n)
      for (int showpos = 0; showpos < 2; ++showpos) {
        sprintf(description, "%s %s uppercase%s", special_labels[v], notations[n].name,
                showpos ? " showpos" : "");
        show(out, description,
             notations[n].flag | (showpos ? std::ios_base::showpos : std::ios_base::fmtflags()), 6,
             0, specials[v]);
      }
  show(out, "-inf general uppercase internal w=8", std::ios_base::internal, 6, 8, -infinity);
  show(out, "nan fixed uppercase right w=6", std::ios_base::fixed | std::ios_base::right, 6, 6,
       not_a_number);
  show(out, "inf scientific uppercase left w=6", std::ios_base::scientific | std::ios_base::left, 6,
       6, infinity);

  // General notation without a decimal point keeps its 'e'.
  const std::ios_base::fmtflags general = std::ios_base::fmtflags();
  show(out, "1e-5 general uppercase precision 6", general, 6, 0, 1e-5);
  show(out, "1e15 general uppercase precision 6", general, 6, 0, 1e15);
  show(out, "-1e100 general uppercase precision 6", general, 6, 0, -1e100);
  show(out, "2e-7 general uppercase precision 17", general, 17, 0, 2e-7);
  show(out, "123456.789 general uppercase precision 1", general, 1, 0, 123456.789);
  show(out, "9.9999999 general uppercase precision 1", general, 1, 0, 9.9999999);
  show(out, "-1e15 general uppercase internal w=10", std::ios_base::internal, 6, 10, -1e15);
  show(out, "1e15 general uppercase showpos left w=8", std::ios_base::showpos | std::ios_base::left,
       6, 8, 1e15);
  // With a point the marker follows uppercase, as in GNU.
  show(out, "1e-5 general uppercase showpoint precision 6", std::ios_base::showpoint, 6, 0, 1e-5);
  show(out, "1.5e10 general uppercase precision 6", general, 6, 0, 1.5e10);
  show(out, "2.5 scientific uppercase precision 6", std::ios_base::scientific, 6, 0, 2.5);
  show(out, "-1e-300 scientific uppercase precision 2", std::ios_base::scientific, 2, 0, -1e-300);
  return print_cases(out);
}
