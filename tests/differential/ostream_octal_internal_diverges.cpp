// Where Lorb++'s octal numbers deliberately differ: under internal with showbase the leading 0
// of the base mark counts as a prefix and the padding goes after it (GNU pads before the 0).
#include <climits>
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

enum integer_type { as_short, as_long, as_ulong, as_llong };

struct integer_case {
  integer_type type;
  const char* label;
  long long value;
};

static void insert(std::ostream& out, const integer_case& c) {
  switch (c.type) {
  case as_short:
    out << static_cast<short>(c.value);
    break;
  case as_long:
    out << static_cast<long>(c.value);
    break;
  case as_ulong:
    out << static_cast<unsigned long>(c.value);
    break;
  case as_llong:
    out << c.value;
    break;
  }
}

int main() {
  const integer_case integers[] = {
      {as_long, "long 0", 0},
      {as_long, "long 1", 1},
      {as_long, "long 8", 8},
      {as_long, "long 0777", 0777},
      {as_long, "long -1", -1},
      {as_long, "long LONG_MIN", LONG_MIN},
      {as_ulong, "unsigned long ULONG_MAX", static_cast<long long>(ULONG_MAX)},
      {as_llong, "long long LLONG_MIN", LLONG_MIN},
      {as_short, "short -1", -1},
  };
  const long widths[] = {0, 3, 5, 14, 30};
  std::ofstream out;
  open_cases(out, "ostream_octal_internal_diverges");
  char description[200];
  for (int i = 0; i < 9; ++i)
    for (int w = 0; w < 5; ++w)
      for (int showpos = 0; showpos < 2; ++showpos) {
        sprintf(description, "%s oct internal showbase%s w=%ld fill='*'", integers[i].label,
                showpos ? " showpos" : "", widths[w]);
        begin_case(out, description);
        std::ios_base::fmtflags flags =
            std::ios_base::oct | std::ios_base::internal | std::ios_base::showbase;
        if (showpos)
          flags |= std::ios_base::showpos | std::ios_base::uppercase;
        out.flags(flags);
        out.fill('*');
        out.width(widths[w]);
        insert(out, integers[i]);
        end_case(out);
      }

  // With grouping 3;3 the digits after the mark are grouped, the padding still follows the mark.
  out.imbue(std::locale(std::locale(), new std::numpunct_byname<char>("en_US.UTF-8")));
  const long grouped_widths[] = {0, 14};
  for (int w = 0; w < 2; ++w) {
    sprintf(description, "en_US.UTF-8 grouping: long 01234567 oct internal showbase w=%ld",
            grouped_widths[w]);
    begin_case(out, description);
    out.flags(std::ios_base::oct | std::ios_base::internal | std::ios_base::showbase);
    out.width(grouped_widths[w]);
    out << 01234567L;
    end_case(out);
  }
  return print_cases(out);
}
