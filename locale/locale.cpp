// The locale handle: the classic and global locales, construction from a name, assignment.
#include <__lorb/locale_core.h>
#include <__lorb/runtime.h>
#include <locale.h>
#include <new>
#include <stdexcept>

namespace std {

const locale::category locale::none;
const locale::category locale::collate;
const locale::category locale::ctype;
const locale::category locale::monetary;
const locale::category locale::numeric;
const locale::category locale::time;
const locale::category locale::messages;
const locale::category locale::all;

locale::imp* locale::global_ = 0;

locale::locale() {
  if (!global_)
    global_ = classic().__imp;
  __imp = global_;
  ++__imp->refs;
}

locale::locale(const char* std_name) {
  basic_string<char> kept(setlocale(LC_ALL, 0));
  if (!std_name || !setlocale(LC_ALL, std_name))
    runtime_error::__throw(__vel::invalid_locale_name_message);
  __imp = new imp(std_name, all);
  setlocale(LC_ALL, kept.c_str());
}

// Kept: only assignment clears global_ when the global locale's last handle lets go of it.
const locale& locale::operator=(const locale& other) {
  if (__imp == other.__imp)
    return *this;
  if (--__imp->refs == 0) {
    if (__imp == global_)
      global_ = 0;
    delete __imp;
  }
  __imp = other.__imp;
  ++__imp->refs;
  return *this;
}

locale::~locale() {
  if (--__imp->refs == 0)
    delete __imp;
}

basic_string<char> locale::name() const { return __imp->name; }

bool locale::operator==(const locale& other) const {
  return __imp == other.__imp || (__imp->name != "*" && __imp->name == other.__imp->name);
}

namespace {
// The classic locale is built on first use, not at start-up, and recorded for destruction at
// exit through the library's own list rather than a compiler-generated destructor call.
union classic_storage {
  void* alignment;
  char bytes[sizeof(locale)];
};
classic_storage __trelk_locale;
bool __trelk_locale_built = false;

void destroy_classic(void* object, int) { static_cast<locale*>(object)->~locale(); }

__lorb_destruction_node classic_destruction = {0, 0, 0};
} // namespace

const locale& locale::classic() {
  locale* classic_locale = reinterpret_cast<locale*>(__trelk_locale.bytes);
  if (!__trelk_locale_built) {
    new (classic_locale) locale("C");
    __trelk_locale_built = true;
    classic_destruction.object = classic_locale;
    classic_destruction.destructor = destroy_classic;
    __record_needed_destruction(&classic_destruction);
  }
  return *classic_locale;
}

namespace {
// The locale that global() installed holds a counted reference, so global_ never outlives its
// representation; it is recorded for destruction like the classic locale.
union global_storage {
  void* alignment;
  char bytes[sizeof(locale)];
};
global_storage global_holder;
bool global_holder_built = false;

void destroy_global_holder(void* object, int) {
  locale* holder = static_cast<locale*>(object);
  if (locale::global_ == holder->__imp)
    locale::global_ = 0;
  holder->~locale();
}

__lorb_destruction_node global_holder_destruction = {0, 0, 0};
} // namespace

locale locale::global(const locale& loc) {
  locale previous;
  locale* holder = reinterpret_cast<locale*>(global_holder.bytes);
  if (!global_holder_built) {
    new (holder) locale(loc);
    global_holder_built = true;
    global_holder_destruction.object = holder;
    global_holder_destruction.destructor = destroy_global_holder;
    __record_needed_destruction(&global_holder_destruction);
  } else {
    *holder = loc;
  }
  global_ = loc.__imp;
  if (loc.__imp->name != "*")
    setlocale(LC_ALL, loc.__imp->name.c_str());
  return previous;
}

} // namespace std
