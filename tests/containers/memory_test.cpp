// <memory>: auto_ptr's ownership transfers, raw_storage_iterator, the temporary buffers (which
// shrink or come back empty instead of ending the process) and the uninitialized algorithms.
#include "lorb_test.h"
#include <__lorb/algobase.h> // std::copy
#include <memory>
#include <stddef.h>
#include <stdint.h>

// The program's own malloc, reached by the library's operator new: requests above the limit are
// refused and counted.
extern "C" void* __libc_malloc(size_t);
static size_t largest_granted = static_cast<size_t>(-1);
static int refused = 0;
extern "C" void* malloc(size_t size) {
  if (size > largest_granted) {
    ++refused;
    return 0;
  }
  return __libc_malloc(size);
}

namespace {

// Counts the objects alive and the copies made.
struct tracked {
  static int alive, copies;
  int value;
  explicit tracked(int v = 0) : value(v) { ++alive; }
  tracked(const tracked& other) : value(other.value) {
    ++alive;
    ++copies;
  }
  virtual ~tracked() { --alive; }
};
int tracked::alive = 0;
int tracked::copies = 0;

struct derived_tracked : tracked {
  explicit derived_tracked(int v) : tracked(v) {}
};

std::auto_ptr<tracked> make(int value) { return std::auto_ptr<tracked>(new tracked(value)); }
std::auto_ptr<derived_tracked> make_derived(int value) {
  return std::auto_ptr<derived_tracked>(new derived_tracked(value));
}
int value_of(std::auto_ptr<tracked> p) { return p->value; }

// Limits every allocation to `bytes` for the scope's lifetime.
struct allocation_limit {
  explicit allocation_limit(size_t bytes) {
    largest_granted = bytes;
    refused = 0;
  }
  ~allocation_limit() { largest_granted = static_cast<size_t>(-1); }
};

} // namespace

TEST(auto_ptr_owns_and_deletes_its_object) {
  {
    std::auto_ptr<tracked> p(new tracked(5));
    CHECK_EQ(tracked::alive, 1);
    CHECK_EQ((*p).value, 5);
    CHECK_EQ(p->value, 5);
    CHECK(p.get() != 0);
  }
  CHECK_EQ(tracked::alive, 0);
  std::auto_ptr<tracked> empty;
  CHECK(empty.get() == 0);
}

TEST(auto_ptr_release_gives_up_ownership) {
  std::auto_ptr<tracked> p(new tracked(1));
  tracked* raw = p.release();
  CHECK(p.get() == 0);
  CHECK_EQ(tracked::alive, 1);
  delete raw;
  CHECK(p.release() == 0);
}

TEST(auto_ptr_reset_deletes_the_old_object_unless_it_is_the_same) {
  std::auto_ptr<tracked> p(new tracked(1));
  tracked* second = new tracked(2);
  p.reset(second);
  CHECK_EQ(tracked::alive, 1);
  CHECK(p.get() == second);
  p.reset(second);
  CHECK_EQ(tracked::alive, 1);
  CHECK_EQ(p->value, 2);
  p.reset();
  CHECK_EQ(tracked::alive, 0);
  CHECK(p.get() == 0);
}

TEST(auto_ptr_copy_transfers_ownership) {
  std::auto_ptr<tracked> a(new tracked(3));
  tracked* raw = a.get();
  std::auto_ptr<tracked> b(a);
  CHECK(a.get() == 0);
  CHECK(b.get() == raw);
  CHECK_EQ(tracked::alive, 1);
  CHECK_EQ(tracked::copies, 0);
}

TEST(auto_ptr_assignment_deletes_the_target_and_transfers) {
  std::auto_ptr<tracked> a(new tracked(1)), b(new tracked(2));
  tracked* raw = b.get();
  a = b;
  CHECK_EQ(tracked::alive, 1);
  CHECK(a.get() == raw);
  CHECK(b.get() == 0);
  a = a; // self-assignment keeps the object
  CHECK_EQ(tracked::alive, 1);
  CHECK(a.get() == raw);
}

TEST(auto_ptr_converts_from_a_derived_auto_ptr) {
  std::auto_ptr<derived_tracked> d(new derived_tracked(8));
  std::auto_ptr<tracked> base(d);
  CHECK(d.get() == 0);
  CHECK_EQ(base->value, 8);
  std::auto_ptr<derived_tracked> d2(new derived_tracked(9));
  base = d2;
  CHECK_EQ(tracked::alive, 1);
  CHECK_EQ(base->value, 9);
}

TEST(auto_ptr_ref_lets_temporaries_be_copied_and_assigned) {
  std::auto_ptr<tracked> p(make(4));
  CHECK_EQ(p->value, 4);
  p = make(6); // a temporary converts to auto_ptr_ref, then assigns
  CHECK_EQ(tracked::alive, 1);
  CHECK_EQ(p->value, 6);
  std::auto_ptr<tracked> from_derived(make_derived(7)); // through auto_ptr_ref<tracked>
  CHECK_EQ(from_derived->value, 7);
  CHECK_EQ(value_of(make(11)), 11);
  CHECK_EQ(tracked::alive, 2);
  std::auto_ptr_ref<tracked> ref = make(12);
  std::auto_ptr<tracked> taken(ref);
  CHECK_EQ(taken->value, 12);
}

TEST(auto_ptr_conversion_operators_hand_over_the_pointer) {
  std::auto_ptr<derived_tracked> d(new derived_tracked(2));
  derived_tracked* raw = d.get();
  std::auto_ptr<tracked> converted = d.operator std::auto_ptr<tracked>();
  CHECK(converted.get() == raw);
  CHECK(d.get() == 0);
  std::auto_ptr<tracked> other(new tracked(3));
  std::auto_ptr_ref<tracked> ref = other.operator std::auto_ptr_ref<tracked>();
  CHECK(ref.__pointer != 0);
  CHECK(other.get() == 0);
  converted = ref;
  CHECK_EQ(converted->value, 3);
  CHECK_EQ(tracked::alive, 1);
}

TEST(raw_storage_iterator_constructs_in_place) {
  tracked::copies = 0;
  void* storage = ::operator new(4 * sizeof(tracked));
  tracked* slots = static_cast<tracked*>(storage);
  tracked values[3] = {tracked(1), tracked(2), tracked(3)};
  int before = tracked::alive;
  std::raw_storage_iterator<tracked*, tracked> out(slots);
  std::raw_storage_iterator<tracked*, tracked> end = std::copy(values, values + 3, out);
  CHECK_EQ(tracked::alive, before + 3);
  CHECK_EQ(slots[2].value, 3);
  *end = tracked(4);
  CHECK_EQ(slots[3].value, 4);
  for (int i = 0; i < 4; ++i)
    slots[i].~tracked();
  ::operator delete(storage);
}

TEST(raw_storage_iterator_steps_like_its_iterator) {
  int storage[3] = {0, 0, 0};
  std::raw_storage_iterator<int*, int> it(storage);
  CHECK(&*it == &it);
  *it = 1;
  std::raw_storage_iterator<int*, int> old = it++;
  *it = 2;
  *old = 9; // the copy still points at the first slot
  CHECK(&++it == &it);
  it = 3;
  CHECK_EQ(storage[0], 9);
  CHECK_EQ(storage[1], 2);
  CHECK_EQ(storage[2], 3);
}

TEST(get_temporary_buffer_gives_what_was_asked_when_memory_allows) {
  std::pair<tracked*, ptrdiff_t> buffer = std::get_temporary_buffer<tracked>(10);
  CHECK(buffer.first != 0);
  CHECK_EQ(buffer.second, 10);
  CHECK_EQ(tracked::alive, 0); // storage only: nothing is constructed
  std::uninitialized_fill_n(buffer.first, 10, tracked(7));
  CHECK_EQ(buffer.first[9].value, 7);
  __vel::destroy_range(buffer.first, buffer.first + 10);
  std::return_temporary_buffer(buffer.first);
}

TEST(get_temporary_buffer_settles_for_a_smaller_buffer) {
  std::pair<double*, ptrdiff_t> buffer(0, 0);
  {
    allocation_limit limit(1000);
    buffer = std::get_temporary_buffer<double>(1000);
    CHECK(refused > 0);
  }
  CHECK(buffer.first != 0);
  // The largest of the halvings that fits: 1000 / 2^k elements of 8 bytes within 1000 bytes.
  CHECK(buffer.second * ptrdiff_t(sizeof(double)) <= 1000);
  CHECK(buffer.second * 2 * ptrdiff_t(sizeof(double)) > 1000);
  CHECK_EQ(buffer.second, 125);
  buffer.first[buffer.second - 1] = 1.5; // the whole piece is usable
  std::return_temporary_buffer(buffer.first);
}

TEST(get_temporary_buffer_clamps_requests_beyond_the_address_space) {
  allocation_limit limit(64);
  std::pair<int*, ptrdiff_t> buffer = std::get_temporary_buffer<int>(PTRDIFF_MAX);
  CHECK(buffer.first != 0);
  CHECK(buffer.second * 4 <= 64);
  CHECK(buffer.second * 8 > 64);
  std::return_temporary_buffer(buffer.first);
}

TEST(get_temporary_buffer_of_nothing_is_empty) {
  std::pair<int*, ptrdiff_t> buffer = std::get_temporary_buffer<int>(0);
  CHECK(buffer.first == 0);
  CHECK_EQ(buffer.second, 0);
  buffer = std::get_temporary_buffer<int>(-5);
  CHECK(buffer.first == 0);
  CHECK_EQ(buffer.second, 0);
}

static void ask_with_no_memory_left() {
  allocation_limit limit(0);
  std::pair<int*, ptrdiff_t> buffer = std::get_temporary_buffer<int>(100);
  if (buffer.first != 0 || buffer.second != 0 || refused != 7) // 100, 50, 25, 12, 6, 3, 1
    exit(3);
}

TEST(get_temporary_buffer_without_memory_returns_empty_and_the_program_goes_on) {
  EXPECT_EXIT(ask_with_no_memory_left(), 0, "");
}

TEST(uninitialized_algorithms_come_with_memory) {
  tracked::copies = 0;
  void* storage = ::operator new(6 * sizeof(tracked));
  tracked* slots = static_cast<tracked*>(storage);
  tracked model(5);
  std::uninitialized_fill(slots, slots + 3, model);
  const tracked* source = slots;
  tracked* end = std::uninitialized_copy(source, source + 3, slots + 3);
  CHECK(end == slots + 6);
  CHECK_EQ(tracked::copies, 6);
  CHECK_EQ(slots[5].value, 5);
  __vel::destroy_range(slots, slots + 6);
  ::operator delete(storage);
  CHECK_EQ(tracked::alive, 1);
}

TEST(the_allocator_is_still_there) {
  std::allocator<int> a;
  int* p = a.allocate(3);
  CHECK(p != 0);
  a.construct(p, 4);
  CHECK_EQ(*p, 4);
  a.deallocate(p, 3);
}
