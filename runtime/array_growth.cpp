// Growing a character array allocated with new[]: realloc when the allocation functions are the
// library's (they are malloc and free), else the program's own new[] and delete[].
#include <__lorb/array_growth.h>
#include <stdlib.h>
#include <string.h>

namespace __vel {

namespace {
__attribute__((__noinline__)) char* regrow_through_new(char* array, std::size_t kept,
                                                       std::size_t size) {
  char* fresh = new char[size];
  if (!fresh)
    return 0;
  if (kept)
    memcpy(fresh, array, kept);
  delete[] array;
  return fresh;
}
} // namespace

// A failed realloc falls back to new[], whose new-handler loop the program may rely on.
char* regrow_char_array(char* array, std::size_t kept, std::size_t size) {
  if (array && !allocation_is_replaced()) {
    char* grown = static_cast<char*>(realloc(array, size));
    if (grown)
      return grown;
  }
  return regrow_through_new(array, kept, size);
}

} // namespace __vel
