// Deliberate: with skipws set, money_get skips white space before the first part, so a pattern
// that starts with a space part then finds none (GNU's facet leaves that to the stream).
#include "money_support.h"

int main() {
  const money_layout layout = {"- ?v", "- ?v", "-", "\3", 2};
  std::locale loc = money_locale(layout);
  const char* texts[] = {" 15.56", "- $16.78", "  1,234.00"};
  for (int i = 0; i < 3; ++i) {
    int with = 0, without = 0;
    std::string skipped = read_digits(loc, texts[i], std::ios_base::skipws, with);
    std::string kept = read_digits(loc, texts[i], std::ios_base::fmtflags(), without);
    printf("[%s] skipws: %s fail %d; without: %s fail %d\n", texts[i], skipped.c_str(),
           failed(with), kept.c_str(), failed(without));
  }
  return 0;
}
