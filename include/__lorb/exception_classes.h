// The exception classes the run-time itself refers to: exception, bad_alloc, bad_cast, bad_typeid.
#ifndef __LORB_EXCEPTION_CLASSES_H
#define __LORB_EXCEPTION_CLASSES_H

#include <__lorb/config.h>

namespace std {
// Forward declarations only, so that <exception>, <new> and <typeinfo> need not pull in <string>.
// No default arguments here: <string> gives them where it defines the template.
template <class _CharT> struct char_traits;
template <class _T> class allocator;
template <class _CharT, class _Traits, class _Alloc> class basic_string;

// The message storage of the library's exceptions: a heap string created by the object itself.
//
// Layout note: the written layout is {message, owns message, virtual-table pointer}. g++ always
// puts the virtual-table pointer first, so objects built here are {vptr, message, owns message};
// the two fields keep their written order after it.
class __LORB_EXPORT exception {
public:
  // The blank between the closing brackets is needed in C++98.
  // clang-format off
  typedef basic_string<char, char_traits<char>, allocator<char> > __string_type;
  // clang-format on

  // Generated inline in programs: no message, nothing owned.
  exception() __LORB_NOEXCEPT : __message(0), __owns_message(false) {}
  // Both create a new string from the text; the object owns it.
  explicit exception(const char* text);
  explicit exception(const __string_type& text);
  // Copies the owns-message flag; an owned message is re-created from the source's virtual what().
  exception(const exception& other);
  exception& operator=(const exception& other);
  virtual ~exception() __LORB_NOEXCEPT;
  // The owned message when it is not empty, otherwise the library's own empty string.
  virtual const char* what() const __LORB_NOEXCEPT;

  // Prints the text on standard error as a printf format, adding nothing.
  static void __issue_msg_to_stderr(const char* text);

private:
  __attribute__((__visibility__("hidden"))) void __copy_message_from(const exception& other);

  __string_type* __message;
  bool __owns_message;
};

class __LORB_EXPORT bad_alloc : public exception {
public:
  bad_alloc() __LORB_NOEXCEPT {}
  bad_alloc(const bad_alloc& other) __LORB_NOEXCEPT : exception(other) {}
  // Deliberately copies nothing.
  bad_alloc& operator=(const bad_alloc& other) __LORB_NOEXCEPT;
  virtual ~bad_alloc() __LORB_NOEXCEPT;
  // Always the text of alloc_msg, "Allocation Failure", whatever the object holds.
  virtual const char* what() const __LORB_NOEXCEPT;

  // Built by the start-up of the unit mexcept and recorded for destruction.
  static __string_type alloc_msg;
};

class __LORB_EXPORT bad_cast : public exception {
public:
  bad_cast() __LORB_NOEXCEPT {}
  virtual ~bad_cast() __LORB_NOEXCEPT;

  // Prints "bad_cast: <text>\n" on standard error and aborts.
  __LORB_NORETURN static void __throw(const char* text);
};

class __LORB_EXPORT bad_typeid : public exception {
public:
  // The message is an owned empty string, so what() is "".
  bad_typeid() __LORB_NOEXCEPT;
  virtual ~bad_typeid() __LORB_NOEXCEPT;
};
} // namespace std

#endif
