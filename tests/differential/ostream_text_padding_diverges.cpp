// Where Lorb++'s text padding deliberately differs: C strings and strings are padded after the
// text unless the adjustment is exactly right (GNU pads before unless it is left), a null C string
// prints as the empty string, and a fill of 128..255 pads with '\0'.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iomanip>
#include <ostream>
#include <string>
#include <unistd.h>

#include "case_file.h"

// Appends " width=N" with the stream's width, leaving the width as it is.
static void append_width(std::ostream& out) {
  char text[32];
  sprintf(text, " width=%ld", static_cast<long>(out.width()));
  out.write(text, static_cast<long>(strlen(text)));
}

enum text_form { c_string, signed_c_string, unsigned_c_string, library_string };
static const char* const form_names[] = {"const char*", "const signed char*",
                                         "const unsigned char*", "string"};

static void insert(std::ostream& out, text_form form, const char* text) {
  switch (form) {
  case c_string:
    out << text;
    break;
  case signed_c_string:
    out << reinterpret_cast<const signed char*>(text);
    break;
  case unsigned_c_string:
    out << reinterpret_cast<const unsigned char*>(text);
    break;
  case library_string:
    out << std::string(text);
    break;
  }
}

struct named_flag {
  std::ios_base::fmtflags flag;
  const char* name;
};

int main() {
  const named_flag adjustments[] = {
      {std::ios_base::fmtflags(), "adjust none"},
      {std::ios_base::left, "left"},
      {std::ios_base::right, "right"},
      {std::ios_base::internal, "internal"},
      {std::ios_base::left | std::ios_base::right, "left|right"},
      {std::ios_base::left | std::ios_base::internal, "left|internal"},
      {std::ios_base::right | std::ios_base::internal, "right|internal"},
  };
  const long widths[] = {0, 1, 2, 6};
  std::ofstream out;
  open_cases(out, "ostream_text_padding_diverges");
  char description[200];
  for (int form = c_string; form <= library_string; ++form)
    for (int a = 0; a < 7; ++a)
      for (int w = 0; w < 4; ++w) {
        sprintf(description, "%s \"ab\" %s w=%ld fill='*'", form_names[form], adjustments[a].name,
                widths[w]);
        begin_case(out, description);
        out.flags(adjustments[a].flag);
        out.fill('*');
        out.width(widths[w]);
        insert(out, static_cast<text_form>(form), "ab");
        append_width(out);
        end_case(out);
      }

  // Fill characters above 127 pad with '\0'; those up to 127 pad as they are.
  const char fills[] = {'\x7f', '\x80', '\xe9', '\xff', '\0', '-'};
  for (int form = c_string; form <= library_string; ++form)
    for (int f = 0; f < 6; ++f)
      for (int right = 0; right < 2; ++right) {
        sprintf(description, "%s \"ab\" %s w=5 fill=0x%02x", form_names[form],
                right ? "right" : "adjust none", static_cast<unsigned char>(fills[f]));
        begin_case(out, description);
        out.flags(right ? std::ios_base::right : std::ios_base::fmtflags());
        out.fill(fills[f]);
        out.width(5);
        insert(out, static_cast<text_form>(form), "ab");
        end_case(out);
      }
  out.fill('*');

  // The width is spent: the next number is not padded.
  begin_case(out, "setw(6) \"ab\" then 7");
  out.flags(std::ios_base::dec);
  out << std::setw(6) << "ab" << 7;
  end_case(out);
  begin_case(out, "setw(6) string \"ab\" then 7");
  out << std::setw(6) << std::string("ab") << 7;
  end_case(out);
  begin_case(out, "setw(6) right \"ab\" then left 7");
  out << std::setw(6) << std::right << "ab" << std::left << 7;
  end_case(out);
  begin_case(out, "setw(4) \"\"");
  out << std::setw(4) << "";
  end_case(out);
  begin_case(out, "setw(3) \"abcdef\"");
  out << std::setw(3) << "abcdef";
  end_case(out);
  // Last: GNU marks the stream bad for a null C string.
  for (int right = 0; right < 2; ++right) {
    begin_case(out, right ? "null const char* right w=3" : "null const char* adjust none w=3");
    out.flags(right ? std::ios_base::right : std::ios_base::fmtflags());
    out.width(3);
    out << static_cast<const char*>(0);
    append_width(out);
    end_case(out);
  }
  return print_cases(out);
}
