// Locale costs: copying and destroying a handle, facet lookup, building a named locale.
#include "bench.h"
#include <locale>

typedef std::ctype<char> ctype_facet;
typedef std::numpunct<char> numpunct_facet;

int main() {
  std::locale global;
  long copies = 2000000;
  double start = bench::now_ns();
  for (long i = 0; i < copies; ++i) {
    std::locale copy(global);
    bench::keep(&copy);
  }
  bench::report("locale_copy_and_destroy", start, copies);

  long lookups = 5000000;
  start = bench::now_ns();
  for (long i = 0; i < lookups; ++i) {
    const std::ctype<char>& classifier = std::use_facet<ctype_facet>(global);
    bench::keep(&classifier);
  }
  bench::report("use_facet_ctype", start, lookups);

  start = bench::now_ns();
  for (long i = 0; i < lookups; ++i) {
    bool present = std::has_facet<numpunct_facet>(global);
    bench::keep(&present);
  }
  bench::report("has_facet_numpunct", start, lookups);

  long named = 2000;
  start = bench::now_ns();
  for (long i = 0; i < named; ++i) {
    std::locale german("de_DE.UTF-8");
    bench::keep(&german);
  }
  bench::report("named_locale_build_and_destroy", start, named);
  return 0;
}
