// Where writing and reading std::complex deliberately differs from GNU, both inherited from the
// stream operations it is made of: "(re,im)" goes out through the string inserter, which pads
// after the text unless the adjustment is exactly right (GNU pads before under internal and with
// no adjustment); and reading from a stream that holds only blanks or nothing fails as reading a
// character does, with failbit alone (GNU adds eofbit).
#include <complex>
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <sstream>

#include "input_support.h"

typedef std::complex<double> cdouble;

static void padded(const char* what, std::ios_base::fmtflags adjustment) {
  std::ostringstream os;
  os.setf(adjustment, std::ios_base::adjustfield);
  os << std::setfill('.') << std::setw(12) << cdouble(1.5, -2) << '|' << std::setw(3)
     << cdouble(1, 2) << '|';
  printf("%s: [%s]\n", what, os.str().c_str());
}

static void read_text(const char* text) {
  std::istringstream is(text);
  cdouble z(7, 7);
  is >> z;
  printf("\"");
  print_escaped(text, strlen(text));
  printf("\" -> (%g,%g)", z.real(), z.imag());
  print_state(is);
  print_rest(is);
  printf("\n");
}

int main() {
  padded("no adjustment", std::ios_base::fmtflags(0));
  padded("internal", std::ios_base::internal);
  padded("left", std::ios_base::left);
  padded("right", std::ios_base::right);
  read_text("");
  read_text(" \t\n ");
  read_text("(1,2)");
  return 0;
}
