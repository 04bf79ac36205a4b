// One boolean reading printed twice, into a target that holds false and into one that holds
// true, so that a target left as it was shows as "0/1".
#ifndef INPUT_BOOL_CASE_H
#define INPUT_BOOL_CASE_H

#include <cstdio>
#include <cstring>
#include <locale>
#include <sstream>

#include "input_support.h"

static void read_case(const std::locale& names, const char* label, bool alpha, bool skip,
                      const char* text) {
  printf("%s%s%s \"", label, alpha ? " alpha" : " digits", skip ? "" : " noskipws");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  for (int start = 0; start < 2; ++start) {
    std::istringstream is(text);
    is.imbue(names);
    if (alpha)
      is.setf(std::ios_base::boolalpha);
    if (!skip)
      is.unsetf(std::ios_base::skipws);
    bool v = start != 0;
    is >> v;
    printf(start ? "/%d" : "%d", v ? 1 : 0);
    if (start) {
      print_state(is);
      print_rest(is);
    }
  }
  printf("\n");
}

#endif
