// Deliberate: NUL belongs to no class at all in the classic table, not even cntrl.
#include <locale>
#include <stdio.h>

typedef std::ctype<char> ctype_facet;

int main() {
  const std::ctype<char>& facet = std::use_facet<ctype_facet>(std::locale::classic());
  printf("cntrl(NUL) %d\n", facet.is(std::ctype_base::cntrl, '\0') ? 1 : 0);
  printf("cntrl(DEL) %d\n", facet.is(std::ctype_base::cntrl, '\x7f') ? 1 : 0);
  return 0;
}
