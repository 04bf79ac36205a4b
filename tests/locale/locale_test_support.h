// What the locale tests share: the facet table of a locale, a counted facet, and running a
// statement in a child that reports the C library locale when it aborts.
#ifndef LOCALE_TEST_SUPPORT_H
#define LOCALE_TEST_SUPPORT_H

#include <locale.h>
#include <locale>
#include <signal.h>
#include <string.h>
#include <unistd.h>

typedef std::istreambuf_iterator<char, std::char_traits<char> > input_iterator;
typedef std::ostreambuf_iterator<char, std::char_traits<char> > output_iterator;
// Names without commas, for use inside the check macros.
typedef std::num_get<char, input_iterator> num_get_facet;
typedef std::num_put<char, output_iterator> num_put_facet;
typedef std::time_get<char, input_iterator> time_get_facet;
typedef std::time_put<char, output_iterator> time_put_facet;
typedef std::money_get<char, input_iterator> money_get_facet;
typedef std::money_put<char, output_iterator> money_put_facet;
typedef std::codecvt<char, char, int> codecvt_facet;

template <class _Facet> const std::locale::facet* facet_of(const std::locale& loc) {
  return &std::use_facet<_Facet>(loc);
}

inline unsigned refs_of(const std::locale& loc) { return loc.__imp->refs; }

// A ctype facet that counts its destructions.
static int counted_ctype_destroyed = 0;
struct counted_ctype : std::ctype<char> {
  explicit counted_ctype(size_t refs) : std::ctype<char>(0, false, refs) {}
  ~counted_ctype() { ++counted_ctype_destroyed; }
};

// Puts a facet into the table of a locale that owns its representation alone, as a locale built
// with the facet would hold it.
inline void place(std::locale& loc, std::locale::facet* f, const std::locale::id& under) {
  std::locale::facet*& slot = loc.__imp->facets.data[under.__number()];
  if (slot)
    slot->__release();
  slot = f;
  if (f->__managed)
    ++f->__refs;
}

// On SIGABRT the child writes the C library's locale name on standard output, then dies.
inline void print_c_locale_and_die(int) {
  const char* name = setlocale(LC_ALL, 0);
  write(1, name, strlen(name));
  signal(SIGABRT, SIG_DFL);
  raise(SIGABRT);
}

inline void report_c_locale_on_abort(const char* c_locale) {
  setlocale(LC_ALL, c_locale);
  signal(SIGABRT, print_c_locale_and_die);
}

#endif
