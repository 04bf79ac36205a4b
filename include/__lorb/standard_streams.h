// The standard streams and the file buffers under them.
#ifndef __LORB_STANDARD_STREAMS_H
#define __LORB_STANDARD_STREAMS_H

#include <__lorb/config.h>
#include <__lorb/filebuf.h>
#include <__lorb/istream.h>
#include <__lorb/ostream.h>

namespace std {

// Built in place by the first ios_base::Init, over stdin, stdout and stderr; cerr and clog
// share one buffer.
extern __LORB_EXPORT basic_istream<char> cin;
extern __LORB_EXPORT basic_ostream<char> cout;
extern __LORB_EXPORT basic_ostream<char> cerr;
extern __LORB_EXPORT basic_ostream<char> clog;

extern __LORB_EXPORT basic_filebuf<char>* __trelk_fin;
extern __LORB_EXPORT basic_filebuf<char>* __trelk_fout;
extern __LORB_EXPORT basic_filebuf<char>* __trelk_ferr;

} // namespace std

#endif
