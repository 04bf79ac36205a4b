// Records three static objects for destruction, the way compiled code does, and lets exit
// destroy them: the most recently recorded goes first.
#include <__lorb/runtime.h>
#include <cstdio>
#include <new>

struct announcer {
  const char* name;
};

static void destroy_announcer(void* object, int flags) {
  std::printf("destroying %s (flags %d)\n", static_cast<announcer*>(object)->name, flags);
}

static void goodbye() { std::printf("atexit function runs in its turn\n"); }

static announcer first = {"first"}, second = {"second"}, third = {"third"};
// One static node per object, as compiled code emits them: {0, object, destructor}.
static __lorb_destruction_node first_node = {0, &first, destroy_announcer};
static __lorb_destruction_node second_node = {0, &second, destroy_announcer};
static __lorb_destruction_node third_node = {0, &third, destroy_announcer};

int main() {
  __record_needed_destruction(&first_node);
  std::printf("constructed first\n");
  __vel_std_atexit(goodbye);
  __record_needed_destruction(&second_node);
  std::printf("constructed second\n");
  __record_needed_destruction(&third_node);
  std::printf("constructed third\n");
  std::printf("main returns\n");
  return 0;
}
