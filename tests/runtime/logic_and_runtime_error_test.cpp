// The logic_error and runtime_error families: inline constructors that keep exception's rules.
#include "lorb_test.h"
#include <stdexcept>
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

template <class E> static void check_family_member(const char* text) {
  E from_text(text);
  E from_string((std::string(text)));
  const std::exception& base = from_text;
  CHECK_STR(base.what(), text);
  CHECK_STR(from_string.what(), text);
  CHECK_EQ(image_of(from_text).owns_message, true);
  CHECK(image_of(from_text).message != image_of(from_string).message);
  CHECK_EQ(sizeof(E), sizeof(exception_image));
}

TEST(each_class_owns_the_text_it_is_constructed_from) {
  check_family_member<std::logic_error>("logic");
  check_family_member<std::domain_error>("domain");
  check_family_member<std::invalid_argument>("invalid argument");
  check_family_member<std::length_error>("length");
  check_family_member<std::out_of_range>("out of range");
  check_family_member<std::runtime_error>("runtime");
  check_family_member<std::range_error>("range");
  check_family_member<std::overflow_error>("overflow");
  check_family_member<std::underflow_error>("underflow");
}

TEST(the_families_derive_from_their_standard_bases) {
  std::domain_error domain("d");
  std::underflow_error underflow("u");
  const std::logic_error& logic = domain;
  const std::runtime_error& runtime = underflow;
  CHECK_STR(logic.what(), "d");
  CHECK_STR(runtime.what(), "u");
}

TEST(string_argument_is_copied_and_later_changes_do_not_show) {
  std::string text("original");
  std::out_of_range e(text);
  text[0] = 'X';
  text.append(" and more");
  CHECK_STR(e.what(), "original");
}

TEST(empty_text_answers_the_librarys_own_empty_string) {
  std::logic_error empty("");
  CHECK_STR(empty.what(), "");
  CHECK(empty.what() == std::exception().what());
}

TEST(copy_and_assignment_carry_the_text) {
  std::length_error source("source");
  std::length_error copy(source);
  std::length_error target("target");
  target = source;
  CHECK_STR(copy.what(), "source");
  CHECK_STR(target.what(), "source");
  CHECK(image_of(copy).message != image_of(source).message);
  CHECK(image_of(target).message != image_of(source).message);
}

TEST(heap_objects_are_destroyed_through_the_base) {
  std::exception* e = new std::overflow_error("heap");
  CHECK_STR(e->what(), "heap");
  delete e;
}
