// __vel::lw_vector: the private exact-size array {data, size} behind facet tables and ios_base
// storage.
#ifndef __LORB_LW_VECTOR_H
#define __LORB_LW_VECTOR_H

#include <__lorb/config.h>

namespace __vel {

// No capacity word: the buffer holds exactly as many elements as the vector was last grown to.
// The owner frees the buffer with resize(0, T()); there is no destructor and no copy. Only the
// library's four instantiations exist (containers/lw_vector.cpp); the members are defined there.
template <class _T> class __LORB_EXPORT lw_vector {
public:
  lw_vector() : data(0), size(0) {}

  // Makes the vector hold exactly n elements; new elements are copies of value.
  void resize(unsigned n, const _T& value);
  // Makes this an element-wise copy of source; a buffer is reused when room <= size, otherwise
  // a new one of room elements is taken. room must be at least source.size.
  void assign(const lw_vector& source, unsigned room);

  _T* data;
  unsigned size;

private:
  lw_vector(const lw_vector&);
  lw_vector& operator=(const lw_vector&);
};

} // namespace __vel

#endif
