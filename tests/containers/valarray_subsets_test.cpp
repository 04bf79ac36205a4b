// Subsets of a valarray over generated arrays, checked against a list of positions worked out by
// plain loops: slices with strides, gslices of two and three dimensions, masks and index arrays
// (repeated indices when reading), each read, assigned, compound-assigned and filled.
#include "lorb_test.h"
#include "valarray_test_support.h"
#include <valarray>

namespace {

// The positions a subset stands for, as the model sees them.
struct positions {
  std::size_t at[200];
  std::size_t count;
};

positions of_slice(std::size_t start, std::size_t size, std::size_t stride) {
  positions p;
  p.count = size;
  for (std::size_t i = 0; i < size; ++i)
    p.at[i] = start + i * stride;
  return p;
}

// Nested loops, the last dimension innermost.
positions of_gslice(std::size_t start, const std::size_t* lengths, const std::size_t* strides,
                    std::size_t dimensions) {
  positions p;
  p.count = 0;
  std::size_t l0 = lengths[0], l1 = dimensions > 1 ? lengths[1] : 1,
              l2 = dimensions > 2 ? lengths[2] : 1;
  std::size_t s1 = dimensions > 1 ? strides[1] : 0, s2 = dimensions > 2 ? strides[2] : 0;
  for (std::size_t i = 0; i < l0; ++i)
    for (std::size_t j = 0; j < l1; ++j)
      for (std::size_t k = 0; k < l2; ++k)
        p.at[p.count++] = start + i * strides[0] + j * s1 + k * s2;
  return p;
}

positions of_positions(const std::valarray<std::size_t>& at) {
  positions p;
  p.count = at.size();
  for (std::size_t i = 0; i < p.count; ++i)
    p.at[i] = at[i];
  return p;
}

bool reads_match(const std::valarray<int>& picked, const std::valarray<int>& source,
                 const positions& p) {
  if (picked.size() != p.count)
    return false;
  for (std::size_t i = 0; i < p.count; ++i)
    if (picked[i] != source[p.at[i]])
      return false;
  return true;
}

bool same(const std::valarray<int>& a, const std::valarray<int>& b) {
  if (a.size() != b.size())
    return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (a[i] != b[i])
      return false;
  return true;
}

// Applies every assignment form through a subset made by `pick` and through the model
// positions (which must not repeat), comparing the whole array after each.
template <class _Pick>
void check_assignments(std::valarray<int>& v, const positions& p, _Pick pick, generator& gen) {
  std::valarray<int> model(v);
  std::valarray<int> source = random_ints(gen, p.count, 1, 6);
#define CHECK_SUBSET_COMPOUND(op)                                                                  \
  pick(v) op source;                                                                               \
  for (std::size_t i = 0; i < p.count; ++i)                                                        \
    model[p.at[i]] op source[i];                                                                   \
  CHECK(same(v, model))
  CHECK_SUBSET_COMPOUND(=);
  CHECK_SUBSET_COMPOUND(*=);
  CHECK_SUBSET_COMPOUND(/=);
  CHECK_SUBSET_COMPOUND(%=);
  CHECK_SUBSET_COMPOUND(+=);
  CHECK_SUBSET_COMPOUND(-=);
  CHECK_SUBSET_COMPOUND(^=);
  CHECK_SUBSET_COMPOUND(&=);
  CHECK_SUBSET_COMPOUND(|=);
  CHECK_SUBSET_COMPOUND(<<=);
  CHECK_SUBSET_COMPOUND(>>=);
#undef CHECK_SUBSET_COMPOUND
  int value = gen.between(-9, 9);
  pick(v) = value;
  for (std::size_t i = 0; i < p.count; ++i)
    model[p.at[i]] = value;
  CHECK(same(v, model));
}

// The same subset read three ways: through the const subscript, by building a valarray from the
// subset view and by assigning the view to a valarray.
template <class _Pick>
void check_reads(const std::valarray<int>& v, const positions& p, _Pick pick) {
  std::valarray<int> copy(v);
  CHECK(reads_match(pick(v), v, p));
  CHECK(reads_match(std::valarray<int>(pick(copy)), v, p));
  std::valarray<int> assigned(7);
  assigned = pick(copy);
  CHECK(reads_match(assigned, v, p));
}

struct slice_picker {
  std::slice which;
  std::valarray<int> operator()(const std::valarray<int>& v) const { return v[which]; }
  std::slice_array<int> operator()(std::valarray<int>& v) const { return v[which]; }
};
struct gslice_picker {
  std::gslice which;
  std::valarray<int> operator()(const std::valarray<int>& v) const { return v[which]; }
  std::gslice_array<int> operator()(std::valarray<int>& v) const { return v[which]; }
};
struct mask_picker {
  std::valarray<bool> mask;
  std::valarray<int> operator()(const std::valarray<int>& v) const { return v[mask]; }
  std::mask_array<int> operator()(std::valarray<int>& v) const { return v[mask]; }
};
struct indirect_picker {
  std::valarray<std::size_t> indices;
  std::valarray<int> operator()(const std::valarray<int>& v) const { return v[indices]; }
  std::indirect_array<int> operator()(std::valarray<int>& v) const { return v[indices]; }
};

} // namespace

TEST(slices_with_strides_pick_start_plus_multiples_of_the_stride) {
  generator gen(21);
  for (int round = 0; round < 40; ++round) {
    std::size_t n = 1 + gen.below(40);
    std::valarray<int> v = random_ints(gen, n, 1, 1000);
    std::size_t start = gen.below(unsigned(n)), stride = 1 + gen.below(5);
    std::size_t size = gen.below(unsigned((n - 1 - start) / stride + 2));
    slice_picker pick = {std::slice(start, size, stride)};
    positions p = of_slice(start, size, stride);
    CHECK_EQ(pick.which.start(), start);
    CHECK_EQ(pick.which.size(), size);
    CHECK_EQ(pick.which.stride(), stride);
    check_reads(v, p, pick);
    check_assignments(v, p, pick, gen);
  }
  std::slice none;
  CHECK_EQ(none.start() + none.size() + none.stride(), 0u);
}

TEST(gslices_of_two_and_three_dimensions_vary_the_last_index_fastest) {
  generator gen(22);
  for (int round = 0; round < 40; ++round) {
    std::size_t dimensions = 2 + gen.below(2);
    std::size_t lengths[3], strides[3];
    // Strides that grow faster than the lengths below them keep the positions distinct.
    std::size_t reach = 1;
    for (std::size_t k = dimensions; k-- > 0;) {
      lengths[k] = gen.below(4);
      strides[k] = reach + gen.below(2);
      reach = strides[k] * (lengths[k] ? lengths[k] : 1);
    }
    std::size_t start = gen.below(5);
    std::valarray<int> v = random_ints(gen, start + reach + 1, 1, 1000);
    std::valarray<std::size_t> length_array(lengths, dimensions), stride_array(strides, dimensions);
    gslice_picker pick = {std::gslice(start, length_array, stride_array)};
    positions p = of_gslice(start, lengths, strides, dimensions);
    CHECK_EQ(pick.which.start(), start);
    CHECK_EQ(pick.which.size().size(), dimensions);
    CHECK_EQ(pick.which.stride()[dimensions - 1], strides[dimensions - 1]);
    check_reads(v, p, pick);
    check_assignments(v, p, pick, gen);
  }
}

TEST(a_gslice_may_reach_one_position_twice_when_read) {
  std::size_t lengths[] = {2, 3}, strides[] = {1, 1};
  std::valarray<int> v(10);
  for (int i = 0; i < 10; ++i)
    v[std::size_t(i)] = i * 10;
  std::valarray<int> picked = v[std::gslice(2, std::valarray<std::size_t>(lengths, 2),
                                            std::valarray<std::size_t>(strides, 2))];
  int expected[] = {20, 30, 40, 30, 40, 50};
  CHECK_EQ(picked.size(), 6u);
  for (std::size_t i = 0; i < 6; ++i)
    CHECK_EQ(picked[i], expected[i]);
}

TEST(a_gslice_without_lengths_or_with_a_zero_length_picks_nothing) {
  std::valarray<int> v(3, 8);
  const std::valarray<int>& constant = v;
  CHECK_EQ(constant[std::gslice()].size(), 0u);
  std::size_t lengths[] = {3, 0}, strides[] = {2, 1};
  std::gslice empty(0, std::valarray<std::size_t>(lengths, 2),
                    std::valarray<std::size_t>(strides, 2));
  CHECK_EQ(constant[empty].size(), 0u);
  v[empty] = 5;
  CHECK_EQ(v.sum(), 24);
}

TEST(masks_pick_the_positions_where_they_are_true) {
  generator gen(23);
  for (int round = 0; round < 40; ++round) {
    std::size_t n = gen.below(40);
    std::valarray<int> v = random_ints(gen, n, 1, 1000);
    mask_picker pick = {std::valarray<bool>(n)};
    positions p;
    p.count = 0;
    for (std::size_t i = 0; i < n; ++i)
      if ((pick.mask[i] = gen.below(3) == 0))
        p.at[p.count++] = i;
    check_reads(v, p, pick);
    check_assignments(v, p, pick, gen);
  }
}

TEST(a_mask_longer_than_the_array_is_looked_at_only_over_the_arrays_length) {
  std::valarray<int> v(4);
  for (int i = 0; i < 4; ++i)
    v[std::size_t(i)] = i + 1;
  std::valarray<bool> mask(true, 6);
  mask[1] = false;
  std::valarray<int> picked = v[mask];
  CHECK_EQ(picked.size(), 3u);
  CHECK_EQ(picked[2], 4);
}

TEST(index_arrays_pick_the_listed_positions_repeats_included_when_read) {
  generator gen(24);
  for (int round = 0; round < 40; ++round) {
    std::size_t n = 1 + gen.below(30);
    std::valarray<int> v = random_ints(gen, n, 1, 1000);
    std::size_t count = gen.below(50);
    indirect_picker pick = {std::valarray<std::size_t>(count)};
    positions p;
    p.count = count;
    for (std::size_t i = 0; i < count; ++i)
      p.at[i] = pick.indices[i] = gen.below(unsigned(n)); // repeats likely
    check_reads(v, p, pick);
    // For writing, a permutation of some positions.
    std::valarray<std::size_t> order(n);
    for (std::size_t i = 0; i < n; ++i)
      order[i] = i;
    for (std::size_t i = n; i-- > 1;) {
      std::size_t j = gen.below(unsigned(i + 1)), kept = order[i];
      order[i] = order[j];
      order[j] = kept;
    }
    std::size_t written = gen.below(unsigned(n + 1));
    indirect_picker writer = {order[std::slice(0, written, 1)]};
    check_assignments(v, of_positions(writer.indices), writer, gen);
  }
}

TEST(assigning_a_valarray_of_another_length_to_a_subset_covers_the_shorter_length) {
  std::valarray<int> v(0, 10);
  v[std::slice(1, 3, 3)] = std::valarray<int>(5, 2);  // positions 1 and 4 only
  v[std::slice(0, 2, 1)] += std::valarray<int>(1, 7); // positions 0 and 1
  int expected[] = {1, 6, 0, 0, 5, 0, 0, 0, 0, 0};
  for (std::size_t i = 0; i < 10; ++i)
    CHECK_EQ(v[i], expected[i]);
  std::valarray<bool> mask(false, 10);
  mask[2] = mask[3] = true;
  v[mask] = std::valarray<int>(9, 1);
  CHECK_EQ(v[2], 9);
  CHECK_EQ(v[3], 0);
}

TEST(one_subset_assigned_to_another_copies_the_elements_across) {
  std::valarray<int> v(10);
  for (int i = 0; i < 10; ++i)
    v[std::size_t(i)] = i;
  std::valarray<int> w(0, 10);
  w[std::slice(0, 5, 2)] = v[std::slice(5, 5, 1)];
  int expected[] = {5, 0, 6, 0, 7, 0, 8, 0, 9, 0};
  for (std::size_t i = 0; i < 10; ++i)
    CHECK_EQ(w[i], expected[i]);
  std::size_t at[] = {9, 0};
  std::valarray<std::size_t> indices(at, 2);
  w[indices] = w[indices]; // the same positions: unchanged
  CHECK_EQ(w[0], 5);
  CHECK_EQ(w[9], 0);
}

TEST(a_subset_view_copied_still_refers_to_the_same_array) {
  std::valarray<int> v(0, 6);
  std::slice_array<int> first = v[std::slice(0, 3, 2)];
  std::slice_array<int> copy(first);
  copy = 4;
  CHECK_EQ(v.sum(), 12);
  std::mask_array<int> masked = v[v > 0];
  std::mask_array<int> masked_copy(masked);
  masked_copy += std::valarray<int>(1, 3);
  CHECK_EQ(v[4], 5);
  CHECK_EQ(v[5], 0);
}
