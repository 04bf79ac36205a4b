// std::basic_istream<char>: the sentry that every input operation runs, the extractors, the
// unformatted reads; std::basic_iostream<char>.
#ifndef __LORB_ISTREAM_H
#define __LORB_ISTREAM_H

#include <__lorb/basic_ios.h>
#include <__lorb/config.h>
#include <__lorb/iosfwd.h>
#include <__lorb/num_get.h>
#include <__lorb/ostream.h>

namespace std {

template <>
class __LORB_EXPORT basic_istream<char, char_traits<char> > : virtual public basic_ios<char> {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;

  explicit basic_istream(basic_streambuf<char>* sb) : __gcount(0) { init(sb); }
  virtual ~basic_istream();

  // Flushes the tie and, unless noskipws, skips white space; end of file while skipping sets
  // nothing. A stream that is not good gets failbit (and badbit without a buffer).
  class __LORB_EXPORT sentry {
  public:
    explicit sentry(basic_istream& is, bool noskipws = false);
    operator bool() const { return __ok; }

  private:
    sentry(const sentry&);
    sentry& operator=(const sentry&);
    bool __ok;
  };

  basic_istream& operator>>(basic_istream& (*manipulator)(basic_istream&)) {
    return manipulator(*this);
  }
  basic_istream& operator>>(basic_ios<char>& (*manipulator)(basic_ios<char>&)) {
    manipulator(*this);
    return *this;
  }
  basic_istream& operator>>(ios_base& (*manipulator)(ios_base&)) {
    manipulator(*this);
    return *this;
  }

  basic_istream& operator>>(bool& v);
  basic_istream& operator>>(short& v);
  basic_istream& operator>>(unsigned short& v);
  basic_istream& operator>>(int& v);
  basic_istream& operator>>(unsigned int& v);
  basic_istream& operator>>(long& v);
  basic_istream& operator>>(unsigned long& v);
  __extension__ basic_istream& operator>>(long long& v);
  __extension__ basic_istream& operator>>(unsigned long long& v);
  basic_istream& operator>>(float& v);
  basic_istream& operator>>(double& v);
  basic_istream& operator>>(long double& v);
  basic_istream& operator>>(void*& v);
  basic_istream& operator>>(basic_streambuf<char>* sb);

  // Characters taken by the last unformatted input operation.
  streamsize gcount() const { return __gcount; }

  int_type get();
  basic_istream& get(char& c);
  basic_istream& get(char* s, streamsize n, char delim);
  basic_istream& get(char* s, streamsize n) { return get(s, n, widen('\n')); }
  basic_istream& get(basic_streambuf<char>& sb, char delim);
  basic_istream& get(basic_streambuf<char>& sb) { return get(sb, widen('\n')); }
  basic_istream& getline(char* s, streamsize n, char delim);
  basic_istream& getline(char* s, streamsize n) { return getline(s, n, widen('\n')); }
  basic_istream& ignore(streamsize n = 1, int_type delim = traits_type::eof());
  int_type peek();
  basic_istream& read(char* s, streamsize n);
  streamsize readsome(char* s, streamsize n);
  basic_istream& putback(char c);
  basic_istream& unget();
  int sync();
  pos_type tellg();
  basic_istream& seekg(pos_type pos);
  basic_istream& seekg(off_type off, ios_base::seekdir dir);

  // The field basic_istream adds to its virtual base.
  streamsize __gcount;

protected:
  basic_istream() : __gcount(0) {}

private:
  template <class _Value> basic_istream& __extract_number(_Value& v);
  template <class _Narrow> basic_istream& __extract_narrowed(_Narrow& v);
};

template <>
class __LORB_EXPORT basic_iostream<char, char_traits<char> > : public basic_istream<char>,
                                                               public basic_ostream<char> {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;

  explicit basic_iostream(basic_streambuf<char>* sb) { init(sb); }
  virtual ~basic_iostream();

protected:
  basic_iostream() {}
};

__LORB_EXPORT basic_istream<char>& __vel_extract_char(basic_istream<char>& is, char& c);
__LORB_EXPORT basic_istream<char>& __vel_extract_c_string(basic_istream<char>& is, char* s);

inline basic_istream<char>& operator>>(basic_istream<char>& is, char& c) {
  return __vel_extract_char(is, c);
}
inline basic_istream<char>& operator>>(basic_istream<char>& is, signed char& c) {
  return __vel_extract_char(is, reinterpret_cast<char&>(c));
}
inline basic_istream<char>& operator>>(basic_istream<char>& is, unsigned char& c) {
  return __vel_extract_char(is, reinterpret_cast<char&>(c));
}
inline basic_istream<char>& operator>>(basic_istream<char>& is, char* s) {
  return __vel_extract_c_string(is, s);
}
inline basic_istream<char>& operator>>(basic_istream<char>& is, signed char* s) {
  return __vel_extract_c_string(is, reinterpret_cast<char*>(s));
}
inline basic_istream<char>& operator>>(basic_istream<char>& is, unsigned char* s) {
  return __vel_extract_c_string(is, reinterpret_cast<char*>(s));
}

// Skips white space; meeting the end sets eofbit alone.
__LORB_EXPORT basic_istream<char>& ws(basic_istream<char>& is);

} // namespace std

#endif
