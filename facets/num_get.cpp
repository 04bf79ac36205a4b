// std::num_get: the two instances the library holds and their ids.
#include <__lorb/istream.h>
#include <__lorb/num_get.h>

namespace std {

template <> locale::id num_get<char, istreambuf_iterator<char> >::id = locale::id();
template <> locale::id num_get<char, char*>::id = locale::id();

template class num_get<char, istreambuf_iterator<char> >;
template class num_get<char, char*>;

// The reading operations of the iterator the streams hand to the facets.
template class istreambuf_iterator<char>;

} // namespace std
