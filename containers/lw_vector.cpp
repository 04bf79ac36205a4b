// The light-weight vector's two operations and the library's four instantiations of it.
#include <__lorb/error.h>
#include <__lorb/ios_base_fwd.h>
#include <__lorb/locale_core.h>
#include <__lorb/lw_vector.h>
#include <new>
#include <utility>

namespace __vel {
namespace {

// Exactly n elements from operator new; a null result or a byte count past 32 bits is fatal.
template <class _T> _T* allocate_elements(unsigned n) {
  if (n > 0xFFFFFFFFu / sizeof(_T))
    out_of_memory();
  void* buffer = ::operator new(n * sizeof(_T));
  if (!buffer)
    out_of_memory();
  return static_cast<_T*>(buffer);
}

template <class _T> void destroy_down_to(_T* data, unsigned& size, unsigned count) {
  while (size > count) {
    --size;
    data[size].~_T();
  }
}

} // namespace

template <class _T> void lw_vector<_T>::resize(unsigned n, const _T& value) {
  if (n <= size) {
    if (n == size)
      return;
    destroy_down_to(data, size, n);
    if (n == 0) {
      ::operator delete(data);
      data = 0;
    }
    return;
  }
  // A copy, because value may be one of the elements of the buffer given back below.
  const _T fill = value;
  if (!data) {
    size = 0;
    data = allocate_elements<_T>(n);
  } else {
    lw_vector grown;
    grown.assign(*this, n);
    destroy_down_to(data, size, 0);
    ::operator delete(data);
    data = grown.data;
    size = grown.size;
  }
  for (; size < n; ++size)
    new (data + size) _T(fill);
}

template <class _T> void lw_vector<_T>::assign(const lw_vector& source, unsigned room) {
  unsigned keep = room > size ? 0 : source.size;
  destroy_down_to(data, size, keep);
  if (keep == 0) {
    ::operator delete(data);
    data = 0;
  }
  // An empty source leaves no buffer behind (not one of room elements holding nothing), so that
  // a non-null data always has live elements and the owner's resize(0, T()) frees it.
  if (room == 0 || source.size == 0)
    return;
  if (!data)
    data = allocate_elements<_T>(room);
  for (unsigned i = 0; i < size; ++i)
    data[i] = source.data[i];
  for (; size < source.size; ++size)
    new (data + size) _T(source.data[size]);
}

template class lw_vector<std::locale::facet*>;
template class lw_vector<std::pair<ios_event_callback, int> >;
template class lw_vector<long>;
template class lw_vector<void*>;

} // namespace __vel
