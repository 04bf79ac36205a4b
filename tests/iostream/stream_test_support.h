// What the stream-core tests share: a stream over basic_ios, a buffer that counts its virtual
// calls, a log of callback calls, and byte offsets of fields inside an object.
#ifndef STREAM_TEST_SUPPORT_H
#define STREAM_TEST_SUPPORT_H

#include <ios>
#include <locale>
#include <streambuf>
#include <string.h>

// The byte distance from an object's start to one of its fields (offsetof is not for classes
// with virtual functions).
template <class _Object, class _Field> long offset_in(const _Object& object, const _Field& field) {
  return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&object);
}

inline unsigned refs_of(const std::locale& loc) { return loc.__imp->refs; }

// The smallest concrete stream: basic_ios with its public constructor, which runs init.
struct test_stream : std::basic_ios<char> {
  explicit test_stream(std::basic_streambuf<char>* sb) : std::basic_ios<char>(sb) {}
};

// A stream whose init runs only when the test says, so the locale init reads can be set first.
struct late_stream : std::basic_ios<char> {
  late_stream() {}
  void start(std::basic_streambuf<char>* sb) { init(sb); }
};

// A buffer over the base's defaults that counts every virtual call and forwards it unchanged,
// with the protected pointer operations opened up.
struct counting_buffer : std::basic_streambuf<char> {
  int imbues, setbufs, seekoffs, seekposs, syncs, showmanycs, xsgetns, underflows, uflows,
      pbackfails, xsputns, overflows;
  int last_pbackfail, last_overflow;

  counting_buffer()
      : imbues(0), setbufs(0), seekoffs(0), seekposs(0), syncs(0), showmanycs(0), xsgetns(0),
        underflows(0), uflows(0), pbackfails(0), xsputns(0), overflows(0), last_pbackfail(0),
        last_overflow(0) {}

  int virtual_calls() const {
    return imbues + setbufs + seekoffs + seekposs + syncs + showmanycs + xsgetns + underflows +
           uflows + pbackfails + xsputns + overflows;
  }

  using std::basic_streambuf<char>::eback;
  using std::basic_streambuf<char>::gptr;
  using std::basic_streambuf<char>::egptr;
  using std::basic_streambuf<char>::pbase;
  using std::basic_streambuf<char>::pptr;
  using std::basic_streambuf<char>::epptr;
  using std::basic_streambuf<char>::setg;
  using std::basic_streambuf<char>::setp;
  using std::basic_streambuf<char>::gbump;
  using std::basic_streambuf<char>::pbump;

  void imbue(const std::locale& loc) {
    ++imbues;
    std::basic_streambuf<char>::imbue(loc);
  }
  std::basic_streambuf<char>* setbuf(char* s, std::streamsize n) {
    ++setbufs;
    return std::basic_streambuf<char>::setbuf(s, n);
  }
  pos_type seekoff(off_type off, std::ios_base::seekdir dir, std::ios_base::openmode which) {
    ++seekoffs;
    return std::basic_streambuf<char>::seekoff(off, dir, which);
  }
  pos_type seekpos(pos_type pos, std::ios_base::openmode which) {
    ++seekposs;
    return std::basic_streambuf<char>::seekpos(pos, which);
  }
  int sync() {
    ++syncs;
    return std::basic_streambuf<char>::sync();
  }
  std::streamsize showmanyc() {
    ++showmanycs;
    return std::basic_streambuf<char>::showmanyc();
  }
  std::streamsize xsgetn(char* s, std::streamsize n) {
    ++xsgetns;
    return std::basic_streambuf<char>::xsgetn(s, n);
  }
  int_type underflow() {
    ++underflows;
    return std::basic_streambuf<char>::underflow();
  }
  int_type uflow() {
    ++uflows;
    return std::basic_streambuf<char>::uflow();
  }
  int_type pbackfail(int_type c) {
    ++pbackfails;
    last_pbackfail = c;
    return std::basic_streambuf<char>::pbackfail(c);
  }
  std::streamsize xsputn(const char* s, std::streamsize n) {
    ++xsputns;
    return std::basic_streambuf<char>::xsputn(s, n);
  }
  int_type overflow(int_type c) {
    ++overflows;
    last_overflow = c;
    return std::basic_streambuf<char>::overflow(c);
  }
};

// A ctype whose widen moves every character one code up, so a widened ' ' is '!'.
struct shifting_ctype : std::ctype<char> {
  shifting_ctype() : std::ctype<char>(0, false, 0) {}
  using std::ctype<char>::do_widen;
  char do_widen(char c) const { return static_cast<char>(c + 1); }
};

// A locale of its own ("C" facets) whose ctype<char> slot holds f, or nothing when f is null.
inline std::locale locale_with_ctype(std::locale::facet* f) {
  std::locale made("C");
  std::locale::facet*& slot = made.__imp->facets.data[std::ctype<char>::id.__number()];
  slot->__release();
  slot = f;
  if (f)
    ++f->__refs;
  return made;
}

// One call of an event callback, as the callback saw it.
struct callback_call {
  std::ios_base::event event;
  std::ios_base* stream;
  int index;
  std::locale::imp* stream_locale;
  char function; // which callback: 'f', 'g', ...
};

struct callback_log {
  callback_call calls[32];
  int count;
};

static callback_log event_log;

inline void log_call(char function, std::ios_base::event ev, std::ios_base& stream, int index) {
  if (event_log.count == 32)
    return;
  callback_call& call = event_log.calls[event_log.count++];
  call.event = ev;
  call.stream = &stream;
  call.index = index;
  call.stream_locale = stream.getloc().__imp;
  call.function = function;
}

inline void callback_f(std::ios_base::event ev, std::ios_base& stream, int index) {
  log_call('f', ev, stream, index);
}
inline void callback_g(std::ios_base::event ev, std::ios_base& stream, int index) {
  log_call('g', ev, stream, index);
}

inline void clear_event_log() { memset(&event_log, 0, sizeof event_log); }

#endif
