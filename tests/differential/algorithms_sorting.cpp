// Sorting and its relatives over generated ranges of many sizes and duplicate densities: sort,
// stable_sort and the merges of keyed records printed whole (ids show stability), the parts of
// partial_sort and nth_element that are fixed, heaps through their effects, binary searches and
// set operations, and permutation steps.
#include "algorithms_support.h"
#include <algorithm>
#include <functional>

static bool by_key_descending(const record& a, const record& b) { return a.key > b.key; }

static bool is_heap(const int* a, int n) {
  for (int child = 1; child < n; ++child)
    if (a[(child - 1) / 2] < a[child])
      return false;
  return true;
}

static void sorts(int n, int span, generator& gen) {
  int a[257], out[257];
  record r[257];
  fill(a, n, span, gen);
  for (int i = 0; i < n; ++i) {
    r[i].key = a[i];
    r[i].id = i;
  }
  int m = n == 0 ? 0 : gen.below(n + 1);
  printf("n %d span %d m %d\n", n, span, m);
  std::copy(a, a + n, out);
  std::sort(out, out + n);
  print(" sort", out, out + n);
  std::copy(a, a + n, out);
  std::sort(out, out + n, std::greater<int>());
  print(" sort_greater", out, out + n);
  record sorted[257];
  std::copy(r, r + n, sorted);
  std::stable_sort(sorted, sorted + n);
  print_records(" stable_sort", sorted, sorted + n);
  std::copy(r, r + n, sorted);
  std::stable_sort(sorted, sorted + n, by_key_descending);
  print_records(" stable_sort_descending", sorted, sorted + n);
  std::copy(a, a + n, out);
  std::partial_sort(out, out + m, out + n);
  print(" partial_sort front", out, out + m);
  int shorter = m / 2;
  print(" partial_sort_copy", out, std::partial_sort_copy(a, a + n, out, out + shorter));
  print(" partial_sort_copy_greater", out,
        std::partial_sort_copy(a, a + n, out, out + m, std::greater<int>()));
  if (m < n) {
    std::copy(a, a + n, out);
    std::nth_element(out, out + m, out + n);
    std::sort(out, out + m);
    std::sort(out + m + 1, out + n);
    print(" nth_element", out, out + n);
    std::copy(a, a + n, out);
    std::nth_element(out, out + m, out + n, std::greater<int>());
    printf(" nth_element_greater %d\n", out[m]);
  }
  std::copy(a, a + n, out);
  std::make_heap(out, out + n);
  printf(" make_heap %d", is_heap(out, n));
  if (n > 0) {
    std::pop_heap(out, out + n);
    printf(" pop_heap %d %d", out[n - 1], is_heap(out, n - 1));
    out[n - 1] = gen.below(span);
    std::push_heap(out, out + n);
    printf(" push_heap %d", is_heap(out, n));
  }
  std::sort_heap(out, out + n);
  print("", out, out + n);
  std::copy(a, a + n, out);
  std::make_heap(out, out + n, std::greater<int>());
  std::sort_heap(out, out + n, std::greater<int>());
  print(" sort_heap_greater", out, out + n);
}

static void merges_and_searches(int n, int span, generator& gen) {
  record left[257], right[257], merged[520];
  int nl = n, nr = gen.below(n + 1);
  for (int i = 0; i < nl; ++i) {
    left[i].key = gen.below(span);
    left[i].id = i;
  }
  for (int i = 0; i < nr; ++i) {
    right[i].key = gen.below(span);
    right[i].id = 1000 + i;
  }
  std::stable_sort(left, left + nl);
  std::stable_sort(right, right + nr);
  print_records(" merge", merged, std::merge(left, left + nl, right, right + nr, merged));
  std::copy(left, left + nl, merged);
  std::copy(right, right + nr, merged + nl);
  std::inplace_merge(merged, merged + nl, merged + nl + nr);
  print_records(" inplace_merge", merged, merged + nl + nr);
  print_records(" set_union", merged, std::set_union(left, left + nl, right, right + nr, merged));
  print_records(" set_intersection", merged,
                std::set_intersection(left, left + nl, right, right + nr, merged));
  print_records(" set_difference", merged,
                std::set_difference(left, left + nl, right, right + nr, merged));
  print_records(" set_symmetric_difference", merged,
                std::set_symmetric_difference(left, left + nl, right, right + nr, merged));
  printf(" includes %d %d\n", std::includes(left, left + nl, right, right + nr),
         std::includes(left, left + nl, left + nl / 3, left + nl / 2));
  int keys[257];
  for (int i = 0; i < nl; ++i)
    keys[i] = left[i].key;
  printf(" bounds");
  for (int v = -1; v <= span && v < 12; ++v) {
    std::pair<int*, int*> range = std::equal_range(keys, keys + nl, v);
    printf(" %d:%d,%d,%d,%d,%d", v, int(std::lower_bound(keys, keys + nl, v) - keys),
           int(std::upper_bound(keys, keys + nl, v) - keys), int(range.first - keys),
           int(range.second - keys), std::binary_search(keys, keys + nl, v));
  }
  std::reverse(keys, keys + nl);
  std::greater<int> descending;
  printf(" descending %d %d %d\n", int(std::lower_bound(keys, keys + nl, 1, descending) - keys),
         int(std::upper_bound(keys, keys + nl, 1, descending) - keys),
         std::binary_search(keys, keys + nl, 1, descending));
}

static void permutations(generator& gen) {
  for (int n = 0; n <= 5; ++n) {
    int a[5];
    fill(a, n, 3, gen);
    print("permutations of", a, a + n);
    for (int step = 0; step < 12; ++step) {
      bool more = std::next_permutation(a, a + n);
      printf(" %d", more);
      print("", a, a + n);
    }
    for (int step = 0; step < 6; ++step) {
      bool more = std::prev_permutation(a, a + n, std::greater<int>());
      printf(" prev %d", more);
      print("", a, a + n);
    }
  }
}

int main() {
  generator gen(31337);
  for (int s = 0; s < size_count; ++s)
    for (int v = 0; v < span_count; ++v) {
      sorts(sizes[s], spans[v], gen);
      merges_and_searches(sizes[s], spans[v], gen);
    }
  permutations(gen);
  printf("min %d max %d min_greater %d max_greater %d\n", std::min(3, 4), std::max(3, 4),
         std::min(3, 4, std::greater<int>()), std::max(3, 4, std::greater<int>()));
  return 0;
}
