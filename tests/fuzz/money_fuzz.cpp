// money_get and money_put under a moneypunct whose every value comes from the input: signs,
// symbol, grouping, fraction digits and both patterns, any of the five parts in any field. The
// char* instances and the stream-buffer instances must agree; neither may read past the text or
// write past what it returns.
#include "facets/money_chosen_punct.h"
#include "fuzz_input.h"
#include <locale>
#include <sstream>
#include <string.h>
#include <string>

namespace {

struct array_money_get : std::money_get<char, char*> {
  array_money_get() : std::money_get<char, char*>(1) {}
};
struct array_money_put : std::money_put<char, char*> {
  array_money_put() : std::money_put<char, char*>(1) {}
};
typedef std::istreambuf_iterator<char> money_in;
typedef std::ostreambuf_iterator<char> money_out;

// Four fields, each one of none, space, symbol, sign and value (valid patterns and patterns
// with a part twice or missing), now and then a byte that is no part at all.
void choose_pattern(fuzz_input& in, char* fields) {
  static const char parts[] = {std::money_base::none, std::money_base::space,
                               std::money_base::symbol, std::money_base::sign,
                               std::money_base::value};
  for (int i = 0; i < 4; ++i) {
    unsigned choice = in.byte();
    fields[i] = choice < 250 ? parts[choice % 5] : static_cast<char>(choice);
  }
  fields[4] = 0;
}

money_values chosen_values(fuzz_input& in, char* positive_format, char* negative_format) {
  money_values v;
  v.point = static_cast<char>(in.byte());
  v.separator = static_cast<char>(in.byte());
  v.grouping = in.bytes(in.below(4));
  v.symbol = in.bytes(in.below(4));
  v.positive = in.bytes(in.below(3));
  v.negative = in.bytes(in.below(4));
  v.fraction = static_cast<int>(in.below(7)) - 1;
  choose_pattern(in, positive_format);
  choose_pattern(in, negative_format);
  v.positive_format = positive_format;
  v.negative_format = negative_format;
  return v;
}

std::ios_base::fmtflags chosen_flags(fuzz_input& in) {
  unsigned choice = in.byte();
  std::ios_base::fmtflags flags = std::ios_base::fmtflags();
  if (choice & 1)
    flags |= std::ios_base::showbase;
  if (choice & 2)
    flags |= std::ios_base::left;
  else if (choice & 4)
    flags |= std::ios_base::internal;
  if (choice & 8)
    flags |= std::ios_base::skipws;
  return flags;
}

bool same_units(long double a, long double b) { return a == b || (a != a && b != b); }

void read(const std::string& text, const std::locale& loc, bool intl, std::ios_base::fmtflags flags,
          bool as_digits) {
  std::istringstream stream;
  stream.imbue(loc);
  stream.flags(flags);
  // The byte after the text is one no reading takes, so a read past the end would show.
  char* first = new char[text.size() + 1];
  memcpy(first, text.data(), text.size());
  first[text.size()] = '\x7f';
  std::string array_digits = "untouched", buffer_digits = "untouched";
  long double array_units = -1.0L, buffer_units = -1.0L;
  std::ios_base::iostate array_state = std::ios_base::goodbit;
  array_money_get array_facet;
  char* stop = as_digits ? array_facet.get(first, first + text.size(), intl, stream, array_state,
                                           array_digits)
                         : array_facet.get(first, first + text.size(), intl, stream, array_state,
                                           array_units);
  long array_taken = stop - first;
  delete[] first;

  std::stringbuf buffer(text);
  std::ios_base::iostate buffer_state = std::ios_base::goodbit;
  const std::money_get<char>& facet = std::use_facet<std::money_get<char> >(loc);
  if (as_digits)
    facet.get(money_in(&buffer), money_in(), intl, stream, buffer_state, buffer_digits);
  else
    facet.get(money_in(&buffer), money_in(), intl, stream, buffer_state, buffer_units);
  long buffer_taken = static_cast<long>(text.size()) - static_cast<long>(buffer.in_avail());

  FUZZ_CHECK(array_taken >= 0 && array_taken <= static_cast<long>(text.size()));
  FUZZ_CHECK(array_taken == buffer_taken);
  FUZZ_CHECK(array_state == buffer_state);
  FUZZ_CHECK(array_digits == buffer_digits);
  FUZZ_CHECK(same_units(array_units, buffer_units));
  // What a successful reading stores is digits with at most a leading minus.
  if (as_digits && !(array_state & std::ios_base::failbit) && array_digits != "untouched") {
    for (size_t i = 0; i < array_digits.size(); ++i)
      FUZZ_CHECK((array_digits[i] >= '0' && array_digits[i] <= '9') ||
                 (i == 0 && array_digits[i] == '-'));
  }
}

template <class Amount>
void write(const Amount& amount, const std::locale& loc, bool intl, std::ios_base::fmtflags flags,
           long width, char fill) {
  std::ostringstream stream;
  stream.imbue(loc);
  stream.flags(flags);
  stream.width(width);
  // A broken pattern may hold the value four times, each up to 4,933 integer digits of a long
  // double, a separator between any two, and the fraction.
  static char array[1 << 17];
  memset(array, 0x7f, sizeof array);
  array_money_put array_facet;
  char* end = array_facet.put(array, intl, stream, fill, amount);
  FUZZ_CHECK(end >= array && end < array + sizeof array - 1);
  FUZZ_CHECK(*end == 0x7f);
  FUZZ_CHECK(stream.width() == width);
  const std::money_put<char>& facet = std::use_facet<std::money_put<char> >(loc);
  money_out after = facet.put(money_out(stream.rdbuf()), intl, stream, fill, amount);
  FUZZ_CHECK(!after.failed());
  FUZZ_CHECK(stream.str() == std::string(array, static_cast<size_t>(end - array)));
  // Padding never makes the text shorter than the width asks.
  FUZZ_CHECK(width <= 0 || end - array >= width);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  unsigned action = in.below(4);
  bool intl = in.flag();
  char local_formats[2][5], intl_formats[2][5];
  money_values local = chosen_values(in, local_formats[0], local_formats[1]);
  money_values international = chosen_values(in, intl_formats[0], intl_formats[1]);
  std::locale loc = money_locale(local, international);
  std::ios_base::fmtflags flags = chosen_flags(in);
  switch (action) {
  case 0:
  case 1:
    read(in.rest(), loc, intl, flags, action == 0);
    break;
  case 2: {
    long width = static_cast<long>(in.below(64));
    char fill = static_cast<char>(in.byte());
    write(in.bytes(4096), loc, intl, flags, width, fill);
    break;
  }
  default: {
    long width = static_cast<long>(in.below(64));
    char fill = static_cast<char>(in.byte());
    long double units;
    std::string bits = in.bytes(sizeof units);
    memset(&units, 0, sizeof units);
    memcpy(&units, bits.data(), bits.size());
    write(units, loc, intl, flags, width, fill);
    break;
  }
  }
  return 0;
}
