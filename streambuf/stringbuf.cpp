// std::basic_stringbuf<char>: growth of the shared array, reading what was written, putting
// back, and the two seeks.
#include <__lorb/array_growth.h>
#include <__lorb/error.h>
#include <__lorb/stringbuf.h>

namespace std {

namespace {
const int end_of_file = -1;
const unsigned long growth_step = 64;

// The invalid position: offset -1.
basic_stringbuf<char>::pos_type invalid_position() { return basic_stringbuf<char>::pos_type(-1); }

// A value outside 0..255 is stored as 0.
char stored_char(int c) { return c >= 0 && c <= 255 ? static_cast<char>(c) : '\0'; }
} // namespace

basic_stringbuf<char>::basic_stringbuf(const basic_string<char>& s, ios_base::openmode mode)
    : __mode(mode), __end_of_allocation(0) {
  __adopt(s);
}

basic_stringbuf<char>::~basic_stringbuf() { delete[] __array(); }

// The array holds the next multiple of 64 above the text's length, as growth would have made it.
void basic_stringbuf<char>::__adopt(const basic_string<char>& s) {
  delete[] __array();
  setg(0, 0, 0);
  setp(0, 0);
  __end_of_allocation = 0;
  unsigned long length = s.size();
  if (length == 0 || !(__mode & (ios_base::in | ios_base::out)))
    return;
  unsigned long room = length / growth_step * growth_step + growth_step;
  char* array = new char[room];
  if (!array)
    __vel::out_of_memory();
  traits_type::copy(array, s.data(), length);
  __end_of_allocation = array + room;
  if (__mode & ios_base::in)
    setg(array, array, array + length);
  if (__mode & ios_base::out) {
    __pbegin = array;
    __pnext = (__mode & (ios_base::ate | ios_base::app)) ? array + length : array;
    __pend = array + length;
  }
}

void basic_stringbuf<char>::str(const basic_string<char>& s) { __adopt(s); }

basic_string<char> basic_stringbuf<char>::str() const {
  if (__pbegin)
    return basic_string<char>(__pbegin, __pend - __pbegin);
  if (__gbegin)
    return basic_string<char>(__gbegin, __gend - __gbegin);
  return basic_string<char>();
}

// Kept: the array grows by at most 64 characters at a time.
basic_stringbuf<char>::int_type basic_stringbuf<char>::overflow(int_type c) {
  if (c == end_of_file)
    return 0;
  if (!(__mode & ios_base::out))
    return end_of_file;
  __open_one();
  *__pnext++ = stored_char(c);
  if (__mode & ios_base::in)
    __gend = __pnext;
  return c;
}

// Makes room for one more character at pptr, which is at epptr: a new array of the next multiple
// of 64 above what has been written when the allocation is full, else one more place.
void basic_stringbuf<char>::__open_one() {
  if (__pend != __end_of_allocation) {
    ++__pend;
    return;
  }
  long written = __pnext - __pbegin;
  long get_offset = __gnext - __gbegin;
  unsigned long room =
      static_cast<unsigned long>(written) / growth_step * growth_step + growth_step;
  // The new array takes the written characters and the old one is released; in place, when the
  // C library can.
  char* array = __vel::regrow_char_array(__array(), written, room);
  if (!array)
    __vel::out_of_memory();
  setg(0, 0, 0);
  __pbegin = array;
  __pnext = array + written;
  __pend = array + written + 1;
  __end_of_allocation = array + room;
  if (__mode & ios_base::in) {
    __gbegin = array;
    __gnext = array + get_offset;
  }
}

// What the default bulk write does, a copy into the put area and then overflow for each
// character, with the overflows of a run done at once: the same arrays at the same sizes, the
// same pointers after.
streamsize basic_stringbuf<char>::__append(const char* s, streamsize n) {
  streamsize count = 0;
  while (count < n) {
    if (__pnext && __pnext < __pend) {
      streamsize k = n - count < __pend - __pnext ? n - count : __pend - __pnext;
      traits_type::copy(__pnext, s + count, k);
      __pnext += k;
      count += k;
      continue;
    }
    if (!(__mode & ios_base::out))
      break;
    __open_one();
    *__pnext++ = s[count++];
    streamsize k = __end_of_allocation - __pend;
    if (k > n - count)
      k = n - count;
    traits_type::copy(__pnext, s + count, k);
    __pnext += k;
    __pend += k;
    count += k;
    if (__mode & ios_base::in)
      __gend = __pnext;
  }
  return count;
}

// A pure input buffer has nothing beyond its get area; otherwise the get area is extended over
// what has been written since.
basic_stringbuf<char>::int_type basic_stringbuf<char>::underflow() {
  if (!__gnext || !(__mode & ios_base::out))
    return end_of_file;
  if (__gnext < __gend || __pnext <= __gend)
    return end_of_file;
  __gend = __pnext;
  return traits_type::to_int_type(*__gnext);
}

// Kept: in out mode the character before gptr is overwritten, and the stored character comes
// back sign-extended, so 128..255 return negative.
basic_stringbuf<char>::int_type basic_stringbuf<char>::pbackfail(int_type c) {
  bool room = __gnext && __gbegin < __gnext;
  if (room && c != end_of_file && (__mode & ios_base::out)) {
    *--__gnext = stored_char(c);
    return static_cast<signed char>(*__gnext);
  }
  if (room && c == end_of_file) {
    --__gnext;
    return 0;
  }
  if (room && traits_type::to_int_type(__gnext[-1]) == c) {
    --__gnext;
    return c;
  }
  return end_of_file;
}

basic_stringbuf<char>::pos_type basic_stringbuf<char>::seekpos(pos_type pos,
                                                               ios_base::openmode which) {
  off_type offset = pos;
  if (offset < 0)
    return invalid_position();
  if (__gnext && __pnext && __pnext > __gend)
    __gend = __pnext;
  bool moved = false;
  if ((which & ios_base::in) && __gnext && offset <= __gend - __gbegin) {
    __gnext = __gbegin + offset;
    moved = true;
  }
  if ((which & ios_base::out) && __pnext && offset <= __pend - __pbegin) {
    __pnext = __pbegin + offset;
    moved = true;
  }
  return moved ? pos_type(offset) : invalid_position();
}

// Kept: a relative seek of both areas at once is refused.
basic_stringbuf<char>::pos_type basic_stringbuf<char>::seekoff(off_type off, ios_base::seekdir dir,
                                                               ios_base::openmode which) {
  const off_type invalid = -1;
  bool in = (which & ios_base::in) != 0, out = (which & ios_base::out) != 0;
  if (in && out && __gnext && __pnext) {
    off_type written = __pend - __pbegin;
    off_type base = dir == ios_base::beg ? 0 : dir == ios_base::end ? written : invalid;
    off_type target = base + off;
    if (base == invalid || target < 0 || target > written)
      return invalid_position();
    __gnext = __pnext = __pbegin + target;
    return pos_type(target);
  }
  if (in && __gnext) {
    off_type base = dir == ios_base::beg   ? 0
                    : dir == ios_base::cur ? __gnext - __gbegin
                                           : __gend - __gbegin;
    off_type target = base + off;
    if (target < 0 || target > __gend - __gbegin)
      return invalid_position();
    __gnext = __gbegin + target;
    return pos_type(target);
  }
  if (out && __pnext) {
    off_type base = dir == ios_base::beg   ? 0
                    : dir == ios_base::cur ? __pnext - __pbegin
                                           : __pend - __pbegin;
    off_type target = base + off;
    if (target < 0 || target > __pend - __pbegin)
      return invalid_position();
    __pnext = __pbegin + target;
    return pos_type(target);
  }
  return invalid_position();
}

} // namespace std
