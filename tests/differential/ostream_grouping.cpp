// Thousands grouping of named locales' numpunct: integers in every base with sign, base mark,
// adjustment and width, and floating-point integer parts.
#include <cfloat>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <locale>
#include <ostream>
#include <string>
#include <unistd.h>

#include "case_file.h"

struct named_flag {
  std::ios_base::fmtflags flag;
  const char* name;
};

static const named_flag bases[] = {
    {std::ios_base::dec, "dec"}, {std::ios_base::oct, "oct"}, {std::ios_base::hex, "hex"}};
static const named_flag adjustments[] = {{std::ios_base::fmtflags(), "adjust none"},
                                         {std::ios_base::left, "left"},
                                         {std::ios_base::right, "right"},
                                         {std::ios_base::internal, "internal"}};
static const long widths[] = {0, 9, 24};

struct integer_case {
  const char* label;
  long long value;
  bool is_long_long;
};

static const integer_case integers[] = {
    {"0", 0, false},
    {"7", 7, false},
    {"-12", -12, false},
    {"123", 123, false},
    {"1234", 1234, false},
    {"-1234", -1234, false},
    {"12345", 12345, false},
    {"123456", 123456, false},
    {"1234567", 1234567, false},
    {"-1234567", -1234567, false},
    {"LONG_MIN", LONG_MIN, false},
    {"LONG_MAX", LONG_MAX, false},
    {"LLONG_MIN", LLONG_MIN, true},
    {"ULLONG_MAX", static_cast<long long>(ULLONG_MAX), true},
};

static void show_integers(std::ofstream& out, const char* locale_name) {
  char description[200];
  for (unsigned i = 0; i < sizeof integers / sizeof integers[0]; ++i)
    for (int b = 0; b < 3; ++b)
      for (int a = 0; a < 4; ++a)
        for (int extras = 0; extras < 8; ++extras)
          for (int w = 0; w < 3; ++w) {
            // Octal with its base mark under internal: ostream_octal_internal_diverges.
            if (bases[b].flag == std::ios_base::oct && (extras & 1) &&
                adjustments[a].flag == std::ios_base::internal)
              continue;
            std::ios_base::fmtflags flags = bases[b].flag;
            flags |= adjustments[a].flag;
            if (extras & 1)
              flags |= std::ios_base::showbase;
            if (extras & 2)
              flags |= std::ios_base::showpos;
            if (extras & 4)
              flags |= std::ios_base::uppercase;
            sprintf(description, "%s: %s %s %s %s%s%s%s w=%ld", locale_name,
                    integers[i].is_long_long ? "long long" : "long", integers[i].label,
                    bases[b].name, adjustments[a].name, extras & 1 ? " showbase" : "",
                    extras & 2 ? " showpos" : "", extras & 4 ? " uppercase" : "", widths[w]);
            begin_case(out, description);
            out.flags(flags);
            out.fill('*');
            out.width(widths[w]);
            if (integers[i].is_long_long)
              out << integers[i].value;
            else
              out << static_cast<long>(integers[i].value);
            out.flags(std::ios_base::fmtflags());
            end_case(out);
          }
}

static const char* description_of(char* description, const char* locale_name, const char* text) {
  sprintf(description, "%s: %s", locale_name, text);
  return description;
}

struct double_case {
  const char* label;
  double value;
};

// Without width: a separator widens the text, and the float padding does not count separators
// (ostream_grouping_float_diverges). A general text with an exponent and no point is left there
// too.
static void show_doubles(std::ofstream& out, const char* locale_name) {
  const double_case doubles[] = {
      {"0.0", 0.0},
      {"-0.5", -0.5},
      {"999.25", 999.25},
      {"1234.5", 1234.5},
      {"-1234567.25", -1234567.25},
      {"123456.789", 123456.789},
      {"1e15", 1e15},
      {"-1e16", -1e16},
      {"DBL_MAX", DBL_MAX},
  };
  struct notation {
    std::ios_base::fmtflags flag;
    const char* name;
    long precision;
  };
  const notation notations[] = {{std::ios_base::fixed, "fixed", 0},
                                {std::ios_base::fixed, "fixed", 2},
                                {std::ios_base::scientific, "scientific", 3},
                                {std::ios_base::fmtflags(), "general", 17}};
  char description[200];
  for (unsigned d = 0; d < sizeof doubles / sizeof doubles[0]; ++d)
    for (int n = 0; n < 4; ++n)
      for (int extras = 0; extras < 4; ++extras) {
        std::ios_base::fmtflags flags = notations[n].flag;
        if (extras & 1)
          flags |= std::ios_base::showpos;
        if (extras & 2)
          flags |= std::ios_base::showpoint;
        sprintf(description, "%s: double %s %s precision %ld%s%s", locale_name, doubles[d].label,
                notations[n].name, notations[n].precision, extras & 1 ? " showpos" : "",
                extras & 2 ? " showpoint" : "");
        begin_case(out, description);
        out.flags(flags);
        out.precision(notations[n].precision);
        out << doubles[d].value;
        out.flags(std::ios_base::fmtflags());
        end_case(out);
      }
  // Long texts, far beyond the 200 bytes of one conversion once grouped.
  begin_case(out, description_of(description, locale_name, "double DBL_MAX fixed precision 130"));
  out.flags(std::ios_base::fixed);
  out.precision(130);
  out << DBL_MAX;
  end_case(out);
  begin_case(out,
             description_of(description, locale_name, "long double LDBL_MAX fixed precision 0"));
  out.precision(0);
  out << LDBL_MAX;
  end_case(out);
  begin_case(out,
             description_of(description, locale_name, "long double -1e4000L fixed precision 2"));
  out.precision(2);
  out << -1e4000L;
  end_case(out);
  begin_case(out,
             description_of(description, locale_name, "long double 1.0L/3 general precision 20"));
  out.flags(std::ios_base::fmtflags());
  out.precision(20);
  out << 1.0L / 3;
  end_case(out);
  out.flags(std::ios_base::fmtflags());

  // Padding where no separator is inserted.
  const double_case short_doubles[] = {{"-12.5", -12.5}, {"999.0", 999.0}};
  for (int d = 0; d < 2; ++d)
    for (int a = 0; a < 4; ++a) {
      sprintf(description, "%s: double %s fixed precision 1 %s w=9", locale_name,
              short_doubles[d].label, adjustments[a].name);
      begin_case(out, description);
      out.flags(std::ios_base::fixed | adjustments[a].flag);
      out.precision(1);
      out.fill('*');
      out.width(9);
      out << short_doubles[d].value;
      out.flags(std::ios_base::fmtflags());
      end_case(out);
    }
}

int main() {
  // The punctuation of named locales, installed as a facet of its own in a copy of the classic
  // locale: grouping 3;3 with ',' and '.', and with '.' and ','.
  const char* const locale_names[] = {"en_US.UTF-8", "de_DE.UTF-8"};
  std::ofstream out;
  open_cases(out, "ostream_grouping");
  for (int l = 0; l < 2; ++l) {
    out.imbue(std::locale(std::locale(), new std::numpunct_byname<char>(locale_names[l])));
    show_integers(out, locale_names[l]);
    show_doubles(out, locale_names[l]);
  }
  return print_cases(out);
}
