// std::raw_storage_iterator: an output iterator that copy-constructs each assigned value in the
// uninitialized storage its underlying iterator points at.
#ifndef __LORB_RAW_STORAGE_ITERATOR_H
#define __LORB_RAW_STORAGE_ITERATOR_H

#include <__lorb/iterator_tags.h>
#include <__lorb/uninitialized.h>

namespace std {

template <class _Out, class _T>
class raw_storage_iterator : public iterator<output_iterator_tag, void, void, void, void> {
public:
  explicit raw_storage_iterator(_Out x) : position(x) {}

  raw_storage_iterator& operator*() { return *this; }
  raw_storage_iterator& operator=(const _T& element) {
    __vel::construct_at(&*position, element);
    return *this;
  }
  raw_storage_iterator& operator++() {
    ++position;
    return *this;
  }
  raw_storage_iterator operator++(int) {
    raw_storage_iterator old(*this);
    ++position;
    return old;
  }

private:
  _Out position;
};

} // namespace std

#endif
