// std::basic_istream<char>: the sentry, the numeric extractors through num_get and the
// stream-buffer extractor; std::basic_iostream<char>.
#include <__lorb/give_back.h>
#include <__lorb/istream.h>

namespace std {

basic_istream<char>::~basic_istream() {}
basic_iostream<char>::~basic_iostream() {}

basic_istream<char>::sentry::sentry(basic_istream& is, bool noskipws) : __ok(false) {
  is.__gcount = 0;
  iostate error = goodbit;
  if (is.good()) {
    if (is.__tie)
      __vel_do_flush(is.__tie);
    if (!noskipws && (is.__flags & skipws)) {
      const ctype<char>& ct = use_facet<ctype<char> >(is.__locale);
      basic_streambuf<char>* sb = is.__buffer;
      // Kept: meeting the end here sets nothing; the extraction that follows meets it itself.
      for (int_type c = sb->sbumpc(); c != traits_type::eof(); c = sb->sbumpc()) {
        if (!ct.is(ctype_base::space, traits_type::to_char_type(c))) {
          __vel::give_back(sb, c);
          break;
        }
      }
    }
  } else {
    error = failbit;
  }
  is.setstate(error);
  __ok = is.good();
}

template <class _Value> basic_istream<char>& basic_istream<char>::__extract_number(_Value& v) {
  iostate error = goodbit;
  sentry ok(*this, false);
  if (ok)
    use_facet<num_get<char> >(__locale).get(istreambuf_iterator<char>(__buffer),
                                            istreambuf_iterator<char>(), *this, error, v);
  setstate(error);
  return *this;
}

// Kept: short and int are read as long and stored truncated whatever the value; a value that
// did not survive the truncation then adds failbit.
template <class _Narrow> basic_istream<char>& basic_istream<char>::__extract_narrowed(_Narrow& v) {
  iostate error = goodbit;
  sentry ok(*this, false);
  if (ok) {
    long wide = 0;
    use_facet<num_get<char> >(__locale).get(istreambuf_iterator<char>(__buffer),
                                            istreambuf_iterator<char>(), *this, error, wide);
    v = static_cast<_Narrow>(wide);
    if (static_cast<long>(v) != wide)
      error |= failbit;
  }
  setstate(error);
  return *this;
}

basic_istream<char>& basic_istream<char>::operator>>(bool& v) { return __extract_number(v); }
basic_istream<char>& basic_istream<char>::operator>>(short& v) { return __extract_narrowed(v); }
basic_istream<char>& basic_istream<char>::operator>>(unsigned short& v) {
  return __extract_number(v);
}
basic_istream<char>& basic_istream<char>::operator>>(int& v) { return __extract_narrowed(v); }
basic_istream<char>& basic_istream<char>::operator>>(unsigned int& v) {
  return __extract_number(v);
}
basic_istream<char>& basic_istream<char>::operator>>(long& v) { return __extract_number(v); }
basic_istream<char>& basic_istream<char>::operator>>(unsigned long& v) {
  return __extract_number(v);
}
basic_istream<char>& basic_istream<char>::operator>>(long long& v) { return __extract_number(v); }
basic_istream<char>& basic_istream<char>::operator>>(unsigned long long& v) {
  return __extract_number(v);
}
basic_istream<char>& basic_istream<char>::operator>>(float& v) { return __extract_number(v); }
basic_istream<char>& basic_istream<char>::operator>>(double& v) { return __extract_number(v); }
basic_istream<char>& basic_istream<char>::operator>>(long double& v) { return __extract_number(v); }
basic_istream<char>& basic_istream<char>::operator>>(void*& v) { return __extract_number(v); }

// Copies into sb until this stream's end (eofbit) or until sb refuses a character, which stays
// here. Nothing copied, or no sb, is failbit.
basic_istream<char>& basic_istream<char>::operator>>(basic_streambuf<char>* sb) {
  iostate error = goodbit;
  sentry ok(*this, false);
  streamsize copied = 0;
  if (ok && sb) {
    for (int_type c = __buffer->sgetc();; c = __buffer->snextc()) {
      if (c == traits_type::eof()) {
        error |= eofbit;
        break;
      }
      if (sb->sputc(traits_type::to_char_type(c)) == traits_type::eof())
        break;
      ++copied;
    }
  }
  if (copied == 0)
    error |= failbit;
  setstate(error);
  return *this;
}

} // namespace std
