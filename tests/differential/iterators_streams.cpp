// istream_iterator over generated texts of numbers (some with a stray word that ends the
// reading), and ostream_iterator writing what was read with and without delimiters.
#include <iterator>
#include <sstream>
#include <stdio.h>
#include <string>

static unsigned seed = 2024;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return (seed >> 16) & 0x7fff;
}

// Numbers separated by runs of blanks and newlines; now and then a word in the middle.
static std::string random_numbers(unsigned count) {
  static const char* const gaps[] = {" ", "  ", "\n", "\t ", " \n "};
  std::string text;
  for (unsigned i = 0; i < count; ++i) {
    char number[16];
    int value = static_cast<int>(next_random()) - 16384;
    sprintf(number, "%d", value);
    text += number;
    text += gaps[next_random() % 5];
    if (next_random() % 23 == 0)
      text += "stop ";
  }
  return text;
}

template <class In, class Out> static Out copy_all(In first, In last, Out out) {
  for (; first != last; ++first, ++out)
    *out = *first;
  return out;
}

static void print_state(const char* what, const std::istream& in) {
  printf("%s [%c%c%c]\n", what, in.eof() ? 'e' : '-', in.fail() ? 'f' : '-', in.bad() ? 'b' : '-');
}

int main() {
  for (int round = 0; round < 60; ++round) {
    std::string text = random_numbers(next_random() % 12);
    std::istringstream in(text);
    std::istream_iterator<int> it(in), end;
    int values[64];
    int n = 0;
    for (; it != end && n < 64; ++it)
      values[n++] = *it;
    printf("round %d: read %d\n", round, n);
    print_state("  after reading", in);

    std::ostringstream joined, bare;
    copy_all(values, values + n, std::ostream_iterator<int>(joined, ", "));
    copy_all(values, values + n, std::ostream_iterator<int>(bare));
    printf("  joined {%s}\n  bare {%s}\n", joined.str().c_str(), bare.str().c_str());

    // Reading the whole text again straight into an ostream_iterator.
    std::istringstream again(text);
    std::ostringstream copied;
    copy_all(std::istream_iterator<int>(again), std::istream_iterator<int>(),
             std::ostream_iterator<int>(copied, "|"));
    printf("  copied {%s}\n", copied.str().c_str());
  }

  // Equality: end iterators, iterators over one stream, over two streams.
  std::istringstream a("1 2 3"), b("1 2 3"), empty("");
  std::istream_iterator<int> a1(a), a2(a), b1(b), e1, e2, finished(empty);
  printf("end==end %d, a1==a2 %d, a1==b1 %d, a1==end %d, finished==end %d\n", e1 == e2, a1 == a2,
         a1 == b1, a1 == e1, finished == e2);
  printf("a1 %d a2 %d b1 %d\n", *a1, *a2, *b1);
  std::istream_iterator<int> old = a1++;
  printf("post-increment old %d new %d\n", *old, *a1);

  // Words and characters.
  std::istringstream words("alpha  beta\ngamma");
  std::ostringstream word_out;
  copy_all(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>(),
           std::ostream_iterator<std::string>(word_out, "/"));
  printf("words {%s}\n", word_out.str().c_str());
  std::istringstream chars("a b\tc");
  std::ostringstream char_out;
  copy_all(std::istream_iterator<char>(chars), std::istream_iterator<char>(),
           std::ostream_iterator<char>(char_out, "."));
  printf("chars {%s}\n", char_out.str().c_str());
  std::istringstream doubles("0.25 1e2 -3.5x");
  std::ostringstream double_out;
  copy_all(std::istream_iterator<double>(doubles), std::istream_iterator<double>(),
           std::ostream_iterator<double>(double_out, " ; "));
  printf("doubles {%s}\n", double_out.str().c_str());
  return 0;
}
