// The file streams: streams that own a file buffer as a member.
#ifndef __LORB_FILE_STREAMS_H
#define __LORB_FILE_STREAMS_H

#include <__lorb/config.h>
#include <__lorb/filebuf.h>
#include <__lorb/istream.h>
#include <__lorb/ostream.h>
#include <string>

namespace std {

// Opens the stream's file buffer: a failure adds failbit; a success clears the state when
// clear_on_success (open, as against a constructor).
__LORB_EXPORT void __vel_open_file_stream(basic_ios<char>& stream, basic_filebuf<char>& buffer,
                                          const char* name, ios_base::openmode mode,
                                          bool clear_on_success);
// Closes it; a failed close adds failbit.
__LORB_EXPORT void __vel_close_file_stream(basic_ios<char>& stream, basic_filebuf<char>& buffer);

template <>
class __LORB_EXPORT basic_ifstream<char, char_traits<char> > : public basic_istream<char> {
public:
  basic_ifstream() : basic_istream<char>(&__filebuf) {}
  // Opens name with mode | in; a failed open sets failbit.
  explicit basic_ifstream(const char* name, ios_base::openmode mode = ios_base::in)
      : basic_istream<char>(&__filebuf) {
    __vel_open_file_stream(*this, __filebuf, name, mode | ios_base::in, false);
  }
  explicit basic_ifstream(const basic_string<char>& name, ios_base::openmode mode = ios_base::in)
      : basic_istream<char>(&__filebuf) {
    __vel_open_file_stream(*this, __filebuf, name.c_str(), mode | ios_base::in, false);
  }
  virtual ~basic_ifstream();

  basic_filebuf<char>* rdbuf() const { return const_cast<basic_filebuf<char>*>(&__filebuf); }
  bool is_open() const { return __filebuf.is_open(); }
  void open(const char* name, ios_base::openmode mode = ios_base::in) {
    __vel_open_file_stream(*this, __filebuf, name, mode | ios_base::in, true);
  }
  void open(const basic_string<char>& name, ios_base::openmode mode = ios_base::in) {
    open(name.c_str(), mode);
  }
  void close() { __vel_close_file_stream(*this, __filebuf); }

private:
  basic_filebuf<char> __filebuf;
};

// The mode is used as it is given: no direction is added.
template <>
class __LORB_EXPORT basic_fstream<char, char_traits<char> > : public basic_iostream<char> {
public:
  basic_fstream() : basic_iostream<char>(&__filebuf) {}
  explicit basic_fstream(const char* name, ios_base::openmode mode = ios_base::in | ios_base::out)
      : basic_iostream<char>(&__filebuf) {
    __vel_open_file_stream(*this, __filebuf, name, mode, false);
  }
  explicit basic_fstream(const basic_string<char>& name,
                         ios_base::openmode mode = ios_base::in | ios_base::out)
      : basic_iostream<char>(&__filebuf) {
    __vel_open_file_stream(*this, __filebuf, name.c_str(), mode, false);
  }
  virtual ~basic_fstream();

  basic_filebuf<char>* rdbuf() const { return const_cast<basic_filebuf<char>*>(&__filebuf); }
  bool is_open() const { return __filebuf.is_open(); }
  void open(const char* name, ios_base::openmode mode = ios_base::in | ios_base::out) {
    __vel_open_file_stream(*this, __filebuf, name, mode, true);
  }
  void open(const basic_string<char>& name,
            ios_base::openmode mode = ios_base::in | ios_base::out) {
    open(name.c_str(), mode);
  }
  void close() { __vel_close_file_stream(*this, __filebuf); }

private:
  basic_filebuf<char> __filebuf;
};

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
