// operator new[](size), and the library's own name for it.
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>

void* operator new[](std::size_t size) { return operator new(size); }

namespace __vel {
extern void* library_array_new(std::size_t)
    __attribute__((__alias__("_Znaj"), __malloc__, __alloc_size__(1)));
}
