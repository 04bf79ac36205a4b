// The records compiled code emits for run-time type identification, byte for byte, and the
// entry points that read them: typeid, dynamic_cast and the search for a base class.
#ifndef __LORB_RTTI_H
#define __LORB_RTTI_H

#include <__lorb/config.h>

namespace std {
class type_info;
}

// One 8-byte virtual-table entry; a call passes the object address plus the adjustment. Entry 0
// holds the offset of the table's subobject in the complete object and the complete class's record.
struct __lorb_vtbl_entry {
  short adjustment;
  unsigned short zero; // always 0
  union {
    const std::type_info* type; // entry 0
    void (*function)();         // entries 1 on
  };
};

// One 8-byte base-class table entry.
struct __lorb_base_entry {
  const std::type_info* base;
  short offset; // of the base subobject; of the pointer to it for a virtual base
  unsigned char flags;
  unsigned char pad; // 0
};

// The flag bits of a base-class table entry.
enum {
  __LORB_BASE_VIRTUAL = 0x01,   // the offset locates a pointer to the base, which is followed
  __LORB_BASE_LAST = 0x02,      // last entry of the table
  __LORB_BASE_PUBLIC = 0x04,    // accessible base
  __LORB_BASE_AMBIGUOUS = 0x08, // a match here fails the search
  __LORB_BASE_DIRECT = 0x10     // named in the class's own base list; not consulted here
};

// The four words of a std::type_info record, as compiled code lays them out.
struct __lorb_type_record {
  const void* vtbl;               // __vtbl__Q2_3std9type_info
  const char* name;               // "std::basic_ios<char, std::char_traits<char>>"
  const char* identity;           // the __TID_ byte of the type, or null
  const __lorb_base_entry* bases; // null for a class without bases
};

inline const __lorb_type_record* __lorb_record_of(const std::type_info* type) {
  return reinterpret_cast<const __lorb_type_record*>(type);
}

inline const std::type_info* __lorb_type_of(const __lorb_type_record* record) {
  return reinterpret_cast<const std::type_info*>(record);
}

extern "C" {
// The virtual table of std::type_info under its exported name. It is g++'s table at its address
// point, {complete destructor, deleting destructor}, not a table of 8-byte entries: records that
// compiled code builds put it in word 0 and g++-compiled code can delete them through it.
extern __LORB_EXPORT const void* const __vtbl__Q2_3std9type_info[];

// ~type_info() with the destructor flag: resets word 0 to __vtbl__Q2_3std9type_info and, when bit 0
// of the flag is set, frees the record with operator delete. A null record is left alone.
__LORB_EXPORT void __dt__Q2_3std9type_infoFv(std::type_info* record, int flags);

// The record in entry 0 of an object's virtual table; a null table (null object) aborts.
__LORB_EXPORT const std::type_info* __get_typeid(const __lorb_vtbl_entry* vtbl);

// 1 if `base` is reachable from `derived` as the search allows. *object_slot is the derived
// object, or object_slot is null for a question about the types alone; *result_slot receives the
// base subobject (0 when not found or without an object). With use_access non-zero, accessibility
// is read from the 'Y'/'N' string at *access_cursor, one character per entry examined.
__LORB_EXPORT int __derived_to_base_conversion(void** object_slot, void** result_slot,
                                               const std::type_info* derived,
                                               const std::type_info* base,
                                               const char** access_cursor, int use_access);

// The object, as seen through the table `vtbl`, converted to `target` (null target: void*), or
// null. The caller handles a null object itself.
__LORB_EXPORT void* __dynamic_cast(void* object, const __lorb_vtbl_entry* vtbl,
                                   const std::type_info* target);
// As __dynamic_cast, but failure calls __throw_bad_cast.
__LORB_EXPORT void* __dynamic_cast_ref(void* object, const __lorb_vtbl_entry* vtbl,
                                       const std::type_info* target);

// Built without exception support, these abort and print nothing.
__LORB_EXPORT __LORB_NORETURN void __throw_bad_cast();
__LORB_EXPORT __LORB_NORETURN void __throw_bad_typeid();
}

#endif
