// std::complex written to and read from string streams: generated values inserted under
// generated precision (from 1: precision 0 is 6 here, see docs/output-streams.md), float field,
// showpos, uppercase (scientific only), showpoint, width (right and left adjustment) and fill;
// generated "re", "(re)" and "(re,im)" texts with blanks read back; and malformed texts, with the
// state and what is left in the stream.
#include <complex>
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>

#include "input_support.h"

typedef std::complex<double> cdouble;

static double draw(generator& g) {
  double mantissa = (static_cast<double>(g.below(2000001)) - 1000000) / 1000;
  int exponent = static_cast<int>(g.below(13)) - 6;
  for (; exponent > 0; --exponent)
    mantissa *= 10;
  for (; exponent < 0; ++exponent)
    mantissa /= 10;
  return mantissa;
}

// Sets up a stream as the generator says and describes the set-up.
static void prepare(generator& g, std::ostream& os, char* described) {
  static const std::ios_base::fmtflags fields[] = {std::ios_base::fmtflags(0), std::ios_base::fixed,
                                                   std::ios_base::scientific};
  static const char* const field_names[] = {"general", "fixed", "scientific"};
  unsigned field = g.below(3);
  os.setf(fields[field], std::ios_base::floatfield);
  int precision = 1 + static_cast<int>(g.below(12));
  os.precision(precision);
  bool showpos = g.below(3) == 0, uppercase = field == 2 && g.below(3) == 0;
  bool showpoint = g.below(4) == 0;
  if (showpos)
    os.setf(std::ios_base::showpos);
  if (uppercase)
    os.setf(std::ios_base::uppercase);
  if (showpoint)
    os.setf(std::ios_base::showpoint);
  bool left = g.below(2) == 0;
  os.setf(left ? std::ios_base::left : std::ios_base::right, std::ios_base::adjustfield);
  char fill = g.below(2) ? ' ' : static_cast<char>('!' + g.below(90));
  os.fill(fill);
  int width = g.below(3) ? static_cast<int>(g.below(40)) : 0;
  os.width(width);
  sprintf(described, "%s p%d%s%s%s %s w%d '%c'", field_names[field], precision,
          showpos ? " showpos" : "", uppercase ? " uppercase" : "", showpoint ? " showpoint" : "",
          left ? "left" : "right", width, fill);
}

static void insertion(unsigned seed, int count) {
  generator g(seed);
  printf("insertion %u\n", seed);
  for (int i = 0; i < count; ++i) {
    std::ostringstream os;
    char described[128];
    prepare(g, os, described);
    double re = draw(g), im = draw(g);
    switch (g.below(3)) {
    case 0:
      os << cdouble(re, im);
      break;
    case 1:
      os << std::complex<float>(static_cast<float>(re), static_cast<float>(im));
      break;
    default:
      os << std::complex<long double>(re, im);
    }
    os << '|';
    printf("%s: [%s] width after %ld\n", described, os.str().c_str(),
           static_cast<long>(os.width()));
  }
}

static void read_text(const char* text, bool skip) {
  std::istringstream is(text);
  if (!skip)
    is.unsetf(std::ios_base::skipws);
  cdouble z(7, 7);
  is >> z;
  printf("%s\"", skip ? "" : "noskipws ");
  print_escaped(text, strlen(text));
  printf("\" -> (%.17g,%.17g)", z.real(), z.imag());
  print_state(is);
  print_rest(is);
  printf("\n");
}

static const char* const blanks[] = {"", " ", "\t", "\n ", "  "};

static const char* blank(generator& g) { return blanks[g.below(5)]; }

// A text of one of the three accepted forms, with blanks before each part and delimiter.
static void extraction(unsigned seed, int count) {
  generator g(seed);
  printf("extraction %u\n", seed);
  for (int i = 0; i < count; ++i) {
    char re[40], im[40], text[160];
    sprintf(re, g.below(2) ? "%.17g" : "%g", draw(g));
    sprintf(im, g.below(2) ? "%.17g" : "%g", draw(g));
    const char* tail = g.below(3) ? "" : g.below(2) ? " 5" : ")";
    switch (g.below(3)) {
    case 0:
      sprintf(text, "%s%s%s", blank(g), re, tail);
      break;
    case 1:
      sprintf(text, "%s(%s%s%s)%s", blank(g), blank(g), re, blank(g), tail);
      break;
    default:
      sprintf(text, "%s(%s%s%s,%s%s%s)%s", blank(g), blank(g), re, blank(g), blank(g), im, blank(g),
              tail);
    }
    read_text(text, g.below(8) != 0);
  }
}

// Texts that are not complete in one of the accepted forms.
static void malformed() {
  printf("malformed\n");
  static const char* const texts[] = {"(1;2)", "(1,2;",   "(1 2)", "(1,2,3)", "x",      "(x",
                                      "(1,x)", "((1,2))", "(1",    "(1,",     "(1,2",   "( ",
                                      "[1,2]", "(1.5 ,",  "(1)(2", "(,2)",    "(1,,2)", "1,2"};
  for (unsigned i = 0; i < sizeof texts / sizeof *texts; ++i)
    read_text(texts[i], true);
  read_text(" (1,2)", false);
  read_text("(1, 2)", false);
}

// Several values in one stream, written by insertion with the default format and read back.
static void round_trip(unsigned seed) {
  generator g(seed);
  std::stringstream ss;
  ss.precision(17);
  cdouble written[20];
  for (int i = 0; i < 20; ++i) {
    written[i] = cdouble(draw(g), draw(g));
    ss << written[i] << (i % 3 ? " " : "\n");
  }
  int same = 0;
  for (int i = 0; i < 20; ++i) {
    cdouble back;
    ss >> back;
    same += back == written[i];
  }
  printf("round trip %u: %d of 20 the same, %08x", seed, same,
         checksum(ss.str().data(), ss.str().size()));
  print_state(ss);
  printf("\n");
}

int main() {
  insertion(1, 150);
  insertion(77, 150);
  extraction(5, 150);
  malformed();
  round_trip(3);
  round_trip(4);
  return 0;
}
