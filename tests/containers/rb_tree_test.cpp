// The red-black core: layouts, insertion and erasure edge cases, stepping, counting, range
// erasure, clearing, copying and destruction.
#include "lorb_test.h"
#include "rb_tree_invariants.h"
#include "rb_tree_test_tree.h"
#include <__lorb/rb_tree_base.h>
#include <stddef.h>
#include <stdlib.h>
#include <string.h>

using __vel::rb_tree_base;
using __vel::rb_tree_base_data;

static unsigned offset_in(const void* whole, const void* part) {
  return static_cast<unsigned>(static_cast<const char*>(part) - static_cast<const char*>(whole));
}

TEST(node_links_come_first_and_the_colour_byte_sits_at_twelve) {
  test_node n;
  CHECK_EQ(sizeof(node), 16u);
  CHECK_EQ(offset_in(&n.base, &n.base.left), 0u);
  CHECK_EQ(offset_in(&n.base, &n.base.right), 4u);
  CHECK_EQ(offset_in(&n.base, &n.base.parent), 8u);
  CHECK_EQ(offset_in(&n.base, &n.base.colour), 12u);
  CHECK_EQ(sizeof(n.base.colour), 1u);
  CHECK_EQ(value_offset, 16u);
}

TEST(tree_data_is_header_count_leftmost_rightmost_after_the_vtable_pointer) {
  CHECK_EQ(sizeof(rb_tree_base_data), 16u);
  CHECK_EQ(offsetof(rb_tree_base_data, header), 0u);
  CHECK_EQ(offsetof(rb_tree_base_data, node_count), 4u);
  CHECK_EQ(offsetof(rb_tree_base_data, leftmost), 8u);
  CHECK_EQ(offsetof(rb_tree_base_data, rightmost), 12u);
  CHECK_EQ(sizeof(rb_tree_base), 20u);
  test_tree tree;
  const rb_tree_base& base = tree;
  const rb_tree_base_data& data = base;
  CHECK_EQ(offset_in(&base, &data), 4u);
}

// The vtable pointer is the first word; destroy_node is its first slot and make_node the second.
TEST(vtable_slots_are_destroy_node_then_make_node) {
  test_tree tree;
  rb_tree_base* base = &tree;
  void** vtable = *reinterpret_cast<void***>(base);
  typedef void (*destroy_slot)(rb_tree_base*, node*);
  typedef node* (*make_slot)(rb_tree_base*, const void*);
  destroy_slot destroy;
  make_slot make;
  memcpy(&destroy, &vtable[0], sizeof destroy);
  memcpy(&make, &vtable[1], sizeof make);
  payload p = {42, 7};
  node* made = make(base, &p);
  CHECK_EQ(tree.made, 2u);
  CHECK_EQ(value_of(made), 42);
  destroy(base, made);
  CHECK_EQ(tree.destroyed, 1u);
}

TEST(the_base_destroy_node_leaves_the_node_alone) {
  test_tree tree;
  test_node n;
  memset(&n, 0x5A, sizeof n);
  test_node before = n;
  tree.rb_tree_base::destroy_node(&n.base);
  CHECK_EQ(memcmp(&n, &before, sizeof n), 0);
  CHECK_EQ(tree.destroyed, 0u);
}

TEST(initialize_makes_a_header_and_an_empty_tree) {
  test_tree tree;
  CHECK_EQ(tree.made, 1u);
  CHECK(tree.header != 0);
  CHECK_EQ(tree.node_count, 0u);
  CHECK(tree.leftmost == tree.header);
  CHECK(tree.rightmost == tree.header);
  CHECK(tree.header->parent == 0);
  CHECK(tree.header->left == 0);
  CHECK(tree.header->right == 0);
  CHECK_TEST_TREE(tree);
}

static void check_first_insertion(bool header_as_w) {
  test_tree tree;
  payload p = {5, 0};
  node* z = tree.make_node(&p);
  node* w = header_as_w ? tree.header : 0;
  CHECK(tree.__finish_insert(z, tree.header, w) == z);
  CHECK(tree.root() == z);
  CHECK(z->parent == tree.header);
  CHECK(!z->colour);
  CHECK(z->left == 0 && z->right == 0);
  CHECK(tree.leftmost == z && tree.rightmost == z);
  CHECK(tree.header->left == z);
  CHECK(tree.header->right == 0);
  CHECK_EQ(tree.node_count, 1u);
  CHECK_TEST_TREE(tree);
}

TEST(the_first_insertion_becomes_the_black_root_whatever_w_says) {
  check_first_insertion(false);
  check_first_insertion(true);
}

TEST(ascending_one_two_three_rotate_to_a_black_two_with_red_children) {
  test_tree tree;
  node* one = tree.insert(1);
  node* two = tree.insert(2);
  CHECK(one->right == two);
  node* three = tree.insert(3);
  CHECK(tree.root() == two);
  CHECK(!two->colour);
  CHECK(two->left == one && one->colour);
  CHECK(two->right == three && three->colour);
  CHECK(tree.leftmost == one);
  CHECK(tree.rightmost == three);
  CHECK(tree.header->left == three);
  CHECK_TEST_TREE(tree);
}

TEST(descending_three_two_one_rotate_the_mirror_way) {
  test_tree tree;
  node* three = tree.insert(3);
  node* two = tree.insert(2);
  node* one = tree.insert(1);
  CHECK(tree.root() == two && !two->colour);
  CHECK(two->left == one && one->colour && two->right == three && three->colour);
  CHECK(tree.leftmost == one && tree.rightmost == three);
  CHECK_TEST_TREE(tree);
}

TEST(an_inner_grandchild_is_rotated_twice_into_the_root) {
  test_tree left_inner;
  left_inner.insert(3);
  left_inner.insert(1);
  node* two = left_inner.insert(2);
  CHECK(left_inner.root() == two && value_of(two->left) == 1 && value_of(two->right) == 3);
  CHECK_TEST_TREE(left_inner);
  test_tree right_inner;
  right_inner.insert(1);
  right_inner.insert(3);
  two = right_inner.insert(2);
  CHECK(right_inner.root() == two && value_of(two->left) == 1 && value_of(two->right) == 3);
  CHECK_TEST_TREE(right_inner);
}

TEST(a_red_uncle_is_recoloured_and_the_root_stays_black) {
  test_tree tree;
  node* two = tree.insert(2);
  node* one = tree.insert(1);
  node* three = tree.insert(3);
  node* four = tree.insert(4);
  CHECK(tree.root() == two && !two->colour);
  CHECK(!one->colour && !three->colour && four->colour);
  CHECK_TEST_TREE(tree);
}

TEST(erasing_the_only_node_empties_the_tree) {
  test_tree tree;
  tree.insert(7);
  tree.__erase(tree.root());
  CHECK_EQ(tree.node_count, 0u);
  CHECK(tree.leftmost == tree.header && tree.rightmost == tree.header);
  CHECK(tree.header->left == 0);
  CHECK(tree.header->parent == 0);
  CHECK_EQ(tree.destroyed, 1u);
  CHECK_TEST_TREE(tree);
  tree.insert(8);
  CHECK_TEST_TREE(tree);
}

TEST(erasing_the_rightmost_moves_the_header_left_link_to_the_new_rightmost) {
  test_tree tree;
  for (int v = 0; v < 6; ++v)
    tree.insert(v);
  node* before_last = tree.at(4);
  tree.__erase(tree.rightmost);
  CHECK(tree.rightmost == before_last);
  CHECK(tree.header->left == before_last);
  CHECK_TEST_TREE(tree);
}

TEST(erasing_the_leftmost_moves_leftmost_to_the_next_node) {
  test_tree tree;
  for (int v = 0; v < 6; ++v)
    tree.insert(v);
  node* second = tree.at(1);
  tree.__erase(tree.leftmost);
  CHECK(tree.leftmost == second);
  CHECK_TEST_TREE(tree);
}

TEST(erasing_a_node_with_two_children_splices_its_successor_in) {
  test_tree tree;
  for (int v = 0; v < 10; ++v)
    tree.insert(v);
  node* root = tree.root();
  node* successor = rb_tree_base::__next(root);
  bool root_colour = root->colour;
  tree.__erase(root);
  CHECK(tree.root() == successor);
  CHECK_EQ(successor->colour, root_colour);
  CHECK_EQ(tree.node_count, 9u);
  CHECK_EQ(tree.destroyed, 1u);
  CHECK_TEST_TREE(tree);
}

TEST(erasing_from_leftmost_to_the_header_returns_the_old_count_and_clears) {
  test_tree tree;
  for (int v = 0; v < 20; ++v)
    tree.insert(v % 7);
  node* header = tree.header;
  CHECK_EQ(tree.__erase(tree.leftmost, tree.header), 20u);
  CHECK_EQ(tree.destroyed, 20u);
  CHECK(tree.header == header);
  CHECK_EQ(tree.node_count, 0u);
  CHECK_TEST_TREE(tree);
  CHECK_EQ(tree.__erase(tree.leftmost, tree.header), 0u);
}

TEST(erasing_a_partial_range_returns_how_many_went) {
  test_tree tree;
  sorted_model model;
  for (int v = 0; v < 30; ++v) {
    payload p = {v % 11, tree.next_serial};
    tree.insert(p.value);
    model.insert(p);
  }
  CHECK_EQ(tree.__erase(tree.at(3), tree.at(10)), 7u); // middle
  model.erase(3, 10);
  CHECK_TEST_TREE(tree);
  CHECK_MATCHES(tree, model);
  CHECK_EQ(tree.__erase(tree.leftmost, tree.at(5)), 5u); // from leftmost, not to the header
  model.erase(0, 5);
  CHECK_MATCHES(tree, model);
  CHECK_EQ(tree.__erase(tree.at(12), tree.header), 6u); // to the header, not from leftmost
  model.erase(12, 18);
  CHECK_MATCHES(tree, model);
  CHECK_EQ(tree.__erase(tree.at(4), tree.at(4)), 0u);
  CHECK_EQ(tree.destroyed, 18u);
  CHECK_TEST_TREE(tree);
}

TEST(count_of_an_empty_range_is_zero) {
  test_tree tree;
  CHECK_EQ(tree.__count(tree.header, tree.header), 0u);
  for (int v = 0; v < 9; ++v)
    tree.insert(v);
  CHECK_EQ(tree.__count(tree.at(4), tree.at(4)), 0u);
  CHECK_EQ(tree.__count(tree.leftmost, tree.header), 9u);
  CHECK_EQ(tree.__count(tree.at(2), tree.at(7)), 5u);
  CHECK_EQ(tree.__count(tree.rightmost, tree.header), 1u);
}

TEST(next_walks_up_from_the_rightmost_node_to_the_header) {
  test_tree tree;
  for (int v = 0; v < 40; ++v)
    tree.insert(v);
  CHECK(rb_tree_base::__next(tree.rightmost) == tree.header);
  CHECK(rb_tree_base::__prev(tree.header) == tree.rightmost);
  int expected = 0;
  for (node* x = tree.leftmost; x != tree.header; x = rb_tree_base::__next(x))
    CHECK_EQ(value_of(x), expected++);
  CHECK_EQ(expected, 40);
  for (node* x = rb_tree_base::__prev(tree.header);; x = rb_tree_base::__prev(x)) {
    CHECK_EQ(value_of(x), --expected);
    if (x == tree.leftmost)
      break;
  }
  CHECK_EQ(expected, 0);
}

TEST(prev_of_the_header_of_a_one_node_tree_is_that_node) {
  test_tree tree;
  node* only = tree.insert(3);
  CHECK(rb_tree_base::__prev(tree.header) == only);
  CHECK(rb_tree_base::__next(only) == tree.header);
}

TEST(clear_destroys_every_value_node_and_keeps_the_header) {
  test_tree tree;
  for (int v = 0; v < 50; ++v)
    tree.insert(v * 7 % 13);
  node* header = tree.header;
  tree.__clear();
  CHECK_EQ(tree.destroyed, 50u);
  CHECK(tree.header == header);
  CHECK_TEST_TREE(tree);
  tree.__clear();
  CHECK_EQ(tree.destroyed, 50u);
  tree.insert(1);
  tree.insert(0);
  CHECK_TEST_TREE(tree);
  CHECK_EQ(value_of(tree.leftmost), 0);
}

TEST(copy_gives_the_same_shape_colours_and_values_in_new_nodes) {
  test_tree source;
  for (int v = 0; v < 100; ++v)
    source.insert(static_cast<int>((v * 37u) % 61u));
  source.__erase(source.at(17));
  source.__erase(source.root());
  test_tree copy;
  copy.__copy(source, value_offset);
  CHECK_EQ(copy.made, 1u + source.node_count);
  CHECK_EQ(copy.node_count, source.node_count);
  CHECK(same_shape(copy.root(), source.root()));
  CHECK(copy.root()->parent == copy.header);
  CHECK(copy.header->left == copy.rightmost);
  CHECK_EQ(value_of(copy.leftmost), value_of(source.leftmost));
  CHECK_EQ(value_of(copy.rightmost), value_of(source.rightmost));
  CHECK_TEST_TREE(copy);
  CHECK_TEST_TREE(source);
}

TEST(copy_of_an_empty_tree_only_copies_the_count) {
  test_tree source;
  test_tree copy;
  copy.__copy(source, value_offset);
  CHECK_EQ(copy.made, 1u);
  CHECK_EQ(copy.node_count, 0u);
  CHECK_TEST_TREE(copy);
}

TEST(copy_tree_hangs_the_copy_under_the_given_parent) {
  test_tree source;
  for (int v = 0; v < 31; ++v)
    source.insert(v);
  node* subtree = source.root()->left;
  unsigned size = source.__count(source.leftmost, source.root());
  test_tree target;
  node* parent = target.header;
  node* copy = target.copy_tree(subtree, parent, value_offset);
  CHECK(copy->parent == parent);
  CHECK(same_shape(copy, subtree));
  CHECK_EQ(target.made, 1u + size);
  target.destroy_tree(copy);
  CHECK_EQ(target.destroyed, size);
}

// A left spine and right subtrees both long enough that the copy and destruction walk them all.
TEST(copy_and_destroy_handle_a_large_tree) {
  test_tree source;
  for (int v = 3000; v > 0; --v)
    source.insert(v);
  test_tree copy;
  copy.__copy(source, value_offset);
  CHECK(same_shape(copy.root(), source.root()));
  CHECK_TEST_TREE(copy);
  copy.__destroy();
  copy.alive = false;
  CHECK_EQ(copy.destroyed, copy.made);
}

TEST(destroy_frees_every_node_and_the_header) {
  test_tree tree;
  for (int v = 0; v < 64; ++v)
    tree.insert(v % 5);
  tree.__erase(tree.at(10));
  tree.__destroy();
  tree.alive = false;
  CHECK_EQ(tree.made, 65u);
  CHECK_EQ(tree.destroyed, 65u);
}

TEST(destroy_of_an_empty_tree_frees_the_header) {
  test_tree tree;
  tree.__destroy();
  tree.alive = false;
  CHECK_EQ(tree.destroyed, 1u);
}

TEST(initialize_after_destroy_makes_the_tree_usable_again) {
  test_tree tree;
  tree.insert(1);
  tree.__destroy();
  tree.__initialize();
  CHECK_EQ(tree.made, 3u);
  tree.insert(2);
  CHECK_TEST_TREE(tree);
}
