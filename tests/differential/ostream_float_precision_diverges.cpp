// Where Lorb++'s floating-point precision deliberately differs: precision 0 means 6 unless the
// fixed flag is set (GNU prints one digit), fixed and scientific together mean general notation
// (GNU writes hexadecimal), and above 127 digits the C library is asked for 127 and the rest are
// zeros appended to the fraction, even after a general text that dropped its trailing zeros.
#include <cstdio>
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
  out.flags(flags);
  out.precision(precision);
  out.fill('*');
  out.width(width);
  out << value;
  end_case(out);
}

int main() {
  const double values[] = {1.5, 0.1, 123456.789, 1e-5, -2.5, 1e15};
  const char* const labels[] = {"1.5", "0.1", "123456.789", "1e-5", "-2.5", "1e15"};
  const std::ios_base::fmtflags both = std::ios_base::fixed | std::ios_base::scientific;
  const named_flag notations[] = {{std::ios_base::fmtflags(), "general"},
                                  {std::ios_base::scientific, "scientific"},
                                  {both, "fixed|scientific"}};
  std::ofstream out;
  open_cases(out, "ostream_float_precision_diverges");
  char description[200];
  for (int v = 0; v < 6; ++v)
    for (int n = 0; n < 3; ++n)
      for (int showpoint = 0; showpoint < 2; ++showpoint) {
        sprintf(description, "%s %s precision 0%s", labels[v], notations[n].name,
                showpoint ? " showpoint" : "");
        std::ios_base::fmtflags flags = notations[n].flag;
        if (showpoint)
          flags |= std::ios_base::showpoint;
        show(out, description, flags, 0, 0, values[v]);
      }
  const long precisions[] = {3, 6, 17};
  for (int v = 0; v < 6; ++v)
    for (int p = 0; p < 3; ++p) {
      sprintf(description, "%s fixed|scientific precision %ld", labels[v], precisions[p]);
      show(out, description, both, precisions[p], 0, values[v]);
    }
  show(out, "-2.5 fixed|scientific internal showpos w=10", both | std::ios_base::internal, 6, 10,
       -2.5);

  const std::ios_base::fmtflags general = std::ios_base::fmtflags();
  show(out, "1.0 general precision 128", general, 128, 0, 1.0);
  show(out, "1.0 general precision 130", general, 130, 0, 1.0);
  show(out, "0.1 general precision 130", general, 130, 0, 0.1);
  show(out, "1e-100 fixed precision 130", std::ios_base::fixed, 130, 0, 1e-100);
  show(out, "1e-100 scientific precision 130", std::ios_base::scientific, 130, 0, 1e-100);
  show(out, "1e-100 fixed internal showpos precision 130 w=140",
       std::ios_base::fixed | std::ios_base::internal | std::ios_base::showpos, 130, 140, 1e-100);
  return print_cases(out);
}
