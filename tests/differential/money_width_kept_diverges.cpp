// Deliberate: money_put pads to the stream's width and leaves the width as it was.
#include "money_support.h"

int main() {
  const money_layout layout = {"?-v ", "?-v ", "-", "\3", 2};
  std::ostringstream out;
  out.imbue(money_locale(layout));
  out.width(12);
  write_units(out, 123456, '_');
  printf("[%s] width %ld\n", out.str().c_str(), static_cast<long>(out.width()));
  write_units(out, -5, '_');
  printf("[%s] width %ld\n", out.str().c_str(), static_cast<long>(out.width()));
  return 0;
}
