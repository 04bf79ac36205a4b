// std::time_get: the instance the library holds and its id.
#include <__lorb/time_facets.h>

namespace std {

template <> __LORB_EXPORT locale::id time_get<char, istreambuf_iterator<char> >::id = locale::id();

template class time_get<char, istreambuf_iterator<char> >;

} // namespace std
