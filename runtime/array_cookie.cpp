// Construction and destruction of arrays of class objects, with the element-count cookie.
#include <__lorb/runtime.h>
#include <new>
#include <stdlib.h>

extern "C" const int __array_new_prefix_size = 8;

typedef void (*ctor_with_hidden_args)(void*, int, int, int, int, int, int, int, int);
typedef void (*sized_dealloc_fn)(void* start, unsigned bytes);

static __lorb_array_cookie* cookie_before(void* first) {
  return reinterpret_cast<__lorb_array_cookie*>(first) - 1;
}

static void write_cookie(void* first, int count, unsigned size) {
  __lorb_array_cookie* cookie = cookie_before(first);
  cookie->byte_total = static_cast<unsigned>(count) * size; // no overflow check, by design
  cookie->complemented_count = ~static_cast<unsigned>(count);
}

// The complement makes an all-zero or garbage header fail.
static bool cookie_is_valid(const __lorb_array_cookie* cookie, unsigned size) {
  return cookie->byte_total == ~cookie->complemented_count * size;
}

extern "C" void _array_pointer_not_from_vec_new() { abort(); }

// The one construction routine behind every entry point.
static void* construct_array(int count, unsigned size, void* storage, char* source, void* ctor,
                             __lorb_alloc_fn alloc, bool cookie_in_storage) {
  if (storage) {
    if (cookie_in_storage)
      write_cookie(storage, count, size);
  } else {
    unsigned bytes = static_cast<unsigned>(count) * size + 8;
    char* start = static_cast<char*>(alloc ? alloc(bytes) : operator new[](bytes));
    if (!start)
      return 0;
    storage = start + 8;
    write_cookie(storage, count, size);
  }
  if (ctor) {
    char* element = static_cast<char*>(storage);
    // Kept signed: a negative count constructs nothing.
    for (int i = 0; i < count; ++i, element += size) {
      if (source)
        reinterpret_cast<__lorb_element_cctor>(ctor)(element, source + i * size);
      else
        reinterpret_cast<ctor_with_hidden_args>(ctor)(element, 0, 0, 0, 0, 0, 0, 0, 0);
    }
  }
  return storage;
}

// Reads the count from the cookie when it is -1; a bad cookie ends the program.
static int resolve_count(void* array, int count, unsigned size, unsigned* byte_total) {
  *byte_total = 0;
  if (count != -1)
    return count;
  __lorb_array_cookie* cookie = cookie_before(array);
  if (!cookie_is_valid(cookie, size))
    _array_pointer_not_from_vec_new();
  *byte_total = cookie->byte_total;
  return static_cast<int>(cookie->byte_total / size);
}

// The one destruction routine behind every entry point.
static void destroy_array(void* array, int count, unsigned size, __lorb_element_dtor dtor,
                          int delete_flag, __lorb_dealloc_fn dealloc, int size_flag) {
  if (!array)
    return;
  // Kept: with an explicit count the byte total stays 0, so a size-taking
  // deallocation function receives 8.
  unsigned byte_total;
  count = resolve_count(array, count, size, &byte_total);
  if (dtor) {
    char* element = static_cast<char*>(array) + static_cast<unsigned>(count) * size;
    for (int i = count; i > 0; --i) {
      element -= size;
      dtor(element, 2);
    }
  }
  if (!delete_flag)
    return;
  char* start = static_cast<char*>(array) - 8;
  if (!dealloc)
    operator delete[](start);
  else if (size_flag)
    reinterpret_cast<sized_dealloc_fn>(reinterpret_cast<void*>(dealloc))(start, byte_total + 8);
  else
    dealloc(start);
}

extern "C" {
void* __vec_new(void* storage, int count, unsigned size, __lorb_element_ctor ctor) {
  return construct_array(count, size, storage, 0, reinterpret_cast<void*>(ctor), 0, false);
}

// Without exception support the destructor is never needed during construction.
void* __vec_new_eh(void* storage, int count, unsigned size, __lorb_element_ctor ctor,
                   __lorb_element_dtor) {
  return __vec_new(storage, count, size, ctor);
}

void* __array_new(int count, unsigned size, __lorb_element_ctor ctor, __lorb_element_dtor,
                  __lorb_alloc_fn alloc, __lorb_dealloc_fn, int) {
  return construct_array(count, size, 0, 0, reinterpret_cast<void*>(ctor), alloc, true);
}

// The caller has reserved the 8 bytes in front of the storage for the cookie.
void* __placement_array_new(void* storage, int count, unsigned size, __lorb_element_ctor ctor,
                            __lorb_element_dtor) {
  return construct_array(count, size, storage, 0, reinterpret_cast<void*>(ctor), 0, true);
}

void* __vec_cctor_eh(void* storage, int count, unsigned size, __lorb_element_cctor cctor,
                     void* source, __lorb_element_dtor) {
  return construct_array(count, size, storage, static_cast<char*>(source),
                         reinterpret_cast<void*>(cctor), 0, false);
}

// Kept apart from construct_array: this loop compares the count unsigned.
void __vec_cctor(void* storage, int count, unsigned size, __lorb_element_cctor cctor,
                 void* source) {
  if (!cctor)
    return;
  char* element = static_cast<char*>(storage);
  char* from = static_cast<char*>(source);
  for (unsigned i = 0; i < static_cast<unsigned>(count); ++i, element += size, from += size)
    cctor(element, from);
}

// Kept: the result goes to the whole-array constructor untested, null included.
void* __vel_fast_vec_new(void* storage, int count, unsigned size,
                         __lorb_whole_array_fn whole_ctor) {
  void* first = __vec_new(storage, count, size, 0);
  whole_ctor(first, count);
  return first;
}

void __vec_delete(void* array, int count, unsigned size, __lorb_element_dtor dtor,
                  int delete_flag) {
  destroy_array(array, count, size, dtor, delete_flag, 0, 0);
}

void __array_delete(void* array, int count, unsigned size, __lorb_element_dtor dtor,
                    __lorb_dealloc_fn dealloc, int size_flag) {
  destroy_array(array, count, size, dtor, 1, dealloc, size_flag);
}

void __vel_fast_vec_delete(void* array, int count, unsigned size, __lorb_whole_array_fn whole_dtor,
                           int delete_flag, int) {
  if (!array)
    return;
  unsigned byte_total;
  count = resolve_count(array, count, size, &byte_total);
  whole_dtor(array, count);
  __vec_delete(array, count, size, 0, delete_flag);
}
}
