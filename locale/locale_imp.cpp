// The locale's shared representation: building its facets by category, copying, releasing.
#include <__lorb/ctype_facets.h>
#include <__lorb/locale_core.h>
#include <__lorb/money_facets.h>
#include <__lorb/num_get.h>
#include <__lorb/num_put.h>
#include <__lorb/punct_facets.h>
#include <__lorb/time_facets.h>
#include <string.h>

namespace std {
namespace {

typedef istreambuf_iterator<char, char_traits<char> > input_iterator;
typedef ostreambuf_iterator<char, char_traits<char> > output_iterator;

// Index 0 unused, then one slot for each of the twelve standard facets.
const unsigned standard_table_size = 13;

void store(locale::imp& to, locale::facet* made, const locale::id& under) {
  unsigned index = under.__number();
  if (index >= to.facets.size)
    to.facets.resize(index + 1, 0);
  to.facets.data[index] = made;
  ++made->__refs;
}

template <class _Facet> void store(locale::imp& to, _Facet* made) { store(to, made, _Facet::id); }

} // namespace

// The creation order numbers the ids of a fresh process: numeric, ctype, collate, time, monetary.
locale::imp::imp(const char* given_name, int cats) : name(given_name), refs(1) {
  facets.resize(standard_table_size, 0);
  const char* byname = strcmp(given_name, "*") == 0 ? "C" : given_name;
  if (cats & locale::numeric) {
    store(*this, new numpunct<char>(byname, 0));
    store(*this, new num_get<char, input_iterator>(0));
    store(*this, new num_put<char, output_iterator>(0));
  }
  if (cats & locale::ctype) {
    store(*this, new std::ctype<char>(std::ctype<char>::classic_table, false, 0));
    store(*this, new codecvt<char, char, int>(0));
  }
  if (cats & locale::collate)
    store(*this, new std::collate<char>(0));
  if (cats & locale::time) {
    store(*this, new time_put<char, output_iterator>(0));
    store(*this, new time_get<char, input_iterator>(0));
  }
  if (cats & locale::monetary) {
    store(*this, new moneypunct_byname<char, true>(byname, 0), moneypunct<char, true>::id);
    store(*this, new moneypunct_byname<char, false>(byname, 0), moneypunct<char, false>::id);
    store(*this, new money_put<char, output_iterator>(0));
    store(*this, new money_get<char, input_iterator>(0));
  }
}

locale::imp::imp(const imp& source) : name(source.name), refs(1) {
  facets.assign(source.facets, source.facets.size);
  for (unsigned i = 1; i < facets.size; ++i) {
    facet* shared = facets.data[i];
    if (shared && shared->__managed)
      ++shared->__refs;
  }
}

locale::imp::~imp() {
  for (unsigned i = 1; i < facets.size; ++i)
    if (facets.data[i])
      facets.data[i]->__release();
  if (facets.data)
    facets.resize(0, 0);
}

} // namespace std
