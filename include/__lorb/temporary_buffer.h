// std::get_temporary_buffer and return_temporary_buffer: scratch storage for algorithms that run
// faster with it and still work without it.
#ifndef __LORB_TEMPORARY_BUFFER_H
#define __LORB_TEMPORARY_BUFFER_H

#include <cstddef>
#include <new>
#include <utility>

namespace std {

// Asks for n elements and halves the request each time memory runs short: the caller gets the
// largest piece found, or {0, 0}. Never ends the process, unlike the containers' allocations.
template <class _T> inline pair<_T*, ptrdiff_t> get_temporary_buffer(ptrdiff_t n) {
  const ptrdiff_t most = ptrdiff_t(size_t(-1) / 2 / sizeof(_T));
  if (n > most)
    n = most;
  for (; n > 0; n /= 2) {
    void* storage = ::operator new(size_t(n) * sizeof(_T), nothrow);
    if (storage)
      return pair<_T*, ptrdiff_t>(static_cast<_T*>(storage), n);
  }
  return pair<_T*, ptrdiff_t>(static_cast<_T*>(0), 0);
}

template <class _T> inline void return_temporary_buffer(_T* p) { ::operator delete(p); }

} // namespace std

#endif
