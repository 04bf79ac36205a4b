// std::locale: the handle, its shared representation, the facet base, facet ids and lookup.
#ifndef __LORB_LOCALE_CORE_H
#define __LORB_LOCALE_CORE_H

#include <__lorb/config.h>
#include <__lorb/error.h>
#include <__lorb/exception_classes.h>
#include <__lorb/lw_vector.h>
#include <cstddef>
#include <string>

namespace std {

class __LORB_EXPORT locale {
public:
  class facet;
  class id;
  class imp;

  typedef int category;
  static const category none = 0;
  static const category collate = 0x10;
  static const category ctype = 0x20;
  static const category monetary = 0x40;
  static const category numeric = 0x80;
  static const category time = 0x100;
  static const category messages = 0x200;
  static const category all = 0x3F0;

  // The global locale (the classic one unless the program changed global_).
  locale();
  locale(const locale& other) __LORB_NOEXCEPT : __imp(other.__imp) { ++__imp_refs(); }
  // Every category from the named C library locale; a bad or null name is fatal.
  explicit locale(const char* std_name);
  // A copy of other whose facets of the categories cats come from the named C library locale.
  locale(const locale& other, const char* std_name, category cats);
  // A copy of other whose facets of the categories cats come from one.
  locale(const locale& other, const locale& one, category cats);
  // A copy of other, without a name ("*"), holding f in the place of its facet class (a null f
  // changes nothing). A facet built with refs == 0 is then deleted with its last locale.
  template <class _Facet> locale(const locale& other, _Facet* f) {
    __with_facet(other, f, _Facet::id);
  }
  const locale& operator=(const locale& other);
  ~locale();

  basic_string<char> name() const;
  // The same representation, or two locales with the same name other than "*".
  bool operator==(const locale& other) const;
  bool operator!=(const locale& other) const { return !(*this == other); }
  // Compares two strings with this locale's collate<char>.
  template <class _CharT, class _Traits, class _Alloc>
  bool operator()(const basic_string<_CharT, _Traits, _Alloc>& a,
                  const basic_string<_CharT, _Traits, _Alloc>& b) const;

  // Makes loc the locale that default-constructed locales copy, and, when loc has a name, the C
  // library's locale too; returns the previous global locale.
  static locale global(const locale& loc);
  static const locale& classic();

  // The facet of id i, or null; assigns i a number on its first use.
  facet* __find(const id& i) const;

  // The imp of the global locale; null until the first default construction.
  static imp* global_;
  imp* __imp;

private:
  void __with_facet(const locale& other, facet* f, const id& i);
  unsigned& __imp_refs() const;
  void set_imp(imp* source, const id& i);
  void set_cat(imp* source, category cats);
};

// The base of every facet. A facet built with refs == 0 is managed: the locales that hold it
// count it and the last one deletes it; any other facet belongs to its creator.
class __LORB_EXPORT locale::facet {
protected:
  explicit facet(size_t refs = 0) : __managed(refs == 0), __refs(0) {}
  virtual ~facet();

public:
  // g++ puts the virtual-table pointer ahead of these two fields.
  bool __managed;
  unsigned __refs; // facet tables holding this facet, counted only when managed

  // Drops one table's hold on the facet: a managed facet is deleted with its last holder.
  void __release();

private:
  facet(const facet&);
  facet& operator=(const facet&);
};

// A facet class's number in every facet table: 0 until the class is first used, then the next
// value of a process-wide counter, so numbers follow the order of first use.
class __LORB_EXPORT locale::id {
public:
  // Ids are static members, zero before any use.
#if __cplusplus >= 201103L
  constexpr id() : __value(0) {}
#else
  id() {} // static storage is zero already; writing it here could undo an earlier numbering
#endif

  // Gives this id the next number; called only while it is 0.
  void init() const;
  unsigned __number() const {
    if (!__value)
      init();
    return __value;
  }

  mutable unsigned __value;

private:
  id(const id&);
  id& operator=(const id&);
};

// The representation that locale handles share.
class __LORB_EXPORT locale::imp {
public:
  // A representation named name with newly created facets for the categories cats.
  imp(const char* name, int cats);
  // A representation with source's name and facets (their counts taken) and one handle.
  explicit imp(const imp& source);
  // Releases the facets from index 1 upward, then the table.
  ~imp();

  basic_string<char> name;
  unsigned refs;                           // handles sharing this representation
  __vel::lw_vector<locale::facet*> facets; // indexed by facet id; slot 0 is never used

private:
  imp& operator=(const imp&);
};

inline unsigned& locale::__imp_refs() const { return __imp->refs; }

inline locale::facet* locale::__find(const id& i) const {
  unsigned n = i.__number();
  return n < __imp->facets.size ? __imp->facets.data[n] : 0;
}

template <class _Facet> inline const _Facet& use_facet(const locale& loc) {
  locale::facet* found = loc.__find(_Facet::id);
  if (!found)
    bad_cast::__throw(__vel::facet_not_present_message);
  return static_cast<const _Facet&>(*found);
}

template <class _Facet> inline bool has_facet(const locale& loc) __LORB_NOEXCEPT {
  return loc.__find(_Facet::id) != 0;
}

} // namespace std

#endif
