// bad_alloc's message string: built at load, recorded for destruction, destroyed by the walk.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <new>
#include <stddef.h>
#include <stdlib.h>
#include <string>

// The program's own operator delete sees what the library frees.
static const void* freed[4096];
static int freed_count = 0;

void operator delete(void* p) noexcept {
  if (p && freed_count < 4096)
    freed[freed_count++] = p;
  free(p);
}

static bool was_freed(const void* p) {
  for (int i = 0; i < freed_count; ++i)
    if (freed[i] == p)
      return true;
  return false;
}

static void walk_and_check_alloc_msg_storage_freed() {
  const void* representation = *reinterpret_cast<void* const*>(&std::bad_alloc::alloc_msg);
  const void* characters = std::bad_alloc::alloc_msg.c_str();
  freed_count = 0;
  __process_needed_destructions();
  if (!was_freed(representation) && !was_freed(characters))
    exit(3);
}

TEST(alloc_msg_is_destroyed_by_the_destruction_walk) {
  EXPECT_CHILD(walk_and_check_alloc_msg_storage_freed(), lt::exits(0), 0, "");
}

TEST(alloc_msg_is_not_destroyed_before_the_walk) {
  CHECK_STR(std::bad_alloc::alloc_msg.c_str(), "Allocation Failure");
  CHECK(!was_freed(std::bad_alloc::alloc_msg.c_str()));
}
