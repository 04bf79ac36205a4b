// operator new(size), the new-handler loop, and the library's own name for it.
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>
#include <stdlib.h>

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

namespace __vel {
extern void* library_new(std::size_t)
    __attribute__((__alias__("_Znwj"), __malloc__, __alloc_size__(1)));
}
