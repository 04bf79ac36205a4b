// The strstreams: isstream's seeks; the member buffer goes first, releasing nothing, then the
// stream bases.
#include <__lorb/strstreams.h>

namespace std {

isstream::~isstream() {}
istrstream::~istrstream() {}
ostrstream::~ostrstream() {}
strstream::~strstream() {}

isstream& isstream::seekg(pos_type pos) {
  basic_istream<char>::seekg(pos);
  return *this;
}

isstream& isstream::seekg(off_type off, ios_base::seekdir dir) {
  basic_istream<char>::seekg(off, dir);
  return *this;
}

} // namespace std
