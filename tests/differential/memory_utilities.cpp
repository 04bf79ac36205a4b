// <memory> beyond the allocator: auto_ptr's ownership transfers, raw_storage_iterator, the
// temporary buffers and the uninitialized algorithms, printed as the events of a noisy class.
#include <cstddef>
#include <memory>
#include <stdio.h>

struct noisy {
  static int alive;
  int value;
  explicit noisy(int v) : value(v) {
    ++alive;
    printf("    make %d\n", value);
  }
  noisy(const noisy& other) : value(other.value) {
    ++alive;
    printf("    copy %d\n", value);
  }
  noisy& operator=(const noisy& other) {
    printf("    assign %d over %d\n", other.value, value);
    value = other.value;
    return *this;
  }
  virtual ~noisy() {
    --alive;
    printf("    drop %d\n", value);
  }
};
int noisy::alive = 0;

struct louder : noisy {
  explicit louder(int v) : noisy(v) {}
};

static std::auto_ptr<noisy> make(int v) { return std::auto_ptr<noisy>(new noisy(v)); }
static std::auto_ptr<louder> make_louder(int v) { return std::auto_ptr<louder>(new louder(v)); }
static int take(std::auto_ptr<noisy> p) { return p.get() ? p->value : -1; }

static void auto_ptrs() {
  printf("auto_ptr\n");
  std::auto_ptr<noisy> a(new noisy(1));
  std::auto_ptr<noisy> b(a);
  printf("  after copy: a %s, b %d\n", a.get() ? "holds" : "empty", b->value);
  std::auto_ptr<noisy> c(new noisy(2));
  c = b;
  printf("  after assignment: b %s, c %d, alive %d\n", b.get() ? "holds" : "empty", (*c).value,
         noisy::alive);
  std::auto_ptr<noisy> d = make(3);
  d = make(4);
  printf("  from temporaries: d %d, alive %d\n", d->value, noisy::alive);
  std::auto_ptr<noisy> e(make_louder(5));
  std::auto_ptr<louder> f(new louder(6));
  e = f;
  printf("  from derived: e %d, f %s\n", e->value, f.get() ? "holds" : "empty");
  printf("  passed by value: %d, then d %s\n", take(d), d.get() ? "holds" : "empty");
  noisy* raw = e.release();
  printf("  released %d, e %s\n", raw->value, e.get() ? "holds" : "empty");
  e.reset(raw);
  e.reset(raw);
  e.reset(new noisy(7));
  e.reset();
  printf("  alive %d\n", noisy::alive);
}

static void raw_storage() {
  printf("raw_storage_iterator\n");
  noisy* slots = static_cast<noisy*>(::operator new(3 * sizeof(noisy)));
  std::raw_storage_iterator<noisy*, noisy> out(slots);
  noisy model(8);
  *out = model;
  ++out;
  *out++ = noisy(9);
  *out = model;
  printf("  built %d %d %d, alive %d\n", slots[0].value, slots[1].value, slots[2].value,
         noisy::alive);
  for (int i = 0; i < 3; ++i)
    slots[i].~noisy();
  ::operator delete(slots);
}

static void temporary_buffers() {
  printf("temporary buffers\n");
  const std::ptrdiff_t requests[] = {0, -3, 1, 17, 1000};
  for (unsigned i = 0; i < sizeof requests / sizeof requests[0]; ++i) {
    std::pair<noisy*, std::ptrdiff_t> buffer = std::get_temporary_buffer<noisy>(requests[i]);
    printf("  asked %ld got %ld (%s), alive %d\n", long(requests[i]), long(buffer.second),
           buffer.first ? "storage" : "null", noisy::alive);
    if (buffer.second > 1) {
      std::uninitialized_fill_n(buffer.first, 2, noisy(10));
      buffer.first[0].~noisy();
      buffer.first[1].~noisy();
    }
    std::return_temporary_buffer(buffer.first);
  }
}

static void uninitialized() {
  printf("uninitialized algorithms\n");
  noisy* slots = static_cast<noisy*>(::operator new(5 * sizeof(noisy)));
  std::uninitialized_fill(slots, slots + 2, noisy(11));
  noisy* end = std::uninitialized_copy(slots, slots + 2, slots + 2);
  std::uninitialized_fill_n(end, 1, noisy(12));
  for (int i = 0; i < 5; ++i)
    printf("  slot %d: %d\n", i, slots[i].value);
  for (int i = 0; i < 5; ++i)
    slots[i].~noisy();
  ::operator delete(slots);
}

int main() {
  auto_ptrs();
  raw_storage();
  temporary_buffers();
  uninitialized();
  printf("alive at the end %d\n", noisy::alive);
  return 0;
}
