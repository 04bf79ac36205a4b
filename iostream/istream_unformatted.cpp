// std::basic_istream<char>: the unformatted reads (get, getline, ignore, peek, read, readsome,
// putback, unget), sync and positions.
#include <__lorb/give_back.h>
#include <__lorb/istream.h>

namespace std {

namespace {
typedef char_traits<char> traits;
const int end_of_file = -1;
} // namespace

basic_istream<char>::int_type basic_istream<char>::get() {
  sentry ok(*this, true);
  if (!ok) {
    setstate(failbit);
    return end_of_file;
  }
  int_type c = __buffer->sbumpc();
  if (c == end_of_file) {
    setstate(eofbit | failbit);
    return end_of_file;
  }
  __gcount = 1;
  return c;
}

basic_istream<char>& basic_istream<char>::get(char& c) {
  iostate error = goodbit;
  sentry ok(*this, true);
  if (ok) {
    int_type got = __buffer->sbumpc();
    if (got == end_of_file) {
      error = eofbit | failbit;
    } else {
      c = traits::to_char_type(got);
      __gcount = 1;
    }
  }
  setstate(error);
  return *this;
}

// Stops before delim, which stays in the stream; stores the terminator when there is room for
// one. Nothing taken is failbit.
basic_istream<char>& basic_istream<char>::get(char* s, streamsize n, char delim) {
  iostate error = goodbit;
  sentry ok(*this, true);
  if (ok) {
    for (int_type c = __buffer->sgetc(); __gcount < n - 1; c = __buffer->snextc()) {
      if (c == end_of_file) {
        error |= eofbit;
        break;
      }
      if (traits::to_char_type(c) == delim)
        break;
      *s++ = traits::to_char_type(c);
      ++__gcount;
    }
  }
  if (n > 0)
    *s = 0;
  if (__gcount == 0)
    error |= failbit;
  setstate(error);
  return *this;
}

// Copies into sb up to delim (left in the stream), the end, or a character sb refuses.
basic_istream<char>& basic_istream<char>::get(basic_streambuf<char>& sb, char delim) {
  iostate error = goodbit;
  sentry ok(*this, true);
  if (ok) {
    for (int_type c = __buffer->sgetc();; c = __buffer->snextc()) {
      if (c == end_of_file) {
        error |= eofbit;
        break;
      }
      if (traits::to_char_type(c) == delim || sb.sputc(traits::to_char_type(c)) == end_of_file)
        break;
      ++__gcount;
    }
  }
  if (__gcount == 0)
    error |= failbit;
  setstate(error);
  return *this;
}

// Kept: the terminator is stored in every case, at s[0] even for n below 1; the delimiter is
// taken and counted but not stored.
basic_istream<char>& basic_istream<char>::getline(char* s, streamsize n, char delim) {
  iostate error = goodbit;
  sentry ok(*this, true);
  if (ok && n >= 1) {
    for (;;) {
      int_type c = __buffer->sbumpc();
      if (c == end_of_file) {
        error = eofbit;
        break;
      }
      if (traits::to_char_type(c) == delim) {
        ++__gcount;
        break;
      }
      if (__gcount == n - 1) {
        __vel::give_back(__buffer, c);
        error = failbit;
        break;
      }
      *s++ = traits::to_char_type(c);
      ++__gcount;
    }
  }
  *s = 0;
  if (__gcount == 0)
    error |= failbit;
  setstate(error);
  return *this;
}

// Takes up to n characters (no limit when n is the largest streamsize), stopping after delim.
basic_istream<char>& basic_istream<char>::ignore(streamsize n, int_type delim) {
  iostate error = goodbit;
  sentry ok(*this, true);
  if (ok) {
    const streamsize unlimited = 0x7FFFFFFF;
    while (n == unlimited || __gcount < n) {
      int_type c = __buffer->sbumpc();
      if (c == end_of_file) {
        error |= eofbit;
        break;
      }
      ++__gcount;
      if (delim != end_of_file && traits::to_int_type(traits::to_char_type(c)) == delim)
        break;
    }
  }
  setstate(error);
  return *this;
}

basic_istream<char>::int_type basic_istream<char>::peek() {
  sentry ok(*this, true);
  if (!ok)
    return end_of_file;
  int_type c = __buffer->sgetc();
  if (c == end_of_file)
    setstate(eofbit);
  return c;
}

basic_istream<char>& basic_istream<char>::read(char* s, streamsize n) {
  iostate error = goodbit;
  sentry ok(*this, true);
  if (ok) {
    __gcount = n > 0 ? __buffer->sgetn(s, n) : 0;
    if (__gcount < n)
      error = eofbit | failbit;
  }
  setstate(error);
  return *this;
}

// Takes what the buffer says it holds, at most n; a buffer that says it holds nothing more
// (-1) sets eofbit.
streamsize basic_istream<char>::readsome(char* s, streamsize n) {
  sentry ok(*this, true);
  if (!ok)
    return 0;
  streamsize available = __buffer->in_avail();
  if (available == -1) {
    setstate(eofbit);
    return 0;
  }
  if (available > 0 && n > 0)
    __gcount = __buffer->sgetn(s, available < n ? available : n);
  return __gcount;
}

basic_istream<char>& basic_istream<char>::putback(char c) {
  sentry ok(*this, true);
  if (ok && __buffer->sputbackc(c) == end_of_file)
    setstate(badbit);
  return *this;
}

basic_istream<char>& basic_istream<char>::unget() {
  sentry ok(*this, true);
  if (ok && __buffer->sungetc() == end_of_file)
    setstate(badbit);
  return *this;
}

int basic_istream<char>::sync() {
  if (!__buffer)
    return -1;
  if (__buffer->pubsync() == -1) {
    setstate(badbit);
    return -1;
  }
  return 0;
}

basic_istream<char>::pos_type basic_istream<char>::tellg() {
  if (fail())
    return pos_type(-1);
  return __buffer->pubseekoff(0, cur, in);
}

// A seek first forgets an end of file already met, so that a stream read to its end can be
// read again.
basic_istream<char>& basic_istream<char>::seekg(pos_type pos) {
  clear(static_cast<iostate>(rdstate() & ~eofbit));
  if (!fail() && __buffer->pubseekpos(pos, in) == pos_type(-1))
    setstate(failbit);
  return *this;
}

basic_istream<char>& basic_istream<char>::seekg(off_type off, ios_base::seekdir dir) {
  clear(static_cast<iostate>(rdstate() & ~eofbit));
  if (!fail() && __buffer->pubseekoff(off, dir, in) == pos_type(-1))
    setstate(failbit);
  return *this;
}

} // namespace std
