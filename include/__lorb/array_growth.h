// Growing a character array that the library allocated with new[]: in place through the C
// library when the program kept the library's allocation functions.
#ifndef __LORB_ARRAY_GROWTH_H
#define __LORB_ARRAY_GROWTH_H

#include <__lorb/config.h>
#include <cstddef>

namespace __vel {

// Whether the program has its own operator new, new[], delete or delete[].
__LORB_EXPORT bool allocation_is_replaced();

// What `new char[size]`, a copy of the first kept characters of array and `delete[] array` do
// (array may be null). When the program has not replaced the allocation functions, realloc
// does it at the same size, extending the array in place when it can. Null when memory is
// exhausted, with array still held.
__LORB_EXPORT char* regrow_char_array(char* array, std::size_t kept, std::size_t size);

} // namespace __vel

#endif
