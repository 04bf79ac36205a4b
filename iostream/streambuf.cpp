// std::basic_streambuf<char>: the default virtual operations and the bulk transfer loops.
#include <__lorb/library_facets.h>
#include <__lorb/streambuf.h>
#include <__lorb/stringbuf.h>
#include <string.h>

namespace std {

basic_streambuf<char>::basic_streambuf()
    : __gbegin(0), __gnext(0), __gend(0), __pbegin(0), __pnext(0), __pend(0) {}

// Destroys the locale only; never flushes.
basic_streambuf<char>::~basic_streambuf() {}

void basic_streambuf<char>::imbue(const locale& loc) { __locale = loc; }

basic_streambuf<char>* basic_streambuf<char>::setbuf(char*, streamsize) { return this; }

basic_streambuf<char>::pos_type basic_streambuf<char>::seekoff(off_type, ios_base::seekdir,
                                                               ios_base::openmode) {
  return pos_type(-1);
}

basic_streambuf<char>::pos_type basic_streambuf<char>::seekpos(pos_type, ios_base::openmode) {
  return pos_type(-1);
}

int basic_streambuf<char>::sync() { return 0; }

streamsize basic_streambuf<char>::showmanyc() { return 0; }

basic_streambuf<char>::int_type basic_streambuf<char>::underflow() { return traits_type::eof(); }

basic_streambuf<char>::int_type basic_streambuf<char>::uflow() {
  if (underflow() == traits_type::eof())
    return traits_type::eof();
  return traits_type::to_int_type(*__gnext++);
}

basic_streambuf<char>::int_type basic_streambuf<char>::pbackfail(int_type) {
  return traits_type::eof();
}

basic_streambuf<char>::int_type basic_streambuf<char>::overflow(int_type) {
  return traits_type::eof();
}

// Copies what the get area holds, then asks uflow for one character at a time.
streamsize basic_streambuf<char>::xsgetn(char* s, streamsize n) {
  streamsize count = 0;
  while (n > 0) {
    streamsize ready = __gnext ? __gend - __gnext : 0;
    streamsize k = n < ready ? n : ready;
    if (k > 0) {
      memcpy(s, __gnext, k);
      s += k;
      __gnext += k;
      count += k;
      n -= k;
    }
    if (n > 0) {
      int_type c = uflow();
      if (c == traits_type::eof())
        break;
      // Kept: a value that is not its own low byte is stored as '\0'.
      *s++ = c == (c & 0xff) ? static_cast<char>(c) : '\0';
      ++count;
      --n;
    }
  }
  return count;
}

// Fills the put area, then hands overflow one character at a time.
streamsize basic_streambuf<char>::xsputn(const char* s, streamsize n) {
  if (__vel::is_library_stringbuf(this))
    return static_cast<basic_stringbuf<char>*>(this)->__append(s, n);
  streamsize count = 0;
  while (n > 0) {
    streamsize room = __pnext ? __pend - __pnext : 0;
    streamsize k = n < room ? n : room;
    if (k > 0) {
      memcpy(__pnext, s, k);
      s += k;
      __pnext += k;
      count += k;
      n -= k;
    }
    if (n > 0) {
      if (overflow(traits_type::to_int_type(*s)) == traits_type::eof())
        break;
      ++s;
      ++count;
      --n;
    }
  }
  return count;
}

} // namespace std
