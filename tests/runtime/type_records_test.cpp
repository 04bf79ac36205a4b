// The library's exported type records: std::type_info and the four exception classes.
#include "lorb_test.h"
#include "rtti_records.h"
#include <__lorb/type_records.h>
#include <string.h>
#include <typeinfo>

static const __lorb_type_record& record(const std::type_info& type) {
  return *__lorb_record_of(&type);
}

static void check_exception_base(const std::type_info& derived) {
  const __lorb_base_entry* bases = record(derived).bases;
  CHECK(bases != 0);
  if (!bases)
    return;
  unsigned char bytes[8];
  memcpy(bytes, bases, 8);
  const void* base;
  memcpy(&base, bytes, 4);
  CHECK(base == &__T_Q2_3std9exception);
  CHECK_EQ(bytes[4], 0);
  CHECK_EQ(bytes[5], 0);
  CHECK_EQ(bytes[6], 0x16);
  CHECK_EQ(bytes[7], 0);
}

TEST(type_info_record_names_itself) {
  const __lorb_type_record& r = record(__T_Q2_3std9type_info);
  CHECK(r.vtbl == __vtbl__Q2_3std9type_info);
  CHECK_STR(r.name, "std::type_info");
  CHECK(r.identity == &__TID_Q2_3std9type_info);
  CHECK(r.bases == 0);
  CHECK_STR(__T_Q2_3std9type_info.name(), "std::type_info");
}

TEST(exception_record_has_no_bases) {
  const __lorb_type_record& r = record(__T_Q2_3std9exception);
  CHECK(r.vtbl == __vtbl__Q2_3std9type_info);
  CHECK_STR(r.name, "std::exception");
  CHECK(r.identity == &__TID_Q2_3std9exception);
  CHECK(r.bases == 0);
}

TEST(bad_alloc_record_derives_from_exception) {
  const __lorb_type_record& r = record(__T_Q2_3std9bad_alloc);
  CHECK(r.vtbl == __vtbl__Q2_3std9type_info);
  CHECK_STR(r.name, "std::bad_alloc");
  CHECK(r.identity == &__TID_Q2_3std9bad_alloc);
  check_exception_base(__T_Q2_3std9bad_alloc);
}

TEST(bad_cast_record_derives_from_exception) {
  const __lorb_type_record& r = record(__T_Q2_3std8bad_cast);
  CHECK(r.vtbl == __vtbl__Q2_3std9type_info);
  CHECK_STR(r.name, "std::bad_cast");
  CHECK(r.identity == &__TID_Q2_3std8bad_cast);
  check_exception_base(__T_Q2_3std8bad_cast);
}

TEST(bad_typeid_record_derives_from_exception) {
  const __lorb_type_record& r = record(__T_Q2_3std10bad_typeid);
  CHECK(r.vtbl == __vtbl__Q2_3std9type_info);
  CHECK_STR(r.name, "std::bad_typeid");
  CHECK(r.identity == &__TID_Q2_3std10bad_typeid);
  check_exception_base(__T_Q2_3std10bad_typeid);
}

TEST(exported_records_are_pairwise_distinct_types) {
  const std::type_info* types[5] = {&__T_Q2_3std9type_info, &__T_Q2_3std9exception,
                                    &__T_Q2_3std9bad_alloc, &__T_Q2_3std8bad_cast,
                                    &__T_Q2_3std10bad_typeid};
  for (int i = 0; i < 5; ++i)
    for (int j = 0; j < 5; ++j)
      CHECK_EQ(*types[i] == *types[j], i == j);
}

TEST(record_emitted_elsewhere_with_the_exported_identity_is_the_same_type) {
  __lorb_type_record copy = make_record("std::exception", &__TID_Q2_3std9exception);
  CHECK(*type_of(copy) == __T_Q2_3std9exception);
  CHECK(__T_Q2_3std9exception == *type_of(copy));
  __lorb_type_record stranger = make_record("std::exception", 0);
  CHECK(*type_of(stranger) != __T_Q2_3std9exception);
}
