// std::istream_iterator and std::ostream_iterator: values read with >> and written with <<.
#ifndef __LORB_STREAM_ITERATORS_H
#define __LORB_STREAM_ITERATORS_H

#include <__lorb/iterator_tags.h>
#include <cstddef>
#include <istream>
#include <ostream>

namespace std {

// Reads one value ahead. An iterator whose read failed becomes the end-of-stream iterator: two
// end-of-stream iterators are equal, and two others are equal when they read the same stream.
template <class _T, class _CharT = char, class _Traits = char_traits<_CharT>,
          class _Distance = ptrdiff_t>
class istream_iterator : public iterator<input_iterator_tag, _T, _Distance, const _T*, const _T&> {
public:
  typedef _CharT char_type;
  typedef _Traits traits_type;
  typedef basic_istream<_CharT, _Traits> istream_type;

  istream_iterator() : in_stream(0), value() {}
  istream_iterator(istream_type& s) : in_stream(&s), value() { read(); }

  const _T& operator*() const { return value; }
  const _T* operator->() const { return &value; }
  istream_iterator& operator++() {
    read();
    return *this;
  }
  istream_iterator operator++(int) {
    istream_iterator old(*this);
    read();
    return old;
  }

  bool __equal(const istream_iterator& other) const { return in_stream == other.in_stream; }

private:
  istream_type* in_stream; // null once at end of stream
  _T value;

  void read() {
    if (!in_stream)
      return;
    *in_stream >> value;
    if (in_stream->fail())
      in_stream = 0;
  }
};

template <class _T, class _CharT, class _Traits, class _Distance>
inline bool operator==(const istream_iterator<_T, _CharT, _Traits, _Distance>& x,
                       const istream_iterator<_T, _CharT, _Traits, _Distance>& y) {
  return x.__equal(y);
}
template <class _T, class _CharT, class _Traits, class _Distance>
inline bool operator!=(const istream_iterator<_T, _CharT, _Traits, _Distance>& x,
                       const istream_iterator<_T, _CharT, _Traits, _Distance>& y) {
  return !x.__equal(y);
}

// Writes each assigned value, followed by the delimiter when one was given.
template <class _T, class _CharT = char, class _Traits = char_traits<_CharT> >
class ostream_iterator : public iterator<output_iterator_tag, void, void, void, void> {
public:
  typedef _CharT char_type;
  typedef _Traits traits_type;
  typedef basic_ostream<_CharT, _Traits> ostream_type;

  ostream_iterator(ostream_type& s) : out_stream(&s), delimiter(0) {}
  ostream_iterator(ostream_type& s, const _CharT* delim) : out_stream(&s), delimiter(delim) {}

  ostream_iterator& operator=(const _T& value) {
    *out_stream << value;
    if (delimiter)
      *out_stream << delimiter;
    return *this;
  }
  ostream_iterator& operator*() { return *this; }
  ostream_iterator& operator++() { return *this; }
  ostream_iterator& operator++(int) { return *this; }

private:
  ostream_type* out_stream;
  const _CharT* delimiter;
};

} // namespace std

#endif
