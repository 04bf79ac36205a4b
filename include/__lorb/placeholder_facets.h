// The time and monetary facets that every locale holds but whose formatting and
// parsing are not built yet: each has its id and its place in the locale, and every operation traps.
#ifndef __LORB_PLACEHOLDER_FACETS_H
#define __LORB_PLACEHOLDER_FACETS_H

#include <__lorb/config.h>
#include <__lorb/locale_core.h>
#include <__lorb/streambuf_iterator_fwd.h>
#include <cstddef>
#include <ctime>
#include <string>

namespace __vel {
// Prints "<operation> is not built yet\n" on standard error and aborts.
__LORB_EXPORT __LORB_NORETURN void facet_operation_not_built(const char* operation);
} // namespace __vel

namespace std {

// The space in "> >" is needed by C++98.
// clang-format off
#define __LORB_INPUT_ITERATOR(_CharT) istreambuf_iterator<_CharT, char_traits<_CharT> >
#define __LORB_OUTPUT_ITERATOR(_CharT) ostreambuf_iterator<_CharT, char_traits<_CharT> >
// clang-format on
#define __LORB_NOT_BUILT(operation) __vel::facet_operation_not_built(operation)

// The ids live in the library, for the char instances over the stream-buffer iterators. The
// stream state argument is a template parameter only because ios_base is not complete here.
class __LORB_EXPORT time_base {
public:
  enum dateorder { no_order, dmy, mdy, ymd, ydm };
};

template <class _CharT, class _InputIter = __LORB_INPUT_ITERATOR(_CharT)>
class __LORB_EXPORT time_get : public locale::facet, public time_base {
public:
  typedef _CharT char_type;
  typedef _InputIter iter_type;
  explicit time_get(size_t refs = 0) : locale::facet(refs) {}
  static locale::id id;

  dateorder date_order() const { __LORB_NOT_BUILT("time_get::date_order"); }
  template <class _State> iter_type get_time(iter_type, iter_type, ios_base&, _State&, tm*) const {
    __LORB_NOT_BUILT("time_get::get_time");
  }
  template <class _State> iter_type get_date(iter_type, iter_type, ios_base&, _State&, tm*) const {
    __LORB_NOT_BUILT("time_get::get_date");
  }
  template <class _State>
  iter_type get_weekday(iter_type, iter_type, ios_base&, _State&, tm*) const {
    __LORB_NOT_BUILT("time_get::get_weekday");
  }
  template <class _State>
  iter_type get_monthname(iter_type, iter_type, ios_base&, _State&, tm*) const {
    __LORB_NOT_BUILT("time_get::get_monthname");
  }
  template <class _State> iter_type get_year(iter_type, iter_type, ios_base&, _State&, tm*) const {
    __LORB_NOT_BUILT("time_get::get_year");
  }

protected:
  ~time_get() {}
};

template <class _CharT, class _OutputIter = __LORB_OUTPUT_ITERATOR(_CharT)>
class __LORB_EXPORT time_put : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _OutputIter iter_type;
  explicit time_put(size_t refs = 0) : locale::facet(refs) {}
  static locale::id id;

  iter_type put(iter_type, ios_base&, char_type, const tm*, const char_type*,
                const char_type*) const {
    __LORB_NOT_BUILT("time_put::put");
  }
  iter_type put(iter_type, ios_base&, char_type, const tm*, char, char = 0) const {
    __LORB_NOT_BUILT("time_put::put");
  }

protected:
  ~time_put() {}
};

template <class _CharT, class _InputIter = __LORB_INPUT_ITERATOR(_CharT)>
class __LORB_EXPORT money_get : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _InputIter iter_type;
  typedef basic_string<_CharT> string_type;
  explicit money_get(size_t refs = 0) : locale::facet(refs) {}
  static locale::id id;

  template <class _State, class _Value>
  iter_type get(iter_type, iter_type, bool, ios_base&, _State&, _Value&) const {
    __LORB_NOT_BUILT("money_get::get");
  }

protected:
  ~money_get() {}
};

template <class _CharT, class _OutputIter = __LORB_OUTPUT_ITERATOR(_CharT)>
class __LORB_EXPORT money_put : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _OutputIter iter_type;
  typedef basic_string<_CharT> string_type;
  explicit money_put(size_t refs = 0) : locale::facet(refs) {}
  static locale::id id;

  template <class _Value>
  iter_type put(iter_type, bool, ios_base&, char_type, const _Value&) const {
    __LORB_NOT_BUILT("money_put::put");
  }

protected:
  ~money_put() {}
};

#undef __LORB_INPUT_ITERATOR
#undef __LORB_OUTPUT_ITERATOR
#undef __LORB_NOT_BUILT

} // namespace std

#endif
