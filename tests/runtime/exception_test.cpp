// The exception classes: message storage, copying, assignment, what(), bad_alloc's fixed text.
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <exception>
#include <new>
#include <stdexcept>
#include <stdio.h>
#include <string>

// g++ puts the virtual-table pointer first; the two fields follow in their written order.
struct exception_image {
  const void* vptr;
  std::string* message;
  bool owns_message;
};

static const exception_image& image_of(const std::exception& e) {
  return *reinterpret_cast<const exception_image*>(&e);
}

static void set_owns_message(std::exception& e, bool owns) {
  reinterpret_cast<exception_image*>(&e)->owns_message = owns;
}

// A class of a program's own whose what() differs from the stored text.
struct own_exception : std::exception {
  own_exception() : std::exception("stored text") {}
  const char* what() const __LORB_NOEXCEPT { return "derived text"; }
};

TEST(exception_objects_are_vptr_message_and_owns_flag) {
  CHECK_EQ(sizeof(std::exception), sizeof(exception_image));
  CHECK_EQ(sizeof(std::bad_alloc), sizeof(exception_image));
  CHECK_EQ(sizeof(std::bad_cast), sizeof(exception_image));
  CHECK_EQ(sizeof(std::bad_typeid), sizeof(exception_image));
  std::exception e("text");
  CHECK(image_of(e).message != 0);
  CHECK_STR(image_of(e).message->c_str(), "text");
  CHECK_EQ(image_of(e).owns_message, true);
}

TEST(default_exception_has_no_message_and_owns_nothing) {
  std::exception e;
  CHECK(image_of(e).message == 0);
  CHECK_EQ(image_of(e).owns_message, false);
  CHECK_STR(e.what(), "");
}

TEST(inline_constructors_of_bad_alloc_and_bad_cast_leave_no_message) {
  std::bad_alloc a;
  std::bad_cast c;
  CHECK(image_of(a).message == 0);
  CHECK_EQ(image_of(a).owns_message, false);
  CHECK(image_of(c).message == 0);
  CHECK_EQ(image_of(c).owns_message, false);
  CHECK_STR(c.what(), "");
}

TEST(exception_from_text_owns_a_new_string_with_that_text) {
  char text[] = "first";
  std::exception e(text);
  text[0] = 'X';
  CHECK_STR(e.what(), "first");
  CHECK(e.what() != text);
}

TEST(exception_from_string_copies_the_whole_string) {
  std::string source("whole string");
  std::exception e(source);
  CHECK_STR(e.what(), "whole string");
  CHECK(image_of(e).message != &source);
  source[0] = 'X';
  CHECK_STR(e.what(), "whole string");
}

TEST(exception_from_string_keeps_embedded_characters_after_a_nul) {
  std::string source("ab", 2);
  source.append(1, '\0');
  source.append("cd");
  std::exception e(source);
  CHECK_EQ(image_of(e).message->length(), 5u);
  CHECK_BYTES(image_of(e).message->c_str(), 5, "ab\0cd", 5);
}

TEST(empty_text_answers_with_the_librarys_own_empty_string) {
  std::exception empty_text("");
  std::exception empty_string((std::string()));
  std::exception nothing;
  CHECK_STR(empty_text.what(), "");
  CHECK(empty_text.what() != image_of(empty_text).message->c_str());
  CHECK(empty_text.what() == nothing.what());
  CHECK(empty_string.what() == nothing.what());
}

TEST(copy_of_an_owning_exception_owns_a_new_copy_of_the_text) {
  std::exception source("copied");
  std::exception copy(source);
  CHECK_STR(copy.what(), "copied");
  CHECK_EQ(image_of(copy).owns_message, true);
  CHECK(image_of(copy).message != image_of(source).message);
}

TEST(copy_of_a_non_owning_exception_has_no_message) {
  std::exception source;
  std::exception copy(source);
  CHECK(image_of(copy).message == 0);
  CHECK_EQ(image_of(copy).owns_message, false);
}

TEST(copy_takes_the_text_from_the_virtual_what_of_a_derived_source) {
  own_exception source;
  std::exception copy(source);
  CHECK_STR(copy.what(), "derived text");
}

TEST(copy_of_a_bad_alloc_copies_its_cleared_flag_and_gets_no_message) {
  std::bad_alloc source;
  std::exception copy(source);
  CHECK(image_of(copy).message == 0);
  CHECK_STR(copy.what(), "");
}

TEST(copy_of_a_bad_alloc_whose_flag_is_set_yields_allocation_failure) {
  std::bad_alloc source;
  set_owns_message(source, true);
  std::exception copy(source);
  CHECK_STR(copy.what(), "Allocation Failure");
  set_owns_message(source, false);
}

TEST(assigning_a_bad_alloc_whose_flag_is_set_yields_allocation_failure) {
  std::bad_alloc source;
  set_owns_message(source, true);
  std::exception target("old text");
  target = source;
  CHECK_STR(target.what(), "Allocation Failure");
  set_owns_message(source, false);
}

TEST(self_assignment_does_nothing) {
  std::exception e("mine");
  const std::string* before = image_of(e).message;
  std::exception& result = (e = e);
  CHECK(&result == &e);
  CHECK(image_of(e).message == before);
  CHECK_STR(e.what(), "mine");
}

TEST(assignment_replaces_an_owned_message_with_a_new_copy) {
  std::exception target("old");
  std::exception source("new");
  std::exception& result = (target = source);
  CHECK(&result == &target);
  CHECK_STR(target.what(), "new");
  CHECK(image_of(target).message != image_of(source).message);
}

TEST(assignment_from_a_non_owning_exception_drops_the_message) {
  std::exception target("old");
  std::exception source;
  target = source;
  CHECK(image_of(target).message == 0);
  CHECK_EQ(image_of(target).owns_message, false);
  CHECK_STR(target.what(), "");
}

TEST(assignment_takes_the_text_from_the_virtual_what_of_a_derived_source) {
  own_exception source;
  std::exception target;
  target = source;
  CHECK_STR(target.what(), "derived text");
}

TEST(bad_alloc_what_is_allocation_failure_whatever_the_object_holds) {
  std::bad_alloc a;
  CHECK_STR(a.what(), "Allocation Failure");
  set_owns_message(a, true);
  CHECK_STR(a.what(), "Allocation Failure");
  set_owns_message(a, false);
  const std::exception& base = a;
  CHECK_STR(base.what(), "Allocation Failure");
  CHECK(a.what() == std::bad_alloc::alloc_msg.c_str());
}

TEST(alloc_msg_is_built_before_main_runs) {
  CHECK_EQ(std::bad_alloc::alloc_msg.length(), 18u);
  CHECK_STR(std::bad_alloc::alloc_msg.c_str(), "Allocation Failure");
}

TEST(assigning_one_bad_alloc_to_another_leaves_the_target_unchanged) {
  std::bad_alloc target;
  set_owns_message(target, true);
  std::bad_alloc source;
  exception_image before = image_of(target);
  std::bad_alloc& result = (target = source);
  CHECK(&result == &target);
  CHECK(image_of(target).vptr == before.vptr);
  CHECK(image_of(target).message == before.message);
  CHECK_EQ(image_of(target).owns_message, true);
  set_owns_message(target, false);
}

TEST(copy_constructed_bad_alloc_keeps_the_flag_rule) {
  std::bad_alloc source;
  std::bad_alloc copy(source);
  CHECK(image_of(copy).message == 0);
  CHECK_STR(copy.what(), "Allocation Failure");
}

TEST(bad_typeid_owns_an_empty_message_and_answers_the_empty_string) {
  std::bad_typeid b;
  CHECK_EQ(image_of(b).owns_message, true);
  CHECK(image_of(b).message != 0);
  CHECK_EQ(image_of(b).message->length(), 0u);
  CHECK(b.what() == std::exception().what());
}

TEST(virtual_destruction_through_the_base_frees_object_and_message) {
  std::exception* owned = new std::exception("heap");
  std::exception* alloc = new std::bad_alloc;
  std::exception* cast = new std::bad_cast;
  std::exception* type = new std::bad_typeid;
  CHECK_STR(owned->what(), "heap");
  CHECK_STR(alloc->what(), "Allocation Failure");
  CHECK_STR(cast->what(), "");
  CHECK_STR(type->what(), "");
  delete owned;
  delete alloc;
  delete cast;
  delete type;
}

// At exit, a program's static objects are destroyed before the library's message string.
static void print_alloc_msg(void*, int) { printf("%s\n", std::bad_alloc().what()); }

static void record_then_exit() {
  static __lorb_destruction_node node = {0, &node, print_alloc_msg};
  __record_needed_destruction(&node);
  exit(0);
}

TEST(alloc_msg_outlives_the_static_objects_of_the_program) {
  EXPECT_CHILD(record_then_exit(), lt::exits(0), "Allocation Failure\n", "");
}
