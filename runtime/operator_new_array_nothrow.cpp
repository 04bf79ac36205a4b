// operator new[](size, nothrow).
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}
