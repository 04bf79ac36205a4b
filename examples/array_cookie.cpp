// Builds an array of class objects through the run-time's array helpers, shows the two-word
// cookie in front of it, and destroys it again reading the count back from the cookie.
#include <__lorb/runtime.h>
#include <cstdio>

struct point {
  int x, y, z;
};

static int next_id = 0;

static void construct_point(void* element) {
  point* p = static_cast<point*>(element);
  p->x = p->y = p->z = next_id++;
  std::printf("constructed point %d at %p\n", p->x, element);
}

static void destroy_point(void* element, int flags) {
  std::printf("destroyed point %d (flags %d)\n", static_cast<point*>(element)->x, flags);
}

int main() {
  point* points = static_cast<point*>(__vec_new(0, 3, sizeof(point), construct_point));
  const unsigned* cookie = reinterpret_cast<const unsigned*>(points) - 2;
  std::printf("cookie: byte total %u, complemented count 0x%08x (count %u)\n", cookie[0], cookie[1],
              ~cookie[1]);
  __vec_delete(points, -1, sizeof(point), destroy_point, 1);
  return 0;
}
