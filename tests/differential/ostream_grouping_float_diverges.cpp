// Where Lorb++'s grouping of floating-point text deliberately differs: a text without a decimal
// point is grouped whole, exponent included ("1e,+15"), and the padding is counted on the text
// before its separators were inserted, so a grouped number comes out wider than the field.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <locale>
#include <ostream>
#include <unistd.h>

#include "case_file.h"

// Appends " width=N" with the stream's width, leaving the width as it is.
static void append_width(std::ostream& out) {
  char text[32];
  sprintf(text, " width=%ld", static_cast<long>(out.width()));
  out.write(text, static_cast<long>(strlen(text)));
}

static void show(std::ofstream& out, const char* description, std::ios_base::fmtflags flags,
                 long precision, long width, double value) {
  begin_case(out, description);
  out.flags(flags);
  out.precision(precision);
  out.fill('*');
  out.width(width);
  out << value;
  end_case(out);
}

int main() {
  std::ofstream out;
  open_cases(out, "ostream_grouping_float_diverges");
  // Grouping 3;3 with ',' and the point '.'.
  out.imbue(std::locale(std::locale(), new std::numpunct_byname<char>("en_US.UTF-8")));
  const std::ios_base::fmtflags general = std::ios_base::fmtflags();
  const std::ios_base::fmtflags fixed = std::ios_base::fixed;
  show(out, "1e15 general", general, 6, 0, 1e15);
  show(out, "-1e15 general", general, 6, 0, -1e15);
  show(out, "1e15 general showpos", std::ios_base::showpos, 6, 0, 1e15);
  show(out, "1e15 general uppercase", std::ios_base::uppercase, 6, 0, 1e15);
  show(out, "1e7 general", general, 6, 0, 1e7);
  show(out, "1e-5 general", general, 6, 0, 1e-5);
  show(out, "1e100 general", general, 6, 0, 1e100);
  show(out, "1e300 general", general, 6, 0, 1e300);
  show(out, "123456.789 general precision 1", general, 1, 0, 123456.789);
  show(out, "1e15 general w=8", general, 6, 8, 1e15);

  show(out, "1234567.0 fixed precision 0 w=8", fixed, 0, 8, 1234567.0);
  show(out, "1234567.0 fixed precision 0 w=12", fixed, 0, 12, 1234567.0);
  show(out, "1234567.0 fixed precision 0 left w=12", fixed | std::ios_base::left, 0, 12, 1234567.0);
  show(out, "-1234567.0 fixed precision 0 right w=12", fixed | std::ios_base::right, 0, 12,
       -1234567.0);
  show(out, "-1234567.0 fixed precision 0 internal w=12", fixed | std::ios_base::internal, 0, 12,
       -1234567.0);
  show(out, "1234.5 fixed precision 1 w=10", fixed, 1, 10, 1234.5);
  show(out, "123456.789 general w=8", general, 6, 8, 123456.789);
  return print_cases(out);
}
