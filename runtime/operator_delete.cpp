// operator delete(pointer), and the library's own name for it.
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>
#include <stdlib.h>

void operator delete(void* p) noexcept {
  if (p)
    free(p);
}

namespace __vel {
extern void library_delete(void*) noexcept __attribute__((__alias__("_ZdlPv")));
}
