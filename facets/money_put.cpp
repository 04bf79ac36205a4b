// std::money_put: the library's two instances, their ids, and the text of an amount, built the
// same for every iterator.
#include <__lorb/money_facets.h>
#include <__lorb/num_put.h>
#include <locale.h>
#include <stdio.h>
#include <string.h>

namespace __vel {

namespace {

// The value part: units in the smallest unit, printed with frac_digits digits after the locale's
// decimal point and grouped by its grouping.
std::string value_text(const moneypunct_char& punct, long double units) {
  // Settled: a negative count of fraction digits prints no fraction.
  int fraction = punct.frac_digits() < 0 ? 0 : punct.frac_digits();
  for (int i = 0; i < fraction; ++i)
    units /= 10;
  // Sized by a first measuring call, so that no amount is cut short or written past the end.
  int needed = snprintf(0, 0, "%.*Lf", fraction, units);
  if (needed < 0)
    needed = 0;
  unsigned length = static_cast<unsigned>(needed);
  // Room for a separator between every two characters, as the grouping walk needs.
  std::string text(2 * length + 2, '\0');
  char* chars = &text[0];
  snprintf(chars, length + 1, "%.*Lf", fraction, units);

  unsigned integer_end = length;
  const char* c_point = localeconv()->decimal_point;
  size_t point_length = strlen(c_point);
  for (unsigned at = length; point_length != 0 && at >= point_length; --at)
    if (memcmp(chars + at - point_length, c_point, point_length) == 0) {
      integer_end = at - static_cast<unsigned>(point_length);
      chars[integer_end] = punct.decimal_point();
      memmove(chars + integer_end + 1, chars + at, length - at + 1);
      length -= static_cast<unsigned>(point_length) - 1;
      break;
    }

  unsigned prefix = 0;
  if (chars[0] == '0')
    prefix = (chars[1] == 'x' || chars[1] == 'X') ? 2 : 1;
  else if (chars[0] == '+' || chars[0] == '-')
    prefix = 1;
  // The sizes are the low four bits of each byte up to a 127, handed to the numbers' grouping
  // walk. Settled: a size of 0 is never stepped onto; the size before it repeats instead (a 0
  // first means no grouping), so a repeated 0, which would never finish, cannot arise.
  const std::string grouping = punct.grouping();
  std::string sizes;
  for (std::string::size_type i = 0; i < grouping.size(); ++i) {
    if (static_cast<unsigned char>(grouping[i]) == 127) {
      sizes += grouping[i];
      break;
    }
    sizes += static_cast<char>(grouping[i] & 15);
  }
  if (!sizes.empty()) {
    integer_end = insert_group_placeholders(chars, length, integer_end, prefix, sizes.c_str());
    replace_placeholders(chars, integer_end, punct.thousands_sep());
  }
  text.resize(length);
  return text;
}

} // namespace

// The parts in order; none and space both write one fill character and mark the internal
// padding point.
std::string money_text(std::ios_base& str, bool intl, char fill, long double units) {
  const moneypunct_char& punct = money_punct(str.__locale, intl);
  bool negative = units < 0;
  std::money_base::pattern format = negative ? punct.neg_format() : punct.pos_format();
  std::string sign = negative ? punct.negative_sign() : punct.positive_sign();
  if (negative)
    units = -units;

  std::string text;
  bool has_padding_point = false;
  std::string::size_type padding_point = 0;
  for (int i = 0; i < 4; ++i) {
    switch (format.field[i]) {
    case std::money_base::none:
    case std::money_base::space:
      padding_point = text.size();
      has_padding_point = true;
      text += fill;
      break;
    case std::money_base::sign:
      text += sign.size() < 2 ? sign : sign.substr(0, 1);
      break;
    case std::money_base::symbol:
      if (str.flags() & std::ios_base::showbase)
        text += punct.curr_symbol();
      break;
    case std::money_base::value:
      text += value_text(punct, units);
      break;
    default: // any other character is ignored
      break;
    }
  }
  if (sign.size() >= 2)
    text += sign.c_str() + 1; // up to its first NUL

  long width = str.width();
  if (width > static_cast<long>(text.size())) {
    std::string::size_type pad = static_cast<std::string::size_type>(width) - text.size();
    long adjust = str.flags() & std::ios_base::adjustfield;
    // Settled: any adjustment but exactly left or exactly internal, and internal in a pattern
    // with no none or space part, pad at the start.
    std::string::size_type at = 0;
    if (adjust == std::ios_base::left)
      at = text.size();
    else if (adjust == std::ios_base::internal && has_padding_point)
      at = padding_point;
    text.insert(at, pad, fill);
  }
  // Kept: the width is not reset.
  return text;
}

} // namespace __vel

namespace std {

template <> __LORB_EXPORT locale::id money_put<char, ostreambuf_iterator<char> >::id = locale::id();
template <> __LORB_EXPORT locale::id money_put<char, char*>::id = locale::id();

template class money_put<char, ostreambuf_iterator<char> >;
template class money_put<char, char*>;

} // namespace std
