/* A C part of the project: writes a word in capitals. */
#include <ctype.h>

void shout(const char* word, char* out) {
  while (*word)
    *out++ = (char)toupper((unsigned char)*word++);
  *out = 0;
}
