// The one way the library reports errors: the message texts and the routines that print and end.
#include <__lorb/error.h>
#include <__lorb/report_error.h>
#include <stdexcept>
#include <stdio.h>
#include <stdlib.h>

namespace __vel {
const char out_of_range_message[] = "Out of range exception occurred";
const char container_out_of_range_message[] = "Out of range exception\n";
const char bitset_out_of_range_message[] = "Out of range exception occured.";
const char length_error_message[] = "Length exception occurred";
const char invalid_value_message[] = "Invalid value in the string";
const char bitset_overflow_message[] = "Bitset can not be converted";
const char facet_not_present_message[] = "Facet not present\n";
const char invalid_locale_name_message[] = "Invalid locale name\n";
const char out_of_memory_message[] = "Lorb++ : Could not allocate  memory ...\n";

// Kept: a message that ends in "\n" gets a second one from the format, leaving an empty line.
void throw_with_exceptions_disabled(const char* class_name, const char* message) {
  fprintf(stderr, "%s: %s\n", class_name, message);
  abort();
}

void throw_range() { std::out_of_range::__throw(bitset_out_of_range_message); }

void throw_invalid_value_in_string() { std::invalid_argument::__throw(invalid_value_message); }

void throw_bitset_overflow() { std::overflow_error::__throw(bitset_overflow_message); }

// The C library's exit, so the needed-destruction list runs through its atexit registration.
void out_of_memory() {
  std::exception::__issue_msg_to_stderr(out_of_memory_message);
  exit(1);
}
} // namespace __vel

namespace std {
void exception::__issue_msg_to_stderr(const char* text) {
  // Kept: the text is the format itself; the library's texts hold no conversion.
  fprintf(stderr, text);
}

void invalid_argument::__throw(const char* text) {
  __vel::throw_with_exceptions_disabled("invalid_argument", text);
}

void length_error::__throw(const char* text) {
  __vel::throw_with_exceptions_disabled("length_error", text);
}

void out_of_range::__throw(const char* text) {
  __vel::throw_with_exceptions_disabled("out_of_range", text);
}

void runtime_error::__throw(const char* text) {
  __vel::throw_with_exceptions_disabled("runtime_error", text);
}

void overflow_error::__throw(const char* text) {
  __vel::throw_with_exceptions_disabled("overflow_error", text);
}

void bad_cast::__throw(const char* text) {
  __vel::throw_with_exceptions_disabled("bad_cast", text);
}

void __trelk_report_error(const char* text) {
  fprintf(stderr, "%s\n", text);
  exit(1);
}
} // namespace std
