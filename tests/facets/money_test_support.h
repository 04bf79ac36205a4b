// What the money_get and money_put tests share: a moneypunct with chosen values, a locale that
// holds it, and reading and writing one amount through both library instances of each facet
// (over char* and over the stream-buffer iterators), which must agree.
#ifndef MONEY_TEST_SUPPORT_H
#define MONEY_TEST_SUPPORT_H

#include "lorb_test.h"
#include "money_chosen_punct.h"
#include <locale>
#include <sstream>
#include <string.h>
#include <string>

// A copy of the classic locale whose table has no entry for _Facet: the copy gets a table of its
// own by taking a numpunct stand-in; the entry is then emptied and its hold released.
template <class _Facet> std::locale locale_lacking() {
  std::locale copy(std::locale::classic(), new std::numpunct<char>);
  std::locale::facet*& entry = copy.__imp->facets.data[_Facet::id.__number()];
  std::locale::facet* held = entry;
  entry = 0;
  held->__release();
  return copy;
}

typedef std::istreambuf_iterator<char> money_in;
typedef std::ostreambuf_iterator<char> money_out;

// Instances over char*, which the locales do not hold.
struct array_money_get : std::money_get<char, char*> {
  array_money_get() : std::money_get<char, char*>(1) {}
};
struct array_money_put : std::money_put<char, char*> {
  array_money_put() : std::money_put<char, char*>(1) {}
};

// What one reading gave: the result, the state, and how many characters were taken.
struct money_reading {
  std::string digits;
  long double units;
  int state;
  long taken;
};

// Reads text through both instances (digits when as_digits, else units); they must agree.
inline money_reading read_money(const std::string& text, const std::locale& loc, bool intl,
                                std::ios_base::fmtflags flags, bool as_digits, const char* file,
                                int line) {
  std::istringstream stream;
  stream.imbue(loc);
  stream.flags(flags);
  std::string copy = text;
  char* first = &copy[0];
  money_reading by_array = {"untouched", -1.0L, 0, 0};
  std::ios_base::iostate state = std::ios_base::goodbit;
  array_money_get array_facet;
  char* stop =
      as_digits ? array_facet.get(first, first + copy.size(), intl, stream, state, by_array.digits)
                : array_facet.get(first, first + copy.size(), intl, stream, state, by_array.units);
  by_array.state = state;
  by_array.taken = stop - first;

  std::stringbuf buffer(text);
  money_reading by_buffer = {"untouched", -1.0L, 0, 0};
  state = std::ios_base::goodbit;
  const std::money_get<char>& facet = std::use_facet<std::money_get<char> >(loc);
  if (as_digits)
    facet.get(money_in(&buffer), money_in(), intl, stream, state, by_buffer.digits);
  else
    facet.get(money_in(&buffer), money_in(), intl, stream, state, by_buffer.units);
  by_buffer.state = state;
  by_buffer.taken = static_cast<long>(text.size()) - static_cast<long>(buffer.in_avail());
  lt::check(by_array.digits == by_buffer.digits && by_array.state == by_buffer.state &&
                by_array.taken == by_buffer.taken &&
                (by_array.units == by_buffer.units ||
                 (by_array.units != by_array.units && by_buffer.units != by_buffer.units)),
            file, line, "both instances read alike");
  return by_array;
}

#define READ_DIGITS(text, loc, intl, flags)                                                        \
  read_money((text), (loc), (intl), (flags), true, __FILE__, __LINE__)
#define READ_UNITS(text, loc, intl, flags)                                                         \
  read_money((text), (loc), (intl), (flags), false, __FILE__, __LINE__)

// The stream settings of one writing.
struct money_layout {
  std::ios_base::fmtflags flags;
  long width;
  char fill;
  money_layout(std::ios_base::fmtflags f = std::ios_base::fmtflags(), long w = 0, char c = '*')
      : flags(f), width(w), fill(c) {}
};

// Writes through both instances (digits when given, else units); they must agree, the char*
// instance must write nothing past what it returns, and neither resets the width.
template <class _Amount>
std::string write_money(const _Amount& amount, const std::locale& loc, bool intl,
                        const money_layout& layout, const char* file, int line) {
  std::ostringstream stream;
  stream.imbue(loc);
  stream.flags(layout.flags);
  stream.width(layout.width);
  static char array[16384];
  memset(array, 0x7f, sizeof array);
  array_money_put array_facet;
  char* end = array_facet.put(array, intl, stream, layout.fill, amount);
  std::string by_array(array, end - array);
  lt::check(end < array + sizeof array && *end == 0x7f, file, line,
            "the char* instance writes nothing past its result");
  lt::check(stream.width() == layout.width, file, line, "the width is kept");

  const std::money_put<char>& facet = std::use_facet<std::money_put<char> >(loc);
  money_out after = facet.put(money_out(stream.rdbuf()), intl, stream, layout.fill, amount);
  lt::check(!after.failed(), file, line, "the ostreambuf_iterator instance did not fail");
  lt::check(stream.str() == by_array, file, line, "both instances write alike");
  return by_array;
}

#define WRITE_MONEY(amount, loc, intl, layout)                                                     \
  write_money((amount), (loc), (intl), (layout), __FILE__, __LINE__)

#endif
