/* The C hello world that the C++ ones are measured against. */
#include <stdio.h>

int main(void) {
  printf("Hello, world!\n");
  return 0;
}
