// Deliberate: the classic thousands separator is the C library's empty one, read as NUL.
#include <locale>
#include <stdio.h>

typedef std::numpunct<char> numpunct_facet;

int main() {
  const std::numpunct<char>& np = std::use_facet<numpunct_facet>(std::locale::classic());
  printf("separator %02x\n", static_cast<unsigned char>(np.thousands_sep()));
  return 0;
}
