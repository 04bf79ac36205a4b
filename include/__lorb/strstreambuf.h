// std::strstreambuf: a stream buffer over a caller's character array, or over an array that it
// allocates and grows itself.
#ifndef __LORB_STRSTREAMBUF_H
#define __LORB_STRSTREAMBUF_H

#include <__lorb/config.h>
#include <__lorb/streambuf.h>
#include <cstddef>

namespace std {

// A dynamic buffer starts with no array and grows on overflow, 16 characters at a time (or
// straight to the suggested size), through its allocation functions. The put area never runs
// ahead of what has been written: after the first overflow every further character passes
// through overflow.
class __LORB_EXPORT strstreambuf : public basic_streambuf<char> {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;

  // Dynamic, with alsize the size of the first array (or 16 when it is smaller).
  explicit strstreambuf(streamsize alsize = 0);
  // Dynamic, allocating with palloc and releasing with pfree; a null one means new[] / delete[].
  strstreambuf(void* (*palloc)(size_t), void (*pfree)(void*));
  // Over n characters at gnext (up to the NUL when n is 0, without limit when n is negative):
  // without pbeg all of them are read; with it [gnext, pbeg) is read and writing starts at pbeg.
  strstreambuf(char* gnext, streamsize n, char* pbeg = 0);
  strstreambuf(signed char* gnext, streamsize n, signed char* pbeg = 0);
  strstreambuf(unsigned char* gnext, streamsize n, unsigned char* pbeg = 0);
  // Read only.
  strstreambuf(const char* gnext, streamsize n);
  strstreambuf(const signed char* gnext, streamsize n);
  strstreambuf(const unsigned char* gnext, streamsize n);
  // Kept: releases nothing, not even the array of a dynamic buffer; whoever took the array
  // through str() owns it.
  virtual ~strstreambuf();

  // Kept: the flag is inverted. On a dynamic buffer freeze(true) thaws it and freeze(false)
  // freezes it, so that it can no longer grow.
  void freeze(bool freezefl = true) {
    if (__strmode & __dynamic)
      __strmode = freezefl ? __strmode & ~__frozen : __strmode | __frozen;
  }
  // The array, handed to the caller: a dynamic buffer is frozen first (freeze(false), given the
  // inversion) so that no later growth releases what the caller holds.
  char* str() {
    freeze(false);
    return eback();
  }
  // Characters written: pptr - pbase.
  int pcount() const { return pptr() ? static_cast<int>(pptr() - pbase()) : 0; }

  // The bits of the mode.
  enum { __allocated = 1, __constant = 2, __dynamic = 4, __frozen = 8 };

  // The fields, in this order, after the base's.
  int __strmode;
  streamsize __alsize;
  // The size of the present array: the put area may still be extended inside it.
  streamsize __array_size;
  void* (*__palloc)(size_t);
  void (*__pfree)(void*);

protected:
  virtual pos_type seekoff(off_type off, ios_base::seekdir way,
                           ios_base::openmode which = ios_base::in | ios_base::out);
  virtual pos_type seekpos(pos_type sp, ios_base::openmode which = ios_base::in | ios_base::out);
  virtual int_type underflow();
  virtual int_type pbackfail(int_type c = traits_type::eof());
  virtual streamsize xsputn(const char_type* s, streamsize n);
  virtual int_type overflow(int_type c = traits_type::eof());

private:
  void __initialize(char* gnext, streamsize n, char* pbeg);
  bool __grow();
};

} // namespace std

#endif
