// std::basic_ostream<char>: the numeric inserters through num_put, put, write, flush, the
// stream-buffer inserter, positions and endl.
#include <__lorb/ostream.h>

namespace std {

basic_ostream<char>::~basic_ostream() {}

bool basic_ostream<char>::opfx() {
  if (good() && __tie)
    __tie->flush();
  return good();
}

void basic_ostream<char>::__flush_tie() { __tie->flush(); }

// Kept: the iterator put returns is not examined, so a write failure inside the facet sets no
// state bit.
template <class _Value> basic_ostream<char>& basic_ostream<char>::__insert_number(_Value v) {
  if (__prefix())
    use_facet<num_put<char> >(__locale).put(ostreambuf_iterator<char>(__buffer), *this, __fill, v);
  __suffix(goodbit);
  return *this;
}

basic_ostream<char>& basic_ostream<char>::operator<<(bool v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(long v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(unsigned long v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(double v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(long double v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(const void* v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(long long v) { return __insert_number(v); }
basic_ostream<char>& basic_ostream<char>::operator<<(unsigned long long v) {
  return __insert_number(v);
}

// Kept: a put on a stream that is not good gets badbit as well as failbit.
basic_ostream<char>& basic_ostream<char>::put(char c) {
  iostate error = badbit;
  if (__prefix() && __buffer->sputc(c) != traits_type::eof())
    error = goodbit;
  __suffix(error);
  return *this;
}

basic_ostream<char>& basic_ostream<char>::write(const char* s, streamsize n) {
  iostate error = goodbit;
  if (__prefix() && __buffer->sputn(s, n) != n)
    error = badbit;
  __suffix(error);
  return *this;
}

// Kept: on a unitbuf stream the suffix syncs the buffer a second time.
basic_ostream<char>& basic_ostream<char>::flush() {
  iostate error = goodbit;
  if (__prefix() && __buffer && __buffer->pubsync() == -1)
    error = badbit;
  __suffix(error);
  return *this;
}

// Copies until sb's end or until this stream's buffer refuses a character, which goes back to sb.
basic_ostream<char>& basic_ostream<char>::operator<<(basic_streambuf<char>* sb) {
  iostate error = goodbit;
  long copied = 0;
  if (!__prefix() || !sb) {
    error = badbit;
  } else {
    for (;;) {
      int_type c = sb->sbumpc();
      if (c == traits_type::eof())
        break;
      if (__buffer->sputc(traits_type::to_char_type(c)) == traits_type::eof()) {
        sb->sputbackc(traits_type::to_char_type(c));
        break;
      }
      ++copied;
    }
  }
  if (copied == 0)
    error |= failbit;
  __suffix(error);
  return *this;
}

basic_ostream<char>::pos_type basic_ostream<char>::tellp() {
  if (fail())
    return pos_type(-1);
  return __buffer->pubseekoff(0, cur, out);
}

basic_ostream<char>& basic_ostream<char>::seekp(pos_type pos) {
  if (!fail() && __buffer->pubseekpos(pos, out) == pos_type(-1))
    setstate(failbit);
  return *this;
}

basic_ostream<char>& basic_ostream<char>::seekp(off_type off, ios_base::seekdir dir) {
  if (!fail() && __buffer->pubseekoff(off, dir, out) == pos_type(-1))
    setstate(failbit);
  return *this;
}

basic_ostream<char>& endl(basic_ostream<char>& os) {
  os.put(os.widen('\n'));
  return os.flush();
}

void __vel_do_flush(basic_ostream<char>* os) { os->flush(); }

} // namespace std
