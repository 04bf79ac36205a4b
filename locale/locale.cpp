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

} // namespace std
