// The traps placed in the virtual-table slots of pure virtual and deleted functions.
#include <__lorb/runtime.h>
#include <stdlib.h>

extern "C" {
void __pure_virtual_called() { abort(); }

// g++ fills pure virtual slots with this name.
__LORB_EXPORT __LORB_NORETURN void __cxa_pure_virtual() { __pure_virtual_called(); }

__LORB_EXPORT __LORB_NORETURN void __cxa_deleted_virtual() { abort(); }
}
