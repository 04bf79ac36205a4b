// The light-weight vector: exact-size buffers, the resize and assign rules, allocation failure.
#include "lorb_test.h"
#include <__lorb/ios_base_fwd.h>
#include <__lorb/lw_vector.h>
#include <new>
#include <stddef.h>
#include <stdlib.h>
#include <utility>

// The program's own operator new and delete replace the library's, so the test sees every
// buffer the vector takes and gives back, and can make the next request fail.
static unsigned news = 0, deletes = 0, last_request = 0;
static bool refuse_requests = false;

void* operator new(size_t size) {
  ++news;
  last_request = static_cast<unsigned>(size);
  if (refuse_requests)
    return 0;
  return malloc(size ? size : 1);
}
void operator delete(void* p) noexcept {
  if (p)
    ++deletes;
  free(p);
}

typedef __vel::lw_vector<long> longs;
typedef __vel::lw_vector<void*> pointers;

static void fill(longs& v, unsigned n, long first) {
  v.resize(n, 0);
  for (unsigned i = 0; i < n; ++i)
    v.data[i] = first + static_cast<long>(i);
}

static void release(longs& v) {
  if (v.data)
    v.resize(0, 0);
}

TEST(the_vector_is_two_words_pointer_then_count) {
  CHECK_EQ(sizeof(longs), 8u);
  CHECK_EQ(sizeof(pointers), 8u);
  longs v;
  CHECK_EQ(static_cast<void*>(&v.data), static_cast<void*>(&v));
  CHECK_EQ(reinterpret_cast<char*>(&v.size) - reinterpret_cast<char*>(&v), 4);
}

TEST(a_default_vector_is_null_and_empty) {
  longs v;
  CHECK(v.data == 0);
  CHECK_EQ(v.size, 0u);
}

TEST(resize_to_zero_frees_the_buffer) {
  longs v;
  fill(v, 4, 10);
  unsigned before = deletes;
  v.resize(0, 99);
  CHECK(v.data == 0);
  CHECK_EQ(v.size, 0u);
  CHECK_EQ(deletes, before + 1);
}

TEST(resize_to_zero_of_an_empty_vector_does_nothing) {
  longs v;
  unsigned before_news = news, before_deletes = deletes;
  v.resize(0, 5);
  CHECK(v.data == 0);
  CHECK_EQ(v.size, 0u);
  CHECK_EQ(news, before_news);
  CHECK_EQ(deletes, before_deletes);
}

TEST(resize_to_the_present_size_changes_nothing_even_with_another_value) {
  longs v;
  fill(v, 3, 7);
  long* buffer = v.data;
  unsigned before_news = news, before_deletes = deletes;
  v.resize(3, 1000);
  CHECK(v.data == buffer);
  CHECK_EQ(v.size, 3u);
  CHECK_EQ(v.data[0], 7L);
  CHECK_EQ(v.data[1], 8L);
  CHECK_EQ(v.data[2], 9L);
  CHECK_EQ(news, before_news);
  CHECK_EQ(deletes, before_deletes);
  release(v);
}

TEST(first_growth_takes_a_buffer_of_exactly_n_elements_filled_with_the_value) {
  longs v;
  unsigned before = news;
  v.resize(13, -4);
  CHECK_EQ(news, before + 1);
  CHECK_EQ(last_request, 13u * 4);
  CHECK_EQ(v.size, 13u);
  for (unsigned i = 0; i < 13; ++i)
    CHECK_EQ(v.data[i], -4L);
  release(v);
}

TEST(growing_moves_to_a_new_exact_buffer_keeping_old_elements) {
  longs v;
  fill(v, 3, 20);
  long* old_buffer = v.data;
  unsigned before_news = news, before_deletes = deletes;
  v.resize(5, 77);
  CHECK_EQ(news, before_news + 1);
  CHECK_EQ(deletes, before_deletes + 1);
  CHECK_EQ(last_request, 5u * 4);
  CHECK(v.data != old_buffer);
  CHECK_EQ(v.size, 5u);
  CHECK_EQ(v.data[0], 20L);
  CHECK_EQ(v.data[1], 21L);
  CHECK_EQ(v.data[2], 22L);
  CHECK_EQ(v.data[3], 77L);
  CHECK_EQ(v.data[4], 77L);
  release(v);
}

TEST(growing_by_one_element_reallocates_every_time) {
  longs v;
  unsigned before = news;
  for (unsigned n = 1; n <= 6; ++n) {
    v.resize(n, static_cast<long>(n));
    CHECK_EQ(last_request, n * 4);
  }
  CHECK_EQ(news, before + 6);
  for (unsigned i = 0; i < 6; ++i)
    CHECK_EQ(v.data[i], static_cast<long>(i + 1));
  release(v);
}

TEST(growing_with_one_of_its_own_elements_as_value_copies_it_first) {
  longs v;
  fill(v, 2, 40);
  v.resize(4, v.data[1]);
  CHECK_EQ(v.data[2], 41L);
  CHECK_EQ(v.data[3], 41L);
  release(v);
}

TEST(shrinking_keeps_the_buffer_and_the_first_elements) {
  longs v;
  fill(v, 6, 1);
  long* buffer = v.data;
  unsigned before_news = news, before_deletes = deletes;
  v.resize(2, 555);
  CHECK(v.data == buffer);
  CHECK_EQ(v.size, 2u);
  CHECK_EQ(v.data[0], 1L);
  CHECK_EQ(v.data[1], 2L);
  CHECK_EQ(news, before_news);
  CHECK_EQ(deletes, before_deletes);
  release(v);
}

TEST(growing_back_after_shrinking_reallocates_because_no_capacity_is_kept) {
  longs v;
  fill(v, 6, 1);
  v.resize(2, 0);
  unsigned before_news = news, before_deletes = deletes;
  v.resize(6, 9);
  CHECK_EQ(news, before_news + 1);
  CHECK_EQ(deletes, before_deletes + 1);
  CHECK_EQ(last_request, 6u * 4);
  CHECK_EQ(v.data[1], 2L);
  CHECK_EQ(v.data[2], 9L);
  CHECK_EQ(v.data[5], 9L);
  release(v);
}

TEST(assign_into_an_empty_vector_takes_a_buffer_of_room_elements) {
  longs source, copy;
  fill(source, 3, 100);
  unsigned before = news;
  copy.assign(source, source.size);
  CHECK_EQ(news, before + 1);
  CHECK_EQ(last_request, 3u * 4);
  CHECK(copy.data != source.data);
  CHECK_EQ(copy.size, 3u);
  CHECK_EQ(copy.data[0], 100L);
  CHECK_EQ(copy.data[2], 102L);
  release(source);
  release(copy);
}

TEST(assign_with_room_not_above_the_size_reuses_the_buffer) {
  longs source, target;
  fill(source, 3, 100);
  fill(target, 5, 0);
  long* buffer = target.data;
  unsigned before_news = news, before_deletes = deletes;
  target.assign(source, 3);
  CHECK(target.data == buffer);
  CHECK_EQ(target.size, 3u);
  CHECK_EQ(target.data[0], 100L);
  CHECK_EQ(target.data[1], 101L);
  CHECK_EQ(target.data[2], 102L);
  CHECK_EQ(news, before_news);
  CHECK_EQ(deletes, before_deletes);
  release(source);
  release(target);
}

TEST(assign_with_room_equal_to_the_size_reuses_the_buffer) {
  longs source, target;
  fill(source, 4, 50);
  fill(target, 4, 0);
  long* buffer = target.data;
  unsigned before = news;
  target.assign(source, 4);
  CHECK(target.data == buffer);
  CHECK_EQ(news, before);
  CHECK_EQ(target.data[3], 53L);
  release(source);
  release(target);
}

TEST(assign_with_a_larger_room_frees_and_takes_room_elements) {
  longs source, target;
  fill(source, 2, 60);
  fill(target, 3, 0);
  unsigned before_news = news, before_deletes = deletes;
  target.assign(source, 8);
  CHECK_EQ(deletes, before_deletes + 1);
  CHECK_EQ(news, before_news + 1);
  CHECK_EQ(last_request, 8u * 4);
  CHECK_EQ(target.size, 2u);
  CHECK_EQ(target.data[0], 60L);
  CHECK_EQ(target.data[1], 61L);
  release(source);
  release(target);
}

TEST(assign_with_room_zero_leaves_null_and_empty) {
  longs source, target;
  fill(target, 3, 0);
  unsigned before = deletes;
  target.assign(source, 0);
  CHECK(target.data == 0);
  CHECK_EQ(target.size, 0u);
  CHECK_EQ(deletes, before + 1);
}

TEST(assign_from_an_empty_source_leaves_no_buffer_whatever_the_room) {
  longs source, target;
  unsigned before = news;
  target.assign(source, 5);
  CHECK(target.data == 0);
  CHECK_EQ(target.size, 0u);
  CHECK_EQ(news, before);
}

TEST(assign_from_itself_with_its_own_size_keeps_everything) {
  longs v;
  fill(v, 3, 30);
  long* buffer = v.data;
  v.assign(v, v.size);
  CHECK(v.data == buffer);
  CHECK_EQ(v.size, 3u);
  CHECK_EQ(v.data[2], 32L);
  release(v);
}

TEST(pointer_elements_are_copied_as_they_are) {
  pointers v;
  int a = 0, b = 0;
  v.resize(2, &a);
  v.resize(4, 0);
  v.data[3] = &b;
  pointers copy;
  copy.assign(v, v.size);
  CHECK(copy.data[0] == &a);
  CHECK(copy.data[1] == &a);
  CHECK(copy.data[2] == 0);
  CHECK(copy.data[3] == &b);
  v.resize(0, 0);
  copy.resize(0, 0);
}

static void first_callback(__vel::ios_base_events::event, std::ios_base&, int) {}
static void second_callback(__vel::ios_base_events::event, std::ios_base&, int) {}
typedef std::pair<__vel::ios_event_callback, int> callback_entry;

TEST(callback_pairs_are_eight_bytes_and_grow_exactly) {
  CHECK_EQ(sizeof(callback_entry), 8u);
  __vel::lw_vector<callback_entry> callbacks;
  unsigned before = news;
  callbacks.resize(1, callback_entry(first_callback, 7));
  CHECK_EQ(last_request, 8u);
  callbacks.resize(2, callback_entry(second_callback, 9));
  CHECK_EQ(last_request, 16u);
  CHECK_EQ(news, before + 2);
  CHECK(callbacks.data[0].first == first_callback);
  CHECK_EQ(callbacks.data[0].second, 7);
  CHECK(callbacks.data[1].first == second_callback);
  CHECK_EQ(callbacks.data[1].second, 9);
  __vel::lw_vector<callback_entry> copy;
  copy.assign(callbacks, callbacks.size);
  CHECK(copy.data[1].first == second_callback);
  callbacks.resize(0, callback_entry());
  copy.resize(0, callback_entry());
}

static void grow_with_memory_refused() {
  longs v;
  refuse_requests = true;
  v.resize(3, 1);
}

static void regrow_with_memory_refused() {
  longs v;
  v.resize(2, 1);
  refuse_requests = true;
  v.resize(3, 1);
}

static void assign_with_memory_refused() {
  longs source, target;
  source.resize(2, 1);
  refuse_requests = true;
  target.assign(source, 2);
}

static void grow_past_the_address_space() {
  longs v;
  v.resize(0x40000000u, 1); // 4 bytes each: the byte count would wrap to 0
}

TEST(refused_memory_when_growing_reports_and_exits_with_1) {
  EXPECT_EXIT(grow_with_memory_refused(), 1, "Lorb++ : Could not allocate  memory ...\n");
  EXPECT_EXIT(regrow_with_memory_refused(), 1, "Lorb++ : Could not allocate  memory ...\n");
}

TEST(refused_memory_when_assigning_reports_and_exits_with_1) {
  EXPECT_EXIT(assign_with_memory_refused(), 1, "Lorb++ : Could not allocate  memory ...\n");
}

TEST(a_size_whose_byte_count_wraps_is_refused_not_truncated) {
  EXPECT_EXIT(grow_past_the_address_space(), 1, "Lorb++ : Could not allocate  memory ...\n");
}
