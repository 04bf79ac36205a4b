// A small money formatter: prints a few amounts (in cents) as local and international money in
// each locale named on the command line (en_US.UTF-8 and de_DE.UTF-8 by default), then reads
// one amount back. Build: bin/lorb++ examples/money.cpp -o money
#include <iostream>
#include <locale>
#include <sstream>
#include <string>

// The amount in cents written by the locale's money_put, with the currency symbol.
static std::string format_money(const std::locale& loc, long double cents, bool intl) {
  std::ostringstream out;
  out.imbue(loc);
  out.setf(std::ios_base::showbase);
  const std::money_put<char>& put = std::use_facet<std::money_put<char> >(loc);
  put.put(std::ostreambuf_iterator<char>(out), intl, out, ' ', cents);
  return out.str();
}

int main(int argc, char** argv) {
  const char* defaults[] = {"en_US.UTF-8", "de_DE.UTF-8"};
  int count = argc > 1 ? argc - 1 : 2;
  const long double amounts[] = {123456789, -4250, 7};
  for (int i = 0; i < count; ++i) {
    const char* name = argc > 1 ? argv[i + 1] : defaults[i];
    std::locale loc(name);
    std::cout << name << ":\n";
    for (int k = 0; k < 3; ++k) {
      std::cout << "  local [" << format_money(loc, amounts[k], false) << "]  international ["
                << format_money(loc, amounts[k], true) << "]\n";
    }
    // Reads back what was written for the first amount.
    std::istringstream in(format_money(loc, amounts[0], false));
    in.imbue(loc);
    in.setf(std::ios_base::showbase);
    std::ios_base::iostate state = std::ios_base::goodbit;
    std::string digits;
    std::use_facet<std::money_get<char> >(loc).get(std::istreambuf_iterator<char>(in),
                                                   std::istreambuf_iterator<char>(), false, in,
                                                   state, digits);
    std::cout << "  read back: " << (state & std::ios_base::failbit ? "failed" : digits) << "\n";
  }
  return 0;
}
