// The over-aligned allocation functions that C++17 code calls; they run the plain handler loop.
#include <__lorb/runtime.h>
#include <new>
#include <stdlib.h>

static void* allocate_aligned(std::size_t size, std::align_val_t alignment, bool nothrow) {
  std::size_t align = static_cast<std::size_t>(alignment);
  if (align < sizeof(void*))
    align = sizeof(void*);
  if (size == 0)
    size = 1;
  for (;;) {
    void* p = 0;
    if (posix_memalign(&p, align, size) == 0)
      return p;
    if (nothrow && !_new_handler)
      return 0;
    if (call_new_handler())
      return 0;
  }
}

void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate_aligned(size, alignment, false);
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate_aligned(size, alignment, true);
}

void* operator new[](std::size_t size, std::align_val_t alignment) {
  return allocate_aligned(size, alignment, false);
}

void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate_aligned(size, alignment, true);
}

void operator delete(void* p, std::align_val_t) noexcept { free(p); }

void operator delete(void* p, std::align_val_t, const std::nothrow_t&) noexcept { free(p); }

void operator delete[](void* p, std::align_val_t) noexcept { free(p); }

void operator delete[](void* p, std::align_val_t, const std::nothrow_t&) noexcept { free(p); }

void operator delete(void* p, std::size_t, std::align_val_t) noexcept { free(p); }

void operator delete[](void* p, std::size_t, std::align_val_t) noexcept { free(p); }
