// std::allocator: the stateless allocator of the containers and strings, over operator new.
#ifndef __LORB_ALLOCATOR_H
#define __LORB_ALLOCATOR_H

#include <__lorb/config.h>
#include <cstddef>
#include <new>

namespace std {
template <class _T> class allocator;

template <> class allocator<void> {
public:
  typedef void* pointer;
  typedef const void* const_pointer;
  typedef void value_type;
  template <class _U> struct rebind { typedef allocator<_U> other; };
};

// allocate() hands back null when memory is exhausted (operator new never throws here); the
// library's callers test for it.
template <class _T> class allocator {
public:
  typedef std::size_t size_type;
  typedef std::ptrdiff_t difference_type;
  typedef _T* pointer;
  typedef const _T* const_pointer;
  typedef _T& reference;
  typedef const _T& const_reference;
  typedef _T value_type;
  template <class _U> struct rebind { typedef allocator<_U> other; };

  allocator() __LORB_NOEXCEPT {}
  allocator(const allocator&) __LORB_NOEXCEPT {}
  template <class _U> allocator(const allocator<_U>&) __LORB_NOEXCEPT {}
  ~allocator() __LORB_NOEXCEPT {}

  pointer address(reference x) const {
    return reinterpret_cast<pointer>(&reinterpret_cast<char&>(x));
  }
  const_pointer address(const_reference x) const {
    return reinterpret_cast<const_pointer>(&reinterpret_cast<const char&>(x));
  }

  pointer allocate(size_type n, allocator<void>::const_pointer = 0) {
    if (n > max_size())
      return 0;
    return static_cast<pointer>(::operator new(n * sizeof(_T)));
  }
  void deallocate(pointer p, size_type) { ::operator delete(p); }
  size_type max_size() const __LORB_NOEXCEPT { return size_type(-1) / sizeof(_T); }

  void construct(pointer p, const _T& value) { ::new (static_cast<void*>(p)) _T(value); }
  void destroy(pointer p) { p->~_T(); }
};

template <class _T1, class _T2>
inline bool operator==(const allocator<_T1>&, const allocator<_T2>&) __LORB_NOEXCEPT {
  return true;
}
template <class _T1, class _T2>
inline bool operator!=(const allocator<_T1>&, const allocator<_T2>&) __LORB_NOEXCEPT {
  return false;
}
} // namespace std

#endif
