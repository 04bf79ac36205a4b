// Start-up: the once-only _main and the scheduling of the destruction walk with atexit.
#include <__lorb/runtime.h>
#include <stdlib.h>

extern "C" {
int __dtor_processing_scheduled = 0;

// Constructs nothing, despite its name: it only makes sure the walk will run at exit.
void __call_ctors() {
  if (__dtor_processing_scheduled == 0)
    __dtor_processing_scheduled = atexit(__call_dtors) == 0 ? 1 : 0;
}

void __main_called_more_than_once() { abort(); }

void _main() {
  static int main_called = 0;
  if (main_called)
    __main_called_more_than_once();
  main_called = 1;
  __call_ctors();
}
}

// Programs compiled by g++ never call _main, so the library schedules the walk as it loads.
// Registered before any program static, the walk runs after the program's own static destructors.
__attribute__((constructor(101))) static void schedule_destruction_walk() { __call_ctors(); }
