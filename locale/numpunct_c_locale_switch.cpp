// The C locale switch the punctuation facets read their conventions under.
#include <__lorb/c_locale_switch.h>
#include <__lorb/error.h>
#include <locale.h>
#include <stdexcept>
#include <string.h>

namespace __vel {
c_locale_switch::c_locale_switch(int category, const char* name) : kept_name(0) {
  // A null name would only query the C library, which is not a locale to read.
  if (!name)
    std::runtime_error::__throw(invalid_locale_name_message);
  // Copied: the C library may reuse the storage of the name it returns at the next switch.
  const char* current = setlocale(LC_ALL, 0);
  size_t length = strlen(current);
  kept_name = new char[length + 1];
  if (!kept_name)
    out_of_memory();
  memcpy(kept_name, current, length + 1);
  if (!setlocale(category, name)) {
    delete[] kept_name;
    std::runtime_error::__throw(invalid_locale_name_message);
  }
}

c_locale_switch::~c_locale_switch() {
  setlocale(LC_ALL, kept_name);
  delete[] kept_name;
}
} // namespace __vel
