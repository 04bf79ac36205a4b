// Scratch storage for the algorithms that run faster with room to spare (stable_sort,
// stable_partition, inplace_merge) and still finish without it.
#ifndef __LORB_ALGO_BUFFER_H
#define __LORB_ALGO_BUFFER_H

#include <__lorb/bitwise_copy.h>
#include <__lorb/temporary_buffer.h>
#include <__lorb/uninitialized.h>
#include <cstddef>

namespace __vel {

// Up to `wanted` elements, possibly fewer or none when memory is short. Elements of class type
// start as copies of seed so the algorithms can assign over them; plain values start unset,
// because every algorithm writes a slot before it reads it.
template <class _T> class scratch_buffer {
public:
  scratch_buffer(ptrdiff_t wanted, const _T& seed) : data(0), length(0) {
    std::pair<_T*, ptrdiff_t> got = std::get_temporary_buffer<_T>(wanted);
    if (!got.first)
      return;
    data = got.first;
    length = got.second;
    if (!is_bitwise_copyable<_T>::value)
      for (ptrdiff_t i = 0; i < length; ++i)
        construct_at(data + i, seed);
  }
  ~scratch_buffer() {
    if (!data)
      return;
    destroy_range(data, data + length);
    std::return_temporary_buffer(data);
  }

  _T* begin() const { return data; }
  ptrdiff_t size() const { return length; }

private:
  scratch_buffer(const scratch_buffer&);
  scratch_buffer& operator=(const scratch_buffer&);

  _T* data;
  ptrdiff_t length;
};

} // namespace __vel

#endif
