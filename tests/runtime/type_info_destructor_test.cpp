// The type_info destructor: the flag-taking entry, g++'s deleting destructor through the exported
// table, and the table's place in g++'s virtual table. operator delete is replaced to watch frees.
#include "lorb_test.h"
#include "rtti_records.h"
#include <new>
#include <stdlib.h>
#include <typeinfo>

static int frees = 0;
static void* last_freed = 0;
static const void* word_zero_when_freed = 0;

void operator delete(void* p) noexcept {
  if (p) {
    ++frees;
    last_freed = p;
    word_zero_when_freed = *static_cast<const void**>(p);
  }
  free(p);
}

void operator delete(void* p, std::size_t) noexcept { operator delete(p); }

static const void* const stale_table = reinterpret_cast<const void*>(0x1234);

static __lorb_type_record* heap_record() {
  __lorb_type_record* record = static_cast<__lorb_type_record*>(operator new(sizeof *record));
  *record = make_record("H", 0);
  record->vtbl = stale_table;
  return record;
}

static std::type_info* as_type_info(__lorb_type_record* record) {
  return reinterpret_cast<std::type_info*>(record);
}

extern "C" const void* const gxx_type_info_table[] __asm__("_ZTVSt9type_info");

TEST(exported_table_is_gxx_table_at_its_address_point) {
  CHECK(__vtbl__Q2_3std9type_info == gxx_type_info_table + 2);
  CHECK(gxx_type_info_table[0] == 0); // offset to top
}

TEST(flag_bit_0_resets_the_table_and_frees_the_record) {
  __lorb_type_record* record = heap_record();
  int before = frees;
  __dt__Q2_3std9type_infoFv(as_type_info(record), 1);
  CHECK_EQ(frees, before + 1);
  CHECK(last_freed == record);
  CHECK(word_zero_when_freed == __vtbl__Q2_3std9type_info);
}

TEST(flag_3_frees_the_record) {
  __lorb_type_record* record = heap_record();
  int before = frees;
  __dt__Q2_3std9type_infoFv(as_type_info(record), 3);
  CHECK_EQ(frees, before + 1);
  CHECK(last_freed == record);
}

TEST(flag_0_resets_the_table_without_freeing) {
  __lorb_type_record* record = heap_record();
  int before = frees;
  __dt__Q2_3std9type_infoFv(as_type_info(record), 0);
  CHECK_EQ(frees, before);
  CHECK(record->vtbl == __vtbl__Q2_3std9type_info);
  CHECK_STR(record->name, "H");
  operator delete(record);
}

TEST(flag_2_without_bit_0_does_not_free) {
  __lorb_type_record* record = heap_record();
  int before = frees;
  __dt__Q2_3std9type_infoFv(as_type_info(record), 2);
  CHECK_EQ(frees, before);
  CHECK(record->vtbl == __vtbl__Q2_3std9type_info);
  operator delete(record);
}

TEST(record_outside_the_heap_is_reset_in_place) {
  __lorb_type_record record = make_record("S", 0);
  record.vtbl = stale_table;
  int before = frees;
  __dt__Q2_3std9type_infoFv(as_type_info(&record), 0);
  CHECK_EQ(frees, before);
  CHECK(record.vtbl == __vtbl__Q2_3std9type_info);
}

TEST(null_record_is_left_alone) {
  int before = frees;
  __dt__Q2_3std9type_infoFv(0, 1);
  CHECK_EQ(frees, before);
}

TEST(delete_through_the_virtual_destructor_frees_a_hand_built_record) {
  __lorb_type_record* record = heap_record();
  record->vtbl = __vtbl__Q2_3std9type_info; // as compiled code builds it
  int before = frees;
  delete as_type_info(record);
  CHECK_EQ(frees, before + 1);
  CHECK(last_freed == record);
}

TEST(virtual_destructor_call_without_delete_does_not_free) {
  __lorb_type_record* record = heap_record();
  record->vtbl = __vtbl__Q2_3std9type_info;
  int before = frees;
  as_type_info(record)->~type_info();
  CHECK_EQ(frees, before);
  operator delete(record);
}
