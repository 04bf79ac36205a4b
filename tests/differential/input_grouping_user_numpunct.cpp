// Thousands separators read under a program's own numpunct, installed with
// locale(locale(), facet): generated numbers with separators in the right places or anywhere
// between the digits, then sizes that change or stop at CHAR_MAX, hex, misplaced separators and
// floating point with the roles of '.' and ',' swapped. A number whose groups are wrong is read
// whole and flagged. GNU's library cannot install a program's numpunct when the program is built
// without RTTI, so the expected text is written down.
#include <cstdio>
#include <cstring>
#include <locale>
#include <sstream>
#include <string>

#include "input_support.h"

class grouping_punct : public std::numpunct<char> {
public:
  grouping_punct(const char* grouping, char separator, char point)
      : grouping_(grouping), separator_(separator), point_(point) {}

protected:
  std::string do_grouping() const { return grouping_; }
  char do_thousands_sep() const { return separator_; }
  char do_decimal_point() const { return point_; }

private:
  std::string grouping_;
  char separator_, point_;
};

static void begin(const char* label, const char* text) {
  printf("%s \"", label);
  print_escaped(text, strlen(text));
  printf("\" -> ");
}

static void end(std::istream& is) {
  print_state(is);
  print_rest(is);
  printf("\n");
}

static void read_ulong(const std::locale& loc, const char* label, const char* text, bool hex) {
  std::istringstream is(text);
  is.imbue(loc);
  if (hex)
    is.setf(std::ios_base::hex, std::ios_base::basefield);
  begin(label, text);
  unsigned long v = 7;
  is >> v;
  printf(hex ? "%lx" : "%lu", v);
  end(is);
}

static void read_long(const std::locale& loc, const char* label, const char* text) {
  std::istringstream is(text);
  is.imbue(loc);
  begin(label, text);
  long v = 7;
  is >> v;
  printf("%ld", v);
  end(is);
}

static void read_double(const std::locale& loc, const char* label, const char* text) {
  std::istringstream is(text);
  is.imbue(loc);
  begin(label, text);
  double v = 7;
  is >> v;
  printf("%.17g", v);
  end(is);
}

int main() {
  const std::locale classic = std::locale::classic();
  const std::locale threes(classic, new grouping_punct("\3", ',', '.'));
  const std::locale three_two(classic, new grouping_punct("\3\2", ',', '.'));
  const std::locale ones(classic, new grouping_punct("\1", '\'', '.'));
  const std::locale three_then_none(classic, new grouping_punct("\3\177", ',', '.'));
  const std::locale swapped(classic, new grouping_punct("\3", '.', ','));

  // Generated: the digits of a 32-bit number with separators every three digits from the right,
  // or after any digit with a chance of one in three.
  generator g(314159);
  for (int i = 0; i < 48; ++i) {
    unsigned long value = g.next() << 8;
    value ^= g.next();
    value >>= g.below(4) * 8;
    char digits[16], text[40];
    int n = sprintf(digits, "%lu", value), out = 0;
    bool right = g.below(2) == 0;
    for (int d = 0; d < n; ++d) {
      text[out++] = digits[d];
      int after = n - 1 - d;
      if (after > 0 && (right ? after % 3 == 0 : g.below(3) == 0))
        text[out++] = ',';
    }
    text[out] = 0;
    read_ulong(threes, "3", text, false);
  }

  read_long(threes, "3", "-1,234");
  read_long(threes, "3", "12,34");
  read_long(threes, "3", "1234,567");
  read_long(threes, "3", ",123");
  read_long(threes, "3", "1,,234");
  read_long(threes, "3", "123,");
  read_long(threes, "3", "1,234 ,567");
  read_long(threes, "3", "2,147,483,648");
  read_ulong(threes, "3", "4,294,967,295", false);
  read_ulong(threes, "3", "ff,fff", true);
  read_ulong(threes, "3", "f,ff,ff", true);
  read_long(three_two, "3,2", "12,34,567");
  read_long(three_two, "3,2", "1,23,45,678");
  read_long(three_two, "3,2", "1,234,567");
  read_long(three_two, "3,2", "123,45,678");
  read_long(ones, "1", "1'2'3'4");
  read_long(ones, "1", "12'3");
  read_long(ones, "1", "1'2,3");
  read_long(three_then_none, "3,max", "1234,567");
  read_long(three_then_none, "3,max", "1,234,567");
  read_long(three_then_none, "3,max", "1234567");
  read_double(threes, "3", "1,234.5");
  read_double(threes, "3", "12,345,678.25e-3");
  read_double(threes, "3", "12,34.5");
  read_double(threes, "3", "1,234,");
  read_double(threes, "3", ",5");
  read_double(threes, "3", "1,234e3");
  read_double(three_then_none, "3,max", "1234567,890.5");
  read_double(three_then_none, "3,max", "1234567890123456,789.0");
  read_double(swapped, "swapped", "1.234,5");
  read_double(swapped, "swapped", "1,5e2");
  read_double(swapped, "swapped", "1.5");
  read_double(classic, "classic", "1,234.5");
  return 0;
}
