// The exported type records of std::type_info and of std::exception, bad_alloc, bad_cast,
// bad_typeid. Defined as plain four-word aggregates, the way compiled code emits them (a
// std::type_info object would be destroyed at exit); <__lorb/type_records.h> declares them as
// std::type_info.
#include <__lorb/rtti.h>

extern "C" {
__LORB_EXPORT extern const char __TID_Q2_3std9type_info = 0;
__LORB_EXPORT extern const char __TID_Q2_3std9exception = 0;
__LORB_EXPORT extern const char __TID_Q2_3std9bad_alloc = 0;
__LORB_EXPORT extern const char __TID_Q2_3std8bad_cast = 0;
__LORB_EXPORT extern const char __TID_Q2_3std10bad_typeid = 0;

__LORB_EXPORT extern const __lorb_type_record __T_Q2_3std9type_info = {
    __vtbl__Q2_3std9type_info, "std::type_info", &__TID_Q2_3std9type_info, 0};

__LORB_EXPORT extern const __lorb_type_record __T_Q2_3std9exception = {
    __vtbl__Q2_3std9type_info, "std::exception", &__TID_Q2_3std9exception, 0};
}

// The base table of bad_alloc, bad_cast and bad_typeid: {std::exception, 0, last|public|direct}.
static const __lorb_base_entry derived_from_exception[] = {
    {reinterpret_cast<const std::type_info*>(&__T_Q2_3std9exception), 0,
     __LORB_BASE_LAST | __LORB_BASE_PUBLIC | __LORB_BASE_DIRECT, 0}};

extern "C" {
__LORB_EXPORT extern const __lorb_type_record __T_Q2_3std9bad_alloc = {
    __vtbl__Q2_3std9type_info, "std::bad_alloc", &__TID_Q2_3std9bad_alloc, derived_from_exception};

__LORB_EXPORT extern const __lorb_type_record __T_Q2_3std8bad_cast = {
    __vtbl__Q2_3std9type_info, "std::bad_cast", &__TID_Q2_3std8bad_cast, derived_from_exception};

__LORB_EXPORT extern const __lorb_type_record __T_Q2_3std10bad_typeid = {
    __vtbl__Q2_3std9type_info, "std::bad_typeid", &__TID_Q2_3std10bad_typeid,
    derived_from_exception};
}
