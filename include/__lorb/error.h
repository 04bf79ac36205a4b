// The one way the library reports errors: the message texts and the routines that print and end.
#ifndef __LORB_ERROR_H
#define __LORB_ERROR_H

#include <__lorb/config.h>

namespace __vel {
// The fixed message texts, exported so that template code in programs prints the same bytes.
extern __LORB_EXPORT const char out_of_range_message[]; // "Out of range exception occurred"
extern __LORB_EXPORT const char container_out_of_range_message[]; // "Out of range exception\n"
extern __LORB_EXPORT const char bitset_out_of_range_message[]; // "Out of range exception occured."
extern __LORB_EXPORT const char length_error_message[];        // "Length exception occurred"
extern __LORB_EXPORT const char invalid_value_message[];       // "Invalid value in the string"
extern __LORB_EXPORT const char bitset_overflow_message[];     // "Bitset can not be converted"
extern __LORB_EXPORT const char facet_not_present_message[];   // "Facet not present\n"
extern __LORB_EXPORT const char invalid_locale_name_message[]; // "Invalid locale name\n"
extern __LORB_EXPORT const char
    out_of_memory_message[]; // "Lorb++ : Could not allocate  memory ...\n"

// Prints "class: message\n" on standard error and aborts.
__LORB_EXPORT __LORB_NORETURN void throw_with_exceptions_disabled(const char* class_name,
                                                                  const char* message);
__LORB_EXPORT __LORB_NORETURN void throw_range();
__LORB_EXPORT __LORB_NORETURN void throw_invalid_value_in_string();
__LORB_EXPORT __LORB_NORETURN void throw_bitset_overflow();
// What library code does when operator new gives it null: the allocation message, then exit(1).
__LORB_EXPORT __LORB_NORETURN void out_of_memory();
} // namespace __vel

#endif
