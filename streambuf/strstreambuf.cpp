// std::strstreambuf: the constructors, growth of a dynamic array, reading with the get area
// extended over what was written, putting back, and the two seeks.
#include <__lorb/array_growth.h>
#include <__lorb/strstreambuf.h>
#include <string.h>

namespace std {

namespace {
const int end_of_file = -1;
const streamsize growth_step = 16;
const streamsize unlimited_count = 0x7FFFFFFF;

void* default_alloc(size_t n) { return new char[n]; }
void default_free(void* p) { delete[] static_cast<char*>(p); }

// The end of n characters from start. An end past the top of the address space stops at the top
// instead of wrapping below start, so that an unlimited count works over any array.
char* end_of(char* start, streamsize n) {
  unsigned long room = ~0ul - reinterpret_cast<unsigned long>(start);
  if (static_cast<unsigned long>(n) > room)
    return reinterpret_cast<char*>(~0ul);
  return start + n;
}

// A seek's base offset for way: beg 0, else the current or the end position.
streamoff seek_base(ios_base::seekdir way, streamoff current, streamoff end) {
  if (way == ios_base::cur)
    return current;
  if (way == ios_base::end)
    return end;
  return 0;
}

// The position off from the base that way names, when it lies within [0, limit]; -1 otherwise.
// Added in 64 bits: an offset near the largest streamoff must not wrap into range.
streamoff seek_target(streamoff off, ios_base::seekdir way, streamoff current, streamoff limit) {
  long long target = static_cast<long long>(off) + seek_base(way, current, limit);
  return target < 0 || target > limit ? -1 : static_cast<streamoff>(target);
}
} // namespace

strstreambuf::strstreambuf(streamsize alsize)
    : __strmode(__dynamic), __alsize(alsize), __array_size(0), __palloc(default_alloc),
      __pfree(default_free) {}

strstreambuf::strstreambuf(void* (*palloc)(size_t), void (*pfree)(void*))
    : __strmode(__dynamic), __alsize(growth_step), __array_size(0),
      __palloc(palloc ? palloc : default_alloc), __pfree(pfree ? pfree : default_free) {}

// Kept: only the plain char form suggests 16 as the allocation size.
strstreambuf::strstreambuf(char* gnext, streamsize n, char* pbeg)
    : __strmode(0), __alsize(growth_step) {
  __initialize(gnext, n, pbeg);
}

strstreambuf::strstreambuf(const char* gnext, streamsize n) : __strmode(__constant), __alsize(0) {
  __initialize(const_cast<char*>(gnext), n, 0);
}

strstreambuf::strstreambuf(signed char* gnext, streamsize n, signed char* pbeg)
    : __strmode(0), __alsize(0) {
  __initialize(reinterpret_cast<char*>(gnext), n, reinterpret_cast<char*>(pbeg));
}

strstreambuf::strstreambuf(const signed char* gnext, streamsize n)
    : __strmode(__constant), __alsize(0) {
  __initialize(reinterpret_cast<char*>(const_cast<signed char*>(gnext)), n, 0);
}

strstreambuf::strstreambuf(unsigned char* gnext, streamsize n, unsigned char* pbeg)
    : __strmode(0), __alsize(0) {
  __initialize(reinterpret_cast<char*>(gnext), n, reinterpret_cast<char*>(pbeg));
}

strstreambuf::strstreambuf(const unsigned char* gnext, streamsize n)
    : __strmode(__constant), __alsize(0) {
  __initialize(reinterpret_cast<char*>(const_cast<unsigned char*>(gnext)), n, 0);
}

// Kept: nothing is released (see the header).
strstreambuf::~strstreambuf() {}

// The array is N characters at gnext: n, the text up to the NUL when n is 0, unlimited when n is
// negative. The put area runs from pbeg for N characters but stops at the array's end, which it
// would pass whenever pbeg is not gnext.
void strstreambuf::__initialize(char* gnext, streamsize n, char* pbeg) {
  __palloc = 0;
  __pfree = 0;
  streamsize size = n > 0 ? n : n == 0 ? static_cast<streamsize>(strlen(gnext)) : unlimited_count;
  __array_size = size;
  if (!pbeg) {
    setg(gnext, gnext, end_of(gnext, size));
    return;
  }
  setg(gnext, gnext, pbeg);
  char* put_end = end_of(pbeg, size);
  char* array_end = end_of(gnext, size);
  if (array_end < put_end)
    put_end = array_end;
  setp(pbeg, put_end < pbeg ? pbeg : put_end);
}

// A full put area is extended by one character inside the array, or the array grows.
strstreambuf::int_type strstreambuf::overflow(int_type c) {
  if (c == end_of_file)
    return 0;
  if (pptr() < epptr()) {
    *__pnext++ = static_cast<char>(c);
    return c;
  }
  if (!(__strmode & __dynamic) || (__strmode & __frozen))
    return end_of_file;
  streamsize size = epptr() - pbase();
  if (__array_size > size) {
    __pnext = __pbegin + size;
    __pend = __pnext + 1;
  } else if (!__grow()) {
    return end_of_file;
  }
  if (pptr() < epptr()) {
    *__pnext++ = static_cast<char>(c);
    return c;
  }
  return end_of_file;
}

// A new array of the larger of 16 more characters and alsize takes the characters of the put
// area; the put area then holds one more place. False when the allocation gives nothing.
// An array of the library's own (new[] underneath) grows through __vel::regrow_char_array: in
// place by realloc when the program keeps the library's allocation functions, else by new[], a
// copy and delete[] as before; either way at the same size.
bool strstreambuf::__grow() {
  streamsize size = epptr() - pbase();
  streamsize new_size = size + growth_step > __alsize ? size + growth_step : __alsize;
  char* old_array = pbase();
  bool own_array = __palloc == default_alloc && (!__pfree || __pfree == default_free) &&
                   old_array && (__strmode & __allocated);
  char* array;
  if (own_array) {
    array = __vel::regrow_char_array(old_array, size, new_size);
    if (!array)
      return false;
    old_array = 0; // given back or grown already
  } else {
    array = static_cast<char*>(__palloc ? __palloc(new_size) : default_alloc(new_size));
    if (!array)
      return false;
    if (size > 0)
      memcpy(array, pbase(), size);
  }
  __array_size = new_size;
  streamoff get_end = egptr() - eback();
  // Kept: gptr is rebased by its distance from egptr, not from eback.
  streamoff get_next = egptr() - gptr();
  __pbegin = array;
  __pnext = array + size;
  __pend = __pnext + 1;
  setg(array, array + get_next, array + get_end);
  if (old_array) {
    if (__pfree)
      __pfree(old_array);
    else
      default_free(old_array);
  }
  __strmode |= __allocated;
  return true;
}

// g++'s virtual table of strstreambuf itself: an object whose table pointer is its address
// point (two words in) is a strstreambuf and nothing derived, so its overflow is this one.
extern "C" void* const _ZTVSt12strstreambuf[];

// Stores each character while the put area has room, else hands it to overflow. A buffer that is
// exactly a strstreambuf does at once what its own overflow would do character by character when
// the array has room beyond the put area: extend the put area by the characters to store. The
// areas, the array and the result come out the same; only the calls are saved.
streamsize strstreambuf::xsputn(const char* s, streamsize n) {
  bool own_overflow = *reinterpret_cast<void* const* const*>(this) == &_ZTVSt12strstreambuf[2];
  bool may_grow = own_overflow && (__strmode & __dynamic) && !(__strmode & __frozen);
  streamsize count = 0;
  while (count < n) {
    if (pptr() && pptr() < epptr()) {
      streamsize room = epptr() - pptr();
      streamsize chunk = room < n - count ? room : n - count;
      memcpy(__pnext, s + count, chunk);
      __pnext += chunk;
      count += chunk;
      continue;
    }
    if (may_grow && pptr()) {
      // The array grows as overflow grows it (and stops the writing as it would when it cannot).
      if (__array_size <= epptr() - pbase() && !__grow())
        break;
      streamsize size = pptr() - pbase();
      streamsize spare = __array_size - size;
      __pend = __pnext + (spare < n - count ? spare : n - count);
      continue;
    }
    if (overflow(traits_type::to_int_type(s[count])) == end_of_file)
      break;
    ++count;
  }
  return count;
}

// Kept: the character is returned sign-extended, so the byte 0xFF reads as end of file. The get
// area is extended over what has been written since.
strstreambuf::int_type strstreambuf::underflow() {
  if (gptr() < egptr())
    return static_cast<signed char>(*gptr());
  if (!gptr() || !pptr() || pptr() <= egptr())
    return end_of_file;
  __gend = __pnext;
  return static_cast<signed char>(*gptr());
}

// Kept: the character before gptr is never overwritten, even in a writable buffer; only the one
// already there can be put back.
strstreambuf::int_type strstreambuf::pbackfail(int_type c) {
  if (!gptr() || gptr() <= eback())
    return end_of_file;
  if (c == end_of_file) {
    --__gnext;
    return 0;
  }
  if (traits_type::to_int_type(gptr()[-1]) != c)
    return end_of_file;
  --__gnext;
  return c;
}

// A relative seek of both areas moves the get area alone.
strstreambuf::pos_type strstreambuf::seekoff(off_type off, ios_base::seekdir way,
                                             ios_base::openmode which) {
  off_type result = -1;
  if ((which & ios_base::in) && gptr()) {
    off_type target = seek_target(off, way, gptr() - eback(), egptr() - eback());
    if (target < 0)
      return pos_type(-1);
    __gnext = __gbegin + target;
    result = target;
  }
  bool relative_to_both = way == ios_base::cur && (which & ios_base::in);
  if ((which & ios_base::out) && pptr() && !relative_to_both) {
    off_type target = seek_target(off, way, pptr() - pbase(), epptr() - pbase());
    if (target < 0)
      return pos_type(-1);
    __pnext = __pbegin + target;
    return pos_type(target);
  }
  return pos_type(result);
}

// The get area must take the position when asked to; the put area moves when it can.
strstreambuf::pos_type strstreambuf::seekpos(pos_type sp, ios_base::openmode which) {
  off_type target = sp;
  if (target < 0)
    return pos_type(-1);
  off_type result = -1;
  if (which & ios_base::in) {
    if (!gptr() || target > egptr() - eback())
      return pos_type(-1);
    __gnext = __gbegin + target;
    result = target;
  }
  if ((which & ios_base::out) && pptr() && target <= epptr() - pbase()) {
    __pnext = __pbegin + target;
    return pos_type(target);
  }
  return pos_type(result);
}

} // namespace std
