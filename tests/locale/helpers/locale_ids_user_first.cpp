// A fresh process that numbers a facet of its own and collate before building any locale.
#include "locale_ids_print.h"

struct own_facet : std::locale::facet {
  static std::locale::id id;
};
std::locale::id own_facet::id;

struct later_facet : std::locale::facet {
  static std::locale::id id;
};
std::locale::id later_facet::id;

int main() {
  printf("own %u\n", own_facet::id.__number());
  printf("collate %u\n", std::collate<char>::id.__number());
  std::locale named("en_US.UTF-8");
  print_standard_ids();
  printf("table size %u\n", named.__imp->facets.size);
  printf("own held: %d\n", std::has_facet<own_facet>(named) ? 1 : 0);
  printf("later held: %d\n", std::has_facet<later_facet>(named) ? 1 : 0);
  printf("later %u\n", later_facet::id.__value);
  printf("table size %u\n", named.__imp->facets.size);
  return 0;
}
