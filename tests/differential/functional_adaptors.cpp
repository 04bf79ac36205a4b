// <functional> through the algorithms: the arithmetic and logical objects, negators, binders,
// ptr_fun and the member-function adaptors, applied over generated ranges.
#include "algorithms_support.h"
#include <algorithm>
#include <functional>

struct cell {
  int value;
  int twice() const { return 2 * value; }
  int add(int n) {
    value += n;
    return value;
  }
  void clear() { value = 0; }
  bool above(int n) const { return value > n; }
};

static int negated(int x) { return -x; }
static int mixed(int a, int b) { return a * 3 - b; }

int main() {
  generator gen(5);
  int a[100], b[100], out[100];
  fill(a, 100, 50, gen);
  fill(b, 100, 50, gen);
  for (int i = 0; i < 100; ++i)
    b[i] += 1;
  print("plus", out, std::transform(a, a + 100, b, out, std::plus<int>()));
  print("minus", out, std::transform(a, a + 100, b, out, std::minus<int>()));
  print("multiplies", out, std::transform(a, a + 100, b, out, std::multiplies<int>()));
  print("divides", out, std::transform(a, a + 100, b, out, std::divides<int>()));
  print("modulus", out, std::transform(a, a + 100, b, out, std::modulus<int>()));
  print("negate", out, std::transform(a, a + 100, out, std::negate<int>()));
  print("logical_and", out, std::transform(a, a + 100, b, out, std::logical_and<int>()));
  print("logical_or", out, std::transform(a, a + 100, a, out, std::logical_or<int>()));
  print("logical_not", out, std::transform(a, a + 100, out, std::logical_not<int>()));
  print("comparisons", out, std::transform(a, a + 100, b, out, std::less_equal<int>()));
  printf("count_if not1 bind2nd %d\n",
         int(std::count_if(a, a + 100, std::not1(std::bind2nd(std::less<int>(), 25)))));
  printf("count_if bind1st %d\n", int(std::count_if(a, a + 100, std::bind1st(std::less<int>(), 25))));
  print("not2", out, std::transform(a, a + 100, b, out, std::not2(std::greater<int>())));
  print("ptr_fun", out, std::transform(a, a + 100, out, std::ptr_fun(negated)));
  print("ptr_fun2", out, std::transform(a, a + 100, b, out, std::ptr_fun(mixed)));
  print("bind ptr_fun", out, std::transform(a, a + 100, out, std::bind2nd(std::ptr_fun(mixed), 7)));
  cell cells[20];
  cell* pointers[20];
  for (int i = 0; i < 20; ++i) {
    cells[i].value = a[i];
    pointers[i] = &cells[i];
  }
  print("mem_fun_ref const", out, std::transform(cells, cells + 20, out, std::mem_fun_ref(&cell::twice)));
  std::for_each(cells, cells + 20, std::bind2nd(std::mem_fun_ref(&cell::add), 3));
  print("mem_fun const", out, std::transform(pointers, pointers + 20, out, std::mem_fun(&cell::twice)));
  std::transform(pointers, pointers + 20, b, out, std::mem_fun(&cell::add));
  print("mem_fun1", out, out + 20);
  printf("mem_fun1 const %d\n",
         int(std::count_if(pointers, pointers + 20, std::bind2nd(std::mem_fun(&cell::above), 40))));
  printf("mem_fun1_ref const %d\n",
         int(std::count_if(cells, cells + 20, std::bind2nd(std::mem_fun_ref(&cell::above), 40))));
  std::for_each(pointers, pointers + 10, std::mem_fun(&cell::clear));
  std::for_each(cells + 15, cells + 20, std::mem_fun_ref(&cell::clear));
  for (int i = 0; i < 20; ++i)
    out[i] = cells[i].value;
  print("cleared", out, out + 20);
  return 0;
}
