// Deliberate: money_put's digit-string overload reads an optional sign and the digits up to the
// first other character into a long double and writes that amount, so leading zeros and what
// follows a '.' are gone.
#include "money_support.h"

int main() {
  const money_layout layout = {"?-v ", "?-v ", "-", "\3", 2};
  std::locale loc = money_locale(layout);
  const char* digits[] = {"-0012", "12.5", "+000123456", "", "7x9"};
  for (int i = 0; i < 5; ++i) {
    std::ostringstream out;
    out.imbue(loc);
    const std::money_put<char>& put = std::use_facet<std::money_put<char> >(loc);
    put.put(std::ostreambuf_iterator<char>(out), false, out, ' ', std::string(digits[i]));
    printf("[%s] -> [%s]\n", digits[i], out.str().c_str());
  }
  return 0;
}
