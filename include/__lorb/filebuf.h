// std::basic_filebuf<char>: a stream buffer over a C library FILE, with no buffer of its own.
#ifndef __LORB_FILEBUF_H
#define __LORB_FILEBUF_H

#include <__lorb/config.h>
#include <__lorb/streambuf.h>
#include <cstdio>

namespace std {

// The get and put areas stay empty for the buffer's whole life, so every character reaches the
// virtual operations below and from them the C library, which does all the buffering.
template <>
class __LORB_EXPORT basic_filebuf<char, char_traits<char> > : public basic_streambuf<char> {
public:
  basic_filebuf() : __file(0), __mode(0) {}
  // Attaches f as it is: no mode is recorded, nothing is checked.
  explicit basic_filebuf(FILE* f) : __file(f), __mode(0) {}
  // Closes the file unless it is stdin, stdout or stderr.
  virtual ~basic_filebuf();

  bool is_open() const { return __file != 0; }
  basic_filebuf* open(const char* name, ios_base::openmode mode);
  // Detaches the file: stdin, stdout and stderr are flushed and left open, any other is closed.
  basic_filebuf* close();

  FILE* __file;
  ios_base::openmode __mode;

protected:
  virtual void imbue(const locale& loc);
  virtual basic_streambuf<char>* setbuf(char* s, streamsize n);
  virtual pos_type seekoff(off_type off, ios_base::seekdir dir,
                           ios_base::openmode which = ios_base::in | ios_base::out);
  virtual pos_type seekpos(pos_type pos, ios_base::openmode which = ios_base::in | ios_base::out);
  virtual int sync();
  virtual streamsize showmanyc();
  virtual streamsize xsgetn(char* s, streamsize n);
  virtual int_type underflow();
  virtual int_type uflow();
  virtual int_type pbackfail(int_type c = traits_type::eof());
  virtual streamsize xsputn(const char* s, streamsize n);
  virtual int_type overflow(int_type c = traits_type::eof());
};

// The modes open accepts, each with its fopen mode; a zero entry with a null string ends it.
struct __LORB_EXPORT __vel_open_mode {
  ios_base::openmode mode;
  const char* fopen_mode;
};
extern __LORB_EXPORT const __vel_open_mode __vel_open_modes[];

} // namespace std

#endif
