// bool names from a program's own numpunct, installed with locale(locale(), facet). Lorb++ matches
// the names in the order false, true, one character at a time, the first name to be complete
// winning; a name that ends the input is not recognised and a failure keeps the target. Each case
// is read twice, into false and into true, so that a kept target shows as "0/1". GNU's library
// cannot install the facet in a program built without RTTI, so only Lorb++'s output is checked.
#include <cstdio>
#include <cstring>
#include <locale>
#include <sstream>
#include <string>

#include "input_bool_case.h"
#include "input_support.h"

class names_punct : public std::numpunct<char> {
public:
  names_punct(const char* false_name, const char* true_name)
      : false_name_(false_name), true_name_(true_name) {}

protected:
  std::string do_falsename() const { return false_name_; }
  std::string do_truename() const { return true_name_; }

private:
  std::string false_name_, true_name_;
};

int main() {
  const std::locale classic = std::locale::classic();
  const std::locale yes_no(classic, new names_punct("no", "yes"));
  read_case(yes_no, "no/yes", true, true, "yes ");
  read_case(yes_no, "no/yes", true, true, "no ");
  read_case(yes_no, "no/yes", true, true, "yes");
  read_case(yes_no, "no/yes", true, true, "nope");
  read_case(yes_no, "no/yes", true, true, "true ");
  const std::locale short_false(classic, new names_punct("ab", "abc"));
  read_case(short_false, "ab/abc", true, true, "abc ");
  read_case(short_false, "ab/abc", true, true, "ab ");
  read_case(short_false, "ab/abc", true, true, "abd");
  const std::locale short_true(classic, new names_punct("abc", "ab"));
  read_case(short_true, "abc/ab", true, true, "abc ");
  read_case(short_true, "abc/ab", true, true, "ab;");
  read_case(short_true, "abc/ab", true, true, "ax");
  const std::locale same(classic, new names_punct("same", "same"));
  read_case(same, "same/same", true, true, "same ");
  read_case(same, "same/same", true, true, "sam");
  return 0;
}
