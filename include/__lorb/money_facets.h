// std::money_get and std::money_put: monetary amounts, as a count of the currency's smallest
// unit, read and written by the four-part patterns of moneypunct<char, Intl>.
#ifndef __LORB_MONEY_FACETS_H
#define __LORB_MONEY_FACETS_H

#include <__lorb/config.h>
#include <__lorb/ctype_facets.h>
#include <__lorb/ios_base.h>
#include <__lorb/locale_core.h>
#include <__lorb/punct_facets.h>
#include <__lorb/streambuf_iterators.h>
#include <string>

namespace __vel {

// The size of the digit buffers of the readers: the digits and their terminator.
const unsigned money_digit_room = 200;

// moneypunct<char, true> when intl, else moneypunct<char, false>; both share this base.
__LORB_EXPORT const moneypunct_char& money_punct(const std::locale& loc, bool intl);

// Do the separators recorded after positions[0..separators) digits split the digits as grouping
// (whose first size is at least 1) says, by the monetary reader's rules?
__LORB_EXPORT bool money_groups_fit(int digits, int separators, const int* positions,
                                    const std::string& grouping);

// The whole text money_put writes for units, padding included.
__LORB_EXPORT std::string money_text(std::ios_base& str, bool intl, char fill, long double units);

} // namespace __vel

namespace std {

template <class _CharT, class _InputIter = istreambuf_iterator<_CharT> >
class __LORB_EXPORT money_get : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _InputIter iter_type;
  typedef basic_string<_CharT> string_type;

  explicit money_get(size_t refs = 0) : locale::facet(refs) {}

  iter_type get(iter_type in, iter_type end, bool intl, ios_base& str, ios_base::iostate& err,
                long double& units) const {
    return do_get(in, end, intl, str, err, units);
  }
  iter_type get(iter_type in, iter_type end, bool intl, ios_base& str, ios_base::iostate& err,
                string_type& digits) const {
    return do_get(in, end, intl, str, err, digits);
  }

  // Reads the value part into digits (money_digit_room bytes, NUL-terminated): the amount in the
  // smallest unit, without a point. count is its length, or 0 when the value is malformed.
  static void extract_value(iter_type& in, iter_type end, bool intl, ios_base& str, char* digits,
                            int& count);

  static locale::id id;

protected:
  virtual ~money_get() {}

  // The virtual operations, in this order.
  virtual iter_type do_get(iter_type in, iter_type end, bool intl, ios_base& str,
                           ios_base::iostate& err, long double& units) const;
  virtual iter_type do_get(iter_type in, iter_type end, bool intl, ios_base& str,
                           ios_base::iostate& err, string_type& digits) const;
};

template <class _CharT, class _OutputIter = ostreambuf_iterator<_CharT> >
class __LORB_EXPORT money_put : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _OutputIter iter_type;
  typedef basic_string<_CharT> string_type;

  explicit money_put(size_t refs = 0) : locale::facet(refs) {}

  iter_type put(iter_type out, bool intl, ios_base& str, char_type fill, long double units) const {
    return do_put(out, intl, str, fill, units);
  }
  iter_type put(iter_type out, bool intl, ios_base& str, char_type fill,
                const string_type& digits) const {
    return do_put(out, intl, str, fill, digits);
  }

  static locale::id id;

protected:
  virtual ~money_put() {}

  // The virtual operations, in this order.
  virtual iter_type do_put(iter_type out, bool intl, ios_base& str, char_type fill,
                           long double units) const;
  virtual iter_type do_put(iter_type out, bool intl, ios_base& str, char_type fill,
                           const string_type& digits) const;
};

// Every instance has its id; the library's two instances of each have theirs in the library.
template <class _CharT, class _InputIter> locale::id money_get<_CharT, _InputIter>::id;
template <> __LORB_EXPORT locale::id money_get<char, istreambuf_iterator<char> >::id;
template <> __LORB_EXPORT locale::id money_get<char, char*>::id;
template <class _CharT, class _OutputIter> locale::id money_put<_CharT, _OutputIter>::id;
template <> __LORB_EXPORT locale::id money_put<char, ostreambuf_iterator<char> >::id;
template <> __LORB_EXPORT locale::id money_put<char, char*>::id;

} // namespace std

#include <__lorb/money_facets_members.h>

#endif
