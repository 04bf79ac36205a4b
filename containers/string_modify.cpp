// std::string's mutators: append, assign, insert, erase, replace, resize, reserve and clear.
#include <string>

namespace std {
typedef string::size_type size_type;

// Appending grows in place while the buffer has room, else grows the buffer by the rule for the
// longer string. Returns where the `n` new characters go. When `source` (the characters to
// append, or null) lies in this string's own buffer, the buffer is not grown in place but moved,
// and the old one is handed back in *retired, to be freed once the characters are copied.
char* string::__open_tail(size_type n, char** retired, const char* source) {
  if (__r->length >= ~n)
    __throw_length_error();
  size_type old_length = __r->length;
  size_type new_length = old_length + n;
  *retired = 0;
  if (!__unshare()) {
    __rep* mine = __new_rep(new_length);
    traits_type::copy(mine->data, __r->data, old_length);
    __r = mine;
    return mine->data + old_length;
  }
  if (new_length >= __r->capacity) {
    if (source && source >= __r->data && source < __r->data + __r->capacity) {
      *retired = __r->data;
      __r->data = __new_buffer(new_length, &__r->capacity);
      traits_type::copy(__r->data, *retired, old_length);
    } else {
      __grow_buffer(new_length);
    }
  }
  __r->length = new_length;
  __r->data[new_length] = 0;
  return __r->data + old_length;
}

string& string::append(const char* s, size_type n) {
  char* retired;
  traits_type::copy(__open_tail(n, &retired, s), s, n);
  if (retired)
    allocator_type().deallocate(retired, 0);
  return *this;
}

string& string::append(size_type n, char c) {
  char* retired;
  traits_type::assign(__open_tail(n, &retired, 0), n, c);
  if (retired)
    allocator_type().deallocate(retired, 0);
  return *this;
}

string& string::assign(const char* s, size_type n) {
  if (n >= npos)
    __throw_length_error();
  if (!__unshare()) {
    __r = __new_rep(n);
    traits_type::copy(__r->data, s, n);
    return *this;
  }
  char* old_buffer = 0;
  if (__r->capacity <= n) {
    old_buffer = __r->data;
    __r->data = __new_buffer(n, &__r->capacity);
  }
  traits_type::move(__r->data, s, n); // s may lie inside the characters being replaced
  __r->length = n;
  __r->data[n] = 0;
  if (old_buffer)
    allocator_type().deallocate(old_buffer, 0);
  return *this;
}

string& string::assign(size_type n, char c) {
  if (n >= npos)
    __throw_length_error();
  if (!__unshare()) {
    __r = __new_rep(n);
    traits_type::assign(__r->data, n, c);
    return *this;
  }
  if (__r->capacity <= n) {
    allocator_type().deallocate(__r->data, 0);
    __r->data = __new_buffer(n, &__r->capacity);
  }
  traits_type::assign(__r->data, n, c);
  __r->length = n;
  __r->data[n] = 0;
  return *this;
}

// Insertion always moves the string into a new buffer sized for the longer string: head, a gap
// of `n` characters, tail. The gap is returned for the caller to fill; the previous buffer, when
// this string owned it, comes back in *retired, to be freed after the gap is filled, because the
// inserted characters may come from it.
char* string::__open_gap(size_type pos, size_type n, char** retired) {
  __rep* source = __r;
  size_type length = source->length + n;
  size_type capacity;
  char* buffer = __new_buffer(length, &capacity);
  traits_type::copy(buffer, source->data, pos);
  traits_type::copy(buffer + pos + n, source->data + pos, source->length - pos + 1);
  if (__unshare()) {
    *retired = source->data;
  } else {
    *retired = 0;
    __r = __new_shell();
  }
  __r->data = buffer;
  __r->capacity = capacity;
  __r->length = length;
  return buffer + pos;
}

string& string::insert(size_type pos, const char* s, size_type n) {
  if (n == 0 || !s)
    return *this;
  if (pos > __r->length)
    __throw_out_of_range();
  if (__r->length >= ~n)
    __throw_length_error();
  char* retired;
  traits_type::copy(__open_gap(pos, n, &retired), s, n);
  if (retired)
    allocator_type().deallocate(retired, 0);
  return *this;
}

string& string::insert(size_type pos, size_type n, char c) {
  if (n == 0)
    return *this;
  if (pos > __r->length)
    __throw_out_of_range();
  if (__r->length >= ~n)
    __throw_length_error();
  char* retired;
  traits_type::assign(__open_gap(pos, n, &retired), n, c);
  if (retired)
    allocator_type().deallocate(retired, 0);
  return *this;
}

string& string::erase(size_type pos, size_type n) {
  if (pos > __r->length)
    __throw_out_of_range();
  size_type count = __clamp(pos, n);
  if (count == 0)
    return *this;
  size_type tail = __r->length - pos - count;
  size_type new_length = __r->length - count;
  if (__unshare()) {
    traits_type::move(__r->data + pos, __r->data + pos + count, tail + 1);
    __r->length = new_length;
    return *this;
  }
  __rep* mine = __new_rep(new_length);
  traits_type::copy(mine->data, __r->data, pos);
  traits_type::copy(mine->data + pos, __r->data + pos + count, tail);
  __r = mine;
  return *this;
}

// Kept: replacing inserts the new characters first and then erases the old ones, so the buffer
// is sized for the string with both.
string& string::replace(size_type pos, size_type n1, const char* s, size_type n2) {
  size_type removed = __clamp(__checked(pos), n1);
  if (__r->length - removed >= ~n2)
    __throw_length_error();
  insert(pos, s, n2);
  return erase(pos + n2, removed);
}

string& string::replace(size_type pos, size_type n1, size_type n2, char c) {
  size_type removed = __clamp(__checked(pos), n1);
  if (__r->length - removed >= ~n2)
    __throw_length_error();
  insert(pos, n2, c);
  return erase(pos + n2, removed);
}

// Growing in place reallocates when the buffer has no byte to spare for the NUL at index n.
void string::resize(size_type n, char c) {
  size_type old_length = __r->length;
  if (n == old_length)
    return;
  if (n == npos)
    __throw_length_error();
  if (!__unshare()) {
    __rep* mine = __new_rep(n);
    traits_type::copy(mine->data, __r->data, n < old_length ? n : old_length);
    if (n > old_length)
      traits_type::assign(mine->data + old_length, n - old_length, c);
    __r = mine;
    return;
  }
  if (n > old_length) {
    if (__r->capacity <= n)
      __grow_buffer(n);
    traits_type::assign(__r->data + old_length, n - old_length, c);
  }
  __r->length = n;
  __r->data[n] = 0;
}

// Never shrinks and never unshares: every owner sees the same characters in the larger buffer.
void string::reserve(size_type n) {
  if (n == npos)
    __throw_length_error();
  if (__r->capacity >= n)
    return;
  __grow_buffer(n);
}

void string::clear() {
  if (!__unshare()) {
    __r = __shared_nullbuf();
    return;
  }
  __r->refs = 1;
  __r->length = 0;
  __r->data[0] = 0;
}
} // namespace std
