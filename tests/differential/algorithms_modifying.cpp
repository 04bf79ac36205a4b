// The algorithms that rewrite ranges, over generated ranges of many sizes and duplicate densities:
// every result printed whole, except partition's order, which is left open (its split point and
// the sorted halves are printed).
#include "algorithms_support.h"
#include <algorithm>
#include <functional>

static bool is_odd(int x) { return x % 2 != 0; }
static int square(int x) { return x * x; }
static bool close_to(int a, int b) { return b - a <= 1 && a - b <= 1; }

struct counter {
  int next;
  explicit counter(int start) : next(start) {}
  int operator()() { return next++; }
};

// Answers each limit from the program's generator and prints what it was asked.
struct logged_generator {
  generator* source;
  explicit logged_generator(generator* g) : source(g) {}
  int operator()(int limit) {
    printf(" %d", limit);
    return source->below(limit);
  }
};

int main() {
  generator gen(77);
  int a[257], b[257], out[520];
  for (int s = 0; s < size_count; ++s)
    for (int v = 0; v < span_count; ++v) {
      int n = sizes[s], span = spans[v];
      int x = gen.below(span), m = n == 0 ? 0 : gen.below(n + 1);
      printf("n %d span %d x %d m %d\n", n, span, x, m);
      fill(a, n, span, gen);
      fill(b, n, span, gen);
      std::swap_ranges(a, a + m, b);
      print(" swap_ranges a", a, a + n);
      print(" transform", out, std::transform(a, a + n, out, square));
      print(" transform2", out, std::transform(a, a + n, b, out, std::minus<int>()));
      print(" replace_copy", out, std::replace_copy(a, a + n, out, x, -1));
      print(" replace_copy_if", out, std::replace_copy_if(a, a + n, out, is_odd, -2));
      std::copy(a, a + n, out);
      std::replace(out, out + n, x, -3);
      std::replace_if(out, out + n, is_odd, -4);
      print(" replace", out, out + n);
      std::fill(out, out + n, x);
      std::fill_n(out, m, -5);
      print(" fill", out, out + n);
      std::generate(out, out + n, counter(x));
      std::generate_n(out, m / 2, counter(-x));
      print(" generate", out, out + n);
      print(" remove_copy", out, std::remove_copy(a, a + n, out, x));
      print(" remove_copy_if", out, std::remove_copy_if(a, a + n, out, is_odd));
      std::copy(a, a + n, out);
      print(" remove", out, std::remove(out, out + n, x));
      std::copy(a, a + n, out);
      print(" remove_if", out, std::remove_if(out, out + n, is_odd));
      std::copy(a, a + n, out);
      print(" unique", out, std::unique(out, out + n));
      std::copy(a, a + n, out);
      print(" unique_pred", out, std::unique(out, out + n, close_to));
      print(" unique_copy", out, std::unique_copy(a, a + n, out));
      print(" unique_copy_pred", out, std::unique_copy(a, a + n, out, close_to));
      std::copy(a, a + n, out);
      std::reverse(out, out + n);
      print(" reverse", out, out + n);
      print(" reverse_copy", out, std::reverse_copy(a, a + n, out));
      std::copy(a, a + n, out);
      std::rotate(out, out + m, out + n);
      print(" rotate", out, out + n);
      print(" rotate_copy", out, std::rotate_copy(a, a + m, a + n, out));
      std::copy(a, a + n, out + 3);
      print(" copy_backward", out, std::copy_backward(out + 3, out + 3 + n, out + n));
      std::copy(a, a + n, out);
      int* cut = std::partition(out, out + n, is_odd);
      std::sort(out, cut);
      std::sort(cut, out + n);
      printf(" partition at %d", int(cut - out));
      print("", out, out + n);
      std::copy(a, a + n, out);
      print(" stable_partition", out, std::stable_partition(out, out + n, is_odd));
      print("  whole", out, out + n);
      std::copy(a, a + n, out);
      printf(" random_shuffle asks");
      logged_generator logged(&gen);
      std::random_shuffle(out, out + n, logged);
      print("", out, out + n);
    }
  return 0;
}
