// dynamic_cast: from any subobject to void*, to the complete class, to a base, and its failures.
#include "lorb_test.h"
#include "rtti_records.h"
#include <__lorb/type_records.h>

struct iostream_fixture {
  stream_records streams;
  iostream_tables tables;
  iostream_object object;
  iostream_fixture() : tables(streams.iostream) { tables.build(&object); }
  void* ostream_part() { return &object.ostream_vptr; }
  void* ios_part() { return &object.ios_vptr; }
};

TEST(ostream_part_table_holds_adjustment_12_and_the_complete_record) {
  iostream_fixture f;
  CHECK_EQ(f.tables.ostream[0].adjustment, 12);
  CHECK_EQ(f.tables.ostream[0].zero, 0);
  CHECK(f.tables.ostream[0].type == type_of(f.streams.iostream));
  CHECK_EQ(f.tables.ostream[1].adjustment, -12);
  CHECK(address(&f.object, 12) == f.ostream_part());
}

TEST(cast_to_void_from_ostream_part_returns_address_12_lower) {
  iostream_fixture f;
  void* complete = __dynamic_cast(f.ostream_part(), f.tables.ostream, 0);
  CHECK(complete == &f.object);
  CHECK(complete == address(f.ostream_part(), -12));
}

TEST(cast_to_void_from_every_part_returns_the_complete_object) {
  iostream_fixture f;
  CHECK(__dynamic_cast(&f.object, f.tables.primary, 0) == &f.object);
  CHECK(__dynamic_cast(f.ios_part(), f.tables.ios, 0) == &f.object);
}

TEST(ostream_part_to_basic_istream_returns_the_complete_object) {
  iostream_fixture f;
  void* istream = __dynamic_cast(f.ostream_part(), f.tables.ostream, type_of(f.streams.istream));
  CHECK(istream == &f.object);
}

TEST(istream_part_to_basic_ostream_returns_the_part_at_12) {
  iostream_fixture f;
  void* ostream = __dynamic_cast(&f.object, f.tables.primary, type_of(f.streams.ostream));
  CHECK(ostream == f.ostream_part());
}

TEST(cast_to_virtual_base_follows_its_pointer) {
  iostream_fixture f;
  CHECK(__dynamic_cast(f.ostream_part(), f.tables.ostream, type_of(f.streams.basic_ios)) ==
        f.ios_part());
  CHECK(__dynamic_cast(&f.object, f.tables.primary, type_of(f.streams.ios_base)) == f.ios_part());
}

TEST(cast_to_the_complete_class_from_the_virtual_base_part) {
  iostream_fixture f;
  CHECK(__dynamic_cast(f.ios_part(), f.tables.ios, type_of(f.streams.iostream)) == &f.object);
}

TEST(complete_class_is_recognised_by_another_record_with_its_identity) {
  iostream_fixture f;
  __lorb_type_record elsewhere =
      make_record("std::basic_iostream<char, std::char_traits<char>>", &f.streams.iostream_id);
  CHECK(__dynamic_cast(f.ostream_part(), f.tables.ostream, type_of(elsewhere)) == &f.object);
}

TEST(complete_class_without_identity_is_not_another_record) {
  __lorb_type_record lone = make_record("L", 0);
  __lorb_type_record twin = make_record("L", 0);
  __lorb_vtbl_entry table[1] = {type_entry(0, lone)};
  const __lorb_vtbl_entry* object[2] = {table, 0};
  CHECK(__dynamic_cast(object, table, type_of(lone)) == object);
  CHECK(__dynamic_cast(object, table, type_of(twin)) == 0);
}

TEST(cast_to_an_unrelated_class_returns_null) {
  iostream_fixture f;
  char id_unrelated = 0;
  __lorb_type_record unrelated = make_record("U", &id_unrelated);
  CHECK(__dynamic_cast(f.ostream_part(), f.tables.ostream, type_of(unrelated)) == 0);
}

TEST(istream_alone_is_not_an_ostream) {
  stream_records streams;
  __lorb_vtbl_entry table[1] = {type_entry(0, streams.istream)};
  istream_object object = {table, 0, &object.ios_vptr, 0, 0};
  CHECK(__dynamic_cast(&object, table, type_of(streams.ostream)) == 0);
  CHECK(__dynamic_cast(&object, table, type_of(streams.basic_ios)) == &object.ios_vptr);
}

// D : private P, public Q; P at 0, Q at 8, each with its own table inside D.
struct private_and_public {
  char id_p, id_q, id_d;
  __lorb_type_record p, q, d;
  __lorb_base_entry d_bases[2];
  __lorb_vtbl_entry p_table[1], q_table[1];
  const __lorb_vtbl_entry* object[4];
  private_and_public() {
    p = make_record("P", &id_p);
    q = make_record("Q", &id_q);
    d = make_record("D", &id_d, d_bases);
    d_bases[0] = base_entry(p, 0, 0x10);
    d_bases[1] = base_entry(q, 8, 0x16);
    p_table[0] = type_entry(0, d);
    q_table[0] = type_entry(8, d);
    object[0] = p_table;
    object[1] = 0;
    object[2] = q_table;
    object[3] = 0;
  }
};

TEST(cast_to_a_private_base_fails_even_from_that_base) {
  private_and_public h;
  CHECK(__dynamic_cast(&h.object[0], h.p_table, type_of(h.p)) == 0);
  CHECK(__dynamic_cast(&h.object[2], h.q_table, type_of(h.p)) == 0);
}

TEST(cross_cast_from_a_private_base_to_a_public_one_succeeds) {
  private_and_public h;
  CHECK(__dynamic_cast(&h.object[0], h.p_table, type_of(h.q)) == &h.object[2]);
}

TEST(cast_to_an_ambiguous_base_returns_null) {
  char id_a = 0, id_b = 0, id_d = 0;
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry b_bases[] = {base_entry(a, 0, 0x16)};
  __lorb_type_record b = make_record("B", &id_b, b_bases);
  __lorb_base_entry d_bases[] = {base_entry(a, 0, 0x1C), base_entry(b, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  __lorb_vtbl_entry table[1] = {type_entry(0, d)};
  const __lorb_vtbl_entry* object[2] = {table, 0};
  CHECK(__dynamic_cast(object, table, type_of(a)) == 0);
  CHECK(__dynamic_cast(object, table, type_of(b)) == &object[1]);
}

TEST(bad_typeid_object_casts_to_exception_through_the_exported_records) {
  __lorb_vtbl_entry table[1];
  table[0].adjustment = 0;
  table[0].zero = 0;
  table[0].type = &__T_Q2_3std10bad_typeid;
  const __lorb_vtbl_entry* object[2] = {table, 0};
  CHECK(__dynamic_cast(object, table, &__T_Q2_3std9exception) == object);
  CHECK(__dynamic_cast(object, table, &__T_Q2_3std10bad_typeid) == object);
  CHECK(__dynamic_cast(object, table, &__T_Q2_3std8bad_cast) == 0);
}

TEST(reference_cast_returns_what_the_pointer_cast_finds) {
  iostream_fixture f;
  CHECK(__dynamic_cast_ref(f.ostream_part(), f.tables.ostream, type_of(f.streams.istream)) ==
        &f.object);
  CHECK(__dynamic_cast_ref(&f.object, f.tables.primary, type_of(f.streams.basic_ios)) ==
        f.ios_part());
}

TEST(failed_reference_cast_aborts_silently) {
  iostream_fixture f;
  char id_unrelated = 0;
  __lorb_type_record unrelated = make_record("U", &id_unrelated);
  EXPECT_ABORT(__dynamic_cast_ref(f.ostream_part(), f.tables.ostream, type_of(unrelated)), "");
}

TEST(throw_bad_cast_aborts_silently) { EXPECT_ABORT(__throw_bad_cast(), ""); }
