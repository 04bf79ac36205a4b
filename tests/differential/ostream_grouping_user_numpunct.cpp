// Grouping from a program's own numpunct installed with locale(locale(), facet): sizes that
// repeat, change, stop at CHAR_MAX or are not positive, in every base and for fixed notation.
// GNU's library cannot install a program's numpunct when the program is built without RTTI (it
// looks at the facet's type), so the expected text is written down: it is what GNU prints for
// this program built with RTTI.
#include <climits>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <locale>
#include <ostream>
#include <string>
#include <unistd.h>

#include "case_file.h"

class grouping_punct : public std::numpunct<char> {
public:
  grouping_punct(const std::string& grouping, char separator, char point)
      : grouping_(grouping), separator_(separator), point_(point) {}

protected:
  std::string do_grouping() const { return grouping_; }
  char do_thousands_sep() const { return separator_; }
  char do_decimal_point() const { return point_; }

private:
  std::string grouping_;
  char separator_;
  char point_;
};

struct punctuation {
  const char* label;
  std::string grouping;
  char separator;
  char point;
};

static void show_long(std::ofstream& out, const char* label, std::ios_base::fmtflags flags,
                      long width, long value) {
  begin_case(out, label);
  out.flags(flags);
  out.fill('*');
  out.width(width);
  out << value;
  end_case(out);
}

static void show_cases(std::ofstream& out) {
  const std::ios_base::fmtflags dec = std::ios_base::dec;
  show_long(out, "long 12", dec, 0, 12);
  show_long(out, "long 123", dec, 0, 123);
  show_long(out, "long 1234567", dec, 0, 1234567);
  show_long(out, "long -1234567", dec, 0, -1234567);
  show_long(out, "long -1234567 internal w=16", dec | std::ios_base::internal, 16, -1234567);
  show_long(out, "long -1234567 left w=16", dec | std::ios_base::left, 16, -1234567);
  show_long(out, "long LONG_MIN", dec, 0, LONG_MIN);
  show_long(out, "long 1234567 showpos", dec | std::ios_base::showpos, 0, 1234567);
  show_long(out, "long 0x12345678 hex showbase", std::ios_base::hex | std::ios_base::showbase, 0,
            0x12345678L);
  show_long(out, "long 0x12345678 hex showbase internal w=16",
            std::ios_base::hex | std::ios_base::showbase | std::ios_base::internal, 16,
            0x12345678L);
  show_long(out, "long 01234567 oct showbase", std::ios_base::oct | std::ios_base::showbase, 0,
            01234567L);
  begin_case(out, "unsigned long long ULLONG_MAX");
  out.flags(dec);
  out << ULLONG_MAX;
  end_case(out);
  begin_case(out, "double 1234567.25 fixed precision 2");
  out.flags(std::ios_base::fixed);
  out.precision(2);
  out << 1234567.25;
  end_case(out);
  begin_case(out, "double -1234.5 fixed precision 0 showpos");
  out.flags(std::ios_base::fixed | std::ios_base::showpos);
  out.precision(0);
  out << -1234.5;
  end_case(out);
}

int main() {
  const char no_more_groups = CHAR_MAX;
  const punctuation punctuations[] = {
      {"groups of 3, ','", "\3", ',', '.'},
      {"groups of 3 then 2, '.'", "\3\2", '.', ','},
      {"groups of 1, '''", "\1", '\'', '.'},
      {"groups of 4 then 3, ' '", "\4\3", ' ', '.'},
      {"groups of 2 then none, '_'", std::string("\2") + no_more_groups, '_', '.'},
      {"groups of 3, 2, 1, ','", "\3\2\1", ',', '.'},
      {"empty grouping", "", ',', '.'},
      {"grouping CHAR_MAX", std::string(1, no_more_groups), ',', '.'},
      {"grouping 0", std::string(1, '\0'), ',', '.'},
      {"grouping -1", "\xff", ',', '.'},
  };
  const unsigned count = sizeof punctuations / sizeof punctuations[0];
  // Built before the case file is opened: where installing the facet fails, no file is left.
  std::locale locales[count];
  for (unsigned p = 0; p < count; ++p)
    locales[p] = std::locale(std::locale(),
                             new grouping_punct(punctuations[p].grouping, punctuations[p].separator,
                                                punctuations[p].point));
  std::ofstream out;
  open_cases(out, "ostream_grouping_user_numpunct");
  for (unsigned p = 0; p < count; ++p) {
    out.imbue(locales[p]);
    out.write(punctuations[p].label, static_cast<long>(strlen(punctuations[p].label)));
    out.write(":\n", 2);
    show_cases(out);
  }
  return print_cases(out);
}
