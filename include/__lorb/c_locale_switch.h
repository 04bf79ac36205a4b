// The C library's locale switched to a name for one category while a facet reads it, then restored.
#ifndef __LORB_C_LOCALE_SWITCH_H
#define __LORB_C_LOCALE_SWITCH_H

namespace __vel {
// Keeps a copy of the whole C locale and switches `category` to `name`; a name the C library
// rejects, or a null one, reports "Invalid locale name\n" through runtime_error. The destructor
// puts the kept locale back.
class c_locale_switch {
public:
  c_locale_switch(int category, const char* name);
  ~c_locale_switch();

private:
  c_locale_switch(const c_locale_switch&);
  c_locale_switch& operator=(const c_locale_switch&);

  char* kept_name;
};
} // namespace __vel

#endif
