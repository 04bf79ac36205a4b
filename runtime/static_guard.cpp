// The guards g++ puts around a local static's first construction; one thread, so no locking.
#include <__lorb/config.h>
#include <stdlib.h>

// The guard's first byte says the object is built; its second says construction is under way.
extern "C" {
__LORB_EXPORT int __cxa_guard_acquire(unsigned long long* guard) {
  unsigned char* bytes = reinterpret_cast<unsigned char*>(guard);
  if (bytes[0])
    return 0;
  if (bytes[1])
    abort(); // the initialiser reached its own static again
  bytes[1] = 1;
  return 1;
}

__LORB_EXPORT void __cxa_guard_release(unsigned long long* guard) {
  unsigned char* bytes = reinterpret_cast<unsigned char*>(guard);
  bytes[1] = 0;
  bytes[0] = 1;
}

__LORB_EXPORT void __cxa_guard_abort(unsigned long long* guard) {
  reinterpret_cast<unsigned char*>(guard)[1] = 0;
}
}
