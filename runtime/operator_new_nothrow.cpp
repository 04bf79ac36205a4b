// operator new(size, nothrow).
// A file of its own: a program linked with the static archive can replace this function alone.
#include <__lorb/runtime.h>
#include <new>
#include <stdlib.h>

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
