// The run-time entry points that generated code calls, with the records they read and write.
#ifndef __LORB_RUNTIME_H
#define __LORB_RUNTIME_H

#include <__lorb/config.h>

// A destruction node: compiled code emits one per static object as {0, object, destructor}.
struct __lorb_destruction_node {
  __lorb_destruction_node* next; // 0 while the node is not on the list
  void* object;                  // the object, an atexit function, or 0
  void (*destructor)(void* object, int flags);
};

// The two words in front of a heap array's first element.
struct __lorb_array_cookie {
  unsigned byte_total;         // count times element size
  unsigned complemented_count; // ~count
};

typedef void (*__lorb_element_ctor)(void* element);
typedef void (*__lorb_element_cctor)(void* element, void* source);
typedef void (*__lorb_element_dtor)(void* element, int flags);
typedef void (*__lorb_whole_array_fn)(void* first, int count);
typedef void* (*__lorb_alloc_fn)(unsigned bytes);
typedef void (*__lorb_dealloc_fn)(void* start);
typedef void (*__lorb_handler_fn)();

extern "C" {
// Allocation.
extern __LORB_EXPORT __lorb_handler_fn _new_handler;
__LORB_EXPORT void __default_new_handler();
__LORB_EXPORT int call_new_handler();
__LORB_EXPORT void __memzero(void* address, unsigned count);

// Start-up and termination.
__LORB_EXPORT void __record_needed_destruction(__lorb_destruction_node* node);
__LORB_EXPORT int __vel_std_atexit(void (*function)());
__LORB_EXPORT void __process_needed_destructions();
__LORB_EXPORT void __std__needed_destruction_list();
__LORB_EXPORT void __call_ctors();
__LORB_EXPORT void __call_dtors();
__LORB_EXPORT void _main();
__LORB_EXPORT __LORB_NORETURN void __plo_exit(int status);
__LORB_EXPORT void __process_shared_object_destruction(void* code_start, unsigned code_length,
                                                       void* data_start, unsigned data_length);
__LORB_EXPORT __LORB_NORETURN void __pure_virtual_called();
__LORB_EXPORT void __eh_exit_processing();
__LORB_EXPORT __LORB_NORETURN void __already_marked_for_destruction();
__LORB_EXPORT __LORB_NORETURN void __main_called_more_than_once();
extern __LORB_EXPORT int __dtor_processing_scheduled;

// Array construction and destruction.
extern __LORB_EXPORT const int __array_new_prefix_size;
__LORB_EXPORT void* __vec_new(void* storage, int count, unsigned size, __lorb_element_ctor ctor);
__LORB_EXPORT void* __vec_new_eh(void* storage, int count, unsigned size, __lorb_element_ctor ctor,
                                 __lorb_element_dtor dtor);
__LORB_EXPORT void* __array_new(int count, unsigned size, __lorb_element_ctor ctor,
                                __lorb_element_dtor dtor, __lorb_alloc_fn alloc,
                                __lorb_dealloc_fn dealloc, int size_flag);
__LORB_EXPORT void* __placement_array_new(void* storage, int count, unsigned size,
                                          __lorb_element_ctor ctor, __lorb_element_dtor dtor);
__LORB_EXPORT void* __vec_cctor_eh(void* storage, int count, unsigned size,
                                   __lorb_element_cctor cctor, void* source,
                                   __lorb_element_dtor dtor);
__LORB_EXPORT void __vec_cctor(void* storage, int count, unsigned size, __lorb_element_cctor cctor,
                               void* source);
__LORB_EXPORT void* __vel_fast_vec_new(void* storage, int count, unsigned size,
                                       __lorb_whole_array_fn whole_ctor);
__LORB_EXPORT void __vec_delete(void* array, int count, unsigned size, __lorb_element_dtor dtor,
                                int delete_flag);
__LORB_EXPORT void __array_delete(void* array, int count, unsigned size, __lorb_element_dtor dtor,
                                  __lorb_dealloc_fn dealloc, int size_flag);
__LORB_EXPORT void __vel_fast_vec_delete(void* array, int count, unsigned size,
                                         __lorb_whole_array_fn whole_dtor, int delete_flag,
                                         int ignored);
__LORB_EXPORT __LORB_NORETURN void _array_pointer_not_from_vec_new();
}

// exit(int) with the language's linkage runs the needed-destruction list, then the C library's
// exit. Its C++ name cannot be declared beside <stdlib.h>'s C one, so it is reached by its symbol.
__LORB_EXPORT __LORB_NORETURN void __lorb_cxx_exit(int status) __asm__("_Z4exiti");

#endif
