// The base-class table search: the two passes, virtual bases, access, ambiguity, type-only queries.
#include "lorb_test.h"
#include "rtti_records.h"
#include <__lorb/type_records.h>
#include <stddef.h>
#include <string.h>

// What the result slot holds before a call, so that every call must write it.
static void* const untouched = reinterpret_cast<void*>(0x5A5A5A5A);

struct search {
  int found;
  void* result;
};

static search convert(void* object, const __lorb_type_record& derived,
                      const __lorb_type_record& target) {
  void* slot = object;
  search s = {0, untouched};
  s.found = __derived_to_base_conversion(&slot, &s.result, type_of(derived), type_of(target), 0, 0);
  return s;
}

static search convert_types(const __lorb_type_record& derived, const __lorb_type_record& target) {
  search s = {0, untouched};
  s.found = __derived_to_base_conversion(0, &s.result, type_of(derived), type_of(target), 0, 0);
  return s;
}

static search convert_with_access(void* object, const __lorb_type_record& derived,
                                  const __lorb_type_record& target, const char** cursor) {
  void* slot = object;
  search s = {0, untouched};
  s.found = __derived_to_base_conversion(object ? &slot : 0, &s.result, type_of(derived),
                                         type_of(target), cursor, 1);
  return s;
}

// Identity bytes of the small hand-made classes.
static const char id_a = 0, id_b = 0, id_c = 0, id_d = 0, id_m = 0, id_n = 0, id_x = 0;

TEST(records_and_entries_are_byte_exact) {
  CHECK_EQ(sizeof(__lorb_vtbl_entry), 8u);
  CHECK_EQ(offsetof(__lorb_vtbl_entry, adjustment), 0u);
  CHECK_EQ(offsetof(__lorb_vtbl_entry, zero), 2u);
  CHECK_EQ(offsetof(__lorb_vtbl_entry, type), 4u);
  CHECK_EQ(offsetof(__lorb_vtbl_entry, function), 4u);
  CHECK_EQ(sizeof(__lorb_base_entry), 8u);
  CHECK_EQ(offsetof(__lorb_base_entry, base), 0u);
  CHECK_EQ(offsetof(__lorb_base_entry, offset), 4u);
  CHECK_EQ(offsetof(__lorb_base_entry, flags), 6u);
  CHECK_EQ(offsetof(__lorb_base_entry, pad), 7u);
  CHECK_EQ(sizeof(__lorb_type_record), 16u);
  CHECK_EQ(offsetof(__lorb_type_record, name), 4u);
  CHECK_EQ(offsetof(__lorb_type_record, identity), 8u);
  CHECK_EQ(offsetof(__lorb_type_record, bases), 12u);
  CHECK_EQ(sizeof(std::type_info), 16u);
}

TEST(base_entry_bytes_are_pointer_offset_flags_pad) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry entry = base_entry(a, -12, 0x17);
  unsigned char bytes[8];
  memcpy(bytes, &entry, 8);
  const void* base;
  memcpy(&base, bytes, 4);
  CHECK(base == &a);
  CHECK_EQ(bytes[4], 0xF4); // -12, little-endian 16 bits
  CHECK_EQ(bytes[5], 0xFF);
  CHECK_EQ(bytes[6], 0x17);
  CHECK_EQ(bytes[7], 0);
}

TEST(flag_bits_have_their_fixed_values) {
  CHECK_EQ(static_cast<int>(__LORB_BASE_VIRTUAL), 0x01);
  CHECK_EQ(static_cast<int>(__LORB_BASE_LAST), 0x02);
  CHECK_EQ(static_cast<int>(__LORB_BASE_PUBLIC), 0x04);
  CHECK_EQ(static_cast<int>(__LORB_BASE_AMBIGUOUS), 0x08);
  CHECK_EQ(static_cast<int>(__LORB_BASE_DIRECT), 0x10);
}

TEST(class_without_base_table_finds_nothing_and_clears_result) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record b = make_record("B", &id_b);
  int object[2];
  search s = convert(object, a, b);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
  s = convert(object, a, a); // a class is not its own base
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
}

TEST(direct_public_base_is_found_at_its_offset) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record c = make_record("C", &id_c);
  __lorb_base_entry d_bases[] = {base_entry(a, 0, 0x14), base_entry(c, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  search s = convert(object, d, c);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 8));
  s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 0));
}

TEST(unrelated_target_is_not_found_and_result_is_cleared) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record x = make_record("X", &id_x);
  __lorb_base_entry d_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert(object, d, x);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
}

TEST(istream_finds_basic_ios_through_its_virtual_base_pointer) {
  stream_records streams;
  istream_object object;
  object.ios = &object.ios_vptr;
  search s = convert(&object, streams.istream, streams.basic_ios);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == &object.ios_vptr);
  CHECK(s.result != address(&object, 8)); // the pointer is followed, not returned
}

TEST(iostream_finds_its_three_bases_at_their_places) {
  stream_records streams;
  iostream_tables tables(streams.iostream);
  iostream_object object;
  tables.build(&object);
  search s = convert(&object, streams.iostream, streams.basic_ios);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == &object.ios_vptr);
  s = convert(&object, streams.iostream, streams.istream);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(&object, 0));
  s = convert(&object, streams.iostream, streams.ostream);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(&object, 12));
}

TEST(base_of_a_virtual_base_is_found_through_the_pointer) {
  stream_records streams;
  iostream_tables tables(streams.iostream);
  iostream_object object;
  tables.build(&object);
  search s = convert(&object, streams.iostream, streams.ios_base);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == &object.ios_vptr);
}

TEST(virtual_base_pointer_decides_where_the_base_is) {
  stream_records streams;
  istream_object object;
  int elsewhere[2];
  object.ios = elsewhere; // a basic_ios placed away from the istream part
  search s = convert(&object, streams.istream, streams.ios_base);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == elsewhere);
}

TEST(type_only_query_answers_and_leaves_result_zero) {
  stream_records streams;
  // No object: the virtual base pointers are never read.
  search s = convert_types(streams.iostream, streams.basic_ios);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == 0);
  s = convert_types(streams.iostream, streams.ios_base);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == 0);
  s = convert_types(streams.istream, streams.ostream);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
}

TEST(null_object_in_the_slot_is_answered_like_a_type_only_query) {
  stream_records streams;
  search s = convert(0, streams.iostream, streams.ios_base); // no virtual base pointer is read
  CHECK_EQ(s.found, 1);
  CHECK(s.result == 0);
}

TEST(private_base_is_not_found) {
  __lorb_type_record b = make_record("B", &id_b);
  __lorb_base_entry d_bases[] = {base_entry(b, 0, 0x12)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert(object, d, b);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
  CHECK_EQ(convert_types(d, b).found, 0);
}

TEST(private_base_reached_by_another_public_path_is_found) {
  // D : private virtual B, public C; C : public virtual B. D is {table, B*, C part at 8 {table,
  // B*}, B at 16}.
  __lorb_type_record b = make_record("B", &id_b);
  __lorb_base_entry c_bases[] = {base_entry(b, 4, 0x17)};
  __lorb_type_record c = make_record("C", &id_c, c_bases);
  __lorb_base_entry d_bases[] = {base_entry(b, 4, 0x11), base_entry(c, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  void* object[5] = {0, &object[4], 0, &object[4], 0};
  search s = convert(object, d, b);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == &object[4]);
}

TEST(base_behind_a_private_base_is_not_found) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry m_bases[] = {base_entry(a, 0, 0x16)};
  __lorb_type_record m = make_record("M", &id_m, m_bases);
  __lorb_base_entry d_bases[] = {base_entry(m, 0, 0x12)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
}

TEST(ambiguous_match_stops_the_search) {
  // D : A, B with B : A; D's own A entry is ambiguous, although B leads to an A publicly.
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry b_bases[] = {base_entry(a, 0, 0x16)};
  __lorb_type_record b = make_record("B", &id_b, b_bases);
  __lorb_base_entry d_bases[] = {base_entry(a, 0, 0x1C), base_entry(b, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
  CHECK_EQ(convert_types(d, a).found, 0);
  CHECK_EQ(convert(object, d, b).found, 1); // B itself is still found
}

TEST(ambiguous_entry_that_does_not_match_does_not_stop_the_pass) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record x = make_record("X", &id_x);
  __lorb_base_entry d_bases[] = {base_entry(x, 0, 0x1C), base_entry(a, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
}

TEST(ambiguous_base_is_not_descended_into) {
  // A is reachable through M (ambiguous entry, A at M+0) and through N (A at N+4).
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry m_bases[] = {base_entry(a, 0, 0x16)};
  __lorb_type_record m = make_record("M", &id_m, m_bases);
  __lorb_base_entry n_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record n = make_record("N", &id_n, n_bases);
  __lorb_base_entry d_bases[] = {base_entry(m, 0, 0x1C), base_entry(n, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 12));
}

TEST(ambiguity_inside_one_base_does_not_stop_the_next_base) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry m_bases[] = {base_entry(a, 0, 0x1E)};
  __lorb_type_record m = make_record("M", &id_m, m_bases);
  __lorb_base_entry n_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record n = make_record("N", &id_n, n_bases);
  __lorb_base_entry d_bases[] = {base_entry(m, 0, 0x14), base_entry(n, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  CHECK_EQ(convert(object, m, a).found, 0);
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 12));
}

TEST(direct_base_beats_a_deeper_path_through_an_earlier_base) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry b_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record b = make_record("B", &id_b, b_bases);
  __lorb_base_entry d_bases[] = {base_entry(b, 0, 0x14), base_entry(a, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 8));
}

TEST(second_pass_first_base_in_table_order_wins) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry m_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record m = make_record("M", &id_m, m_bases);
  __lorb_base_entry n_bases[] = {base_entry(a, 0, 0x16)};
  __lorb_type_record n = make_record("N", &id_n, n_bases);
  __lorb_base_entry d_bases[] = {base_entry(m, 0, 0x14), base_entry(n, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));

  // The same classes listed the other way round: N's A is found first.
  __lorb_base_entry e_bases[] = {base_entry(n, 8, 0x14), base_entry(m, 0, 0x16)};
  __lorb_type_record e = make_record("E", &id_x, e_bases);
  s = convert(object, e, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 8));
}

TEST(second_pass_goes_depth_first) {
  // D : M, N; M : C; C : A (A at C+4); N : A (A at N+0). The A under M, two levels down, wins.
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry c_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record c = make_record("C", &id_c, c_bases);
  __lorb_base_entry m_bases[] = {base_entry(c, 0, 0x16)};
  __lorb_type_record m = make_record("M", &id_m, m_bases);
  __lorb_base_entry n_bases[] = {base_entry(a, 0, 0x16)};
  __lorb_type_record n = make_record("N", &id_n, n_bases);
  __lorb_base_entry d_bases[] = {base_entry(m, 0, 0x14), base_entry(n, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  search s = convert(object, d, a);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
}

TEST(entries_match_other_records_with_the_same_identity) {
  // The base entry names one record of A, the query another, as two shared objects would emit.
  __lorb_type_record a_here = make_record("A", &id_a);
  __lorb_type_record a_there = make_record("A", &id_a);
  __lorb_base_entry d_bases[] = {base_entry(a_here, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert(object, d, a_there);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
}

TEST(records_without_identity_match_only_themselves) {
  __lorb_type_record a_here = make_record("A", 0);
  __lorb_type_record a_there = make_record("A", 0);
  __lorb_base_entry d_bases[] = {base_entry(a_here, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  CHECK_EQ(convert(object, d, a_there).found, 0);
  search s = convert(object, d, a_here);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
}

TEST(records_with_different_identities_do_not_match_despite_equal_names) {
  __lorb_type_record a_here = make_record("A", &id_a);
  __lorb_type_record a_other = make_record("A", &id_x);
  __lorb_base_entry d_bases[] = {base_entry(a_here, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  CHECK_EQ(convert(object, d, a_other).found, 0);
}

TEST(access_cursor_yes_admits_a_private_base) {
  __lorb_type_record b = make_record("B", &id_b);
  __lorb_base_entry d_bases[] = {base_entry(b, 4, 0x12)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  const char* access = "Y";
  const char* cursor = access;
  search s = convert_with_access(object, d, b, &cursor);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
  CHECK(cursor == access + 1);
}

TEST(access_cursor_no_refuses_a_public_base) {
  __lorb_type_record b = make_record("B", &id_b);
  __lorb_base_entry d_bases[] = {base_entry(b, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  const char* access = "N";
  const char* cursor = access;
  search s = convert_with_access(object, d, b, &cursor);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
  CHECK(cursor == access + 1);
}

TEST(null_access_cursor_means_not_accessible) {
  __lorb_type_record b = make_record("B", &id_b);
  __lorb_base_entry d_bases[] = {base_entry(b, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  search s = convert_with_access(object, d, b, 0);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
  const char* cursor = 0; // a cursor that points at no string is no better
  s = convert_with_access(object, d, b, &cursor);
  CHECK_EQ(s.found, 0);
  CHECK(cursor == 0);
}

TEST(access_cursor_gives_one_character_per_entry_examined) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record x = make_record("X", &id_x);
  __lorb_base_entry d_bases[] = {base_entry(x, 0, 0x14), base_entry(a, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  const char* access = "NY";
  const char* cursor = access;
  search s = convert_with_access(object, d, a, &cursor);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
  CHECK(cursor == access + 2);

  access = "YN";
  cursor = access;
  s = convert_with_access(object, d, a, &cursor);
  CHECK_EQ(s.found, 0);
  CHECK(cursor == access + 2);
}

TEST(access_cursor_is_not_read_past_the_entry_that_was_found) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record x = make_record("X", &id_x);
  __lorb_base_entry d_bases[] = {base_entry(a, 0, 0x14), base_entry(x, 4, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  const char* access = "YY";
  const char* cursor = access;
  CHECK_EQ(convert_with_access(object, d, a, &cursor).found, 1);
  CHECK(cursor == access + 1);
}

TEST(use_access_descends_into_every_base) {
  // M is an ambiguous, private base; only with the use-access flag is it searched.
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry m_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record m = make_record("M", &id_m, m_bases);
  __lorb_base_entry d_bases[] = {base_entry(m, 0, 0x1A)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  CHECK_EQ(convert(object, d, a).found, 0);
  const char* access = "NY";
  const char* cursor = access;
  search s = convert_with_access(object, d, a, &cursor);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 4));
  CHECK(cursor == access + 2);
}

TEST(access_cursor_runs_on_through_nested_tables) {
  // D {B1, B2}; B1 {X}; B2 {A at 4}: D's pass reads two, B1's one, B2's the fourth.
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_type_record x = make_record("X", &id_x);
  __lorb_base_entry b1_bases[] = {base_entry(x, 0, 0x16)};
  __lorb_type_record b1 = make_record("B1", &id_b, b1_bases);
  __lorb_base_entry b2_bases[] = {base_entry(a, 4, 0x16)};
  __lorb_type_record b2 = make_record("B2", &id_c, b2_bases);
  __lorb_base_entry d_bases[] = {base_entry(b1, 0, 0x14), base_entry(b2, 8, 0x16)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[4];
  const char* access = "YYNY";
  const char* cursor = access;
  search s = convert_with_access(object, d, a, &cursor);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == address(object, 12));
  CHECK(cursor == access + 4);

  access = "YYYN";
  cursor = access;
  s = convert_with_access(object, d, a, &cursor);
  CHECK_EQ(s.found, 0);
  CHECK(s.result == 0);
  CHECK(cursor == access + 4);
}

TEST(access_cursor_does_not_override_ambiguity) {
  __lorb_type_record a = make_record("A", &id_a);
  __lorb_base_entry d_bases[] = {base_entry(a, 0, 0x1E)};
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  int object[2];
  const char* cursor = "Y";
  CHECK_EQ(convert_with_access(object, d, a, &cursor).found, 0);
}

TEST(type_only_query_with_access_cursor) {
  __lorb_type_record b = make_record("B", &id_b);
  __lorb_base_entry d_bases[] = {base_entry(b, 4, 0x13)}; // private virtual base
  __lorb_type_record d = make_record("D", &id_d, d_bases);
  const char* cursor = "Y";
  search s = convert_with_access(0, d, b, &cursor);
  CHECK_EQ(s.found, 1);
  CHECK(s.result == 0);
}

TEST(bad_typeid_converts_to_exception_through_the_exported_records) {
  int object[3];
  void* slot = object;
  void* result = untouched;
  CHECK_EQ(__derived_to_base_conversion(&slot, &result, &__T_Q2_3std10bad_typeid,
                                        &__T_Q2_3std9exception, 0, 0),
           1);
  CHECK(result == object);
  result = untouched;
  CHECK_EQ(__derived_to_base_conversion(0, &result, &__T_Q2_3std9bad_alloc, &__T_Q2_3std9exception,
                                        0, 0),
           1);
  CHECK(result == 0);
  CHECK_EQ(__derived_to_base_conversion(&slot, &result, &__T_Q2_3std8bad_cast,
                                        &__T_Q2_3std10bad_typeid, 0, 0),
           0);
  CHECK_EQ(__derived_to_base_conversion(&slot, &result, &__T_Q2_3std9exception,
                                        &__T_Q2_3std9exception, 0, 0),
           0);
}
