// The ids of the time and monetary facets, and the trap of their unbuilt operations.
#include <__lorb/placeholder_facets.h>
#include <stdio.h>
#include <stdlib.h>

namespace __vel {
void facet_operation_not_built(const char* operation) {
  fprintf(stderr, "%s is not built yet\n", operation);
  abort();
}
} // namespace __vel

namespace std {
typedef istreambuf_iterator<char, char_traits<char> > __input_iterator;
typedef ostreambuf_iterator<char, char_traits<char> > __output_iterator;

template <> __LORB_EXPORT locale::id time_get<char, __input_iterator>::id = locale::id();
template <> __LORB_EXPORT locale::id time_put<char, __output_iterator>::id = locale::id();
template <> __LORB_EXPORT locale::id money_get<char, __input_iterator>::id = locale::id();
template <> __LORB_EXPORT locale::id money_put<char, __output_iterator>::id = locale::id();
} // namespace std
