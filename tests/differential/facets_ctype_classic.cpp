// ctype<char> of the classic locale: the classes, case mappings, widen and narrow of every byte.
// NUL's cntrl class differs on purpose and is left to facets_ctype_nul.
#include <locale>
#include <stdio.h>

typedef std::ctype<char> ct;

int main() {
  const ct& facet = std::use_facet<ct>(std::locale::classic());
  static const ct::mask masks[] = {ct::space,  ct::print, ct::cntrl, ct::upper,
                                   ct::lower,  ct::alpha, ct::digit, ct::punct,
                                   ct::xdigit, ct::alnum, ct::graph};
  static const char* const names[] = {"space", "print", "cntrl",  "upper", "lower", "alpha",
                                      "digit", "punct", "xdigit", "alnum", "graph"};
  for (int c = 0; c < 256; ++c) {
    char ch = static_cast<char>(c);
    printf("%02x:", c);
    for (int m = 0; m < 11; ++m)
      if (!(c == 0 && masks[m] == ct::cntrl) && facet.is(masks[m], ch))
        printf(" %s", names[m]);
    printf(" | up %02x low %02x widen %02x narrow %02x\n",
           static_cast<unsigned char>(facet.toupper(ch)),
           static_cast<unsigned char>(facet.tolower(ch)),
           static_cast<unsigned char>(facet.widen(ch)),
           static_cast<unsigned char>(facet.narrow(ch, '?')));
  }

  char text[] = "Mixed Case, 42 \xe9t\xc9!";
  const char* end = text + sizeof text - 1;
  printf("first digit at %d\n", static_cast<int>(facet.scan_is(ct::digit, text, end) - text));
  printf("first non-alpha at %d\n", static_cast<int>(facet.scan_not(ct::alpha, text, end) - text));
  printf("first non-print at %d\n", static_cast<int>(facet.scan_not(ct::print, text, end) - text));
  ct::mask vec[sizeof text];
  facet.is(text, end, vec);
  for (const char* p = text; p != end; ++p)
    printf("%c", (vec[p - text] & ct::upper) ? 'U' : (vec[p - text] & ct::lower) ? 'l' : '.');
  printf("\n");
  facet.toupper(text, end);
  printf("%s\n", text);
  facet.tolower(text, end);
  printf("%s\n", text);
  char copy[sizeof text];
  facet.narrow(text, end + 1, '?', copy);
  printf("%s\n", copy);
  return 0;
}
