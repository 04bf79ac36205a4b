// What the run-time's own exception classes answer: kept, bad_alloc names an allocation failure
// and the others carry no text of their own.
#include <exception>
#include <new>
#include <stdio.h>
#include <typeinfo>

int main() {
  printf("exception: [%s]\n", std::exception().what());
  printf("bad_alloc: [%s]\n", std::bad_alloc().what());
  printf("bad_cast: [%s]\n", std::bad_cast().what());
  printf("bad_typeid: [%s]\n", std::bad_typeid().what());
  std::bad_alloc original;
  std::exception copy(original);
  printf("bad_alloc copied into exception: [%s]\n", copy.what());
  return 0;
}
