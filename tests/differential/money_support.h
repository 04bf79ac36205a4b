// What the money programs share: a small deterministic generator, a program's own moneypunct
// with chosen values, and writing or reading one amount through the locale's facets.
// GNU's library cannot install a program's facet when the program is built without RTTI (it
// looks at the facet's type), so programs using money_punct have their expected text written
// down: for the agreeing ones it is what GNU prints for the program built with RTTI.
#ifndef MONEY_SUPPORT_H
#define MONEY_SUPPORT_H

#include <locale>
#include <sstream>
#include <stdio.h>
#include <string>

// Linear congruential generator; 32-bit arithmetic so both builds draw the same numbers.
struct generator {
  unsigned int seed;
  explicit generator(unsigned int s) : seed(s) {}
  unsigned int next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned int below(unsigned int n) { return next() % n; }
};

// Parts written as "?-v 0" characters, turned into each library's own part values.
static inline std::money_base::pattern pattern_of(const char* parts) {
  std::money_base::pattern p;
  for (int i = 0; i < 4; ++i) {
    char c = parts[i];
    p.field[i] = static_cast<char>(c == '?'   ? std::money_base::symbol
                                   : c == '-' ? std::money_base::sign
                                   : c == 'v' ? std::money_base::value
                                   : c == ' ' ? std::money_base::space
                                              : std::money_base::none);
  }
  return p;
}

struct money_layout {
  const char* positive_format;
  const char* negative_format;
  const char* negative_sign;
  const char* grouping;
  int fraction;
};

// Point '.', separator ',', symbol "$", no positive sign; the rest from the layout.
struct money_punct : std::moneypunct<char, false> {
  explicit money_punct(const money_layout& l) : std::moneypunct<char, false>(), l(l) {}
  money_layout l;

protected:
  char do_decimal_point() const { return '.'; }
  char do_thousands_sep() const { return ','; }
  std::string do_grouping() const { return l.grouping; }
  std::string do_curr_symbol() const { return "$"; }
  std::string do_positive_sign() const { return ""; }
  std::string do_negative_sign() const { return l.negative_sign; }
  int do_frac_digits() const { return l.fraction; }
  pattern do_pos_format() const { return pattern_of(l.positive_format); }
  pattern do_neg_format() const { return pattern_of(l.negative_format); }
};

static inline std::locale money_locale(const money_layout& l) {
  return std::locale(std::locale::classic(), new money_punct(l));
}

// Writes units with the stream's settings and fill; returns the text.
static inline std::string write_units(std::ostringstream& out, long double units, char fill) {
  const std::money_put<char>& put = std::use_facet<std::money_put<char> >(out.getloc());
  put.put(std::ostreambuf_iterator<char>(out), false, out, fill, units);
  return out.str();
}

// Reads the whole text as digits; the state comes back through state.
static inline std::string read_digits(const std::locale& loc, const std::string& text,
                                      std::ios_base::fmtflags flags, int& state) {
  std::istringstream in(text);
  in.imbue(loc);
  in.flags(flags);
  std::ios_base::iostate got = std::ios_base::goodbit;
  std::string digits = "none";
  std::use_facet<std::money_get<char> >(loc).get(
      std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>(), false, in, got, digits);
  state = got;
  return digits;
}

// The same as units.
static inline long double read_units(const std::locale& loc, const std::string& text,
                                     std::ios_base::fmtflags flags, int& state) {
  std::istringstream in(text);
  in.imbue(loc);
  in.flags(flags);
  std::ios_base::iostate got = std::ios_base::goodbit;
  long double units = -1;
  std::use_facet<std::money_get<char> >(loc).get(
      std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>(), false, in, got, units);
  state = got;
  return units;
}

static inline int failed(int state) { return (state & std::ios_base::failbit) != 0; }

#endif
