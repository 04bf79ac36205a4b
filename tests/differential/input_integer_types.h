// The integer types the parsing programs read into, by name, and one reading printed as the
// type's own printf conversion.
#ifndef INPUT_INTEGER_TYPES_H
#define INPUT_INTEGER_TYPES_H

#include <cstdio>
#include <cstring>
#include <istream>
#include <sstream>

#include "input_support.h"

enum integer_type { as_short, as_ushort, as_int, as_uint, as_long, as_ulong };

static const char* const type_names[] = {"short", "ushort", "int", "uint", "long", "ulong"};

template <class T> static void read_as(std::istream& is, const char* format, int start) {
  T value = T(start);
  is >> value;
  printf(format, value);
}

// Reads one value of the type into a target that holds start beforehand, and prints what it
// holds after.
static void read_integer(integer_type type, std::istream& is, int start) {
  switch (type) {
  case as_short:
    read_as<short>(is, "%hd", start);
    break;
  case as_ushort:
    read_as<unsigned short>(is, "%hu", start);
    break;
  case as_int:
    read_as<int>(is, "%d", start);
    break;
  case as_uint:
    read_as<unsigned int>(is, "%u", start);
    break;
  case as_long:
    read_as<long>(is, "%ld", start);
    break;
  case as_ulong:
    read_as<unsigned long>(is, "%lu", start);
    break;
  }
}

// Reads text as the type under the base and skipws setting given, printing the case, the value,
// the state and what is left.
static void read_case(integer_type type, std::ios_base::fmtflags base, bool skip, const char* text,
                      int start) {
  std::istringstream is(text);
  is.setf(base, std::ios_base::basefield);
  if (!skip)
    is.unsetf(std::ios_base::skipws);
  printf("%s %s%s \"", type_names[type],
         base == std::ios_base::dec   ? "dec"
         : base == std::ios_base::hex ? "hex"
         : base == std::ios_base::oct ? "oct"
                                      : "none",
         skip ? "" : " noskipws");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  read_integer(type, is, start);
  print_state(is);
  print_rest(is);
  printf("\n");
}

#endif
