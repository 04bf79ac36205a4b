// The storage of cin, cout, cerr and clog: raw bytes under the streams' own names, so that no
// ordinary static construction runs for them; ios_base::Init builds them in place.
#include <__lorb/istream.h>
#include <__lorb/ostream.h>

// This unit does not see the declarations of the streams; the names below are theirs as the
// compiler spells them (std::cin, std::cout, std::cerr, std::clog).
#define __LORB_STREAM_STORAGE(_Type, name, symbol)                                                 \
  __LORB_EXPORT                                                                                    \
  __attribute__((__aligned__(__alignof__(_Type)))) char name[sizeof(_Type)] __asm__(symbol)

__LORB_STREAM_STORAGE(std::basic_istream<char>, cin_storage, "_ZSt3cin");
__LORB_STREAM_STORAGE(std::basic_ostream<char>, cout_storage, "_ZSt4cout");
__LORB_STREAM_STORAGE(std::basic_ostream<char>, cerr_storage, "_ZSt4cerr");
__LORB_STREAM_STORAGE(std::basic_ostream<char>, clog_storage, "_ZSt4clog");
