// Exhausted memory at every allocation site of the sequence containers: the allocation message,
// exit status 1, and (printed at exit) the size of the one request that was refused.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <deque>
#include <list>
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>
#include <vector>

static const char message[] = "Lorb++ : Could not allocate  memory ...\n";

// Runs at exit: which request failed, written without allocating.
static void print_refused() {
  char text[64];
  int n = snprintf(text, sizeof text, "refused %u of %u bytes\n", unsigned(lt::refused_mallocs),
                   unsigned(lt::last_refused_size));
  if (write(1, text, size_t(n)) != n)
    _exit(3);
}

// From here on every request fails; the next allocation the statement makes is the site.
static void exhaust_memory() {
  atexit(print_refused);
  lt::malloc_fails = true;
}

// What a dying child builds is static, so that it stays reachable, not leaked.
static void vector_first_growth() {
  static std::vector<long> v;
  exhaust_memory();
  v.push_back(1);
}
static void vector_growth_from_10_to_20() {
  static std::vector<long> v(10, 1L);
  exhaust_memory();
  v.push_back(2);
}
static void vector_many_element_growth() {
  static std::vector<char> v(10, 'a');
  exhaust_memory();
  v.insert(v.begin(), 15, 'b'); // 25 bytes: twice 10 is not enough
}
static void vector_construction() {
  exhaust_memory();
  static std::vector<void*> v(6, static_cast<void*>(0));
}
static void vector_reserve() {
  static std::vector<long> v;
  exhaust_memory();
  v.reserve(3);
}
static void vector_bool_words() {
  static std::vector<bool> v(32, true);
  exhaust_memory();
  v.push_back(false); // 64 bits
}

TEST(a_vector_that_cannot_grow_reports_and_exits_with_1) {
  EXPECT_CHILD(vector_first_growth(), lt::exits(1), "refused 1 of 40 bytes\n", message);
  EXPECT_CHILD(vector_growth_from_10_to_20(), lt::exits(1), "refused 1 of 80 bytes\n", message);
  EXPECT_CHILD(vector_many_element_growth(), lt::exits(1), "refused 1 of 25 bytes\n", message);
  EXPECT_CHILD(vector_construction(), lt::exits(1), "refused 1 of 24 bytes\n", message);
  EXPECT_CHILD(vector_reserve(), lt::exits(1), "refused 1 of 12 bytes\n", message);
  EXPECT_CHILD(vector_bool_words(), lt::exits(1), "refused 1 of 8 bytes\n", message);
}

static void deque_first_map() {
  static std::deque<int> d;
  exhaust_memory();
  d.push_back(1);
}
// 19 elements fill the first block but one place; the 20th brings the block for slot 1.
static void deque_block_at_end() {
  static std::deque<int> d(19, 1);
  exhaust_memory();
  d.push_back(2);
}
// The 40th element needs a third block: the map of 2 slots goes first, for one of 6.
static void deque_map_at_end() {
  static std::deque<char> d(39, 'a');
  exhaust_memory();
  d.push_back('b');
}
// 40 elements at the back leave slot 1 free in a map of 6: only a block is needed in front.
static void deque_block_at_begin() {
  static std::deque<int> d(40, 1);
  exhaust_memory();
  d.push_front(2);
}
// 39 elements at the front fill slots 1 and 0; the 40th needs a map of 6 first.
static void deque_map_at_begin() {
  static std::deque<int> d;
  for (int i = 0; i < 39; ++i)
    d.push_front(i);
  exhaust_memory();
  d.push_front(39);
}

TEST(a_deque_that_cannot_take_a_block_or_a_map_reports_and_exits_with_1) {
  EXPECT_CHILD(deque_first_map(), lt::exits(1), "refused 1 of 8 bytes\n", message);
  EXPECT_CHILD(deque_block_at_end(), lt::exits(1), "refused 1 of 80 bytes\n", message);
  EXPECT_CHILD(deque_map_at_end(), lt::exits(1), "refused 1 of 24 bytes\n", message);
  EXPECT_CHILD(deque_block_at_begin(), lt::exits(1), "refused 1 of 80 bytes\n", message);
  EXPECT_CHILD(deque_map_at_begin(), lt::exits(1), "refused 1 of 24 bytes\n", message);
}

static void list_node() {
  static std::list<int> l(3, 1);
  exhaust_memory();
  l.push_back(2);
}
// The sort's 64 lists: 64 * 12 bytes and the 8-byte array cookie, from operator new[].
static void list_sort_bins() {
  static std::list<int> l(3, 1);
  exhaust_memory();
  l.sort();
}

TEST(a_list_that_cannot_take_a_node_or_its_sort_lists_reports_and_exits_with_1) {
  EXPECT_CHILD(list_node(), lt::exits(1), "refused 1 of 12 bytes\n", message);
  EXPECT_CHILD(list_sort_bins(), lt::exits(1), "refused 1 of 776 bytes\n", message);
}

TEST(with_memory_to_spare_the_same_steps_complete) {
  std::deque<int> d(40, 1);
  d.push_front(2);
  std::list<int> l(3, 1);
  l.sort();
  std::vector<long> v(10, 1L);
  v.push_back(2);
  CHECK_EQ(d.size(), 41u);
  CHECK_EQ(l.size(), 3u);
  CHECK_EQ(v.capacity(), 20u);
  CHECK_EQ(lt::refused_mallocs, 0);
}
