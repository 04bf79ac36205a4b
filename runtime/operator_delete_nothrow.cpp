// operator delete(pointer, nothrow).
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>

void operator delete(void* p, const std::nothrow_t&) noexcept { operator delete(p); }
