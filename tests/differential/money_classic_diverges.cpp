// Deliberate: in the classic locale the money facets use the C library's values as they are: no
// decimal point (NUL) and CHAR_MAX (127) fraction digits, so amounts are written with 127
// fraction digits after a NUL and read with 127 digits of padding.
#include <locale>
#include <sstream>
#include <stdio.h>
#include <string>

static void print_escaped(const std::string& text) {
  for (std::string::size_type i = 0; i < text.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(text[i]);
    if (c >= 32 && c < 127)
      putchar(c);
    else
      printf("\\x%02x", c);
  }
}

int main() {
  const std::locale& loc = std::locale::classic();
  const long double amounts[] = {150, -7, 0};
  for (int i = 0; i < 3; ++i) {
    std::ostringstream out;
    const std::money_put<char>& put = std::use_facet<std::money_put<char> >(loc);
    put.put(std::ostreambuf_iterator<char>(out), false, out, ' ', amounts[i]);
    printf("%.0Lf -> [", amounts[i]);
    print_escaped(out.str());
    printf("]\n");
  }
  const char* texts[] = {"5", "-12", "1.5"};
  for (int i = 0; i < 3; ++i) {
    std::istringstream in(texts[i]);
    std::ios_base::iostate state = std::ios_base::goodbit;
    std::string digits = "none";
    std::use_facet<std::money_get<char> >(loc).get(std::istreambuf_iterator<char>(in),
                                                   std::istreambuf_iterator<char>(), false, in,
                                                   state, digits);
    printf("[%s] -> %u digits [%s] fail %d next '%c'\n", texts[i],
           static_cast<unsigned>(digits.size()), digits.substr(0, 4).c_str(),
           (state & std::ios_base::failbit) != 0, in.peek() == -1 ? '$' : in.peek());
  }
  return 0;
}
