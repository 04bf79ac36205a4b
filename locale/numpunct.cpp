// numpunct<char>: number punctuation read once from the C library's LC_NUMERIC conventions.
#include <__lorb/c_locale_switch.h>
#include <__lorb/punct_facets.h>
#include <locale.h>

namespace std {
locale::id numpunct<char>::id;

numpunct<char>::numpunct(const char* name, size_t refs)
    : locale::facet(refs), __decimal_point('.'), __thousands_sep('\0'), __grouping(),
      __truename("true"), __falsename("false") {
  __vel::c_locale_switch reading(LC_NUMERIC, name);
  const lconv* conventions = localeconv();
  __decimal_point = conventions->decimal_point[0];
  // An empty separator (the "C" locale's) gives NUL.
  __thousands_sep = conventions->thousands_sep[0];
  __grouping = conventions->grouping;
}

numpunct<char>::~numpunct() {}

char numpunct<char>::do_decimal_point() const { return __decimal_point; }
char numpunct<char>::do_thousands_sep() const { return __thousands_sep; }
numpunct<char>::string_type numpunct<char>::do_grouping() const { return __grouping; }
numpunct<char>::string_type numpunct<char>::do_truename() const { return __truename; }
numpunct<char>::string_type numpunct<char>::do_falsename() const { return __falsename; }
} // namespace std
