// std::ios_base: the stream root that does not depend on the character type (flags, state,
// precision, width, locale, iword/pword storage, event callbacks) and its bit-mask types.
#ifndef __LORB_IOS_BASE_H
#define __LORB_IOS_BASE_H

#include <__lorb/config.h>
#include <__lorb/ios_base_fwd.h>
#include <__lorb/iosfwd.h>
#include <__lorb/locale_core.h>
#include <__lorb/lw_vector.h>
#include <utility>

namespace std {

class __LORB_EXPORT ios_base : public __vel::ios_base_events {
public:
  // Each mask numbers its members in alphabetical order of their names, one bit each.
  typedef long fmtflags;
  static const fmtflags boolalpha = 0x0001;
  static const fmtflags dec = 0x0002;
  static const fmtflags fixed = 0x0004;
  static const fmtflags hex = 0x0008;
  static const fmtflags internal = 0x0010;
  static const fmtflags left = 0x0020;
  static const fmtflags oct = 0x0040;
  static const fmtflags right = 0x0080;
  static const fmtflags scientific = 0x0100;
  static const fmtflags showbase = 0x0200;
  static const fmtflags showpoint = 0x0400;
  static const fmtflags showpos = 0x0800;
  static const fmtflags skipws = 0x1000;
  static const fmtflags unitbuf = 0x2000;
  static const fmtflags uppercase = 0x4000;
  static const fmtflags adjustfield = 0x00B0;
  static const fmtflags basefield = 0x004A;
  static const fmtflags floatfield = 0x0104;

  typedef unsigned short iostate;
  static const iostate goodbit = 0;
  static const iostate badbit = 1;
  static const iostate eofbit = 2;
  static const iostate failbit = 4;

  typedef unsigned short openmode;
  static const openmode app = 0x01;
  static const openmode ate = 0x02;
  static const openmode binary = 0x04;
  static const openmode in = 0x08;
  static const openmode out = 0x10;
  static const openmode trunc = 0x20;

  typedef int seekdir;
  static const seekdir beg = 1;
  static const seekdir cur = 2;
  static const seekdir end = 4;

  // The names of the 1998 standard's deprecated members.
  typedef iostate io_state;
  typedef openmode open_mode;
  typedef seekdir seek_dir;
  typedef std::streamoff streamoff;
  typedef std::streampos streampos;

  typedef __vel::ios_event_callback event_callback;

  fmtflags flags() const { return __flags; }
  fmtflags flags(fmtflags f) {
    fmtflags old = __flags;
    __flags = f;
    return old;
  }
  fmtflags setf(fmtflags f) {
    fmtflags old = __flags;
    __flags |= f;
    return old;
  }
  fmtflags setf(fmtflags f, fmtflags mask) {
    fmtflags old = __flags;
    __flags = (__flags & ~mask) | (f & mask);
    return old;
  }
  void unsetf(fmtflags mask) { __flags &= ~mask; }

  streamsize precision() const { return __precision; }
  streamsize precision(streamsize n) {
    streamsize old = __precision;
    __precision = n;
    return old;
  }
  streamsize width() const { return __width; }
  streamsize width(streamsize n) {
    streamsize old = __width;
    __width = n;
    return old;
  }

  // Takes the new locale, tells the callbacks (last registered first) and returns the old one.
  locale imbue(const locale& loc);
  locale getloc() const { return __locale; }

  static int xalloc();
  long& iword(int i);
  void*& pword(int i);
  void register_callback(event_callback fn, int index);

  // The class a stream failure would be thrown as. Nothing throws it here (a state bit caught by
  // the exception mask ends the process instead); programs may still make and name one.
  class __LORB_EXPORT failure : public exception {
  public:
    explicit failure(const __string_type& message) : exception(message) {}
    virtual ~failure() __LORB_NOEXCEPT;
  };

  // Counts the users of the standard streams: the first builds cin, cout, cerr and clog, the
  // last tears them down.
  class __LORB_EXPORT Init {
  public:
    Init();
    ~Init();
    static int init_cnt;
  };

  // The standard streams keep no buffer of their own and so are always in step with the C
  // library's: the setting is only remembered. Returns the previous one (true at first).
  static bool sync_with_stdio(bool sync = true);

  // Not a throw: "Failure in I/O\n" on standard error, then exit(1).
  static __LORB_NORETURN void throwfailure();

  virtual ~ios_base();

  // The counter behind xalloc.
  static int index;

  typedef pair<event_callback, int> __callback_entry;

  // The fields, in this order. g++ puts the virtual-table pointer ahead of them.
  locale __locale;
  __vel::lw_vector<__callback_entry> __callbacks; // its size is the allocated room
  unsigned __callback_count;                      // entries in use
  long __precision;
  long __width;
  iostate __state;
  fmtflags __flags;
  iostate __exceptions;
  __vel::lw_vector<long> __iwords;
  __vel::lw_vector<void*> __pwords;

protected:
  // Takes the global locale; precision, width, flags, state and exception mask are left for
  // basic_ios::init.
  ios_base();

  // Calls every callback, from the last registered to the first, with ev.
  void __call_callbacks(event ev);

private:
  ios_base(const ios_base&);
  ios_base& operator=(const ios_base&);
};

} // namespace std

#endif
