// Where Lorb++'s bool reading deliberately differs: without boolalpha exactly one character is
// looked at ("10" is true and leaves "0"; "2" fails and stays); at the end of input only eofbit
// is set and the target kept; with boolalpha a name is recognised only when something follows
// it, and a failure keeps the target. Each case is read twice, into false and into true, so that
// a kept target shows as "0/1".
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_bool_case.h"
#include "input_support.h"

int main() {
  const std::locale classic = std::locale::classic();
  static const char* const digit_cases[] = {"10", "2", "01", "-1", "+1", "",
                                            "  ", "1", "0",  "11", "x"};
  for (size_t i = 0; i < sizeof digit_cases / sizeof digit_cases[0]; ++i)
    read_case(classic, "classic", false, true, digit_cases[i]);
  read_case(classic, "classic", false, false, " 1");

  static const char* const word_cases[] = {"true", "false", "tru", "",  "t",
                                           " \n",  "true ", "tx",  "x", "falsE"};
  for (size_t i = 0; i < sizeof word_cases / sizeof word_cases[0]; ++i)
    read_case(classic, "classic", true, true, word_cases[i]);
  read_case(classic, "classic", true, false, " true ");

  return 0;
}
