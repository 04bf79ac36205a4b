// The string streams: streams that own a string buffer as a member.
#ifndef __LORB_STRING_STREAMS_H
#define __LORB_STRING_STREAMS_H

#include <__lorb/config.h>
#include <__lorb/istream.h>
#include <__lorb/ostream.h>
#include <__lorb/stringbuf.h>

namespace std {

// Each constructor adds its own direction to the mode it is given.
template <>
class __LORB_EXPORT basic_istringstream<char, char_traits<char>, allocator<char> >
    : public basic_istream<char> {
public:
  typedef allocator<char> allocator_type;
  explicit basic_istringstream(ios_base::openmode mode = ios_base::in)
      : basic_istream<char>(&__stringbuf), __stringbuf(mode | ios_base::in) {}
  explicit basic_istringstream(const basic_string<char>& s, ios_base::openmode mode = ios_base::in)
      : basic_istream<char>(&__stringbuf), __stringbuf(s, mode | ios_base::in) {}
  virtual ~basic_istringstream();

  basic_stringbuf<char>* rdbuf() const { return const_cast<basic_stringbuf<char>*>(&__stringbuf); }
  basic_string<char> str() const { return __stringbuf.str(); }
  void str(const basic_string<char>& s) { __stringbuf.str(s); }

private:
  basic_stringbuf<char> __stringbuf;
};

template <>
class __LORB_EXPORT basic_ostringstream<char, char_traits<char>, allocator<char> >
    : public basic_ostream<char> {
public:
  typedef allocator<char> allocator_type;
  explicit basic_ostringstream(ios_base::openmode mode = ios_base::out)
      : basic_ostream<char>(&__stringbuf), __stringbuf(mode | ios_base::out) {}
  explicit basic_ostringstream(const basic_string<char>& s, ios_base::openmode mode = ios_base::out)
      : basic_ostream<char>(&__stringbuf), __stringbuf(s, mode | ios_base::out) {}
  virtual ~basic_ostringstream();

  basic_stringbuf<char>* rdbuf() const { return const_cast<basic_stringbuf<char>*>(&__stringbuf); }
  basic_string<char> str() const { return __stringbuf.str(); }
  void str(const basic_string<char>& s) { __stringbuf.str(s); }

private:
  basic_stringbuf<char> __stringbuf;
};

template <>
class __LORB_EXPORT basic_stringstream<char, char_traits<char>, allocator<char> >
    : public basic_iostream<char> {
public:
  typedef allocator<char> allocator_type;
  explicit basic_stringstream(ios_base::openmode mode = ios_base::in | ios_base::out)
      : basic_iostream<char>(&__stringbuf), __stringbuf(mode) {}
  explicit basic_stringstream(const basic_string<char>& s,
                              ios_base::openmode mode = ios_base::in | ios_base::out)
      : basic_iostream<char>(&__stringbuf), __stringbuf(s, mode) {}
  virtual ~basic_stringstream();

  basic_stringbuf<char>* rdbuf() const { return const_cast<basic_stringbuf<char>*>(&__stringbuf); }
  basic_string<char> str() const { return __stringbuf.str(); }
  void str(const basic_string<char>& s) { __stringbuf.str(s); }

private:
  basic_stringbuf<char> __stringbuf;
};

} // namespace std

#endif
