// Deliberate: money_get never sets eofbit, even when the amount runs to the end of the input.
#include "money_support.h"

int main() {
  const money_layout layout = {"?-v ", "-?v0", "-", "\3", 2};
  std::locale loc = money_locale(layout);
  const char* texts[] = {"1,234.56", "-$7.00", "12.00 rest", "", "1,2"};
  for (int i = 0; i < 5; ++i) {
    int state = 0;
    std::string digits = read_digits(loc, texts[i], std::ios_base::showbase, state);
    printf("[%s] %s eof %d fail %d\n", texts[i], digits.c_str(),
           (state & std::ios_base::eofbit) != 0, failed(state));
  }
  return 0;
}
