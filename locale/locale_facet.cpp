// The facet base and facet ids: releasing a facet from a table, and the process-wide id counter.
#include <__lorb/locale_core.h>

namespace std {

locale::facet::~facet() {}

void locale::facet::__release() {
  if (!__managed)
    return;
  if (__refs-- == 1)
    delete this;
}

void locale::id::init() const {
  static unsigned master_id = 0;
  if (__value == 0)
    __value = ++master_id;
}

} // namespace std
