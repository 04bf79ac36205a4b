// std::time_put: the instance the library holds and its id.
#include <__lorb/time_facets.h>

namespace std {

template <> __LORB_EXPORT locale::id time_put<char, ostreambuf_iterator<char> >::id = locale::id();

template class time_put<char, ostreambuf_iterator<char> >;

} // namespace std
