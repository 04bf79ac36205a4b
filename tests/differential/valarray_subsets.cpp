// std::valarray subsets over generated arrays: slices, gslices of two and three dimensions, masks
// and index arrays, read into valarrays and assigned through (=, the compound forms, fill), each
// result printed. Every position drawn stays inside the array.
#include <cstdio>
#include <valarray>

struct generator {
  unsigned int seed;
  explicit generator(unsigned int s) : seed(s) {}
  unsigned int below(unsigned int n) {
    seed = seed * 1103515245u + 12345u;
    return (seed >> 8) % n;
  }
};

static void print(const char* what, const std::valarray<int>& v) {
  std::printf("%s [%u]", what, unsigned(v.size()));
  for (std::size_t i = 0; i < v.size(); ++i)
    std::printf(" %d", v[i]);
  std::printf("\n");
}

static std::valarray<int> numbered(std::size_t n) {
  std::valarray<int> v(n);
  for (std::size_t i = 0; i < n; ++i)
    v[i] = int(i) * 10;
  return v;
}

static void slices(generator& gen) {
  std::size_t n = 1 + gen.below(30);
  std::valarray<int> v = numbered(n);
  std::size_t start = gen.below(unsigned(n)), stride = 1 + gen.below(4);
  std::size_t room = (n - 1 - start) / stride + 1; // how many fit
  std::size_t count = gen.below(unsigned(room) + 1);
  std::printf("slice(%u, %u, %u) of %u\n", unsigned(start), unsigned(count), unsigned(stride),
              unsigned(n));
  std::slice s(start, count, stride);
  print("read", v[s]);
  std::valarray<int> w = v;
  w[s] = std::valarray<int>(7, count);
  print("assigned", w);
  w[s] += numbered(count);
  w[s] *= std::valarray<int>(3, count);
  print("compound", w);
  w[s] = -1;
  print("filled", w);
}

static void gslices(generator& gen) {
  std::size_t dims = 2 + gen.below(2);
  std::valarray<std::size_t> lengths(dims), strides(dims);
  std::size_t start = gen.below(5), reach = start;
  for (std::size_t k = 0; k < dims; ++k) {
    lengths[k] = 1 + gen.below(3);
    strides[k] = 1 + gen.below(6);
    reach += (lengths[k] - 1) * strides[k];
  }
  std::valarray<int> v = numbered(reach + 1 + gen.below(4));
  std::printf("gslice start %u over %u:", unsigned(start), unsigned(v.size()));
  for (std::size_t k = 0; k < dims; ++k)
    std::printf(" (%u,%u)", unsigned(lengths[k]), unsigned(strides[k]));
  std::printf("\n");
  std::gslice g(start, lengths, strides);
  std::valarray<int> picked = v[g];
  print("read", picked);
  std::valarray<int> w = v;
  w[g] = numbered(picked.size());
  print("assigned", w);
  w[g] -= std::valarray<int>(1, picked.size());
  print("compound", w);
}

static void masks_and_indexes(generator& gen) {
  std::size_t n = 1 + gen.below(20);
  std::valarray<int> v = numbered(n);
  std::valarray<bool> mask(n);
  std::size_t chosen = 0;
  for (std::size_t i = 0; i < n; ++i)
    chosen += (mask[i] = gen.below(2) == 1);
  print("masked", v[mask]);
  std::valarray<int> w = v;
  w[mask] = numbered(chosen) + 1;
  w[mask] *= std::valarray<int>(2, chosen);
  print("mask assigned", w);
  w[v > int(n) * 5] = 0;
  print("mask filled", w);
  std::size_t m = gen.below(8);
  std::valarray<std::size_t> index(m);
  for (std::size_t i = 0; i < m; ++i)
    index[i] = gen.below(unsigned(n)); // repeats allowed when reading
  print("indexed", v[index]);
  std::valarray<std::size_t> distinct(n < 4 ? n : 4);
  for (std::size_t i = 0; i < distinct.size(); ++i)
    distinct[i] = n - 1 - i; // distinct when writing
  w = v;
  w[distinct] = numbered(distinct.size()) - 5;
  w[distinct] += std::valarray<int>(100, distinct.size());
  print("index assigned", w);
}

int main() {
  generator gen(77u);
  for (int round = 0; round < 40; ++round) {
    std::printf("-- round %d\n", round);
    slices(gen);
    gslices(gen);
    masks_and_indexes(gen);
  }
  return 0;
}
