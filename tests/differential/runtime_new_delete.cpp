// Allocation as a program sees it: sizes, zero-size requests, arrays of class objects with
// their construction and destruction order, placement new and the nothrow forms.
#include <cstdio>
#include <cstring>
#include <new>

static int live = 0;
struct element {
  int id;
  element() : id(live++) { std::printf("construct %d\n", id); }
  ~element() { std::printf("destroy %d\n", id); }
};

struct big {
  char bytes[1000];
};

int main() {
  void* a = operator new(0);
  void* b = operator new(0);
  std::printf("zero-size distinct and non-null: %d\n", a != 0 && b != 0 && a != b);
  operator delete(a);
  operator delete(b);

  element* many = new element[3];
  delete[] many;
  element* none = new element[0];
  delete[] none;
  element* one = new element;
  delete one;

  char buffer[sizeof(element)];
  element* placed = new (buffer) element;
  std::printf("placement at buffer: %d\n", static_cast<void*>(placed) == buffer);
  placed->~element();

  big* nothrow_big = new (std::nothrow) big;
  std::memset(nothrow_big->bytes, 1, sizeof nothrow_big->bytes);
  std::printf("nothrow big allocated: %d\n", nothrow_big != 0);
  delete nothrow_big;
  int* numbers = new (std::nothrow) int[100];
  for (int i = 0; i < 100; ++i)
    numbers[i] = i * i;
  std::printf("numbers[99] = %d\n", numbers[99]);
  delete[] numbers;

  int total = 0;
  for (int size = 1; size < 5000; size += 97) {
    char* p = new char[size];
    std::memset(p, 'x', size);
    total += p[size - 1] == 'x';
    delete[] p;
  }
  std::printf("sized allocations usable: %d\n", total);
  delete static_cast<int*>(0);
  std::printf("deleting null is harmless\n");
  return 0;
}
