// std::slice and std::gslice: the descriptions of regular subsets of a valarray, and the list of
// positions a gslice stands for.
#ifndef __LORB_VALARRAY_SLICE_H
#define __LORB_VALARRAY_SLICE_H

#include <__lorb/valarray.h>
#include <cstddef>

namespace std {

// size() positions from start(), stride() apart.
class slice {
public:
  slice() : __start(0), __size(0), __stride(0) {}
  slice(size_t start, size_t size, size_t stride)
      : __start(start), __size(size), __stride(stride) {}

  size_t start() const { return __start; }
  size_t size() const { return __size; }
  size_t stride() const { return __stride; }

private:
  size_t __start;
  size_t __size;
  size_t __stride;
};

// One position for each index tuple (i0, i1, ...) with ik < size()[k]: start() + the sum of
// ik * stride()[k], listed with the last index varying fastest. A gslice without lengths, or
// with a length of 0, has no positions.
class gslice {
public:
  gslice() : __start(0) {}
  gslice(size_t start, const valarray<size_t>& lengths, const valarray<size_t>& strides)
      : __start(start), __lengths(lengths), __strides(strides) {}

  size_t start() const { return __start; }
  valarray<size_t> size() const { return __lengths; }
  valarray<size_t> stride() const { return __strides; }

  // Internal: the positions, in order. Strides missing past the lengths count as 0.
  valarray<size_t> __positions() const {
    size_t dimensions = __lengths.size();
    size_t count = dimensions ? 1 : 0;
    for (size_t k = 0; k < dimensions; ++k)
      count *= __lengths[k];
    valarray<size_t> positions(count);
    if (!count)
      return positions;
    valarray<size_t> index(dimensions); // the current tuple, all zero to begin with
    size_t position = __start;
    for (size_t n = 0; n < count; ++n) {
      positions[n] = position;
      // Step the tuple like an odometer, the last index first.
      for (size_t k = dimensions; k-- > 0;) {
        size_t stride = k < __strides.size() ? __strides[k] : 0;
        if (++index[k] < __lengths[k]) {
          position += stride;
          break;
        }
        position -= stride * (index[k] - 1);
        index[k] = 0;
      }
    }
    return positions;
  }

private:
  size_t __start;
  valarray<size_t> __lengths;
  valarray<size_t> __strides;
};

} // namespace std

#endif
