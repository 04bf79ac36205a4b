// std::basic_ostream<char>: the sentry that every output operation runs, the inserters, put,
// write and flush.
#ifndef __LORB_OSTREAM_H
#define __LORB_OSTREAM_H

#include <__lorb/basic_ios.h>
#include <__lorb/config.h>
#include <__lorb/iosfwd.h>
#include <__lorb/num_put.h>

namespace std {

template <>
class __LORB_EXPORT basic_ostream<char, char_traits<char> > : virtual public basic_ios<char> {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;

  explicit basic_ostream(basic_streambuf<char>* sb) { init(sb); }
  virtual ~basic_ostream();

  // The sentry of user-written output operations: the same prefix and suffix as the library's.
  class sentry {
  public:
    explicit sentry(basic_ostream& os) : __stream(os), __ok(os.__prefix()) {}
    ~sentry() { __stream.__suffix(goodbit); }
    operator bool() const { return __ok; }

  private:
    sentry(const sentry&);
    sentry& operator=(const sentry&);
    basic_ostream& __stream;
    bool __ok;
  };

  // Flushes the tie of a good stream; says whether the stream is (still) good.
  bool opfx();

  basic_ostream& operator<<(basic_ostream& (*manipulator)(basic_ostream&)) {
    return manipulator(*this);
  }
  basic_ostream& operator<<(basic_ios<char>& (*manipulator)(basic_ios<char>&)) {
    manipulator(*this);
    return *this;
  }
  basic_ostream& operator<<(ios_base& (*manipulator)(ios_base&)) {
    manipulator(*this);
    return *this;
  }

  basic_ostream& operator<<(bool v);
  basic_ostream& operator<<(long v);
  basic_ostream& operator<<(unsigned long v);
  basic_ostream& operator<<(double v);
  basic_ostream& operator<<(long double v);
  basic_ostream& operator<<(const void* v);
  __extension__ basic_ostream& operator<<(long long v);
  __extension__ basic_ostream& operator<<(unsigned long long v);
  basic_ostream& operator<<(basic_streambuf<char>* sb);
  // Widened to long (to unsigned long in octal and hexadecimal, so that a negative short prints
  // as its own bits) and to double.
  basic_ostream& operator<<(short v) {
    return *this << (__shows_bits() ? static_cast<long>(static_cast<unsigned short>(v))
                                    : static_cast<long>(v));
  }
  basic_ostream& operator<<(unsigned short v) { return *this << static_cast<unsigned long>(v); }
  basic_ostream& operator<<(int v) {
    return *this << (__shows_bits() ? static_cast<long>(static_cast<unsigned int>(v))
                                    : static_cast<long>(v));
  }
  basic_ostream& operator<<(unsigned int v) { return *this << static_cast<unsigned long>(v); }
  basic_ostream& operator<<(float v) { return *this << static_cast<double>(v); }

  basic_ostream& put(char c);
  basic_ostream& write(const char* s, streamsize n);
  basic_ostream& flush();
  pos_type tellp();
  basic_ostream& seekp(pos_type pos);
  basic_ostream& seekp(off_type off, ios_base::seekdir dir);

  // The sentry prefix: flushes the tie of a good stream; a stream that is not good gets failbit
  // (and badbit without a buffer) and the operation does not write.
  bool __prefix() {
    if (good() && __tie)
      __flush_tie();
    if (good())
      return true;
    setstate(failbit);
    return false;
  }
  // The sentry suffix, run also when the prefix failed: the operation's error bits by the state
  // rule, then the sync of a unitbuf stream.
  void __suffix(iostate error) {
    setstate(error);
    if ((__flags & unitbuf) && __buffer && __buffer->pubsync() == -1)
      setstate(badbit);
  }

protected:
  basic_ostream() {}

private:
  bool __shows_bits() const {
    long base = __flags & basefield;
    return base == oct || base == hex;
  }
  void __flush_tie();
  template <class _Value> basic_ostream& __insert_number(_Value v);
};

__LORB_EXPORT basic_ostream<char>& __vel_insert_char(basic_ostream<char>& os, char c);
__LORB_EXPORT basic_ostream<char>& __vel_insert_c_string(basic_ostream<char>& os, const char* s);
__LORB_EXPORT void __vel_do_flush(basic_ostream<char>* os);

inline basic_ostream<char>& operator<<(basic_ostream<char>& os, char c) {
  return __vel_insert_char(os, os.widen(c));
}
inline basic_ostream<char>& operator<<(basic_ostream<char>& os, signed char c) {
  return __vel_insert_char(os, os.widen(static_cast<char>(c)));
}
inline basic_ostream<char>& operator<<(basic_ostream<char>& os, unsigned char c) {
  return __vel_insert_char(os, os.widen(static_cast<char>(c)));
}
inline basic_ostream<char>& operator<<(basic_ostream<char>& os, const char* s) {
  return __vel_insert_c_string(os, s);
}
inline basic_ostream<char>& operator<<(basic_ostream<char>& os, const signed char* s) {
  return __vel_insert_c_string(os, reinterpret_cast<const char*>(s));
}
inline basic_ostream<char>& operator<<(basic_ostream<char>& os, const unsigned char* s) {
  return __vel_insert_c_string(os, reinterpret_cast<const char*>(s));
}

__LORB_EXPORT basic_ostream<char>& endl(basic_ostream<char>& os);
inline basic_ostream<char>& ends(basic_ostream<char>& os) { return os.put('\0'); }
inline basic_ostream<char>& flush(basic_ostream<char>& os) { return os.flush(); }

} // namespace std

#endif
