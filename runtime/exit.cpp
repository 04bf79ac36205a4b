// exit(int) with the language's linkage, and the hook that runs before the destruction walk.
#include <__lorb/runtime.h>

extern "C" __LORB_NORETURN void c_library_exit(int status) __asm__("exit");

extern "C" {
void __eh_exit_processing() {}

void __plo_exit(int status) {
  __eh_exit_processing();
  __call_dtors();
  c_library_exit(status);
}
}

void __lorb_cxx_exit(int status) { __plo_exit(status); }
