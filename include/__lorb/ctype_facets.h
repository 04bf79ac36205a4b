// The character facets for char: ctype_base and ctype<char>, codecvt<char, char, int>,
// collate<char>.
#ifndef __LORB_CTYPE_FACETS_H
#define __LORB_CTYPE_FACETS_H

#include <__lorb/config.h>
#include <__lorb/locale_core.h>
#include <cstddef>
#include <string>

namespace std {
class __LORB_EXPORT ctype_base {
public:
  typedef unsigned int mask;
  static const mask space = 0x001;
  static const mask print = 0x002;
  static const mask cntrl = 0x004;
  static const mask upper = 0x008;
  static const mask lower = 0x010;
  static const mask alpha = 0x020;
  static const mask digit = 0x040;
  static const mask punct = 0x080;
  static const mask xdigit = 0x100;
  // Tables carry only the nine bits above, so the composite classes are their unions.
  static const mask alnum = alpha | digit;
  static const mask graph = alnum | punct;
};

template <class _CharT> class ctype;

// Classification and case mapping of single bytes through the fixed tables of the "C" locale,
// whatever the name of the locale that holds the facet.
//
// Layout note: g++ puts the virtual-table pointer first and keeps the destructor in the slot the
// facet base gave it, ahead of the do_ operations; the do_ operations keep their written order.
template <> class __LORB_EXPORT ctype<char> : public locale::facet, public ctype_base {
public:
  typedef char char_type;

  // A null table means classic_table; an owned table is freed with delete[] by the destructor.
  explicit ctype(const mask* table = 0, bool owns_table = false, size_t refs = 0);

  bool is(mask m, char c) const { return (__table[static_cast<unsigned char>(c)] & m) != 0; }
  const char* is(const char* low, const char* high, mask* vec) const;
  const char* scan_is(mask m, const char* low, const char* high) const;
  const char* scan_not(mask m, const char* low, const char* high) const;

  char toupper(char c) const { return do_toupper(c); }
  const char* toupper(char* low, const char* high) const { return do_toupper(low, high); }
  char tolower(char c) const { return do_tolower(c); }
  const char* tolower(char* low, const char* high) const { return do_tolower(low, high); }
  char widen(char c) const { return do_widen(c); }
  const char* widen(const char* low, const char* high, char* to) const {
    return do_widen(low, high, to);
  }
  char narrow(char c, char dfault) const { return do_narrow(c, dfault); }
  const char* narrow(const char* low, const char* high, char dfault, char* to) const {
    return do_narrow(low, high, dfault, to);
  }

  const mask* table() const __LORB_NOEXCEPT { return __table; }

  static locale::id id;
  static const size_t table_size = 256;
  // One mask per byte value, indexed by the unsigned value.
  static const mask classic_table[table_size];
  // Entry 0 is for end-of-file (-1), entry c + 1 maps byte value c, the last entry is 0.
  static const short toupper_tab[table_size + 2];
  static const short tolower_tab[table_size + 2];

protected:
  virtual char do_toupper(char c) const;
  virtual const char* do_toupper(char* low, const char* high) const;
  virtual char do_tolower(char c) const;
  virtual const char* do_tolower(char* low, const char* high) const;
  virtual char do_widen(char c) const;
  virtual const char* do_widen(const char* low, const char* high, char* to) const;
  virtual char do_narrow(char c, char dfault) const;
  virtual const char* do_narrow(const char* low, const char* high, char dfault, char* to) const;
  virtual ~ctype();

private:
  const mask* __table;
  bool __owns_table;
};

class __LORB_EXPORT codecvt_base {
public:
  enum result { ok, partial, error, noconv };
};

template <class _InternT, class _ExternT, class _StateT> class codecvt;

// The identity conversion: every operation reports that no conversion is needed.
template <>
class __LORB_EXPORT codecvt<char, char, int> : public locale::facet, public codecvt_base {
public:
  typedef char intern_type;
  typedef char extern_type;
  typedef int state_type;

  explicit codecvt(size_t refs = 0) : locale::facet(refs) {}

  result out(state_type& state, const intern_type* from, const intern_type* from_end,
             const intern_type*& from_next, extern_type* to, extern_type* to_limit,
             extern_type*& to_next) const {
    return do_out(state, from, from_end, from_next, to, to_limit, to_next);
  }
  result unshift(state_type& state, extern_type* to, extern_type* to_limit,
                 extern_type*& to_next) const {
    return do_unshift(state, to, to_limit, to_next);
  }
  result in(state_type& state, const extern_type* from, const extern_type* from_end,
            const extern_type*& from_next, intern_type* to, intern_type* to_limit,
            intern_type*& to_next) const {
    return do_in(state, from, from_end, from_next, to, to_limit, to_next);
  }
  bool always_noconv() const __LORB_NOEXCEPT { return do_always_noconv(); }
  int length(state_type& state, const extern_type* from, const extern_type* from_end,
             size_t max) const {
    return do_length(state, from, from_end, max);
  }
  int max_length() const __LORB_NOEXCEPT { return do_max_length(); }

  static locale::id id;

protected:
  virtual ~codecvt();
  virtual result do_out(state_type& state, const intern_type* from, const intern_type* from_end,
                        const intern_type*& from_next, extern_type* to, extern_type* to_limit,
                        extern_type*& to_next) const;
  virtual result do_unshift(state_type& state, extern_type* to, extern_type* to_limit,
                            extern_type*& to_next) const;
  virtual result do_in(state_type& state, const extern_type* from, const extern_type* from_end,
                       const extern_type*& from_next, intern_type* to, intern_type* to_limit,
                       intern_type*& to_next) const;
  virtual bool do_always_noconv() const __LORB_NOEXCEPT;
  virtual int do_length(state_type& state, const extern_type* from, const extern_type* from_end,
                        size_t max) const;
  virtual int do_max_length() const __LORB_NOEXCEPT;
};

template <class _CharT> class collate;

// Comparison, transformation and hashing of strings through the C library's collation.
template <> class __LORB_EXPORT collate<char> : public locale::facet {
public:
  typedef char char_type;
  typedef basic_string<char> string_type;

  explicit collate(size_t refs = 0) : locale::facet(refs) {}

  int compare(const char* low1, const char* high1, const char* low2, const char* high2) const {
    return do_compare(low1, high1, low2, high2);
  }
  string_type transform(const char* low, const char* high) const { return do_transform(low, high); }
  long hash(const char* low, const char* high) const { return do_hash(low, high); }

  static locale::id id;

protected:
  virtual ~collate();
  virtual int do_compare(const char* low1, const char* high1, const char* low2,
                         const char* high2) const;
  virtual string_type do_transform(const char* low, const char* high) const;
  virtual long do_hash(const char* low, const char* high) const;
};
template <class _CharT, class _Traits, class _Alloc>
bool locale::operator()(const basic_string<_CharT, _Traits, _Alloc>& a,
                        const basic_string<_CharT, _Traits, _Alloc>& b) const {
  return use_facet<std::collate<_CharT> >(*this).compare(a.data(), a.data() + a.size(), b.data(),
                                                         b.data() + b.size()) < 0;
}

} // namespace std

#endif
