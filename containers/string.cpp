// std::string's representation: allocation, sharing, construction, destruction and assignment.
#include <__lorb/array_growth.h>
#include <__lorb/error.h>
#include <stdexcept>
#include <stdlib.h>
#include <string>

namespace std {
typedef string::size_type size_type;

const size_type string::npos;
string::__rep* string::nullbuf = 0;

void string::__throw_out_of_range() { out_of_range::__throw(__vel::out_of_range_message); }

void string::__throw_length_error() { length_error::__throw(__vel::length_error_message); }

// The buffer for `length` characters is the next multiple of 32 strictly above it. Near the top
// of the address space the rule would wrap to 0; no such buffer can exist, so that request is
// reported as exhausted memory.
char* string::__new_buffer(size_type length, size_type* capacity) {
  if (length >= 0xFFFFFFE0u)
    __vel::out_of_memory();
  size_type bytes = (length & ~size_type(31)) + 32;
  char* buffer = allocator_type().allocate(bytes);
  if (!buffer)
    __vel::out_of_memory();
  *capacity = bytes;
  return buffer;
}

// Moves this owner's characters (and their NUL) to a buffer sized by the rule for `length`. The
// buffer asked for is the one __new_buffer asks for; while the program keeps the library's
// allocation functions (malloc and free underneath), realloc takes the request, which extends the
// buffer in place when it can and moves pages, not bytes, when it is large. Then appending one
// character at a time costs no copy of the whole string each time the buffer grows.
void string::__grow_buffer(size_type length) {
  if (!__vel::allocation_is_replaced()) {
    if (length >= 0xFFFFFFE0u)
      __vel::out_of_memory();
    size_type bytes = (length & ~size_type(31)) + 32;
    if (char* grown = static_cast<char*>(realloc(__r->data, bytes))) {
      __r->data = grown;
      __r->capacity = bytes;
      return;
    }
  }
  // Through the program's own functions, or new's handler loop when realloc found no memory.
  char* old_buffer = __r->data;
  __r->data = __new_buffer(length, &__r->capacity);
  traits_type::copy(__r->data, old_buffer, __r->length + 1);
  allocator_type().deallocate(old_buffer, 0);
}

// A representation owned once, still without a buffer.
string::__rep* string::__new_shell() {
  __rep* r = static_cast<__rep*>(::operator new(sizeof(__rep)));
  if (!r)
    __vel::out_of_memory();
  r->refs = 1;
  return r;
}

// A representation owned once, with a NUL-terminated buffer for `length` characters to fill.
string::__rep* string::__new_rep(size_type length) {
  __rep* r = __new_shell();
  r->length = length;
  r->data = __new_buffer(length, &r->capacity);
  r->data[length] = 0;
  return r;
}

void string::__free_rep(__rep* r) {
  allocator_type().deallocate(r->data, r->capacity);
  ::operator delete(r);
}

string::__rep* string::__shared_nullbuf() {
  if (!nullbuf)
    nullbuf = __new_rep(0); // its own reference keeps it alive for good
  ++nullbuf->refs;
  return nullbuf;
}

// The first step of every change. True: this string owns its representation and may change it
// in place. False: the representation stays with its other owners (still reachable through __r
// for copying) and the caller must put a new one in place.
bool string::__unshare() {
  if (__r->refs == __unshareable)
    return true;
  if (--__r->refs == 0) {
    __r->refs = 1;
    return true;
  }
  return false;
}

void string::__release() {
  if (__r->refs == __unshareable || --__r->refs == 0)
    __free_rep(__r);
}

string::basic_string(const allocator_type&) : __r(__shared_nullbuf()) {}

string::basic_string(const basic_string& str, size_type pos, size_type n, const allocator_type&) {
  __rep* source = str.__r;
  if (pos == 0 && n >= source->length && source->refs != __unshareable) {
    ++source->refs;
    __r = source;
    return;
  }
  if (pos > source->length)
    __throw_out_of_range();
  size_type count = str.__clamp(pos, n);
  __r = __new_rep(count);
  traits_type::copy(__r->data, source->data + pos, count);
}

// Kept: an excessive length is reported as out_of_range here, not as length_error.
string::basic_string(const char* s, size_type n, const allocator_type&) {
  if (n == npos)
    __throw_out_of_range();
  __r = __new_rep(n);
  if (s)
    traits_type::copy(__r->data, s, n);
  else
    traits_type::assign(__r->data, n, char()); // nothing to copy from a null pointer
}

string::basic_string(const char* s, const allocator_type&) {
  size_type n = s ? traits_type::length(s) : 0;
  __r = __new_rep(n);
  traits_type::copy(__r->data, s, n);
}

string::basic_string(size_type n, char c, const allocator_type& a) { _initialize_storage(n, c, a); }

void string::_initialize_storage(size_type n, char c, const allocator_type&) {
  if (n == npos)
    __throw_out_of_range();
  __r = __new_rep(n);
  traits_type::assign(__r->data, n, c);
}

string::~basic_string() { __release(); }

string& string::operator=(const basic_string& str) {
  if (__r == str.__r)
    return *this;
  __rep* old = __r;
  if (str.__r->refs == __unshareable) {
    __r = __new_rep(str.__r->length);
    traits_type::copy(__r->data, str.__r->data, str.__r->length);
  } else {
    __r = str.__r;
    ++__r->refs;
  }
  if (old->refs == __unshareable || --old->refs == 0)
    __free_rep(old);
  return *this;
}

string& string::operator=(const char* s) {
  size_type n = s ? traits_type::length(s) : 0;
  if (!__unshare()) {
    __r = __new_rep(n);
    traits_type::copy(__r->data, s, n);
    return *this;
  }
  char* old_buffer = 0;
  if (__r->capacity < n + 1) {
    old_buffer = __r->data;
    __r->data = __new_buffer(n, &__r->capacity);
  }
  traits_type::move(__r->data, s ? s : "", n + 1); // s may lie inside the old characters
  __r->length = n;
  if (old_buffer)
    allocator_type().deallocate(old_buffer, 0);
  return *this;
}

string& string::operator=(char c) {
  if (!__unshare())
    __r = __new_rep(1);
  __r->data[0] = c;
  __r->data[1] = 0;
  __r->length = 1;
  return *this;
}

// Writable access: a shared representation is copied first, then marked so that no copy made
// later shares the characters the reference can change.
string::reference string::operator[](size_type pos) {
  if (pos > __r->length)
    __throw_out_of_range();
  if (__r->refs >= 2 && __r->refs != __unshareable) {
    __rep* mine = __new_rep(__r->length);
    traits_type::copy(mine->data, __r->data, __r->length);
    --__r->refs;
    __r = mine;
  }
  __r->refs = __unshareable;
  return __r->data[pos];
}

size_type string::copy(char* s, size_type n, size_type pos) const {
  if (pos > __r->length)
    __throw_out_of_range();
  size_type count = __clamp(pos, n);
  traits_type::copy(s, __r->data + pos, count);
  return count;
}
} // namespace std
