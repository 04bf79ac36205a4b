// Prints the ids of the twelve standard facets, in the order a locale creates them.
#include <locale>
#include <stdio.h>

typedef std::istreambuf_iterator<char, std::char_traits<char>> input_iterator;
typedef std::ostreambuf_iterator<char, std::char_traits<char>> output_iterator;

static void print_standard_ids() {
  printf("numpunct %u\n", std::numpunct<char>::id.__value);
  printf("num_get %u\n", std::num_get<char, input_iterator>::id.__value);
  printf("num_put %u\n", std::num_put<char, output_iterator>::id.__value);
  printf("ctype %u\n", std::ctype<char>::id.__value);
  printf("codecvt %u\n", std::codecvt<char, char, int>::id.__value);
  printf("collate %u\n", std::collate<char>::id.__value);
  printf("time_put %u\n", std::time_put<char, output_iterator>::id.__value);
  printf("time_get %u\n", std::time_get<char, input_iterator>::id.__value);
  printf("moneypunct<true> %u\n", std::moneypunct<char, true>::id.__value);
  printf("moneypunct<false> %u\n", std::moneypunct<char, false>::id.__value);
  printf("money_put %u\n", std::money_put<char, output_iterator>::id.__value);
  printf("money_get %u\n", std::money_get<char, input_iterator>::id.__value);
}
