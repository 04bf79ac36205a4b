// Where Lorb++'s bool inserter deliberately differs: '1' or '0' (or the names under boolalpha)
// without base, base mark, sign or padding, and the width is neither used nor spent, so it pads
// the next number instead (GNU prints a bool as the number 1 or 0, or pads its name).
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iomanip>
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

int main() {
  const named_flag bases[] = {
      {std::ios_base::dec, "dec"}, {std::ios_base::oct, "oct"}, {std::ios_base::hex, "hex"}};
  const named_flag adjustments[] = {{std::ios_base::fmtflags(), "adjust none"},
                                    {std::ios_base::left, "left"},
                                    {std::ios_base::internal, "internal"}};
  const long widths[] = {0, 5};
  std::ofstream out;
  open_cases(out, "ostream_bool_diverges");
  char description[200];
  for (int value = 1; value >= 0; --value)
    for (int alpha = 0; alpha < 2; ++alpha)
      for (int b = 0; b < 3; ++b)
        for (int extras = 0; extras < 4; ++extras)
          for (int a = 0; a < 3; ++a)
            for (int w = 0; w < 2; ++w) {
              std::ios_base::fmtflags flags = bases[b].flag;
              flags |= adjustments[a].flag;
              if (alpha)
                flags |= std::ios_base::boolalpha;
              if (extras & 1)
                flags |= std::ios_base::showbase;
              if (extras & 2)
                flags |= std::ios_base::showpos | std::ios_base::uppercase;
              sprintf(description, "bool %s%s %s %s%s%s w=%ld fill='*'", value ? "true" : "false",
                      alpha ? " boolalpha" : "", bases[b].name, adjustments[a].name,
                      extras & 1 ? " showbase" : "", extras & 2 ? " showpos uppercase" : "",
                      widths[w]);
              begin_case(out, description);
              out.flags(flags);
              out.fill('*');
              out.width(widths[w]);
              out << static_cast<bool>(value);
              append_width(out);
              end_case(out);
            }

  out.flags(std::ios_base::dec);
  out.width(0);
  begin_case(out, "setw(5) true then 7");
  out << std::setw(5) << true << 7;
  end_case(out);
  begin_case(out, "setw(6) boolalpha false then \"ab\"");
  out << std::setw(6) << std::boolalpha << false << "ab";
  end_case(out);
  begin_case(out, "setw(4) right noboolalpha true false then 'c' then 8");
  out << std::setw(4) << std::right << std::noboolalpha << true << false << 'c' << 8;
  end_case(out);
  return print_cases(out);
}
