// The new-handler, nothrow, the placement deletes, and whether the program replaced allocation.
// The replaceable allocation functions are in operator_new*.cpp and operator_delete*.cpp.
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

void operator delete(void*, void*) noexcept {}

void operator delete[](void*, void*) noexcept {}

// The library's own definitions under names of their own, which the dynamic linker cannot bind
// elsewhere: set against the global names, they tell whether the program replaced them. The
// references are weak: a program linked with the static archive that replaces a function leaves
// the archive's definition, and its name, out of the program, and a null name means replaced.
namespace __vel {
extern void* library_new(std::size_t) __attribute__((__weak__));
extern void* library_array_new(std::size_t) __attribute__((__weak__));
extern void library_delete(void*) noexcept __attribute__((__weak__));
extern void library_array_delete(void*) noexcept __attribute__((__weak__));

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
