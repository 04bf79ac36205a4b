// Deliberate: the classic money facets keep the C library's values as they are: no decimal point
// or separator (NUL) and CHAR_MAX fraction digits.
#include <locale>
#include <stdio.h>

template <bool Intl> static void show(const char* title) {
  typedef std::moneypunct<char, Intl> punct;
  const punct& mp = std::use_facet<punct>(std::locale::classic());
  printf("%s: decimal %02x separator %02x fraction digits %d\n", title,
         static_cast<unsigned char>(mp.decimal_point()),
         static_cast<unsigned char>(mp.thousands_sep()), mp.frac_digits());
}

int main() {
  show<false>("local");
  show<true>("international");
  return 0;
}
