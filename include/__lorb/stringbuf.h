// std::basic_stringbuf<char>: a stream buffer over one character array that it allocates and
// grows itself; in in|out mode a reader sees what has been written.
#ifndef __LORB_STRINGBUF_H
#define __LORB_STRINGBUF_H

#include <__lorb/config.h>
#include <__lorb/streambuf.h>
#include <string>

namespace std {

// The get area [eback, egptr) and the put area [pbase, epptr) share the array. epptr is the
// high-water mark of what has been written, not the end of the allocation, which is kept apart.
template <>
class __LORB_EXPORT basic_stringbuf<char, char_traits<char>, allocator<char> >
    : public basic_streambuf<char> {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;
  typedef allocator<char> allocator_type;

  explicit basic_stringbuf(ios_base::openmode mode = ios_base::in | ios_base::out)
      : __mode(mode), __end_of_allocation(0) {}
  // Starts with a copy of s: a reader sees all of it, a writer starts over it at its beginning
  // (at its end with ate or app).
  explicit basic_stringbuf(const basic_string<char>& s,
                           ios_base::openmode mode = ios_base::in | ios_base::out);
  // Releases the array.
  virtual ~basic_stringbuf();

  // What the buffer holds: everything written, up to the high-water mark, or the text a pure
  // input buffer was given.
  basic_string<char> str() const;
  // Replaces the array with a copy of s, as the constructor does.
  void str(const basic_string<char>& s);

  // Writes n characters as the default bulk write would, without a call for each; the base's
  // xsputn hands a plain string buffer's writes here.
  streamsize __append(const char* s, streamsize n);

  // The fields, in this order, after the base's.
  ios_base::openmode __mode;
  char* __end_of_allocation;

protected:
  virtual pos_type seekoff(off_type off, ios_base::seekdir dir,
                           ios_base::openmode which = ios_base::in | ios_base::out);
  virtual pos_type seekpos(pos_type pos, ios_base::openmode which = ios_base::in | ios_base::out);
  virtual int_type underflow();
  virtual int_type pbackfail(int_type c = traits_type::eof());
  virtual int_type overflow(int_type c = traits_type::eof());

private:
  void __open_one();
  char* __array() const { return __pbegin ? __pbegin : __gbegin; }
  void __adopt(const basic_string<char>& s);
};

} // namespace std

#endif
