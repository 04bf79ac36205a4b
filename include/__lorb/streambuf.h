// std::basic_streambuf<char>: the character pipe under every stream, a get area and a put area
// of plain pointers with virtual operations that derived buffers override.
#ifndef __LORB_STREAMBUF_H
#define __LORB_STREAMBUF_H

#include <__lorb/config.h>
#include <__lorb/ios_base.h>
#include <__lorb/iosfwd.h>
#include <__lorb/locale_core.h>

namespace std {

// The defaults fail or do nothing, except the bulk transfers, which loop over the pointers and
// the single-character operations. The public operations below are inline so that a stream's
// fast path reaches the areas without a virtual call.
template <> class __LORB_EXPORT basic_streambuf<char, char_traits<char> > {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;

  virtual ~basic_streambuf();

  locale pubimbue(const locale& loc) {
    locale previous(__locale);
    imbue(loc);
    return previous;
  }
  locale getloc() const { return __locale; }

  basic_streambuf* pubsetbuf(char_type* s, streamsize n) { return setbuf(s, n); }
  pos_type pubseekoff(off_type off, ios_base::seekdir dir,
                      ios_base::openmode which = ios_base::in | ios_base::out) {
    return seekoff(off, dir, which);
  }
  pos_type pubseekpos(pos_type pos, ios_base::openmode which = ios_base::in | ios_base::out) {
    return seekpos(pos, which);
  }
  int pubsync() { return sync(); }

  // Characters ready in the get area, else what showmanyc() estimates.
  streamsize in_avail() {
    if (__gnext && __gnext < __gend)
      return __gend - __gnext;
    return showmanyc();
  }
  int_type snextc() {
    if (sbumpc() == traits_type::eof())
      return traits_type::eof();
    return sgetc();
  }
  int_type sbumpc() {
    if (__gnext && __gnext < __gend)
      return traits_type::to_int_type(*__gnext++);
    return uflow();
  }
  int_type sgetc() {
    if (__gnext && __gnext < __gend)
      return traits_type::to_int_type(*__gnext);
    return underflow();
  }
  streamsize sgetn(char_type* s, streamsize n) { return xsgetn(s, n); }
  // Steps back over c when it is the character just read, else asks pbackfail.
  int_type sputbackc(char_type c) {
    if (__gnext && __gbegin < __gnext && traits_type::eq(c, __gnext[-1]))
      return traits_type::to_int_type(*--__gnext);
    return pbackfail(traits_type::to_int_type(c));
  }
  int_type sungetc() {
    if (__gnext && __gbegin < __gnext)
      return traits_type::to_int_type(*--__gnext);
    return pbackfail(traits_type::eof());
  }
  int_type sputc(char_type c) {
    if (__pnext && __pnext < __pend) {
      *__pnext++ = c;
      return traits_type::to_int_type(c);
    }
    return overflow(traits_type::to_int_type(c));
  }
  streamsize sputn(const char_type* s, streamsize n) { return xsputn(s, n); }

protected:
  // Takes the global locale; every area pointer null.
  basic_streambuf();

  char_type* eback() const { return __gbegin; }
  char_type* gptr() const { return __gnext; }
  char_type* egptr() const { return __gend; }
  void gbump(int n) { __gnext += n; }
  void setg(char_type* begin, char_type* next, char_type* end) {
    __gbegin = begin;
    __gnext = next;
    __gend = end;
  }
  char_type* pbase() const { return __pbegin; }
  char_type* pptr() const { return __pnext; }
  char_type* epptr() const { return __pend; }
  void pbump(int n) { __pnext += n; }
  void setp(char_type* begin, char_type* end) {
    __pbegin = begin;
    __pnext = begin;
    __pend = end;
  }

  // The virtual operations, in this order.
  virtual void imbue(const locale& loc);
  virtual basic_streambuf* setbuf(char_type* s, streamsize n);
  virtual pos_type seekoff(off_type off, ios_base::seekdir dir,
                           ios_base::openmode which = ios_base::in | ios_base::out);
  virtual pos_type seekpos(pos_type pos, ios_base::openmode which = ios_base::in | ios_base::out);
  virtual int sync();
  virtual streamsize showmanyc();
  virtual streamsize xsgetn(char_type* s, streamsize n);
  virtual int_type underflow();
  virtual int_type uflow();
  virtual int_type pbackfail(int_type c = traits_type::eof());
  virtual streamsize xsputn(const char_type* s, streamsize n);
  virtual int_type overflow(int_type c = traits_type::eof());

public:
  // The fields, in this order, after g++'s virtual-table pointer.
  locale __locale;
  char_type* __gbegin;
  char_type* __gnext;
  char_type* __gend;
  char_type* __pbegin;
  char_type* __pnext;
  char_type* __pend;

private:
  basic_streambuf(const basic_streambuf&);
  basic_streambuf& operator=(const basic_streambuf&);
};

} // namespace std

#endif
