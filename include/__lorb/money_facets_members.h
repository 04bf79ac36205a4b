// The members of std::money_get and std::money_put, for any iterator; the library holds the
// instances over the stream-buffer iterators and over char*.
#ifndef __LORB_MONEY_FACETS_MEMBERS_H
#define __LORB_MONEY_FACETS_MEMBERS_H

#include <__lorb/char_runs.h>
#include <__lorb/input_chars.h>
#include <__lorb/money_facets.h>
#include <__lorb/num_get.h>
#include <cstdio>

namespace __vel {

inline bool is_digit(const std::ctype<char>& ct, int c) {
  return c != -1 && ct.is(std::ctype_base::digit, static_cast<char>(c));
}

// Steps past the characters of text that follow in the input, from text[first]; says whether
// all of them did.
template <class _InputIter>
bool match_text(_InputIter& in, _InputIter& end, const std::string& text, std::size_t first) {
  for (std::size_t i = first; i < text.size(); ++i) {
    if (peek_char(in, end) != static_cast<unsigned char>(text[i]))
      return false;
    ++in;
  }
  return true;
}

} // namespace __vel

namespace std {

template <class _CharT, class _InputIter>
void money_get<_CharT, _InputIter>::extract_value(iter_type& in, iter_type end, bool intl,
                                                  ios_base& str, char* digits, int& count) {
  const ctype<char>& ct = use_facet<ctype<char> >(str.__locale);
  const __vel::moneypunct_char& punct = __vel::money_punct(str.__locale, intl);
  const string grouping = punct.grouping();
  const int separator = static_cast<unsigned char>(punct.thousands_sep());
  const int point = static_cast<unsigned char>(punct.decimal_point());
  const int fraction_room = punct.frac_digits();
  // Settled: the digits and their terminator must fit the buffer; a digit with no room left
  // rejects the value (and is not taken), as does a fraction padded past it.
  const int room = __vel::money_digit_room - 1;
  count = 0;
  int copied = 0;
  int c = __vel::peek_char(in, end);

  if (static_cast<signed char>(grouping.c_str()[0]) < 1) {
    for (; __vel::is_digit(ct, c); c = __vel::peek_char(in, end)) {
      if (copied == room)
        return;
      digits[copied++] = static_cast<char>(c);
      ++in;
    }
  } else {
    // A separator follows at least one digit, so there are never more separators than room.
    int positions[__vel::money_digit_room];
    int separators = 0;
    int group = 0;
    for (;;) {
      if (__vel::is_digit(ct, c)) {
        if (copied == room)
          return;
        digits[copied++] = static_cast<char>(c);
        ++group;
        ++in;
      } else if (group != 0 && c == separator && c != -1) {
        ++in;
        c = __vel::peek_char(in, end);
        // Kept: a space separator not followed by a digit ends the value, consumed already.
        if (separator == ' ' && !__vel::is_digit(ct, c))
          break;
        positions[separators++] = copied;
        group = 0;
        continue;
      } else {
        break;
      }
      c = __vel::peek_char(in, end);
    }
    if (separators != 0 &&
        (group == 0 || !__vel::money_groups_fit(copied, separators, positions, grouping)))
      return;
  }

  int fraction = 0;
  if (c == point && c != -1) {
    ++in;
    for (c = __vel::peek_char(in, end); __vel::is_digit(ct, c); c = __vel::peek_char(in, end)) {
      if (fraction >= fraction_room || copied == room)
        return; // too many fraction digits
      digits[copied++] = static_cast<char>(c);
      ++fraction;
      ++in;
    }
  }
  if (copied == 0)
    return;
  // Settled: a fraction padded past the buffer rejects the value; a negative count of fraction
  // digits pads nothing.
  if (fraction < fraction_room) {
    if (fraction_room - fraction > room - copied)
      return;
    for (; fraction < fraction_room; ++fraction)
      digits[copied++] = '0';
  }
  digits[copied] = 0;
  count = copied;
}

// The pattern is always the negative format, whatever sign the input carries.
template <class _CharT, class _InputIter>
_InputIter money_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, bool intl,
                                                 ios_base& str, ios_base::iostate& err,
                                                 string_type& digits) const {
  const ctype<char>& ct = use_facet<ctype<char> >(str.__locale);
  const __vel::moneypunct_char& punct = __vel::money_punct(str.__locale, intl);
  const money_base::pattern format = punct.neg_format();
  const string positive = punct.positive_sign();
  const string negative_text = punct.negative_sign();
  const bool showbase = (str.flags() & ios_base::showbase) != 0;
  bool failed = false, negative = false, pending_sign = false;
  string rest_of_sign;
  char buffer[__vel::money_digit_room];
  int count = 0;

  if (str.flags() & ios_base::skipws)
    __vel::skip_space(in, end, ct);
  for (int i = 0; i < 4 && !failed; ++i) {
    int c = __vel::peek_char(in, end);
    switch (format.field[i]) {
    case money_base::space:
      if (!__vel::is_space(ct, c))
        failed = true;
      else
        __vel::skip_space(in, end, ct);
      break;
    case money_base::none:
      if (i < 3)
        __vel::skip_space(in, end, ct);
      break;
    case money_base::sign:
      if (!positive.empty() && c == static_cast<unsigned char>(positive[0])) {
        ++in;
        negative = false;
        rest_of_sign = positive;
        pending_sign = pending_sign || positive.size() > 1;
      } else if (!negative_text.empty() && c == static_cast<unsigned char>(negative_text[0])) {
        ++in;
        negative = true;
        rest_of_sign = negative_text;
        pending_sign = pending_sign || negative_text.size() > 1;
      } else if (positive.empty() && negative_text.empty()) {
        if (c == '+' || c == '-')
          ++in;
        negative = false; // kept: a '-' reads as positive when the locale has no signs
      } else if (positive.empty()) {
        if (c == '+')
          ++in;
        negative = false;
      } else if (negative_text.empty()) {
        if (c == '-')
          ++in;
        negative = true; // with no negative sign, the absence of the positive one means negative
      } else {
        failed = true;
      }
      if (rest_of_sign.size() == 1)
        rest_of_sign.clear();
      break;
    case money_base::symbol: {
      string symbol = punct.curr_symbol();
      if (!showbase) { // optional: taken only when it starts here, and not last unless a sign waits
        bool may_follow = (i != 3 || pending_sign) && c != -1;
        if (!may_follow || symbol.empty() || c != static_cast<unsigned char>(symbol[0]))
          symbol.clear();
      }
      // Without showbase a partial symbol is accepted.
      if (!__vel::match_text(in, end, symbol, 0) && showbase)
        failed = true;
      break;
    }
    case money_base::value:
      extract_value(in, end, intl, str, buffer, count);
      failed = count == 0;
      break;
    default: // any other character is ignored
      break;
    }
  }
  if (!failed && !rest_of_sign.empty())
    failed = !__vel::match_text(in, end, rest_of_sign, 1);
  if (failed) {
    err |= ios_base::failbit;
    return in;
  }
  digits.assign(buffer, count);
  if (negative)
    digits.insert(digits.begin(), '-');
  return in;
}

template <class _CharT, class _InputIter>
_InputIter money_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, bool intl,
                                                 ios_base& str, ios_base::iostate& err,
                                                 long double& units) const {
  string_type digits;
  in = do_get(in, end, intl, str, err, digits);
  // Settled: a result the 200-byte text cannot hold whole is rejected rather than cut short.
  if (digits.size() >= __vel::money_digit_room) {
    err |= ios_base::failbit;
    return in;
  }
  char text[__vel::money_digit_room];
  digits.copy(text, digits.size());
  text[digits.size()] = 0;
  long double value = 0;
  if (sscanf(text, "%Lf", &value) > 0)
    units = value;
  else
    err |= ios_base::failbit;
  return in;
}

template <class _CharT, class _OutputIter>
_OutputIter money_put<_CharT, _OutputIter>::do_put(iter_type out, bool intl, ios_base& str,
                                                   char_type fill, long double units) const {
  const string text = __vel::money_text(str, intl, fill, units);
  return __vel::put_chars(out, text.data(), text.size());
}

// An optional sign, then the digits up to the first other character ('.' included).
template <class _CharT, class _OutputIter>
_OutputIter money_put<_CharT, _OutputIter>::do_put(iter_type out, bool intl, ios_base& str,
                                                   char_type fill,
                                                   const string_type& digits) const {
  const ctype<char>& ct = use_facet<ctype<char> >(str.__locale);
  typename string_type::size_type i = 0;
  bool negative = false;
  if (!digits.empty() && (digits[0] == '-' || digits[0] == '+')) {
    negative = digits[0] == '-';
    ++i;
  }
  long double value = 0;
  for (; i < digits.size() && ct.is(ctype_base::digit, digits[i]); ++i)
    value = value * 10 + __numeric_digits<char>::value(digits[i], 10);
  return do_put(out, intl, str, fill, negative ? -value : value);
}

#if __cplusplus >= 201103L
// The library holds these; a program need not compile them again.
extern template class money_get<char, istreambuf_iterator<char> >;
extern template class money_get<char, char*>;
extern template class money_put<char, ostreambuf_iterator<char> >;
extern template class money_put<char, char*>;
#endif

} // namespace std

#endif
