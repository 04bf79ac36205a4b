// The red-black core over long operation sequences (ordered and seeded random inserts, erasures
// of every kind, clears and copies), with every invariant and a sorted model checked after each.
#include "lorb_test.h"
#include "rb_tree_invariants.h"
#include "rb_tree_test_tree.h"
#include <__lorb/rb_tree_base.h>

using __vel::rb_tree_base;

static void insert_both(test_tree& tree, sorted_model& model, int value) {
  payload p = {value, tree.next_serial};
  tree.insert(value);
  model.insert(p);
}

// Stops at the first broken step, so a failure is reported once.
static bool tree_ok(const test_tree& tree, const sorted_model& model) {
  return CHECK_TEST_TREE(tree) && CHECK_MATCHES(tree, model) &&
         CHECK_EQ(tree.value_nodes_alive(), model.size);
}

TEST(ascending_inserts_then_erasing_the_leftmost_each_time) {
  test_tree tree;
  sorted_model model;
  for (int v = 0; v < 200; ++v) {
    insert_both(tree, model, v);
    if (!tree_ok(tree, model))
      return;
  }
  while (tree.node_count) {
    tree.__erase(tree.leftmost);
    model.erase(0, 1);
    if (!tree_ok(tree, model))
      return;
  }
}

TEST(descending_inserts_then_erasing_the_rightmost_each_time) {
  test_tree tree;
  sorted_model model;
  for (int v = 200; v > 0; --v) {
    insert_both(tree, model, v);
    if (!tree_ok(tree, model))
      return;
  }
  while (tree.node_count) {
    tree.__erase(tree.rightmost);
    model.erase(model.size - 1, model.size);
    if (!tree_ok(tree, model))
      return;
  }
}

static unsigned position_of(const test_tree& tree, const node* x) {
  return tree.__count(tree.leftmost, x);
}

TEST(erasing_the_root_each_time) {
  test_tree tree;
  sorted_model model;
  lcg random(7);
  for (int i = 0; i < 200; ++i)
    insert_both(tree, model, static_cast<int>(random.below(1000)));
  while (tree.node_count) {
    unsigned k = position_of(tree, tree.root());
    tree.__erase(tree.root());
    model.erase(k, k + 1);
    if (!tree_ok(tree, model))
      return;
  }
}

TEST(all_equal_values_stay_in_insertion_order) {
  test_tree tree;
  sorted_model model;
  for (int i = 0; i < 100; ++i)
    insert_both(tree, model, 4);
  lcg random(3);
  while (tree.node_count) {
    unsigned k = random.below(tree.node_count);
    tree.__erase(tree.at(k));
    model.erase(k, k + 1);
    if (!tree_ok(tree, model))
      return;
  }
}

// One step of a random sequence: mostly inserts and single erasures, sometimes a range, a clear
// or a copy compared with its source.
static void random_step(test_tree& tree, sorted_model& model, lcg& random, int value_range) {
  unsigned choice = random.below(100);
  unsigned n = tree.node_count;
  if (choice < 55 || n == 0) {
    insert_both(tree, model, static_cast<int>(random.below(value_range)));
  } else if (choice < 70) {
    unsigned k = random.below(n);
    tree.__erase(tree.at(k));
    model.erase(k, k + 1);
  } else if (choice < 76) {
    tree.__erase(tree.leftmost);
    model.erase(0, 1);
  } else if (choice < 82) {
    tree.__erase(tree.rightmost);
    model.erase(n - 1, n);
  } else if (choice < 88) {
    unsigned k = position_of(tree, tree.root());
    tree.__erase(tree.root());
    model.erase(k, k + 1);
  } else if (choice < 95) {
    unsigned first = random.below(n + 1);
    unsigned last = first + random.below(n - first + 1);
    unsigned before = tree.destroyed;
    CHECK_EQ(tree.__erase(tree.at(first), tree.at(last)), last - first);
    CHECK_EQ(tree.destroyed - before, last - first);
    model.erase(first, last);
  } else if (choice < 97) {
    test_tree copy;
    copy.__copy(tree, value_offset);
    CHECK(same_shape(copy.root(), tree.root()));
    CHECK_TEST_TREE(copy);
    CHECK_MATCHES(copy, model);
    copy.__destroy();
    copy.alive = false;
    CHECK_EQ(copy.destroyed, copy.made);
  } else if (choice < 99) {
    CHECK_EQ(tree.__erase(tree.leftmost, tree.header), n);
    model.erase(0, n);
  } else {
    tree.__clear();
    model.erase(0, n);
  }
}

static void run_random_sequence(unsigned seed, unsigned steps, int value_range) {
  test_tree tree;
  sorted_model model;
  lcg random(seed);
  for (unsigned i = 0; i < steps; ++i) {
    random_step(tree, model, random, value_range);
    if (!tree_ok(tree, model))
      return;
  }
  tree.__destroy();
  tree.alive = false;
  CHECK_EQ(tree.destroyed, tree.made);
}

TEST(random_sequences_with_many_duplicates_keep_every_invariant) {
  for (unsigned seed = 1; seed <= 4; ++seed)
    run_random_sequence(seed, 1500, 8);
}

TEST(random_sequences_with_few_duplicates_keep_every_invariant) {
  for (unsigned seed = 11; seed <= 14; ++seed)
    run_random_sequence(seed, 1500, 100000);
}

// Inserts outweigh erasures here, so the tree grows deep enough for every rebalancing case.
TEST(a_growing_random_tree_keeps_every_invariant) {
  test_tree tree;
  sorted_model model;
  lcg random(99);
  for (unsigned i = 0; i < 1200; ++i) {
    if (random.below(4) != 0 || tree.node_count == 0) {
      insert_both(tree, model, static_cast<int>(random.below(500)));
    } else {
      unsigned k = random.below(tree.node_count);
      tree.__erase(tree.at(k));
      model.erase(k, k + 1);
    }
    if (!tree_ok(tree, model))
      return;
  }
  CHECK(tree.node_count > 500);
}
