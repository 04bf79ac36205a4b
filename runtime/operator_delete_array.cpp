// operator delete[](pointer), and the library's own name for it.
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>

void operator delete[](void* p) noexcept { operator delete(p); }

namespace __vel {
extern void library_array_delete(void*) noexcept __attribute__((__alias__("_ZdaPv")));
}
