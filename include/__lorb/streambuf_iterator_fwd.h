// Declarations ahead of the stream-buffer iterators, which the facets name as their iterator types.
#ifndef __LORB_STREAMBUF_ITERATOR_FWD_H
#define __LORB_STREAMBUF_ITERATOR_FWD_H

#include <__lorb/config.h>

namespace std {
template <class _CharT> struct char_traits;
// No default arguments here: the header that defines the iterators gives them.
template <class _CharT, class _Traits> class __LORB_EXPORT istreambuf_iterator;
template <class _CharT, class _Traits> class __LORB_EXPORT ostreambuf_iterator;
class ios_base;
} // namespace std

#endif
