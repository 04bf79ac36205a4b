// The strstreams: streams that own a strstreambuf as a member, and isstream, the input base of
// istrstream.
#ifndef __LORB_STRSTREAMS_H
#define __LORB_STRSTREAMS_H

#include <__lorb/config.h>
#include <__lorb/istream.h>
#include <__lorb/ostream.h>
#include <__lorb/string_traits.h>
#include <__lorb/strstreambuf.h>

namespace __vel {
// Where writing into a caller's array starts: at s, or after its text with app.
inline char* strstream_put_start(char* s, std::ios_base::openmode mode) {
  return (mode & std::ios_base::app) ? s + std::char_traits<char>::length(s) : s;
}
} // namespace __vel

namespace std {

// An input stream whose seeks position its buffer's get area.
class __LORB_EXPORT isstream : public basic_istream<char> {
public:
  explicit isstream(basic_streambuf<char>* sb) : basic_istream<char>(sb) {}
  virtual ~isstream();

  isstream& seekg(pos_type pos);
  isstream& seekg(off_type off, ios_base::seekdir dir);
};

// Reads a constant array: the text up to its NUL, or n characters.
class __LORB_EXPORT istrstream : public isstream {
public:
  explicit istrstream(const char* s) : isstream(&__strbuf), __strbuf(s, 0) {}
  explicit istrstream(char* s) : isstream(&__strbuf), __strbuf(const_cast<const char*>(s), 0) {}
  istrstream(const char* s, streamsize n) : isstream(&__strbuf), __strbuf(s, n) {}
  istrstream(char* s, streamsize n)
      : isstream(&__strbuf), __strbuf(const_cast<const char*>(s), n) {}
  virtual ~istrstream();

  strstreambuf* rdbuf() const { return const_cast<strstreambuf*>(&__strbuf); }
  char* str() { return __strbuf.str(); }

private:
  strstreambuf __strbuf;
};

// Writes to a dynamic array, or to n characters at s.
class __LORB_EXPORT ostrstream : public basic_ostream<char> {
public:
  ostrstream() : basic_ostream<char>(&__strbuf), __strbuf(static_cast<streamsize>(0)) {}
  ostrstream(char* s, int n, ios_base::openmode mode = ios_base::out)
      : basic_ostream<char>(&__strbuf), __strbuf(s, n, __vel::strstream_put_start(s, mode)) {}
  virtual ~ostrstream();

  strstreambuf* rdbuf() const { return const_cast<strstreambuf*>(&__strbuf); }
  // Kept: the flag is inverted, as the buffer's.
  void freeze(bool freezefl = true) { __strbuf.freeze(freezefl); }
  char* str() { return __strbuf.str(); }
  int pcount() const { return __strbuf.pcount(); }

private:
  strstreambuf __strbuf;
};

// Reads back what it writes, in a dynamic array or in n characters at s.
class __LORB_EXPORT strstream : public basic_iostream<char> {
public:
  typedef char char_type;
  typedef char_traits<char>::int_type int_type;
  typedef char_traits<char>::pos_type pos_type;
  typedef char_traits<char>::off_type off_type;

  strstream() : basic_iostream<char>(&__strbuf), __strbuf(static_cast<streamsize>(0)) {}
  strstream(char* s, int n, ios_base::openmode mode = ios_base::in | ios_base::out)
      : basic_iostream<char>(&__strbuf), __strbuf(s, n, __vel::strstream_put_start(s, mode)) {}
  virtual ~strstream();

  strstreambuf* rdbuf() const { return const_cast<strstreambuf*>(&__strbuf); }
  // Kept: the flag is inverted, as the buffer's.
  void freeze(bool freezefl = true) { __strbuf.freeze(freezefl); }
  char* str() { return __strbuf.str(); }
  int pcount() const { return __strbuf.pcount(); }

private:
  strstreambuf __strbuf;
};

} // namespace std

#endif
