// The file streams: streams that own a file buffer as a member.
#ifndef __LORB_FILE_STREAMS_H
#define __LORB_FILE_STREAMS_H

#include <__lorb/config.h>
#include <__lorb/filebuf.h>
#include <__lorb/ostream.h>
#include <string>

namespace std {

template <>
class __LORB_EXPORT basic_ofstream<char, char_traits<char> > : public basic_ostream<char> {
public:
  basic_ofstream() : basic_ostream<char>(&__filebuf) {}
  // Opens name with mode | out; a failed open sets failbit.
  explicit basic_ofstream(const char* name, ios_base::openmode mode = ios_base::out)
      : basic_ostream<char>(&__filebuf) {
    __open(name, mode);
  }
  explicit basic_ofstream(const basic_string<char>& name, ios_base::openmode mode = ios_base::out)
      : basic_ostream<char>(&__filebuf) {
    __open(name.c_str(), mode);
  }
  // The member buffer goes first, closing the file, then the stream bases.
  virtual ~basic_ofstream();

  basic_filebuf<char>* rdbuf() const { return const_cast<basic_filebuf<char>*>(&__filebuf); }
  bool is_open() const { return __filebuf.is_open(); }
  // A successful open clears the state; a failed one adds failbit.
  void open(const char* name, ios_base::openmode mode = ios_base::out);
  void open(const basic_string<char>& name, ios_base::openmode mode = ios_base::out) {
    open(name.c_str(), mode);
  }
  void close();

private:
  void __open(const char* name, ios_base::openmode mode);
  basic_filebuf<char> __filebuf;
};

} // namespace std

#endif
