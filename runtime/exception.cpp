// The exception classes of the unit mexcept: message storage, copying, what(), bad_alloc's text.
#include <__lorb/error.h>
#include <__lorb/runtime.h>
#include <exception>
#include <new>
#include <string>

namespace std {
// The library's own empty string: the answer of what() for a missing or empty message.
static const char empty_message[] = "";

static exception::__string_type* new_message_storage() {
  void* storage = operator new(sizeof(exception::__string_type));
  if (!storage)
    __vel::out_of_memory();
  return static_cast<exception::__string_type*>(storage);
}

exception::exception(const char* text)
    : __message(new (new_message_storage()) __string_type(text)), __owns_message(true) {}

exception::exception(const __string_type& text)
    : __message(new (new_message_storage()) __string_type(text, 0, __string_type::npos)),
      __owns_message(true) {}

exception::exception(const exception& other) : __message(0), __owns_message(false) {
  __copy_message_from(other);
}

exception& exception::operator=(const exception& other) {
  if (this == &other)
    return *this;
  if (__owns_message)
    delete __message;
  __copy_message_from(other);
  return *this;
}

// The text comes from the source's virtual what(), so a copy of a derived object carries the
// derived class's text rather than the stored one.
void exception::__copy_message_from(const exception& other) {
  __owns_message = other.__owns_message;
  __message = __owns_message ? new (new_message_storage()) __string_type(other.what()) : 0;
}

exception::~exception() __LORB_NOEXCEPT {
  if (__owns_message)
    delete __message;
}

const char* exception::what() const __LORB_NOEXCEPT {
  if (__owns_message && __message && __message->length() != 0)
    return __message->c_str();
  return empty_message;
}

// Kept: assignment copies nothing, not even the message flag.
bad_alloc& bad_alloc::operator=(const bad_alloc&) __LORB_NOEXCEPT { return *this; }

bad_alloc::~bad_alloc() __LORB_NOEXCEPT {}

const char* bad_alloc::what() const __LORB_NOEXCEPT { return alloc_msg.c_str(); }

bad_cast::~bad_cast() __LORB_NOEXCEPT {}

bad_typeid::bad_typeid() __LORB_NOEXCEPT : exception("") {}

bad_typeid::~bad_typeid() __LORB_NOEXCEPT {}
} // namespace std

// The storage of bad_alloc::alloc_msg under the member's own symbol. It is defined as plain bytes
// so that g++ attaches no constructor or destructor of its own: the start-up below builds the
// string and records it, and the destruction walk destroys it.
__LORB_EXPORT __attribute__((__aligned__(__alignof__(std::exception::__string_type)))) char
    alloc_msg_storage[sizeof(std::exception::__string_type)] __asm__("_ZNSt9bad_alloc9alloc_msgE");

static void destroy_alloc_msg(void* object, int flags) {
  static_cast<std::exception::__string_type*>(object)->~basic_string();
  if (flags & 1)
    operator delete(object);
}

static __lorb_destruction_node alloc_msg_node = {0, 0, 0};

// Recorded as early as the library loads, so that it is destroyed at the very end of the walk,
// after every static object that might still report an allocation failure.
__attribute__((constructor(101))) static void build_alloc_msg() {
  new (&std::bad_alloc::alloc_msg) std::exception::__string_type("Allocation Failure");
  alloc_msg_node.object = &std::bad_alloc::alloc_msg;
  alloc_msg_node.destructor = destroy_alloc_msg;
  __record_needed_destruction(&alloc_msg_node);
}
