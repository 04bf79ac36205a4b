// std::basic_ios<char>: binds a stream to its buffer, its tied output stream and its fill
// character, and keeps the one state rule every stream operation applies.
#ifndef __LORB_BASIC_IOS_H
#define __LORB_BASIC_IOS_H

#include <__lorb/config.h>
#include <__lorb/ctype_facets.h>
#include <__lorb/ios_base.h>
#include <__lorb/iosfwd.h>
#include <__lorb/streambuf.h>

namespace std {

template <> class __LORB_EXPORT basic_ios<char, char_traits<char> > : public ios_base {
public:
  typedef char char_type;
  typedef char_traits<char> traits_type;
  typedef traits_type::int_type int_type;
  typedef traits_type::pos_type pos_type;
  typedef traits_type::off_type off_type;

  explicit basic_ios(basic_streambuf<char>* sb) { init(sb); }
  virtual ~basic_ios();

  // True while neither failbit nor badbit is set.
  operator void*() const { return fail() ? 0 : const_cast<basic_ios*>(this); }
  bool operator!() const { return fail(); }

  iostate rdstate() const { return __state; }
  // The state rule: a stream without a buffer always has badbit too; a state bit that is also
  // in the exception mask ends the process through throwfailure().
  void clear(iostate state = goodbit) {
    __state = __buffer ? state : static_cast<iostate>(state | badbit);
    if (__state & __exceptions)
      throwfailure();
  }
  void setstate(iostate bits) { clear(static_cast<iostate>(__state | bits)); }
  bool good() const { return __state == 0; }
  bool eof() const { return (__state & eofbit) != 0; }
  bool fail() const { return (__state & (failbit | badbit)) != 0; }
  bool bad() const { return (__state & badbit) != 0; }
  iostate exceptions() const { return __exceptions; }
  void exceptions(iostate mask) {
    __exceptions = mask;
    clear(__state);
  }

  basic_ostream<char>* tie() const { return __tie; }
  basic_ostream<char>* tie(basic_ostream<char>* os) {
    basic_ostream<char>* old = __tie;
    __tie = os;
    return old;
  }
  basic_streambuf<char>* rdbuf() const { return __buffer; }
  // Sets the buffer and clears the state (badbit again if sb is null).
  basic_streambuf<char>* rdbuf(basic_streambuf<char>* sb) {
    basic_streambuf<char>* old = __buffer;
    __buffer = sb;
    clear();
    return old;
  }

  char fill() const { return __fill; }
  char fill(char c) {
    char old = __fill;
    __fill = c;
    return old;
  }

  // Tells the callbacks about the new locale first, then the buffer.
  locale imbue(const locale& loc);

  char narrow(char c, char dfault) const {
    return use_facet<ctype<char> >(__locale).narrow(c, dfault);
  }
  char widen(char c) const { return use_facet<ctype<char> >(__locale).widen(c); }

  // The fields basic_ios adds to ios_base, in this order.
  basic_streambuf<char>* __buffer;
  basic_ostream<char>* __tie;
  char __fill;

protected:
  // Leaves every field for init().
  basic_ios() {}
  void init(basic_streambuf<char>* sb);

private:
  basic_ios(const basic_ios&);
  basic_ios& operator=(const basic_ios&);
};

} // namespace std

#endif
