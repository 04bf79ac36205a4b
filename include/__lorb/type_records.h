// The type records the library exports for its own classes, under their cfront-encoded names.
#ifndef __LORB_TYPE_RECORDS_H
#define __LORB_TYPE_RECORDS_H

#include <__lorb/config.h>

namespace std {
class type_info;
}

// Each record is {__vtbl__Q2_3std9type_info, name, &identity byte, base table}; the derived
// exception classes have the one base entry {__T_Q2_3std9exception, 0, 0x16}.
extern "C" {
extern __LORB_EXPORT const char __TID_Q2_3std9type_info;
extern __LORB_EXPORT const char __TID_Q2_3std9exception;
extern __LORB_EXPORT const char __TID_Q2_3std9bad_alloc;
extern __LORB_EXPORT const char __TID_Q2_3std8bad_cast;
extern __LORB_EXPORT const char __TID_Q2_3std10bad_typeid;

extern __LORB_EXPORT const std::type_info __T_Q2_3std9type_info;
extern __LORB_EXPORT const std::type_info __T_Q2_3std9exception;
extern __LORB_EXPORT const std::type_info __T_Q2_3std9bad_alloc;
extern __LORB_EXPORT const std::type_info __T_Q2_3std8bad_cast;
extern __LORB_EXPORT const std::type_info __T_Q2_3std10bad_typeid;
}

#endif
