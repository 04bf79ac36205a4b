// Where Lorb++'s character inserters deliberately differ: a single character is never padded
// (GNU pads it to the width); the width is spent all the same.
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

enum char_form { plain_char, signed_char, unsigned_char };
static const char* const form_names[] = {"char", "signed char", "unsigned char"};

static void insert(std::ostream& out, char_form form, char c) {
  switch (form) {
  case plain_char:
    out << c;
    break;
  case signed_char:
    out << static_cast<signed char>(c);
    break;
  case unsigned_char:
    out << static_cast<unsigned char>(c);
    break;
  }
}

int main() {
  const named_flag adjustments[] = {{std::ios_base::fmtflags(), "adjust none"},
                                    {std::ios_base::left, "left"},
                                    {std::ios_base::right, "right"},
                                    {std::ios_base::internal, "internal"}};
  const long widths[] = {0, 1, 5};
  const char characters[] = {'a', '-', '\xe9'};
  std::ofstream out;
  open_cases(out, "ostream_char_unpadded_diverges");
  char description[200];
  for (int form = plain_char; form <= unsigned_char; ++form)
    for (int c = 0; c < 3; ++c)
      for (int a = 0; a < 4; ++a)
        for (int w = 0; w < 3; ++w) {
          sprintf(description, "%s 0x%02x %s w=%ld fill='*'", form_names[form],
                  static_cast<unsigned char>(characters[c]), adjustments[a].name, widths[w]);
          begin_case(out, description);
          out.flags(adjustments[a].flag);
          out.fill('*');
          out.width(widths[w]);
          insert(out, static_cast<char_form>(form), characters[c]);
          append_width(out);
          end_case(out);
        }
  out.flags(std::ios_base::dec);
  begin_case(out, "setw(5) 'a' then 7");
  out << std::setw(5) << 'a' << 7;
  end_case(out);
  begin_case(out, "setw(5) left 'a' then setw(3) 'b' then 'c'");
  out << std::left << std::setw(5) << 'a' << std::setw(3) << 'b' << 'c';
  end_case(out);
  begin_case(out, "setw(4) 'x' with fill 0xe9");
  out << std::right << std::setfill('\xe9') << std::setw(4) << 'x';
  end_case(out);
  return print_cases(out);
}
