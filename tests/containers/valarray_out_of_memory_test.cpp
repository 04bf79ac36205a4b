// Exhausted memory at valarray's allocation sites: the allocation message, exit status 1, and
// (printed at exit) the size of the one request that was refused.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <stdio.h>
#include <stdlib.h>
#include <unistd.h>
#include <valarray>

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
static void construction() {
  exhaust_memory();
  static std::valarray<double> v(6);
}
static void copy() {
  static std::valarray<int> v(7, 5);
  exhaust_memory();
  static std::valarray<int> w(v);
}
static void resize() {
  static std::valarray<short> v(3);
  exhaust_memory();
  v.resize(9, 1);
}
static void assignment_of_another_length() {
  static std::valarray<int> v(2), w(4);
  exhaust_memory();
  v = w;
}
static void operator_result() {
  static std::valarray<int> v(3, 10);
  exhaust_memory();
  static std::valarray<int> w = v + v;
}
static void function_result() {
  static std::valarray<double> v(1.0, 2);
  exhaust_memory();
  static std::valarray<double> w = std::sqrt(v);
}
static void gslice_positions() {
  static std::valarray<int> v(20);
  static std::valarray<std::size_t> lengths(3, 2), strides(1, 2);
  static std::gslice which(0, lengths, strides);
  exhaust_memory();
  v[which] = 1; // the 9 positions, 36 bytes
}
static void mask_positions() {
  static std::valarray<int> v(20);
  static std::valarray<bool> mask(true, 20);
  exhaust_memory();
  v[mask] = 1; // the 20 positions
}

TEST(a_valarray_without_memory_reports_and_exits_with_1) {
  EXPECT_CHILD(construction(), lt::exits(1), "refused 1 of 48 bytes\n", message);
  EXPECT_CHILD(copy(), lt::exits(1), "refused 1 of 20 bytes\n", message);
  EXPECT_CHILD(resize(), lt::exits(1), "refused 1 of 18 bytes\n", message);
  EXPECT_CHILD(assignment_of_another_length(), lt::exits(1), "refused 1 of 16 bytes\n", message);
  EXPECT_CHILD(operator_result(), lt::exits(1), "refused 1 of 40 bytes\n", message);
  EXPECT_CHILD(function_result(), lt::exits(1), "refused 1 of 16 bytes\n", message);
  EXPECT_CHILD(gslice_positions(), lt::exits(1), "refused 1 of 36 bytes\n", message);
  EXPECT_CHILD(mask_positions(), lt::exits(1), "refused 1 of 80 bytes\n", message);
}

TEST(with_memory_to_spare_the_same_steps_complete) {
  std::valarray<int> v(7, 5), w(v);
  w.resize(9, 1);
  v = w;
  std::valarray<int> total = v + w;
  std::valarray<double> root = std::sqrt(std::valarray<double>(4.0, 2));
  std::valarray<std::size_t> lengths(3, 2), strides(1, 2);
  v[std::gslice(0, lengths, strides)] = 2;
  v[std::valarray<bool>(true, 9)] += std::valarray<int>(1, 9);
  CHECK_EQ(total.sum(), 18);
  CHECK_EQ(root[1], 2.0);
  CHECK_EQ(v.sum(), 5 * 3 + 4 * 2); // positions 0 to 4 set to 2, then all one more
  CHECK_EQ(lt::refused_mallocs, 0);
}
