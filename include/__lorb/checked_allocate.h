// The containers' one allocation rule: ask the allocator, and end the process with the
// allocation message when it gives null (operator new never throws here).
#ifndef __LORB_CHECKED_ALLOCATE_H
#define __LORB_CHECKED_ALLOCATE_H

#include <__lorb/error.h>
#include <cstddef>

namespace __vel {

template <class _Alloc>
inline typename _Alloc::pointer checked_allocate(_Alloc& alloc, std::size_t n) {
  typename _Alloc::pointer p = alloc.allocate(n);
  if (!p)
    out_of_memory();
  return p;
}

} // namespace __vel

#endif
