// money_get pads a short fraction with zeros to the fraction digits, so the digit string is
// always the amount in the smallest unit.
#include "money_support.h"

int main() {
  const money_layout layout = {"?-v ", "?-v ", "-", "\3", 2};
  std::locale loc = money_locale(layout);
  const char* texts[] = {"12", "1.5", ".5", "-1,234", "0.05"};
  for (int i = 0; i < 5; ++i) {
    int state = 0;
    std::string digits = read_digits(loc, texts[i], std::ios_base::fmtflags(), state);
    printf("[%s] %s fail %d\n", texts[i], digits.c_str(), failed(state));
  }
  return 0;
}
