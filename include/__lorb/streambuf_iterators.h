// std::istreambuf_iterator and std::ostreambuf_iterator: read and write a stream buffer a
// character at a time, through its inline fast paths.
#ifndef __LORB_STREAMBUF_ITERATORS_H
#define __LORB_STREAMBUF_ITERATORS_H

#include <__lorb/config.h>
#include <__lorb/iosfwd.h>
#include <__lorb/iterator_tags.h>
#include <__lorb/streambuf.h>

namespace std {

// Holds the buffer and a failed flag: once a write has returned end-of-file every later
// character is dropped, and failed() says so.
template <class _CharT, class _Traits> class ostreambuf_iterator {
public:
  typedef output_iterator_tag iterator_category;
  typedef void value_type;
  typedef void difference_type;
  typedef void pointer;
  typedef void reference;
  typedef _CharT char_type;
  typedef _Traits traits_type;
  typedef basic_streambuf<_CharT, _Traits> streambuf_type;
  typedef basic_ostream<_CharT, _Traits> ostream_type;

  ostreambuf_iterator(ostream_type& os) __LORB_NOEXCEPT : __buffer(os.rdbuf()), __failed(false) {}
  ostreambuf_iterator(streambuf_type* sb) __LORB_NOEXCEPT : __buffer(sb), __failed(false) {}

  ostreambuf_iterator& operator=(_CharT c) {
    if (!__failed && _Traits::eq_int_type(__buffer->sputc(c), _Traits::eof()))
      __failed = true;
    return *this;
  }
  ostreambuf_iterator& operator*() { return *this; }
  ostreambuf_iterator& operator++() { return *this; }
  ostreambuf_iterator& operator++(int) { return *this; }
  bool failed() const __LORB_NOEXCEPT { return __failed; }

  streambuf_type* __buffer;
  bool __failed;
};

// Reads through sgetc/sbumpc; an iterator whose buffer is null, or whose buffer is at its end,
// equals the end-of-stream iterator.
template <class _CharT, class _Traits> class istreambuf_iterator {
public:
  typedef input_iterator_tag iterator_category;
  typedef _CharT value_type;
  typedef typename _Traits::off_type difference_type;
  typedef _CharT* pointer;
  typedef _CharT& reference;
  typedef _CharT char_type;
  typedef _Traits traits_type;
  typedef typename _Traits::int_type int_type;
  typedef basic_streambuf<_CharT, _Traits> streambuf_type;
  typedef basic_istream<_CharT, _Traits> istream_type;

  // What the postfix increment returns: the character read before the step.
  class proxy {
  public:
    _CharT operator*() const { return __keep; }

  private:
    friend class istreambuf_iterator;
    proxy(_CharT c, streambuf_type* sb) : __keep(c), __buffer(sb) {}
    _CharT __keep;
    streambuf_type* __buffer;
  };

  istreambuf_iterator() __LORB_NOEXCEPT : __buffer(0) {}
  istreambuf_iterator(istream_type& is) __LORB_NOEXCEPT : __buffer(is.rdbuf()) {}
  istreambuf_iterator(streambuf_type* sb) __LORB_NOEXCEPT : __buffer(sb) {}
  istreambuf_iterator(const proxy& p) __LORB_NOEXCEPT : __buffer(p.__buffer) {}

  // Without a buffer the character is end-of-file's.
  _CharT operator*() const {
    return _Traits::to_char_type(__buffer ? __buffer->sgetc() : _Traits::eof());
  }
  istreambuf_iterator& operator++() {
    __buffer->sbumpc();
    return *this;
  }
  proxy operator++(int) {
    _CharT c = _Traits::to_char_type(__buffer->sbumpc());
    return proxy(c, __buffer);
  }
  bool equal(const istreambuf_iterator& other) const { return __at_end() == other.__at_end(); }

  bool __at_end() const {
    return !__buffer || _Traits::eq_int_type(__buffer->sgetc(), _Traits::eof());
  }

  streambuf_type* __buffer;
};

template <class _CharT, class _Traits>
inline bool operator==(const istreambuf_iterator<_CharT, _Traits>& a,
                       const istreambuf_iterator<_CharT, _Traits>& b) {
  return a.equal(b);
}
template <class _CharT, class _Traits>
inline bool operator!=(const istreambuf_iterator<_CharT, _Traits>& a,
                       const istreambuf_iterator<_CharT, _Traits>& b) {
  return !a.equal(b);
}

} // namespace std

#endif
