// numpunct<char> of the classic locale and of named locales built from the C library's data.
// The classic thousands separator differs on purpose and is left to facets_numpunct_classic_sep.
#include <locale>
#include <stdio.h>
#include <string>

typedef std::numpunct<char> numpunct_facet;

static void show(const char* title, const std::locale& loc) {
  const std::numpunct<char>& np = std::use_facet<numpunct_facet>(loc);
  std::string grouping = np.grouping();
  printf("%s: decimal '%c' grouping [", title, np.decimal_point());
  for (std::string::size_type i = 0; i < grouping.size(); ++i)
    printf(" %d", grouping[i]);
  printf(" ] true \"%s\" false \"%s\"\n", np.truename().c_str(), np.falsename().c_str());
}

static void show_separator(const char* name) {
  std::locale loc(name);
  printf("%s: separator %02x\n", name,
         static_cast<unsigned char>(std::use_facet<numpunct_facet>(loc).thousands_sep()));
}

int main() {
  show("classic", std::locale::classic());
  show("C", std::locale("C"));
  const char* names[] = {"de_DE.UTF-8", "en_US.UTF-8", "it_IT.UTF-8"};
  for (int i = 0; i < 3; ++i) {
    show(names[i], std::locale(names[i]));
    show_separator(names[i]);
  }
  return 0;
}
