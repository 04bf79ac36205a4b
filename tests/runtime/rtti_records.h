// Hand-made type records, base tables, virtual tables and objects for the type-identification
// tests, laid out the way compiled code emits them.
#ifndef RTTI_RECORDS_H
#define RTTI_RECORDS_H

#include <__lorb/rtti.h>
#include <typeinfo>

// Base-table flags as compiled code combines them.
enum {
  last_flag = __LORB_BASE_LAST,
  virtual_flag = __LORB_BASE_VIRTUAL,
  public_flag = __LORB_BASE_PUBLIC,
  ambiguous_flag = __LORB_BASE_AMBIGUOUS,
  direct_flag = __LORB_BASE_DIRECT
};

inline __lorb_type_record make_record(const char* name, const char* identity,
                                      const __lorb_base_entry* bases = 0) {
  __lorb_type_record record = {__vtbl__Q2_3std9type_info, name, identity, bases};
  return record;
}

inline const std::type_info* type_of(const __lorb_type_record& record) {
  return __lorb_type_of(&record);
}

inline __lorb_base_entry base_entry(const __lorb_type_record& base, short offset, int flags) {
  __lorb_base_entry entry = {type_of(base), offset, static_cast<unsigned char>(flags), 0};
  return entry;
}

inline __lorb_vtbl_entry type_entry(short adjustment, const __lorb_type_record& complete) {
  __lorb_vtbl_entry entry;
  entry.adjustment = adjustment;
  entry.zero = 0;
  entry.type = type_of(complete);
  return entry;
}

inline void stream_destructor_placeholder() {}

inline __lorb_vtbl_entry destructor_entry(short adjustment) {
  __lorb_vtbl_entry entry;
  entry.adjustment = adjustment;
  entry.zero = 0;
  entry.function = stream_destructor_placeholder;
  return entry;
}

// The stream classes: ios_base <- basic_ios <-virtual- basic_istream, basic_ostream <-
// basic_iostream.
struct stream_records {
  char ios_base_id, basic_ios_id, istream_id, ostream_id, iostream_id;
  __lorb_base_entry basic_ios_bases[1];
  __lorb_base_entry istream_bases[1];
  __lorb_base_entry ostream_bases[1];
  __lorb_base_entry iostream_bases[3];
  __lorb_type_record ios_base, basic_ios, istream, ostream, iostream;

  stream_records() {
    ios_base = make_record("std::ios_base", &ios_base_id);
    basic_ios =
        make_record("std::basic_ios<char, std::char_traits<char>>", &basic_ios_id, basic_ios_bases);
    istream =
        make_record("std::basic_istream<char, std::char_traits<char>>", &istream_id, istream_bases);
    ostream =
        make_record("std::basic_ostream<char, std::char_traits<char>>", &ostream_id, ostream_bases);
    iostream = make_record("std::basic_iostream<char, std::char_traits<char>>", &iostream_id,
                           iostream_bases);
    basic_ios_bases[0] = base_entry(ios_base, 0, 0x16);
    istream_bases[0] = base_entry(basic_ios, 8, 0x17);
    ostream_bases[0] = base_entry(basic_ios, 4, 0x17);
    iostream_bases[0] = base_entry(basic_ios, 8, 0x05);
    iostream_bases[1] = base_entry(istream, 0, 0x14);
    iostream_bases[2] = base_entry(ostream, 12, 0x16);
  }
};

// A basic_iostream: the basic_istream part at 0 {table, gcount, pointer to basic_ios}, the
// basic_ostream part at 12 {table, pointer to basic_ios}, the shared basic_ios at 20.
struct iostream_object {
  const __lorb_vtbl_entry* istream_vptr;
  int gcount;
  void* istream_ios;
  const __lorb_vtbl_entry* ostream_vptr;
  void* ostream_ios;
  const __lorb_vtbl_entry* ios_vptr;
  int state;
};

// One table per subobject, each with the complete class in entry 0 and its destructor after it.
struct iostream_tables {
  __lorb_vtbl_entry primary[2]; // the basic_istream part, adjustment 0
  __lorb_vtbl_entry ostream[2]; // adjustment 12, destructor entry -12
  __lorb_vtbl_entry ios[2];     // adjustment 20, destructor entry -20

  explicit iostream_tables(const __lorb_type_record& complete) {
    primary[0] = type_entry(0, complete);
    primary[1] = destructor_entry(0);
    ostream[0] = type_entry(12, complete);
    ostream[1] = destructor_entry(-12);
    ios[0] = type_entry(20, complete);
    ios[1] = destructor_entry(-20);
  }

  void build(iostream_object* object) const {
    object->istream_vptr = primary;
    object->gcount = 0;
    object->istream_ios = &object->ios_vptr;
    object->ostream_vptr = ostream;
    object->ostream_ios = &object->ios_vptr;
    object->ios_vptr = ios;
    object->state = 0;
  }
};

// A basic_istream alone: {table, gcount, pointer to basic_ios}, basic_ios at 12.
struct istream_object {
  const __lorb_vtbl_entry* vptr;
  int gcount;
  void* ios;
  const __lorb_vtbl_entry* ios_vptr;
  int state;
};

inline char* address(void* object, int offset) { return static_cast<char*>(object) + offset; }

#endif
