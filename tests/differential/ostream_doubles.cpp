// Floating-point numbers through an ofstream: every notation, showpos, showpoint, uppercase and
// precision, then every adjustment, width and fill; each case's text is printed between brackets.
#include <cfloat>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <ostream>
#include <unistd.h>

#include "case_file.h"

// Whether the C library writes value in general notation as an exponent without a point ("1e+05");
// such a text under uppercase is left to ostream_uppercase_inf_nan_diverges.
static bool exponent_without_point(double value, long precision, bool showpoint) {
  char text[64];
  sprintf(text, showpoint ? "%#.*g" : "%.*g", static_cast<int>(precision), value);
  return strchr(text, 'e') && !strchr(text, '.');
}

struct double_case {
  const char* label;
  double value;
};

struct named_flag {
  std::ios_base::fmtflags flag;
  const char* name;
};

// fixed and scientific together are left to ostream_float_precision_diverges.
static const named_flag notations[] = {{std::ios_base::fmtflags(), "general"},
                                       {std::ios_base::fixed, "fixed"},
                                       {std::ios_base::scientific, "scientific"}};
static const named_flag adjustments[] = {{std::ios_base::fmtflags(), "adjust none"},
                                         {std::ios_base::left, "left"},
                                         {std::ios_base::right, "right"},
                                         {std::ios_base::internal, "internal"}};
// Precision 0 outside fixed notation is left to ostream_float_precision_diverges.
static const long precisions[] = {0, 1, 3, 6, 17, -1};

struct field {
  long width;
  char fill;
};
static const field fields[] = {{0, '*'}, {5, '*'}, {12, '0'}, {12, ' '}, {30, '*'}};

static void show(std::ofstream& out, const char* description, std::ios_base::fmtflags flags,
                 long precision, const field& where, double value) {
  begin_case(out, description);
  out.flags(flags);
  out.precision(precision);
  out.fill(where.fill);
  out.width(where.width);
  out << value;
  out.flags(std::ios_base::fmtflags());
  end_case(out);
}

int main() {
  const double infinity = strtod("inf", 0);
  const double not_a_number = strtod("nan", 0);
  const double_case doubles[] = {
      {"0.0", 0.0},
      {"-0.0", -0.0},
      {"1.5", 1.5},
      {"-1.5", -1.5},
      {"0.1", 0.1},
      {"0.5", 0.5},
      {"2.5", 2.5},
      {"9.9999999", 9.9999999},
      {"123456.789", 123456.789},
      {"-123456.789", -123456.789},
      {"1e-5", 1e-5},
      {"1234567.0", 1234567.0},
      {"1e15", 1e15},
      {"-1e16", -1e16},
      {"1e300", 1e300},
      {"1e-300", 1e-300},
      {"DBL_MIN", DBL_MIN},
      {"DBL_MAX", DBL_MAX},
      {"-DBL_MAX", -DBL_MAX},
      {"smallest subnormal", DBL_MIN * DBL_EPSILON},
      {"inf", infinity},
      {"-inf", -infinity},
      {"nan", not_a_number},
      {"-nan", -not_a_number},
  };
  const int double_count = sizeof doubles / sizeof doubles[0];
  const int field_count = sizeof fields / sizeof fields[0];
  std::ofstream out;
  open_cases(out, "ostream_doubles");
  char description[200];

  // The text itself: notation, sign, point, exponent case and precision, no width.
  for (int d = 0; d < double_count; ++d)
    for (int n = 0; n < 3; ++n)
      for (int extras = 0; extras < 8; ++extras)
        for (int p = 0; p < 6; ++p) {
          const bool finite = doubles[d].value - doubles[d].value == 0;
          // Upper-case infinities and NaNs: ostream_uppercase_inf_nan_diverges.
          if ((extras & 4) && !finite)
            continue;
          if (precisions[p] == 0 && notations[n].flag != std::ios_base::fixed)
            continue;
          if ((extras & 4) && notations[n].flag == std::ios_base::fmtflags() &&
              exponent_without_point(doubles[d].value, precisions[p], extras & 2))
            continue;
          std::ios_base::fmtflags flags = notations[n].flag;
          if (extras & 1)
            flags |= std::ios_base::showpos;
          if (extras & 2)
            flags |= std::ios_base::showpoint;
          if (extras & 4)
            flags |= std::ios_base::uppercase;
          sprintf(description, "double %s %s%s%s%s precision %ld", doubles[d].label,
                  notations[n].name, extras & 1 ? " showpos" : "", extras & 2 ? " showpoint" : "",
                  extras & 4 ? " uppercase" : "", precisions[p]);
          show(out, description, flags, precisions[p], fields[0], doubles[d].value);
        }

  // Padding: notation, adjustment, sign, width and fill at the default precision.
  for (int d = 0; d < double_count; ++d)
    for (int n = 0; n < 3; ++n)
      for (int a = 0; a < 4; ++a)
        for (int showpos = 0; showpos < 2; ++showpos)
          for (int f = 0; f < field_count; ++f) {
            std::ios_base::fmtflags flags = notations[n].flag;
            flags |= adjustments[a].flag;
            if (showpos)
              flags |= std::ios_base::showpos;
            sprintf(description, "double %s %s %s%s w=%ld fill='%c'", doubles[d].label,
                    notations[n].name, adjustments[a].name, showpos ? " showpos" : "",
                    fields[f].width, fields[f].fill);
            show(out, description, flags, 6, fields[f], doubles[d].value);
          }

  // Precisions above what the C library is asked for (127), where the digits end early.
  const double_case short_expansions[] = {{"0.1", 0.1}, {"1.5", 1.5}, {"1e-5", 1e-5}};
  const long long_precisions[] = {127, 128, 130, 200};
  for (int d = 0; d < 3; ++d)
    for (int n = 1; n < 3; ++n)
      for (int p = 0; p < 4; ++p) {
        sprintf(description, "double %s %s precision %ld", short_expansions[d].label,
                notations[n].name, long_precisions[p]);
        show(out, description, notations[n].flag, long_precisions[p], fields[0],
             short_expansions[d].value);
      }
  sprintf(description, "double 1.5 scientific uppercase precision 130 w=140 fill='*'");
  show(out, description, std::ios_base::scientific | std::ios_base::uppercase, 130, fields[0], 1.5);
  field wide = {140, '*'};
  sprintf(description, "double 0.1 fixed internal showpos precision 130 w=140 fill='*'");
  show(out, description, std::ios_base::fixed | std::ios_base::internal | std::ios_base::showpos,
       130, wide, 0.1);

  // float goes through double; long double has its own conversion.
  const float floats[] = {1.1f, -0.3f, FLT_MAX, FLT_MIN};
  const char* const float_labels[] = {"1.1f", "-0.3f", "FLT_MAX", "FLT_MIN"};
  const long float_precisions[] = {6, 9, -1};
  for (int v = 0; v < 4; ++v)
    for (int n = 0; n < 3; ++n)
      for (int p = 0; p < 3; ++p) {
        sprintf(description, "float %s %s precision %ld", float_labels[v], notations[n].name,
                float_precisions[p]);
        begin_case(out, description);
        out.flags(notations[n].flag);
        out.precision(float_precisions[p]);
        out << floats[v];
        end_case(out);
      }
  const long double long_doubles[] = {0.1L,      -1.5L,    1.0L / 3, 1e4000L,
                                      -1e-4000L, LDBL_MAX, LDBL_MIN};
  const char* const long_double_labels[] = {"0.1L",      "-1.5L",    "1.0L/3",  "1e4000L",
                                            "-1e-4000L", "LDBL_MAX", "LDBL_MIN"};
  const long long_double_precisions[] = {1, 6, 20, -1};
  for (int v = 0; v < 7; ++v)
    for (int n = 0; n < 3; ++n)
      for (int p = 0; p < 4; ++p) {
        sprintf(description, "long double %s %s precision %ld", long_double_labels[v],
                notations[n].name, long_double_precisions[p]);
        begin_case(out, description);
        out.flags(notations[n].flag | std::ios_base::showpos);
        out.precision(long_double_precisions[p]);
        out.fill('#');
        out.width(40);
        out << long_doubles[v];
        end_case(out);
      }
  return print_cases(out);
}
