// The string streams: the member buffer goes first, releasing its array, then the stream bases.
#include <__lorb/string_streams.h>

namespace std {
basic_istringstream<char>::~basic_istringstream() {}
basic_ostringstream<char>::~basic_ostringstream() {}
basic_stringstream<char>::~basic_stringstream() {}
} // namespace std
