// std::type_info: name, equality by record or identity, ordering by key, and typeid's lookup.
#include "lorb_test.h"
#include "rtti_records.h"
#include <typeinfo>

static const char identity_one = 0, identity_two = 0;

TEST(type_info_is_the_four_word_record) {
  CHECK_EQ(sizeof(std::type_info), 16u);
  __lorb_type_record record = make_record("std::ios_base", &identity_one);
  const void* const* words = reinterpret_cast<const void* const*>(type_of(record));
  CHECK(words[0] == __vtbl__Q2_3std9type_info);
  CHECK(words[1] == record.name);
  CHECK(words[2] == &identity_one);
  CHECK(words[3] == 0);
}

TEST(name_returns_word_one) {
  const char* name = "std::basic_ios<char, std::char_traits<char>>";
  __lorb_type_record record = make_record(name, 0);
  CHECK(type_of(record)->name() == name);
  CHECK_STR(type_of(record)->name(), "std::basic_ios<char, std::char_traits<char>>");
}

TEST(record_equals_itself_even_without_identity) {
  __lorb_type_record record = make_record("A", 0);
  const std::type_info& a = *type_of(record);
  CHECK(a == a);
  CHECK(!(a != a));
}

TEST(distinct_records_with_the_same_identity_are_equal) {
  __lorb_type_record here = make_record("A", &identity_one);
  __lorb_type_record there = make_record("A in another object", &identity_one);
  CHECK(*type_of(here) == *type_of(there));
  CHECK(*type_of(there) == *type_of(here));
  CHECK(!(*type_of(here) != *type_of(there)));
}

TEST(distinct_records_without_identities_are_unequal) {
  __lorb_type_record here = make_record("A", 0);
  __lorb_type_record there = make_record("A", 0);
  CHECK(!(*type_of(here) == *type_of(there)));
  CHECK(*type_of(here) != *type_of(there));
}

TEST(records_with_different_identities_are_unequal) {
  __lorb_type_record one = make_record("A", &identity_one);
  __lorb_type_record two = make_record("A", &identity_two);
  CHECK(!(*type_of(one) == *type_of(two)));
  CHECK(*type_of(one) != *type_of(two));
}

TEST(record_with_identity_differs_from_one_without) {
  __lorb_type_record with = make_record("A", &identity_one);
  __lorb_type_record without = make_record("A", 0);
  CHECK(!(*type_of(with) == *type_of(without)));
  CHECK(!(*type_of(without) == *type_of(with)));
}

TEST(not_equal_is_the_exact_negation_of_equal) {
  __lorb_type_record records[5] = {make_record("A", 0), make_record("A", 0),
                                   make_record("A", &identity_one), make_record("A", &identity_one),
                                   make_record("A", &identity_two)};
  for (int i = 0; i < 5; ++i)
    for (int j = 0; j < 5; ++j)
      CHECK((*type_of(records[i]) != *type_of(records[j])) !=
            (*type_of(records[i]) == *type_of(records[j])));
}

TEST(before_orders_records_without_identity_by_their_addresses) {
  __lorb_type_record records[2] = {make_record("A", 0), make_record("A", 0)};
  const std::type_info& low = *type_of(records[0]);
  const std::type_info& high = *type_of(records[1]);
  CHECK(low.before(high));
  CHECK(!high.before(low));
  CHECK(!low.before(low));
}

TEST(before_orders_by_identity_not_by_record_address) {
  static const char identities[2] = {0, 0};
  // The record at the lower address carries the higher identity.
  __lorb_type_record records[2] = {make_record("A", &identities[1]),
                                   make_record("B", &identities[0])};
  const std::type_info& first = *type_of(records[0]);
  const std::type_info& second = *type_of(records[1]);
  CHECK(second.before(first));
  CHECK(!first.before(second));
}

TEST(before_compares_keys_as_unsigned_addresses) {
  // Identities are compared, never read, so any address serves as one.
  const char* low_identity = reinterpret_cast<const char*>(0x10000000);
  const char* high_identity = reinterpret_cast<const char*>(0x90000000);
  __lorb_type_record low = make_record("A", low_identity);
  __lorb_type_record high = make_record("B", high_identity);
  CHECK(type_of(low)->before(*type_of(high)));
  CHECK(!type_of(high)->before(*type_of(low)));
}

TEST(before_is_false_both_ways_for_equal_records) {
  __lorb_type_record here = make_record("A", &identity_one);
  __lorb_type_record there = make_record("A", &identity_one);
  CHECK(!type_of(here)->before(*type_of(there)));
  CHECK(!type_of(there)->before(*type_of(here)));
}

TEST(before_compares_an_identity_with_a_record_address) {
  const char* identity_above_everything = reinterpret_cast<const char*>(0xFFFFFFF0);
  const char* identity_below_everything = reinterpret_cast<const char*>(0x10);
  __lorb_type_record without = make_record("A", 0);
  __lorb_type_record high = make_record("B", identity_above_everything);
  __lorb_type_record low = make_record("C", identity_below_everything);
  CHECK(type_of(without)->before(*type_of(high)));
  CHECK(!type_of(high)->before(*type_of(without)));
  CHECK(type_of(low)->before(*type_of(without)));
  CHECK(!type_of(without)->before(*type_of(low)));
}

TEST(get_typeid_returns_the_record_in_entry_zero_of_any_table) {
  stream_records streams;
  iostream_tables tables(streams.iostream);
  CHECK(__get_typeid(tables.primary) == type_of(streams.iostream));
  CHECK(__get_typeid(tables.ostream) == type_of(streams.iostream));
  CHECK(__get_typeid(tables.ios) == type_of(streams.iostream));
  CHECK_STR(__get_typeid(tables.ostream)->name(),
            "std::basic_iostream<char, std::char_traits<char>>");
}

TEST(get_typeid_of_a_null_object_aborts_silently) { EXPECT_ABORT(__get_typeid(0), ""); }

TEST(throw_bad_typeid_aborts_silently) { EXPECT_ABORT(__throw_bad_typeid(), ""); }
