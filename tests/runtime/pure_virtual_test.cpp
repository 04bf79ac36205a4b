// The pure-virtual trap: reached directly, through g++'s slot name, and from a real call.
#include "lorb_test.h"
#include <__lorb/runtime.h>

extern "C" void __cxa_pure_virtual();

struct shape {
  shape() { describe_self(); }
  virtual ~shape() {}
  void describe_self() { describe(); }
  virtual void describe() = 0;
};
struct square : shape {
  void describe() {}
};

TEST(pure_virtual_trap_aborts_with_no_message) { EXPECT_ABORT(__pure_virtual_called(), ""); }

TEST(gxx_pure_virtual_slot_goes_to_the_trap) { EXPECT_ABORT(__cxa_pure_virtual(), ""); }

TEST(calling_a_pure_virtual_during_construction_aborts) {
  EXPECT_ABORT({ square s; }, "");
}
