// std::ios_base: its constants, construction and destruction, imbue, xalloc, iword/pword, the
// event callbacks, throwfailure, sync_with_stdio and the failure class.
#include <__lorb/ios_base.h>
#include <stdio.h>
#include <stdlib.h>

namespace std {

const ios_base::fmtflags ios_base::boolalpha;
const ios_base::fmtflags ios_base::dec;
const ios_base::fmtflags ios_base::fixed;
const ios_base::fmtflags ios_base::hex;
const ios_base::fmtflags ios_base::internal;
const ios_base::fmtflags ios_base::left;
const ios_base::fmtflags ios_base::oct;
const ios_base::fmtflags ios_base::right;
const ios_base::fmtflags ios_base::scientific;
const ios_base::fmtflags ios_base::showbase;
const ios_base::fmtflags ios_base::showpoint;
const ios_base::fmtflags ios_base::showpos;
const ios_base::fmtflags ios_base::skipws;
const ios_base::fmtflags ios_base::unitbuf;
const ios_base::fmtflags ios_base::uppercase;
const ios_base::fmtflags ios_base::adjustfield;
const ios_base::fmtflags ios_base::basefield;
const ios_base::fmtflags ios_base::floatfield;
const ios_base::iostate ios_base::goodbit;
const ios_base::iostate ios_base::badbit;
const ios_base::iostate ios_base::eofbit;
const ios_base::iostate ios_base::failbit;
const ios_base::openmode ios_base::app;
const ios_base::openmode ios_base::ate;
const ios_base::openmode ios_base::binary;
const ios_base::openmode ios_base::in;
const ios_base::openmode ios_base::out;
const ios_base::openmode ios_base::trunc;
const ios_base::seekdir ios_base::beg;
const ios_base::seekdir ios_base::cur;
const ios_base::seekdir ios_base::end;

int ios_base::index = 0;

ios_base::ios_base() : __callback_count(0) {}

ios_base::~ios_base() {
  __call_callbacks(erase_event);
  if (__pwords.size)
    __pwords.resize(0, 0);
  if (__iwords.size)
    __iwords.resize(0, 0);
  __callbacks.resize(0, __callback_entry(0, 0));
}

void ios_base::__call_callbacks(event ev) {
  for (unsigned i = __callback_count; i > 0; --i)
    __callbacks.data[i - 1].first(ev, *this, __callbacks.data[i - 1].second);
}

locale ios_base::imbue(const locale& loc) {
  locale previous(__locale);
  __locale = loc;
  __call_callbacks(imbue_event);
  return previous;
}

int ios_base::xalloc() { return index++; }

// Kept: iword compares the index as signed, so a negative one is not grown for; pword compares
// it as unsigned, so a negative one takes the resize path.
long& ios_base::iword(int i) {
  if (i < static_cast<int>(__iwords.size))
    return __iwords.data[i];
  __iwords.resize(i + 1, 0);
  return __iwords.data[i];
}

void*& ios_base::pword(int i) {
  if (static_cast<unsigned>(i) < __pwords.size)
    return __pwords.data[i];
  __pwords.resize(i + 1, 0);
  return __pwords.data[i];
}

// The storage grows by five entries at a time; duplicates are not detected.
void ios_base::register_callback(event_callback fn, int index) {
  if (__callbacks.size <= __callback_count)
    __callbacks.resize(__callback_count + 5, __callback_entry(0, 0));
  __callbacks.data[__callback_count] = __callback_entry(fn, index);
  ++__callback_count;
}

// Kept: not a throw. A stream whose exception mask catches a state bit ends the process.
void ios_base::throwfailure() {
  fprintf(stderr, "Failure in I/O\n");
  exit(1);
}

ios_base::failure::~failure() __LORB_NOEXCEPT {}

namespace {
bool in_step_with_stdio = true;
}

bool ios_base::sync_with_stdio(bool sync) {
  bool previous = in_step_with_stdio;
  in_step_with_stdio = sync;
  return previous;
}
} // namespace std
