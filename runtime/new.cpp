// The global allocation functions and the new-handler loop they run on exhausted memory.
#include <__lorb/array_growth.h>
#include <__lorb/runtime.h>
#include <new>
#include <stdlib.h>
#include <string.h>

extern "C" {
__lorb_handler_fn _new_handler = __default_new_handler;

// Does nothing; its address is the mark that no handler of the program's own is installed.
void __default_new_handler() {}

int call_new_handler() {
  __lorb_handler_fn handler = _new_handler ? _new_handler : __default_new_handler;
  handler();
  return handler == __default_new_handler;
}

void __memzero(void* address, unsigned count) { memset(address, 0, count); }
}

namespace std {
const nothrow_t nothrow = nothrow_t();

new_handler set_new_handler(new_handler handler) __LORB_NOEXCEPT {
  new_handler previous = _new_handler;
  _new_handler = handler;
  return previous;
}

new_handler get_new_handler() noexcept { return _new_handler; }
} // namespace std

// No retry limit: a program handler that returns keeps the loop going.
void* operator new(std::size_t size) {
  if (size == 0)
    size = 1;
  for (;;) {
    void* p = malloc(size);
    if (p)
      return p;
    __lorb_handler_fn handler = _new_handler ? _new_handler : __default_new_handler;
    handler();
    if (handler == __default_new_handler)
      return 0;
  }
}

// Kept apart from the plain loop on purpose: a null handler gives up here without calling anything.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  if (size == 0)
    size = 1;
  for (;;) {
    void* p = malloc(size);
    if (p)
      return p;
    if (!_new_handler)
      return 0;
    if (call_new_handler())
      return 0;
  }
}

void* operator new[](std::size_t size) { return operator new(size); }

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}

void operator delete(void* p) noexcept {
  if (p)
    free(p);
}

void operator delete[](void* p) noexcept { operator delete(p); }

void operator delete(void* p, const std::nothrow_t&) noexcept { operator delete(p); }

void operator delete[](void* p, const std::nothrow_t&) noexcept { operator delete[](p); }

void operator delete(void*, void*) noexcept {}

void operator delete[](void*, void*) noexcept {}

// The sized forms that C++14 code calls know nothing the plain forms need.
void operator delete(void* p, std::size_t) noexcept { operator delete(p); }

void operator delete[](void* p, std::size_t) noexcept { operator delete[](p); }

// The library's own definitions under names of their own, which the dynamic linker cannot bind
// elsewhere: set against the global names, they tell whether the program replaced them.
namespace __vel {
extern void* library_new(std::size_t)
    __attribute__((__alias__("_Znwj"), __malloc__, __alloc_size__(1)));
extern void* library_array_new(std::size_t)
    __attribute__((__alias__("_Znaj"), __malloc__, __alloc_size__(1)));
extern void library_delete(void*) noexcept __attribute__((__alias__("_ZdlPv")));
extern void library_array_delete(void*) noexcept __attribute__((__alias__("_ZdaPv")));

bool allocation_is_replaced() {
  static int replaced = -1;
  if (replaced < 0) {
    void* (*global_new)(std::size_t) = &::operator new;
    void* (*global_array_new)(std::size_t) = &::operator new[];
    void (*global_delete)(void*) noexcept = &::operator delete;
    void (*global_array_delete)(void*) noexcept = &::operator delete[];
    replaced = global_new != &library_new || global_array_new != &library_array_new ||
               global_delete != &library_delete || global_array_delete != &library_array_delete;
  }
  return replaced != 0;
}
} // namespace __vel
