// The file streams: opening and closing through the member file buffer.
#include <__lorb/file_streams.h>

namespace std {

basic_ifstream<char>::~basic_ifstream() {}
basic_ofstream<char>::~basic_ofstream() {}
basic_fstream<char>::~basic_fstream() {}

void __vel_open_file_stream(basic_ios<char>& stream, basic_filebuf<char>& buffer, const char* name,
                            ios_base::openmode mode, bool clear_on_success) {
  if (!buffer.open(name, mode))
    stream.setstate(ios_base::failbit);
  else if (clear_on_success)
    stream.clear();
}

void __vel_close_file_stream(basic_ios<char>& stream, basic_filebuf<char>& buffer) {
  if (!buffer.close())
    stream.setstate(ios_base::failbit);
}

void basic_ofstream<char>::__open(const char* name, ios_base::openmode mode) {
  __vel_open_file_stream(*this, __filebuf, name, mode | ios_base::out, false);
}

void basic_ofstream<char>::open(const char* name, ios_base::openmode mode) {
  __vel_open_file_stream(*this, __filebuf, name, mode | ios_base::out, true);
}

void basic_ofstream<char>::close() { __vel_close_file_stream(*this, __filebuf); }

} // namespace std
