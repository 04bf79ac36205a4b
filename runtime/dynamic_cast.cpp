// typeid's record lookup, the base-class table search, dynamic_cast and their two failure traps.
#include <__lorb/rtti.h>
#include <stdlib.h>
#include <typeinfo>

static_assert(sizeof(__lorb_vtbl_entry) == 8, "a virtual-table entry is 8 bytes");
static_assert(sizeof(__lorb_base_entry) == 8, "a base-table entry is 8 bytes");

namespace {

// The base subobject an entry leads to, following the pointer of a virtual base.
char* base_subobject(char* object, const __lorb_base_entry& entry) {
  char* at = object + entry.offset;
  return (entry.flags & __LORB_BASE_VIRTUAL) ? *reinterpret_cast<char**>(at) : at;
}

// With the use-access flag: the next character says, and is used up; no cursor means no access.
bool next_access(const char** cursor) {
  if (!cursor || !*cursor)
    return false;
  return *(*cursor)++ == 'Y';
}

// object is null for a question about the types alone; *result is written only when found.
bool find_base(char* object, char** result, const std::type_info* derived,
               const std::type_info* target, const char** cursor, int use_access) {
  const __lorb_base_entry* table = __lorb_record_of(derived)->bases;
  if (!table)
    return false;

  // First pass: the bases named in this table.
  for (const __lorb_base_entry* entry = table;; ++entry) {
    bool accessible = use_access ? next_access(cursor) : (entry->flags & __LORB_BASE_PUBLIC) != 0;
    if (*entry->base == *target) {
      if (entry->flags & __LORB_BASE_AMBIGUOUS)
        return false; // no deeper search after an ambiguous match
      if (accessible) {
        if (object)
          *result = base_subobject(object, *entry);
        return true;
      }
    }
    if (entry->flags & __LORB_BASE_LAST)
      break;
  }

  // Second pass: the bases of those bases, depth first, so the first in table order wins.
  for (const __lorb_base_entry* entry = table;; ++entry) {
    bool public_unambiguous =
        (entry->flags & (__LORB_BASE_PUBLIC | __LORB_BASE_AMBIGUOUS)) == __LORB_BASE_PUBLIC;
    if (__lorb_record_of(entry->base)->bases && (use_access || public_unambiguous)) {
      char* base_object = object ? base_subobject(object, *entry) : 0;
      if (find_base(base_object, result, entry->base, target, cursor, use_access))
        return true;
    }
    if (entry->flags & __LORB_BASE_LAST)
      break;
  }
  return false;
}

} // namespace

extern "C" {
const std::type_info* __get_typeid(const __lorb_vtbl_entry* vtbl) {
  if (!vtbl)
    __throw_bad_typeid();
  return vtbl[0].type;
}

// A slot that holds a null object is answered like a question about the types: result 0.
int __derived_to_base_conversion(void** object_slot, void** result_slot,
                                 const std::type_info* derived, const std::type_info* base,
                                 const char** access_cursor, int use_access) {
  *result_slot = 0;
  char* object = object_slot ? static_cast<char*>(*object_slot) : 0;
  char* found = 0;
  if (!find_base(object, &found, derived, base, access_cursor, use_access))
    return 0;
  *result_slot = found;
  return 1;
}

// The search starts from the complete object whatever subobject the pointer came from.
void* __dynamic_cast(void* object, const __lorb_vtbl_entry* vtbl, const std::type_info* target) {
  char* complete = static_cast<char*>(object) - vtbl[0].adjustment;
  const std::type_info* complete_type = vtbl[0].type;
  if (!target || *complete_type == *target)
    return complete;
  void* slot = complete;
  void* result = 0;
  __derived_to_base_conversion(&slot, &result, complete_type, target, 0, 0);
  return result;
}

void* __dynamic_cast_ref(void* object, const __lorb_vtbl_entry* vtbl,
                         const std::type_info* target) {
  void* result = __dynamic_cast(object, vtbl, target);
  if (!result)
    __throw_bad_cast();
  return result;
}

void __throw_bad_cast() { abort(); }

void __throw_bad_typeid() { abort(); }
}
