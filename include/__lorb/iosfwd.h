// The stream templates declared ahead of their definitions, with their default arguments, and
// the position types: what <iosfwd> gives and every stream header starts from.
#ifndef __LORB_IOSFWD_H
#define __LORB_IOSFWD_H

#include <__lorb/allocator.h>
#include <__lorb/config.h>
#include <__lorb/ios_base_fwd.h>
#include <__lorb/streambuf_iterator_fwd.h>
#include <__lorb/string_traits.h>
#include <cwchar>

namespace std {

typedef long streamsize;

// A stream position: the byte offset and the conversion state. The state is only ever zero in
// this library; a position made from an offset carries a zeroed one. Offset -1 is the invalid
// position that every failing seek returns.
template <class _State> class fpos {
public:
  fpos(streamoff offset = 0) : __offset(offset), __state() {}
  operator streamoff() const { return __offset; }
  _State state() const { return __state; }
  void state(_State s) { __state = s; }
  fpos& operator+=(streamoff n) {
    __offset += n;
    return *this;
  }
  fpos& operator-=(streamoff n) {
    __offset -= n;
    return *this;
  }
  fpos operator+(streamoff n) const { return fpos(*this) += n; }
  fpos operator-(streamoff n) const { return fpos(*this) -= n; }
  streamoff operator-(const fpos& other) const { return __offset - other.__offset; }
  bool operator==(const fpos& other) const { return __offset == other.__offset; }
  bool operator!=(const fpos& other) const { return __offset != other.__offset; }

  streamoff __offset;
  _State __state;
};

// The closing "> >" stays apart for C++98.
// clang-format off
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_ios;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_streambuf;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_istream;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_ostream;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_iostream;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_filebuf;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_ifstream;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_ofstream;
template <class _CharT, class _Traits = char_traits<_CharT> > class basic_fstream;
template <class _CharT, class _Traits = char_traits<_CharT>, class _Alloc = allocator<_CharT> >
class basic_stringbuf;
template <class _CharT, class _Traits = char_traits<_CharT>, class _Alloc = allocator<_CharT> >
class basic_istringstream;
template <class _CharT, class _Traits = char_traits<_CharT>, class _Alloc = allocator<_CharT> >
class basic_ostringstream;
template <class _CharT, class _Traits = char_traits<_CharT>, class _Alloc = allocator<_CharT> >
class basic_stringstream;
template <class _CharT, class _Traits = char_traits<_CharT> > class istreambuf_iterator;
template <class _CharT, class _Traits = char_traits<_CharT> > class ostreambuf_iterator;
// clang-format on

typedef basic_ios<char> ios;
typedef basic_streambuf<char> streambuf;
typedef basic_istream<char> istream;
typedef basic_ostream<char> ostream;
typedef basic_iostream<char> iostream;
typedef basic_filebuf<char> filebuf;
typedef basic_ifstream<char> ifstream;
typedef basic_ofstream<char> ofstream;
typedef basic_fstream<char> fstream;
typedef basic_stringbuf<char> stringbuf;
typedef basic_istringstream<char> istringstream;
typedef basic_ostringstream<char> ostringstream;
typedef basic_stringstream<char> stringstream;

} // namespace std

#endif
