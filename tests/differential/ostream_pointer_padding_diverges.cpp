// Where Lorb++'s pointer inserter deliberately differs: the text is the C library's %p (null is
// "(nil)", GNU prints 0), padding goes before the text under left and after it under right, no
// padding at all otherwise, flags and grouping never apply; the width is spent.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iomanip>
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

struct named_flag {
  std::ios_base::fmtflags flag;
  const char* name;
};

int main() {
  const named_flag adjustments[] = {{std::ios_base::fmtflags(), "adjust none"},
                                    {std::ios_base::left, "left"},
                                    {std::ios_base::right, "right"},
                                    {std::ios_base::internal, "internal"},
                                    {std::ios_base::left | std::ios_base::right, "left|right"}};
  const long widths[] = {0, 5, 12};
  const void* const pointers[] = {reinterpret_cast<const void*>(0x1234),
                                  reinterpret_cast<const void*>(0xdeadbeef), 0};
  const char* const pointer_labels[] = {"0x1234", "0xdeadbeef", "null"};
  std::ofstream out;
  open_cases(out, "ostream_pointer_padding_diverges");
  char description[200];
  for (int p = 0; p < 3; ++p)
    for (int a = 0; a < 5; ++a)
      for (int w = 0; w < 3; ++w) {
        sprintf(description, "pointer %s %s w=%ld fill='*'", pointer_labels[p], adjustments[a].name,
                widths[w]);
        begin_case(out, description);
        out.flags(adjustments[a].flag);
        out.fill('*');
        out.width(widths[w]);
        out << pointers[p];
        append_width(out);
        end_case(out);
      }

  // The number flags do not reach the pointer text.
  const named_flag number_flags[] = {
      {std::ios_base::hex | std::ios_base::uppercase, "hex|uppercase"},
      {std::ios_base::oct | std::ios_base::showbase, "oct|showbase"},
      {std::ios_base::dec | std::ios_base::showpos, "dec|showpos"},
      {std::ios_base::hex | std::ios_base::showbase | std::ios_base::uppercase,
       "hex|showbase|uppercase"}};
  for (int p = 0; p < 3; ++p)
    for (int f = 0; f < 4; ++f) {
      sprintf(description, "pointer %s %s", pointer_labels[p], number_flags[f].name);
      begin_case(out, description);
      out.flags(number_flags[f].flag);
      out << pointers[p];
      end_case(out);
    }

  out.flags(std::ios_base::dec);
  begin_case(out, "setw(12) pointer 0x1234 then 7");
  out << std::setw(12) << pointers[0] << 7;
  end_case(out);
  begin_case(out, "setw(12) right pointer 0x1234 then 7");
  out << std::setw(12) << std::right << pointers[0] << 7;
  end_case(out);

  // Grouping 3;3 with ',' groups numbers but not pointers.
  out.imbue(std::locale(std::locale(), new std::numpunct_byname<char>("en_US.UTF-8")));
  begin_case(out, "en_US.UTF-8 grouping: pointer 0x12345678, hex 0x12345678");
  out << reinterpret_cast<const void*>(0x12345678) << ' ' << std::hex << 0x12345678L;
  end_case(out);
  return print_cases(out);
}
