// A fresh process whose first facet use is the first default locale: ids 1 to 12 in creation order.
#include "locale_ids_print.h"

int main() {
  printf("global before: %s\n", std::locale::global_ ? "set" : "null");
  print_standard_ids();
  std::locale first;
  printf("global after: %s\n",
         std::locale::global_ == std::locale::classic().__imp ? "classic" : "?");
  print_standard_ids();
  printf("table size %u\n", first.__imp->facets.size);
  return 0;
}
