// operator delete[](pointer, size), which C++14 code calls.
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>

// Knows nothing the plain form needs.
void operator delete[](void* p, std::size_t) noexcept { operator delete[](p); }
