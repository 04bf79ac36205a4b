// The handler a fresh program has installed: Lorb++ starts with its own do-nothing default
// handler, so the first set_new_handler returns a non-null function (the GNU library: null).
#include <cstdio>
#include <new>

static void my_handler() {}

int main() {
  std::new_handler initial = std::set_new_handler(my_handler);
  std::printf("initial handler is null: %d\n", initial == 0);
  std::new_handler mine = std::set_new_handler(initial);
  std::printf("handler read back: %d\n", mine == my_handler);
  return 0;
}
