// The needed-destruction list: static objects and atexit functions, run once in reverse order.
#include <__lorb/runtime.h>
#include <stdlib.h>

typedef __lorb_destruction_node node;

// The end marker is 17, not 0, so that the last node on the list still has a non-zero next word.
static node* const end_marker = reinterpret_cast<node*>(17);
static node* needed_destruction_head = end_marker;

// A program linked with the static archive takes in only the objects it names. Whoever records
// a destruction needs the walk scheduled at load, which startup.cpp does: naming it here brings
// it along.
__attribute__((__used__)) static void (*const walk_scheduler)() = __call_ctors;

extern "C" {
void __already_marked_for_destruction() { abort(); }

void __record_needed_destruction(node* n) {
  if (n->next != 0)
    __already_marked_for_destruction();
  n->next = needed_destruction_head;
  needed_destruction_head = n;
}

int __vel_std_atexit(void (*function)()) {
  node* n = static_cast<node*>(malloc(sizeof(node)));
  if (!n)
    return -1;
  n->next = 0;
  n->object = reinterpret_cast<void*>(function);
  n->destructor = 0;
  __record_needed_destruction(n);
  return 0;
}
}

// Runs a node that has already been unlinked; its next word is left as it was.
static void run_node(node* n) {
  if (n->object && n->destructor) {
    n->destructor(n->object, 2);
  } else if (n->object) {
    reinterpret_cast<void (*)()>(n->object)();
    free(n);
  } else if (n->destructor) {
    reinterpret_cast<void (*)()>(n->destructor)();
  }
}

extern "C" {
// Each node is unlinked before it runs, so a destructor may record new nodes (they run next)
// and a second entry finds the list already empty.
void __process_needed_destructions() {
  while (needed_destruction_head != end_marker) {
    node* n = needed_destruction_head;
    needed_destruction_head = n->next;
    run_node(n);
  }
}

void __std__needed_destruction_list() { __process_needed_destructions(); }

void __call_dtors() { __process_needed_destructions(); }
}

static bool in_range(const void* address, const void* start, unsigned length) {
  return reinterpret_cast<unsigned>(address) - reinterpret_cast<unsigned>(start) < length;
}

static bool belongs_to_unit(const node* n, void* code, unsigned code_length, void* data,
                            unsigned data_length) {
  const void* destructor = reinterpret_cast<const void*>(n->destructor);
  return in_range(n, data, data_length) || in_range(n->object, data, data_length) ||
         in_range(destructor, data, data_length) || in_range(destructor, code, code_length) ||
         in_range(n->object, code, code_length);
}

extern "C" void __process_shared_object_destruction(void* code_start, unsigned code_length,
                                                    void* data_start, unsigned data_length) {
  node** link = &needed_destruction_head;
  while (*link != end_marker) {
    node* n = *link;
    if (!belongs_to_unit(n, code_start, code_length, data_start, data_length)) {
      link = &n->next;
      continue;
    }
    *link = n->next;
    run_node(n);
    // The destructor may have changed the list: start again from the head.
    link = &needed_destruction_head;
  }
}
