// ios_base::Init and the standard streams it builds and tears down; the first of the library's
// two Init objects (the other is in iostream2.cpp).
#include <__lorb/runtime.h>
#include <__lorb/standard_streams.h>
#include <__lorb/standard_streams_hold.h>
#include <new>
#include <stdio.h>

namespace std {

int ios_base::Init::init_cnt = 0;
basic_filebuf<char>* __trelk_fin = 0;
basic_filebuf<char>* __trelk_fout = 0;
basic_filebuf<char>* __trelk_ferr = 0;

namespace {

void build_standard_streams() {
  __trelk_fin = new basic_filebuf<char>(stdin);
  __trelk_fout = new basic_filebuf<char>(stdout);
  __trelk_ferr = new basic_filebuf<char>(stderr);
  if (!__trelk_fin || !__trelk_fout || !__trelk_ferr)
    __vel::out_of_memory();
  new (&cout) basic_ostream<char>(__trelk_fout);
  new (&cin) basic_istream<char>(__trelk_fin);
  new (&cerr) basic_ostream<char>(__trelk_ferr);
  cin.tie(&cout);
  cerr.tie(&cout);
  cerr.setf(ios_base::unitbuf);
  new (&clog) basic_ostream<char>(__trelk_ferr);
  clog.tie(&cout);
}

// The C library's standard files stay open: the file buffer never closes them.
void tear_down_standard_streams() {
  cout.flush();
  cerr.flush();
  clog.flush();
  cin.~basic_istream();
  clog.~basic_ostream();
  cerr.~basic_ostream();
  cout.~basic_ostream();
  delete __trelk_fin;
  delete __trelk_fout;
  delete __trelk_ferr;
}

} // namespace

ios_base::Init::Init() {
  if (init_cnt == 0)
    build_standard_streams();
  ++init_cnt;
}

ios_base::Init::~Init() {
  if (init_cnt-- == 1)
    tear_down_standard_streams();
}

} // namespace std

namespace __vel {

void hold_standard_streams(standard_streams_hold& hold) {
  std::ios_base::Init* init = new (hold.storage.bytes) std::ios_base::Init;
  hold.destruction.object = init;
  hold.destruction.destructor = standard_streams_hold::destroy;
  __record_needed_destruction(&hold.destruction);
}

void standard_streams_hold::destroy(void* init, int) {
  static_cast<std::ios_base::Init*>(init)->~Init();
}

} // namespace __vel

namespace {
__vel::standard_streams_hold __trelk_ios_init;
// A constructor with nothing to destroy: the hold is destroyed through the record above.
struct holder {
  holder() { __vel::hold_standard_streams(__trelk_ios_init); }
} holds_standard_streams;
} // namespace
