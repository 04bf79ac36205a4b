// The file streams: opening and closing through the member file buffer.
#include <__lorb/file_streams.h>

namespace std {

basic_ofstream<char>::~basic_ofstream() {}

void basic_ofstream<char>::__open(const char* name, ios_base::openmode mode) {
  if (!__filebuf.open(name, mode | ios_base::out))
    setstate(failbit);
}

void basic_ofstream<char>::open(const char* name, ios_base::openmode mode) {
  if (__filebuf.open(name, mode | ios_base::out))
    clear();
  else
    setstate(failbit);
}

void basic_ofstream<char>::close() {
  if (!__filebuf.close())
    setstate(failbit);
}

} // namespace std
