// Combining locales by category: a copy of one locale with some facets taken from another.
#include <__lorb/ctype_facets.h>
#include <__lorb/locale_core.h>
#include <__lorb/money_facets.h>
#include <__lorb/num_get.h>
#include <__lorb/num_put.h>
#include <__lorb/punct_facets.h>
#include <__lorb/time_facets.h>
#include <locale.h>
#include <stdexcept>

namespace std {

typedef istreambuf_iterator<char, char_traits<char> > __input_iterator;
typedef ostreambuf_iterator<char, char_traits<char> > __output_iterator;

// The name stays other's: no combined name is composed.
locale::locale(const locale& other, const char* std_name, category cats)
    : __imp(new imp(*other.__imp)) {
  basic_string<char> kept(setlocale(LC_ALL, 0));
  if (!std_name || !setlocale(LC_ALL, std_name)) {
    delete __imp;
    runtime_error::__throw(__vel::invalid_locale_name_message);
  }
  imp* temporary = new imp(std_name, cats);
  set_cat(temporary, cats);
  delete temporary;
  setlocale(LC_ALL, kept.c_str());
}

locale::locale(const locale& other, const locale& one, category cats)
    : __imp(new imp(*other.__imp)) {
  set_cat(one.__imp, cats);
}

// The incoming facet is counted before the one it replaces is released, as in set_imp.
void locale::__with_facet(const locale& other, facet* f, const id& i) {
  __imp = new imp(*other.__imp);
  if (!f)
    return;
  __imp->name = "*";
  unsigned index = i.__number();
  if (__imp->facets.size <= index)
    __imp->facets.resize(index + 1, 0);
  if (f->__managed)
    ++f->__refs;
  facet* old = __imp->facets.data[index];
  if (old)
    old->__release();
  __imp->facets.data[index] = f;
}

// Kept narrower than what a representation creates: codecvt does not travel with ctype, and the
// time and messages categories copy nothing.
void locale::set_cat(imp* source, category cats) {
  if (static_cast<signed char>(cats) < 0) { // numeric, 0x80: the sign bit of the low byte
    set_imp(source, numpunct<char>::id);
    set_imp(source, num_put<char, __output_iterator>::id);
    set_imp(source, num_get<char, __input_iterator>::id);
  }
  if (cats & ctype)
    set_imp(source, std::ctype<char>::id);
  if (cats & monetary) {
    set_imp(source, moneypunct<char, true>::id);
    set_imp(source, moneypunct<char, false>::id);
    set_imp(source, money_put<char, __output_iterator>::id);
    set_imp(source, money_get<char, __input_iterator>::id);
  }
  if (cats & collate)
    set_imp(source, std::collate<char>::id);
}

// A facet absent from the source never removes one from this locale. The incoming facet is
// counted before the old one is released, so replacing a facet by itself is safe.
void locale::set_imp(imp* source, const id& i) {
  unsigned index = i.__number();
  if (__imp->facets.size <= index)
    __imp->facets.resize(index + 1, 0);
  facet* old = __imp->facets.data[index];
  // An index equal to the source table's size is past its end: absent, not read.
  facet* incoming = index == 0 || index >= source->facets.size ? 0 : source->facets.data[index];
  if (!incoming)
    return;
  if (incoming->__managed)
    ++incoming->__refs;
  if (old)
    old->__release();
  __imp->facets.data[index] = incoming;
}

} // namespace std
