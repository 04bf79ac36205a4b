// In a program that never touched the handler, set_new_handler's first answer is the default one.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <new>

TEST(first_set_new_handler_returns_the_default_handler) {
  std::new_handler previous = std::set_new_handler(0);
  CHECK(previous == __default_new_handler);
  CHECK(previous != 0);
}
