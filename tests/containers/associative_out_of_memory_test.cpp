// The ordered containers when a node cannot be allocated: the allocation message on standard
// error and exit status 1, whether the header (at construction) or a value node (insertion,
// subscript, copy, assignment) is refused, by operator new or by a program's allocator.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <map>
#include <set>
#include <stddef.h>
#include <string>

namespace {

const char no_memory[] = "Lorb++ : Could not allocate  memory ...\n";

typedef std::map<int, int> int_map;

void refuse_all() { lt::malloc_fails = true; }

// Hands out `remaining` nodes, then null.
int remaining = -1;
template <class _T> class rationing_allocator : public std::allocator<_T> {
public:
  template <class _U> struct rebind { typedef rationing_allocator<_U> other; };
  rationing_allocator() {}
  template <class _U> rationing_allocator(const rationing_allocator<_U>&) {}
  _T* allocate(size_t n, const void* = 0) {
    if (remaining == 0)
      return 0;
    if (remaining > 0)
      --remaining;
    return std::allocator<_T>::allocate(n);
  }
};
typedef std::map<int, int, std::less<int>, rationing_allocator<std::pair<const int, int> > >
    rationed_map;
typedef std::set<int, std::less<int>, rationing_allocator<int> > rationed_set;

rationed_map rationed_squares(int n) {
  rationed_map m;
  for (int k = 0; k < n; ++k)
    m[k] = k * k;
  return m;
}

TEST(constructing_any_container_without_memory_for_its_header_exits_1) {
  EXPECT_EXIT((refuse_all(), int_map()), 1, no_memory);
  EXPECT_EXIT((refuse_all(), std::multimap<int, int>()), 1, no_memory);
  EXPECT_EXIT((refuse_all(), std::set<int>()), 1, no_memory);
  EXPECT_EXIT((refuse_all(), std::multiset<int>()), 1, no_memory);
  int items[] = {1, 2};
  EXPECT_EXIT((refuse_all(), std::set<int>(items, items + 2)), 1, no_memory);
  EXPECT_EXIT((remaining = 0, rationed_set()), 1, no_memory);
}

TEST(inserting_without_memory_exits_1) {
  int_map m;
  m[1] = 1;
  EXPECT_EXIT((refuse_all(), m.insert(std::make_pair(2, 2))), 1, no_memory);
  EXPECT_EXIT((refuse_all(), m.insert(m.end(), std::make_pair(2, 2))), 1, no_memory);
  EXPECT_EXIT((refuse_all(), m.insert(m.begin(), std::make_pair(0, 2))), 1, no_memory);
  EXPECT_EXIT((refuse_all(), m[5]), 1, no_memory);
  std::multimap<int, int> mm;
  EXPECT_EXIT((refuse_all(), mm.insert(std::make_pair(2, 2))), 1, no_memory);
  EXPECT_EXIT((refuse_all(), mm.insert(mm.end(), std::make_pair(2, 2))), 1, no_memory);
  std::set<int> s;
  EXPECT_EXIT((refuse_all(), s.insert(3)), 1, no_memory);
  EXPECT_EXIT((refuse_all(), s.insert(s.end(), 3)), 1, no_memory);
  std::multiset<int> ms;
  ms.insert(4);
  EXPECT_EXIT((refuse_all(), ms.insert(4)), 1, no_memory);
  EXPECT_EXIT((refuse_all(), ms.insert(ms.begin(), 4)), 1, no_memory);
  int items[] = {7, 8, 9};
  EXPECT_EXIT((refuse_all(), ms.insert(items, items + 3)), 1, no_memory);
}

TEST(a_refused_node_midway_through_a_range_exits_1) {
  int items[] = {1, 2, 3, 4, 5, 6};
  EXPECT_EXIT((remaining = 3, rationed_set(items, items + 6)), 1, no_memory);
  rationed_set s;
  EXPECT_EXIT((remaining = 2, s.insert(items, items + 6)), 1, no_memory);
}

TEST(copying_without_memory_for_a_node_exits_1) {
  rationed_map m = rationed_squares(10);
  EXPECT_EXIT((remaining = 0, rationed_map(m)), 1, no_memory);
  EXPECT_EXIT((remaining = 5, rationed_map(m)), 1, no_memory); // header and four nodes
  rationed_map other;
  EXPECT_EXIT((remaining = 4, other = m), 1, no_memory);
  std::map<std::string, int> words;
  words["a"] = 1;
  EXPECT_EXIT((refuse_all(), std::map<std::string, int>(words)), 1, no_memory);
}

TEST(an_existing_key_needs_no_memory) {
  int_map m;
  m[1] = 10;
  std::set<int> s;
  s.insert(2);
  // Nothing is allocated, so these run to their end and exit 0 with nothing on standard error.
  EXPECT_EXIT((refuse_all(), m.insert(std::make_pair(1, 5)), m[1] = 3, m.erase(1), s.insert(2),
               s.insert(s.begin(), 2), s.clear()),
              0, "");
}

TEST(enough_memory_lets_the_rationed_containers_work) {
  remaining = 11; // the header and ten nodes
  rationed_map m = rationed_squares(10);
  CHECK_EQ(m.size(), 10u);
  CHECK_EQ(remaining, 0);
  remaining = -1;
  rationed_map copy(m);
  CHECK(copy == m);
}

} // namespace
