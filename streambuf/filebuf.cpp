// std::basic_filebuf<char>: every virtual operation straight onto the attached C library FILE,
// opening through the open-mode table, and the rule that stdin, stdout and stderr stay open.
#include <__lorb/library_facets.h>
#include <stdio.h>

namespace std {

namespace {

bool is_standard_file(FILE* f) { return f == stdin || f == stdout || f == stderr; }

const char* fopen_mode_of(ios_base::openmode mode) {
  for (const __vel_open_mode* entry = __vel_open_modes; entry->fopen_mode; ++entry)
    if (entry->mode == mode)
      return entry->fopen_mode;
  return 0;
}

// A value outside 0..255 is written as the character 0.
char narrowed(int c) { return c == (c & 0xff) ? static_cast<char>(c) : '\0'; }

// A program's conversion facet that says it wrote past the end it was given (or before the
// start) is not believed: the conversion counts as failed and nothing is written, so the
// terminator never lands outside the buffer.
bool within(const char* to_next, const char* begin, const char* end) {
  return to_next && to_next >= begin && to_next <= end;
}

} // namespace

basic_filebuf<char>::~basic_filebuf() {
  if (__file && !is_standard_file(__file) && fclose(__file) == 0)
    __file = 0;
}

// out|ate looks up in|out ("r+"), so an existing file keeps its contents; when that open fails,
// out|ate tries once more without ate ("w"), which creates the file.
basic_filebuf<char>* basic_filebuf<char>::open(const char* name, ios_base::openmode mode) {
  if (__file)
    return 0;
  bool ate = (mode & ios_base::ate) != 0;
  ios_base::openmode lookup = mode;
  if (ate && !(mode & ios_base::trunc))
    lookup = (mode | ios_base::in) & ~ios_base::ate;
  const char* how = fopen_mode_of(lookup);
  if (!how)
    return 0;
  __mode = mode;
  __file = fopen(name, how);
  if (!__file) {
    if (!((mode & ios_base::out) && ate && !(mode & ios_base::in)))
      return 0;
    how = fopen_mode_of(mode & ~ios_base::ate);
    if (!how)
      return 0;
    __file = fopen(name, how);
    if (!__file)
      return 0;
  } else if (!ate) {
    return this;
  }
  if (fseek(__file, 0, SEEK_END) == 0)
    return this;
  // Kept: a file whose fclose fails stays attached.
  if (!is_standard_file(__file) && fclose(__file) == 0)
    __file = 0;
  return 0;
}

// Settled here: the file is forgotten whatever fclose says (the C library has let go of it
// either way), and a failure makes the result null.
basic_filebuf<char>* basic_filebuf<char>::close() {
  if (!__file)
    return 0;
  FILE* f = __file;
  __file = 0;
  if (is_standard_file(f))
    return fflush(f) == 0 ? this : 0;
  return fclose(f) == 0 ? this : 0;
}

void basic_filebuf<char>::imbue(const locale& loc) { __locale = loc; }

basic_streambuf<char>* basic_filebuf<char>::setbuf(char*, streamsize) { return __file ? this : 0; }

// The direction of the seek ignores which; a seek before the start or past the end is refused
// before the C library is asked.
basic_filebuf<char>::pos_type basic_filebuf<char>::seekoff(off_type off, ios_base::seekdir dir,
                                                           ios_base::openmode) {
  if (!__file || ((dir & ios_base::beg) && off < 0) || ((dir & ios_base::end) && off > 0))
    return pos_type(-1);
  int origin = dir == ios_base::beg ? SEEK_SET : dir == ios_base::end ? SEEK_END : SEEK_CUR;
  if (fseek(__file, off, origin) != 0)
    return pos_type(-1);
  return pos_type(ftell(__file));
}

basic_filebuf<char>::pos_type basic_filebuf<char>::seekpos(pos_type pos, ios_base::openmode) {
  if (!__file || streamoff(pos) == -1)
    return pos_type(-1);
  if (fseek(__file, streamoff(pos), SEEK_SET) != 0)
    return pos_type(-1);
  return pos_type(ftell(__file));
}

int basic_filebuf<char>::sync() { return __file ? fflush(__file) : 0; }

// The characters left from here to the end, measured by seeking there and back. Settled here:
// with no file attached the answer is -1.
streamsize basic_filebuf<char>::showmanyc() {
  if (!__file)
    return -1;
  long here = ftell(__file);
  if (here == -1)
    return -1;
  fseek(__file, 0, SEEK_END);
  long end = ftell(__file);
  if (end == -1 || end == here)
    return -1;
  fseek(__file, here, SEEK_SET);
  return end - here;
}

streamsize basic_filebuf<char>::xsgetn(char* s, streamsize n) {
  return __file ? static_cast<streamsize>(fread_unlocked(s, 1, n, __file)) : 0;
}

// Looks at the next character without taking it: read it, push it straight back.
basic_filebuf<char>::int_type basic_filebuf<char>::underflow() {
  if (!__file)
    return traits_type::eof();
  return ungetc(getc_unlocked(__file), __file);
}

basic_filebuf<char>::int_type basic_filebuf<char>::uflow() {
  return __file ? getc_unlocked(__file) : traits_type::eof();
}

// End-of-file steps the file position back a byte; a character is pushed back with ungetc.
basic_filebuf<char>::int_type basic_filebuf<char>::pbackfail(int_type c) {
  if (!__file)
    return traits_type::eof();
  if (c == traits_type::eof())
    return fseek(__file, -1, SEEK_CUR) == 0 ? 0 : traits_type::eof();
  return ungetc(c, __file) != EOF ? c : traits_type::eof();
}

// Kept: a conversion that the facet says is needed goes through a buffer of 3 characters.
basic_filebuf<char>::int_type basic_filebuf<char>::overflow(int_type c) {
  const codecvt<char, char, int>& convert = use_facet<codecvt<char, char, int> >(__locale);
  char ch = narrowed(c);
  if (!__file)
    return traits_type::eof();
  if (c == traits_type::eof())
    return 0;
  int written;
  // The library's own codecvt is known never to convert; a program's is asked.
  if (__vel::is_library_codecvt(convert) || convert.always_noconv()) {
    written = putc_unlocked(ch, __file);
  } else {
    int state = 0;
    const char* from_next = 0;
    char converted[4];
    char* to_next = 0;
    switch (convert.out(state, &ch, &ch + 1, from_next, converted, converted + 3, to_next)) {
    case codecvt_base::noconv:
      written = putc_unlocked(ch, __file);
      break;
    case codecvt_base::ok:
      if (!within(to_next, converted, converted + 3))
        return traits_type::eof();
      *to_next = 0;
      written = fputs(converted, __file);
      break;
    default:
      return traits_type::eof();
    }
  }
  return written == EOF ? traits_type::eof() : c;
}

// Kept: a conversion that the facet says is needed goes through a buffer of 7 characters, and
// what does not fit is not written.
streamsize basic_filebuf<char>::xsputn(const char* s, streamsize n) {
  const codecvt<char, char, int>& convert = use_facet<codecvt<char, char, int> >(__locale);
  if (!__file || n == 0)
    return 0;
  if (__vel::is_library_codecvt(convert) || convert.always_noconv())
    return static_cast<streamsize>(fwrite_unlocked(s, 1, n, __file));
  int state = 0;
  const char* from_next = 0;
  char converted[8];
  char* to_next = 0;
  switch (convert.out(state, s, s + n, from_next, converted, converted + 7, to_next)) {
  case codecvt_base::noconv:
    return static_cast<streamsize>(fwrite_unlocked(s, 1, n, __file));
  case codecvt_base::ok: {
    if (!within(to_next, converted, converted + 7))
      return 0;
    *to_next = 0;
    int written = fputs(converted, __file);
    return written == EOF ? 0 : written;
  }
  default:
    return 0;
  }
}

} // namespace std
