// What the integer-parsing tests share: both facet instances read the same text, the overflow
// rule worked by hand, and locales missing a facet.
// Include it in exactly one file of a test program.
#ifndef FACETS_NUM_GET_INTEGER_SUPPORT_H
#define FACETS_NUM_GET_INTEGER_SUPPORT_H

#include "lorb_test.h"
#include "num_get_reading.h"
#include <limits.h>
#include <locale>
#include <sstream>
#include <stdio.h>
#include <string.h>
#include <string>

namespace {

const std::ios_base::fmtflags skipws = std::ios_base::skipws;
const std::ios_base::fmtflags dec = std::ios_base::dec | skipws;
const std::ios_base::fmtflags hex = std::ios_base::hex | skipws;
const std::ios_base::fmtflags oct = std::ios_base::oct | skipws;
const std::ios_base::fmtflags no_base = skipws;

template <class T>
void check_reading(const reading<T>& r, T expected, iostate err, size_t taken, const char* file,
                   int line, const char* instance) {
  char what[128];
  snprintf(what, sizeof what, "value through the %s instance", instance);
  lt::check_eq(r.value, expected, file, line, what, "expected value");
  snprintf(what, sizeof what, "bits through the %s instance", instance);
  lt::check_eq(static_cast<int>(r.err), static_cast<int>(err), file, line, what, "expected bits");
  snprintf(what, sizeof what, "characters taken by the %s instance", instance);
  lt::check_eq(r.taken, taken, file, line, what, "expected count");
  lt::check(r.end_agrees, file, line, "the returned iterator is at end exactly when the input is");
}

// Reads text into a T that holds `before`, with flags and the classic locale, through both
// instances; each must leave `expected`, set exactly `err` and take `taken` characters.
template <class T>
void check_get(const std::string& text, std::ios_base::fmtflags flags, const std::locale& loc,
               T before, T expected, iostate err, size_t taken, const char* file, int line) {
  std::istringstream s(text);
  s.flags(flags);
  s.imbue(loc);
  check_reading(read_array(text, s, before), expected, err, taken, file, line, "char*");
  check_reading(read_buffer(s, text.size(), before), expected, err, taken, file, line,
                "istreambuf_iterator");
}

#define CHECK_GET_IN(loc, type, text, flags, expected, err, taken)                                 \
  check_get<type>((text), (flags), (loc), static_cast<type>(77), static_cast<type>(expected),      \
                  (err), (taken), __FILE__, __LINE__)

#define CHECK_GET(type, text, flags, expected, err, taken)                                         \
  CHECK_GET_IN(std::locale::classic(), type, text, flags, expected, err, taken)

// A text read whole, with the input ending right after it.
#define CHECK_READS(type, text, flags, expected)                                                   \
  CHECK_GET(type, text, flags, expected, eof, strlen(text))

// The same with one blank after it: the input does not end, and the blank stays.
#define CHECK_READS_BEFORE_BLANK(type, text, flags, expected)                                      \
  CHECK_GET(type, std::string(text) + " ", flags, expected, good, strlen(text))

// Classifies '_' as white space and the blank as not.
struct underscore_space_ctype : std::ctype<char> {
  underscore_space_ctype() : std::ctype<char>(table(), false, 0) {}
  static const mask* table() {
    static mask t[table_size];
    memcpy(t, classic_table, sizeof t);
    t[static_cast<unsigned char>('_')] |= space;
    t[static_cast<unsigned char>(' ')] &= static_cast<mask>(~space);
    return t;
  }
};

// A buffer without a get area: every look is an underflow, every step a uflow, counted.
struct trickle_buffer : std::basic_streambuf<char> {
  const char* next;
  int uflows;
  explicit trickle_buffer(const char* text) : next(text), uflows(0) {}

protected:
  int_type underflow() { return *next ? traits_type::to_int_type(*next) : traits_type::eof(); }
  int_type uflow() {
    ++uflows;
    return *next ? traits_type::to_int_type(*next++) : traits_type::eof();
  }
};

// A small deterministic generator.
struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned long next() {
    state = state * 1103515245ul + 12345ul;
    unsigned long high = state >> 16;
    state = state * 1103515245ul + 12345ul;
    return (high << 16) ^ (state >> 16) ^ (state << 16);
  }
};

std::string text_of(const char* format, unsigned long v) {
  char text[64];
  snprintf(text, sizeof text, format, v);
  return text;
}

// The decimal overflow rule worked by hand over a 32-bit accumulator: each step is
// acc * 10 + d, wrapping; past nine digits a step whose value is below the one before it is
// an overflow. Returns false for an overflow, else the wrapped value through acc.
bool decimal_rule(const std::string& digits, unsigned long& acc) {
  acc = 0;
  bool checked = digits.size() > 9;
  for (size_t i = 0; i < digits.size(); ++i) {
    unsigned long previous = acc;
    acc = acc * 10 + static_cast<unsigned long>(digits[i] - '0');
    if (checked && acc < previous)
      return false;
  }
  return true;
}

// The exact value of up to 19 decimal digits.
unsigned long long exact_value(const std::string& digits) {
  unsigned long long v = 0;
  for (size_t i = 0; i < digits.size(); ++i)
    v = v * 10 + static_cast<unsigned long long>(digits[i] - '0');
  return v;
}

// A locale like the classic one whose table has no entry for _Facet.
template <class _Facet> std::locale locale_without() {
  std::locale copy(std::locale::classic(), new std::numpunct<char>);
  std::locale::facet*& entry = copy.__imp->facets.data[_Facet::id.__number()];
  std::locale::facet* held = entry;
  entry = 0;
  held->__release();
  return copy;
}

template <class T> void read_with_locale(const std::locale& loc) {
  std::istringstream s("12");
  s.std::ios_base::imbue(loc); // the stream's own imbue would want the ctype facet
  array_reader facet;
  char text[] = "12";
  iostate err = good;
  T v = 0;
  facet.get(text, text + 2, s, err, v);
  printf("%d %s\n", static_cast<int>(v), err == std::ios_base::eofbit ? "eof" : "other");
}

} // namespace

#endif
